#include "LabelEx/LabelEx.h"

#include "LabelEx/LabelExAccessible.h"
#include "LabelEx/RightToLeftText.h"
#include "include/qt_globals.h"

#include <QAbstractButton>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMimeData>
#include <QPainter>
#include <QPointer>

namespace {

bool hasPhotos(const QMimeData *data)
{
    return data != nullptr && data->hasFormat(QStringLiteral("application/x-tnv2dnditemdata")) &&
           data->hasFormat(QStringLiteral("text/uri-list"));
}

bool clicks(const QKeyEvent *event)
{
    if ((event->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier || event->isAutoRepeat())
        return false;
    return event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

} // namespace

CLabelEx::CLabelEx(QWidget *parent) : QLabel(parent)
{
    ZEL_LOG_SCOPE;
    LabelExAccessible::install(this);
}

CLabelEx::~CLabelEx()
{
    ZEL_LOG_SCOPE;
}

void CLabelEx::setDrag(bool enabled)
{
    ZEL_LOG_SCOPE;
    m_bDrag = enabled;
    if (!enabled)
        return;
    setCursor(Qt::PointingHandCursor);
    setMouseTracking(true);
    setAcceptDrops(true);
}

bool CLabelEx::isClickable() const
{
    return !isPartOfButton() && (isSignalConnected(QMetaMethod::fromSignal(&CLabelEx::clicked)) ||
                                 isSignalConnected(QMetaMethod::fromSignal(&CLabelEx::clicked2)));
}

void CLabelEx::click()
{
    ZEL_LOG_SCOPE;
    if (isEnabled())
        tellClick();
}

void CLabelEx::mousePressEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    event->setAccepted(event->button() == Qt::LeftButton);
}

void CLabelEx::mouseReleaseEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    tellClick();
    event->accept();
}

void CLabelEx::mouseMoveEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    QLabel::mouseMoveEvent(event);
}

void CLabelEx::enterEvent(zel::EnterEvent *)
{
    ZEL_LOG_SCOPE;
    if (m_bHovered)
        return;
    m_bHovered = true;
    tellHover();
}

void CLabelEx::leaveEvent(QEvent *)
{
    ZEL_LOG_SCOPE;
    m_bHovered = false;
    tellHover();
}

void CLabelEx::dragEnterEvent(QDragEnterEvent *event)
{
    ZEL_LOG_SCOPE;
    if (!m_bDrag || !hasPhotos(event->mimeData())) {
        event->ignore();
        return;
    }
    accept(*event);
}

void CLabelEx::dragLeaveEvent(QDragLeaveEvent *) {}

void CLabelEx::dropEvent(QDropEvent *event)
{
    ZEL_LOG_SCOPE;
    // No enter event comes while a drag has the mouse.
    m_bHovered = true;
    if (!m_bDrag || event->mimeData() == nullptr || !event->mimeData()->hasUrls()) {
        event->ignore();
        return;
    }
    accept(*event);
    Q_EMIT signal_droppedOnButton();
}

void CLabelEx::keyPressEvent(QKeyEvent *event)
{
    ZEL_LOG_SCOPE;
    if (!isClickable() || !clicks(event)) {
        event->ignore();
        return;
    }
    tellClick();
    event->accept();
}

// QLabel would lay out its text anew, for a cursor in it that is never shown here.
void CLabelEx::focusInEvent(QFocusEvent *)
{
    ZEL_LOG_SCOPE;
    update();
}

void CLabelEx::focusOutEvent(QFocusEvent *)
{
    ZEL_LOG_SCOPE;
    update();
}

void CLabelEx::paintEvent(QPaintEvent *event)
{
    if (RightToLeftText::isIn(*this))
        drawRightToLeftText();
    else
        QLabel::paintEvent(event);
    if (hasFocus())
        drawFocusFrame();
}

void CLabelEx::drawRightToLeftText()
{
    QPainter painter(this);
    drawFrame(&painter); // of a style sheet
    RightToLeftText::draw(&painter, *this);
}

// Not the style's: the house style has no focus frame, and a text has nothing else to show the focus by.
void CLabelEx::drawFocusFrame()
{
    QPainter painter(this);
    painter.setPen(QPen(palette().color(foregroundRole()), 1, Qt::DotLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void CLabelEx::connectNotify(const QMetaMethod &signal)
{
    QLabel::connectNotify(signal);
    if (focusPolicy() == Qt::NoFocus && isClickable())
        setFocusPolicy(Qt::TabFocus);
}

// The receivers of the first signal may delete the label.
void CLabelEx::tellClick()
{
    const QPointer<CLabelEx> self(this);
    Q_EMIT clicked();
    if (self != nullptr)
        Q_EMIT clicked2(this);
}

void CLabelEx::tellHover()
{
    const QPointer<CLabelEx> self(this);
    Q_EMIT slot_Hovered();
    if (self != nullptr)
        Q_EMIT signal_Hovered(this);
}

// At the drop once more: its event begins anew, with nothing accepted and with the action that the source has proposed.
void CLabelEx::accept(QDropEvent &event) const
{
    if (event.source() != this) {
        event.acceptProposedAction();
        return;
    }
    event.setDropAction(Qt::MoveAction);
    event.accept();
}

bool CLabelEx::isPartOfButton() const
{
    return qobject_cast<const QAbstractButton *>(parentWidget()) != nullptr;
}
