// How a message box answers pointer, keys and time, and how it ends.
#include "MessageBoxEx/MessageBoxEx.h"

#include "ButtonEx/ButtonEx.h"
#include "MessageBoxEx/MessageBoxEx_p.h"
#include "MessageBoxEx/TitleBar/TitleBar.h"
#include "Platform/Platform.h"
#include "include/qt_compat.h"
#include "include/qt_globals.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QTimerEvent>

namespace {

// The zones of the edges, counted from the box and from what is inside its shadow.
constexpr int innerMargin = 3;
constexpr int outerGap = 4;
constexpr int rightEdgeShortBy = 8;
constexpr int bottomEdgeShortBy = 10;
constexpr QPoint cornerReach(2, 2);
constexpr QPoint cornerGap(5, 5);

// From the pointer, which is in the shadow, to the new edge of the box.
constexpr int pointerToEdge = 12;

} // namespace

void CMessageBoxEx::mousePressEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    m_dragPos = zel::localPosition(event);
    m_bPressed = event->button() == Qt::LeftButton;
    // The title bar is at the top left of the box: their coordinates agree.
    if (m_bPressed && m_pTitleBar->rect().contains(m_dragPos)) {
        if (!Platform::startWindowDrag(this))
            Platform::followPointer(this, zel::globalPosition(event));
        m_bPressed = false;
    }
    m_dragPos = zel::globalPosition(event);
}

void CMessageBoxEx::mouseReleaseEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    m_bPressed = false;
    setCursor(Qt::ArrowCursor);
}

void CMessageBoxEx::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint position = zel::localPosition(event);
    if (m_bPressed)
        resizeTo(position, zel::globalPosition(event).y());
    else if (d->m_bResizeable)
        setCursor(cursorAt(position));
    QWidget::mouseMoveEvent(event);
}

Qt::CursorShape CMessageBoxEx::cursorAt(const QPoint &position) const
{
    const QRect inner = contentsRect().adjusted(-innerMargin, -innerMargin, innerMargin, innerMargin);
    const QRect outer = rect();
    if (position.x() > inner.right() && position.x() < outer.right() - outerGap &&
        position.y() < inner.bottom() - rightEdgeShortBy)
        return Qt::SizeHorCursor;
    if (position.y() > inner.bottom() && position.y() < outer.bottom() - outerGap &&
        position.x() < outer.right() - bottomEdgeShortBy)
        return Qt::SizeVerCursor;
    if (QRect(inner.bottomRight() - cornerReach, outer.bottomRight() - cornerGap).contains(position))
        return Qt::SizeFDiagCursor;
    return Qt::ArrowCursor;
}

// By the edge that the cursor showed when the button went down.
void CMessageBoxEx::resizeTo(const QPoint &position, int globalY)
{
    const Qt::CursorShape edge = cursor().shape();
    if (edge != Qt::SizeHorCursor && edge != Qt::SizeVerCursor && edge != Qt::SizeFDiagCursor)
        return;
    const QRect taskBar = getTaskbarRect();
    const bool isOverTaskBar = globalY > taskBar.top() - pointerToEdge;
    const int newWidth = position.x() + pointerToEdge;
    const int newHeight = isOverTaskBar ? mapFromGlobal(taskBar.topLeft()).y() : position.y() + pointerToEdge;
    resize(edge == Qt::SizeVerCursor ? width() : newWidth, edge == Qt::SizeHorCursor ? height() : newHeight);
}

// Children show the cursor of the box. The pointer that leaves an edge for one of them so fast that the box does not
// see it must not carry the edge's cursor along: the next press would resize.
bool CMessageBoxEx::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Enter && d->m_bResizeable && !m_bPressed)
        setCursor(Qt::ArrowCursor);
    return QDialog::eventFilter(watched, event);
}

void CMessageBoxEx::setResizeable(bool resizeable)
{
    ZEL_LOG_SCOPE;
    d->m_bResizeable = resizeable;
}

bool CMessageBoxEx::resizeable() const
{
    return d->m_bResizeable;
}

void CMessageBoxEx::changeCursorShape(bool moveCursor)
{
    m_pTitleBar->changeCursorShape(moveCursor);
}

// Nothing goes to QDialog, which would end the box on Escape.
void CMessageBoxEx::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT signal_EscapePressed();
}

// QDialog would reject, and so change the result.
void CMessageBoxEx::closeEvent(QCloseEvent *event)
{
    Q_UNUSED(event)
    Q_EMIT signal_CloseEvent();
}

int CMessageBoxEx::setAutoClose(int seconds)
{
    ZEL_LOG_SCOPE;
    m_bAutoClose = true;
    m_autoCloseCount = seconds;
    return m_timerId;
}

// Whoever is told of the box may destroy it, here and below.
void CMessageBoxEx::timerEvent(QTimerEvent *event)
{
    const QPointer<CMessageBoxEx> self(this);
    if (event->timerId() == m_timerId && m_autoCloseCount-- <= 0)
        endByCountDown();
    if (!self.isNull())
        Q_EMIT UpdateText();
}

void CMessageBoxEx::endByCountDown()
{
    killTimer(m_timerId);
    const QPointer<CMessageBoxEx> self(this); // who hears of the end may destroy the box
    accept();
    if (self.isNull())
        return;
    // Hidden by now, the box would be closed by Qt 5 with its event and by Qt 6 without.
    QCloseEvent event;
    QCoreApplication::sendEvent(this, &event);
}

void CMessageBoxEx::slot_close()
{
    ZEL_LOG_SCOPE;
    Q_EMIT signal_MesssageBoxClosed();
}

void CMessageBoxEx::buttonClicked()
{
    ZEL_LOG_SCOPE;
    const QPointer<CMessageBoxEx> self(this); // who hears of the click may destroy the box
    int result = 0;
    bool endsBox = true;
    for (int index = 0; index < m_numButtons; ++index) {
        if (m_pButtons[index] != sender())
            continue;
        Q_EMIT Button_Hit(m_buttons[index]);
        if (self.isNull())
            return;
        endsBox = m_popupButtons[index] != index;
        result = m_buttons[index];
        if (!endsBox)
            Q_EMIT Popup_Notify(m_pButtons[index]->text());
        break;
    }
    if (!self.isNull() && endsBox)
        done(result);
}

void CMessageBoxEx::slot_OnHelpLinkClicked()
{
    ZEL_LOG_SCOPE;
    Q_EMIT signal_HelpLinkClicked();
}

void CMessageBoxEx::slot_OnCheckBoxStateChanged(int state)
{
    ZEL_LOG_SCOPE;
    Q_EMIT signal_CheckBoxStateChanged(state);
}
