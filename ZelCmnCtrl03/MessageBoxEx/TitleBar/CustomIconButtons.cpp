#include "MessageBoxEx/TitleBar/CustomIconButtons.h"

#include "CustomIconButton/AccessibleIconButton.h"
#include "CustomIconButton/IconButtonPainting.h"
#include "include/accessible_factory.h"
#include "include/qt_globals.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <utility>

using namespace IconButtonPainting;

CCustomIconButtons::CCustomIconButtons(QWidget *parent) : QWidget(parent), m_savedCursor(cursor())
{
    ZEL_LOG_SCOPE;
    zel::installAccessible(AccessibleIconButton::makeFor<CCustomIconButtons>, this);
    setMinimumSize(titleButtonSide, titleButtonSide);
    setMaximumSize(titleButtonSide, titleButtonSide);
    setMouseTracking(true);
}

CCustomIconButtons::~CCustomIconButtons()
{
    ZEL_LOG_SCOPE;
}

void CCustomIconButtons::AddIcons(QPixmap pixmap)
{
    ZEL_LOG_SCOPE;
    m_icon = std::move(pixmap);
}

void CCustomIconButtons::DrawIcons(QPainter *painter)
{
    ZEL_LOG_SCOPE;
    drawIcon(painter, titleIconPlace, m_icon);
}

void CCustomIconButtons::mousePressEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    m_iState = Pressed;
    update();
}

void CCustomIconButtons::mouseReleaseEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    if (event->button() != Qt::LeftButton)
        return;
    const QPointer<CCustomIconButtons> guard(this);
    Q_EMIT customClicked();
    if (guard.isNull())
        return;
    m_iState = PointerOver;
    update();
}

void CCustomIconButtons::enterEvent(zel::EnterEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    m_savedCursor = cursor();
    setCursor(Qt::ArrowCursor);
    m_iState = PointerOver;
    update();
}

void CCustomIconButtons::leaveEvent(QEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    setCursor(m_savedCursor);
    m_iState = Normal;
    update();
}

void CCustomIconButtons::showEvent(QShowEvent *event)
{
    ZEL_LOG_SCOPE;
    // A click that has closed the window leaves the state of a pointer that was over the button then.
    m_iState = Normal;
    QWidget::showEvent(event);
}

void CCustomIconButtons::paintEvent(QPaintEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    DrawIcons(&painter);
    drawBevel(&painter, rect(), titleBevel, State(m_iState));
}
