#include "CustomIconButton/CustomIconButton.h"

#include "CustomIconButton/AccessibleIconButton.h"
#include "CustomIconButton/IconButtonPainting.h"
#include "include/accessible_factory.h"
#include "include/qt_globals.h"

#include <QCursor>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <utility>

using namespace IconButtonPainting;

namespace {

constexpr int buttonSide = 22;
constexpr BevelColors bevelColors = {"UIGCLR_UIF_CUST_ICN_ENTER_TL", "UIGCLR_UIF_CUST_ICN_ENTER_BR"};

constexpr int smallIconLimit = 16; // pixels of width; what is less wide is a small icon
constexpr QPoint smallIconPlace(5, 5);
constexpr QPoint iconPlace(1, 4);

constexpr int highestGreyAlpha = 128;

bool isClickKey(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Space || event->key() == Qt::Key_Select;
}

QRgb greyOf(QRgb pixel)
{
    const int grey = qGray(pixel);
    return qRgba(grey, grey, grey, qMin(qAlpha(pixel), highestGreyAlpha));
}

} // namespace

CCustomIconButton::CCustomIconButton(QWidget *parent) : QWidget(parent)
{
    ZEL_LOG_SCOPE;
    zel::installAccessible(AccessibleIconButton::makeFor<CCustomIconButton>, this);
    setMinimumSize(buttonSide, buttonSide);
    setMaximumSize(buttonSide, buttonSide);
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus); // like a tool button: a click leaves the focus where it is
}

CCustomIconButton::~CCustomIconButton()
{
    ZEL_LOG_SCOPE;
}

void CCustomIconButton::AddIcons(QPixmap pixmap)
{
    ZEL_LOG(zel::LogDetail, zel::CommonControls,
            QStringLiteral("CCustomIconButton::AddIcons <%1 x %2>").arg(pixmap.width()).arg(pixmap.height()));
    m_icon = std::move(pixmap);
    m_greyIcon = QPixmap();
}

void CCustomIconButton::DrawIcons(QPainter *painter)
{
    if (zel::deviceIndependentSize(m_icon).width() < smallIconLimit) {
        drawIcon(painter, smallIconPlace, m_icon);
        return;
    }
    drawIcon(painter, iconPlace, isEnabled() ? m_icon : greyIcon());
}

QPixmap CCustomIconButton::greyout(QPixmap &pixmap)
{
    // A pixmap without transparency has no room for it until it is converted.
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = greyOf(line[x]);
    }
    return QPixmap::fromImage(image);
}

const QPixmap &CCustomIconButton::greyIcon()
{
    if (m_greyIcon.isNull())
        m_greyIcon = greyout(m_icon);
    return m_greyIcon;
}

void CCustomIconButton::setToolTipText(const QString &text)
{
    ZEL_LOG_SCOPE;
    m_sToolTip = text;
    setToolTip(text); // the pointer may be here already
    QAccessibleEvent renamed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
}

void CCustomIconButton::mousePressEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    sink();
}

void CCustomIconButton::mouseReleaseEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    // Not the event's position: where the pointer is by now.
    const QPoint pointer = mapFromGlobal(QCursor::pos());
    release(event->button() == Qt::LeftButton && rect().contains(pointer, true));
}

void CCustomIconButton::enterEvent(zel::EnterEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    m_iState = PointerOver;
    setToolTip(m_sToolTip);
    update();
}

void CCustomIconButton::leaveEvent(QEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    m_iState = Normal;
    update();
}

void CCustomIconButton::keyPressEvent(QKeyEvent *event)
{
    ZEL_LOG_SCOPE;
    if (!isClickKey(event)) {
        event->ignore();
        return;
    }
    if (event->isAutoRepeat())
        return;
    m_bKeyDown = true;
    sink();
}

void CCustomIconButton::keyReleaseEvent(QKeyEvent *event)
{
    ZEL_LOG_SCOPE;
    if (!isClickKey(event)) {
        event->ignore();
        return;
    }
    if (event->isAutoRepeat() || !m_bKeyDown)
        return;
    m_bKeyDown = false;
    release(true);
}

void CCustomIconButton::focusOutEvent(QFocusEvent *event)
{
    ZEL_LOG_SCOPE;
    if (m_bKeyDown) // its release goes elsewhere
        dropPress();
    QWidget::focusOutEvent(event);
}

void CCustomIconButton::hideEvent(QHideEvent *event)
{
    ZEL_LOG_SCOPE;
    dropPress();
    QWidget::hideEvent(event);
}

void CCustomIconButton::changeEvent(QEvent *event)
{
    ZEL_LOG_SCOPE;
    if (event->type() == QEvent::EnabledChange && !isEnabled()) // no release reaches a disabled widget
        dropPress();
    QWidget::changeEvent(event);
}

void CCustomIconButton::sink()
{
    m_iState = Pressed;
    m_iPressed = 1;
    update();
}

void CCustomIconButton::release(bool isClick)
{
    const QPointer<CCustomIconButton> guard(this);
    if (isClick)
        Q_EMIT customClicked();
    if (guard.isNull())
        return;
    m_iState = Normal;
    m_iPressed = 0;
    update();
}

void CCustomIconButton::dropPress()
{
    m_bKeyDown = false;
    m_iPressed = 0;
    if (m_iState == Pressed)
        m_iState = Normal;
    update();
}

// A window that opens gives the focus to its first control; that alone shall not make it stand out.
bool CCustomIconButton::showsKeyboardFocus() const
{
    return hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

void CCustomIconButton::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    // Smooth, for a screen of a density that the icon is not made for.
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    DrawIcons(&painter);
    if (m_iState == Pressed)
        drawSunkenBevel(&painter, rect(), bevelColors);
    else if (m_iPressed == 1 || m_iState == PointerOver || showsKeyboardFocus())
        drawRaisedBevel(&painter, rect(), bevelColors);
}
