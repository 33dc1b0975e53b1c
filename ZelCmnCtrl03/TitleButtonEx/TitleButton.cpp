#include "TitleButtonEx/TitleButton.h"

#include "CustomIconButton/AccessibleIconButton.h"
#include "CustomIconButton/IconButtonPainting.h"
#include "include/accessible_factory.h"
#include "include/qt_globals.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QPointer>

using namespace IconButtonPainting;

CTitleButton::CTitleButton(QWidget *parent) : QWidget(parent)
{
    ZEL_LOG_SCOPE;
    zel::installAccessible(AccessibleIconButton::makeFor<CTitleButton>, this);
    setMinimumSize(titleButtonSide, titleButtonSide);
    setMaximumSize(titleButtonSide, titleButtonSide);
    setMouseTracking(true);
}

CTitleButton::~CTitleButton()
{
    ZEL_LOG_SCOPE;
}

void CTitleButton::AddIcons(QPixmap *pixmap)
{
    ZEL_LOG_SCOPE;
    m_pIcon = pixmap;
}

QPixmap CTitleButton::icon() const
{
    return m_pIcon != nullptr ? *m_pIcon : QPixmap();
}

void CTitleButton::keepIcon(const QPixmap &icon)
{
    m_keptIcon = icon;
    AddIcons(&m_keptIcon);
}

void CTitleButton::DrawIcons(QPainter *painter)
{
    ZEL_LOG_SCOPE;
    if (m_pIcon != nullptr)
        drawIcon(painter, titleIconPlace, *m_pIcon);
}

void CTitleButton::mousePressEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    m_iState = Pressed;
    update();
}

void CTitleButton::mouseReleaseEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    if (event->button() != Qt::LeftButton)
        return;
    const QPointer<CTitleButton> guard(this);
    Q_EMIT customClicked();
    if (guard.isNull())
        return;
    m_iState = PointerOver;
    update();
}

void CTitleButton::enterEvent(zel::EnterEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    m_iState = PointerOver;
    update();
}

void CTitleButton::leaveEvent(QEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    m_iState = Normal;
    update();
}

void CTitleButton::showEvent(QShowEvent *event)
{
    ZEL_LOG_SCOPE;
    // A click that has closed the window leaves the state of a pointer that was over the button then.
    m_iState = Normal;
    QWidget::showEvent(event);
}

void CTitleButton::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    DrawIcons(&painter);
    drawBevel(&painter, rect(), titleBevel, State(m_iState));
}
