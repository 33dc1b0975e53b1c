#include "ProgressBarEx/ProgressBarDialogEx.h"

#include "ProgressBarEx/AccessibleProgress.h"
#include "ProgressBarEx/RainbowStrip.h"
#include "UiGraphics.h"
#include "include/accessible_factory.h"
#include "include/qt_compat.h"
#include "include/qt_globals.h"

#include <QApplication>
#include <QBitmap>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QTimerEvent>

namespace {

constexpr int fontPixels = 14;
constexpr QSize startSize(388, 102);

// In pixels from the edges of the panel. The bitmaps of the artwork are drawn for these.
constexpr QMargins faceMargins(8, 5, 13, 20);
constexpr int lineOverhang = 1; // the line at the top ends on the border, not within it
constexpr int lineAlpha = 153;
constexpr int labelFlags = int(Qt::TextSingleLine) | int(Qt::AlignCenter);
constexpr int textFoot = 20;
constexpr int textMargin = 60;
constexpr int stripTop = 75;
constexpr int rightShadowWidth = 24;
constexpr QPoint bottomShadowPlace(19, 91);

struct Stop
{
    qreal position;
    QLatin1String key;
};

const Stop faceStops[] = {
    {0.0, QLatin1String("UIGCLR_IMPUI_DS_LNRGRAD1")},  {0.05, QLatin1String("UIGCLR_IMPUI_DS_LNRGRAD1")},
    {0.1, QLatin1String("UIGCLR_IMPUI_DS_LNRGRAD2")},  {0.4, QLatin1String("UIGCLR_IMPUI_DS_LNRGRAD3")},
    {0.45, QLatin1String("UIGCLR_IMPUI_DS_LNRGRAD4")}, {0.5, QLatin1String("UIGCLR_IMPUI_DS_LNRGRAD5")},
    {0.55, QLatin1String("UIGCLR_IMPUI_DS_LNRGRAD4")}, {0.6, QLatin1String("UIGCLR_IMPUI_DS_LNRGRAD3")},
    {0.9, QLatin1String("UIGCLR_IMPUI_DS_LNRGRAD2")},  {0.95, QLatin1String("UIGCLR_IMPUI_DS_LNRGRAD1")},
    {1.0, QLatin1String("UIGCLR_IMPUI_DS_LNRGRAD1")},
};

QLinearGradient faceGradient(int width)
{
    QLinearGradient gradient(0, 0, width, 0);
    for (const Stop &stop : faceStops)
        gradient.setColorAt(stop.position, UIGGetColor(stop.key));
    return gradient;
}

// The active window's where the screens form one desktop. Null only without any screen.
const QScreen *screenToShowOn()
{
    const QScreen *primary = QGuiApplication::primaryScreen();
    const QWidget *active = QApplication::activeWindow();
    const bool isVirtualDesktop = primary != nullptr && primary->virtualSiblings().size() > 1;
    return isVirtualDesktop && active != nullptr ? active->screen() : primary;
}

QPixmap emptyPixmap(const QSize &size, qreal ratio)
{
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

QString messageOf(const QWidget *panel)
{
    return static_cast<const CProgressBarDialogEx *>(panel)->label();
}

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *panel = qobject_cast<CProgressBarDialogEx *>(object);
    if (panel == nullptr)
        return nullptr;
    return new AccessibleProgress(panel, AccessibleProgress::Kind::Busy, messageOf); // Qt's cache owns it
}

} // namespace

struct CProgressBarDialogEx::Artwork
{
    void load(qreal newRatio);

    qreal ratio = 0.0;
    RainbowStrip rainbow;
    QPixmap strip; // as painted at the last tick; a picture that is kept saves the next one an allocation
    QPixmap mask;  // opaque where the strip shows
    QPixmap rightMask;
    QPixmap leftMask;
    QPixmap rightShadow;
    QPixmap leftShadow;
    QPixmap bottomShadow;
    QPixmap rainbowShadow;
};

void CProgressBarDialogEx::Artwork::load(qreal newRatio)
{
    ratio = newRatio;
    rainbow.prepareFor(ratio);
    rightMask = UIGGetPixmap(QStringLiteral("status-rainbow-mask-right.png"), ratio);
    leftMask = UIGGetPixmap(QStringLiteral("status-rainbow-mask-left.png"), ratio);
    rightShadow = UIGGetPixmap(QStringLiteral("status-right-shadow.png"), ratio);
    leftShadow = UIGGetPixmap(QStringLiteral("status-left-shadow.png"), ratio);
    bottomShadow = UIGGetPixmap(QStringLiteral("status-bottom-shadow.png"), ratio);
    rainbowShadow = UIGGetPixmap(QStringLiteral("status-rainbow-shadow.png"), ratio);
}

CProgressBarDialogEx::CProgressBarDialogEx(const QString &label, QWidget *parent)
    : QWidget(parent), m_pArtwork(std::make_unique<Artwork>())
{
    ZEL_LOG_SCOPE;
    zel::installAccessible(makeAccessible, this);
    setFont(UIGGetFont(fontPixels, -1, false));
    resize(startSize);
    m_pArtwork->load(devicePixelRatioF());
    setLabel(label);
    m_faceBrush = faceGradient(width());
    hangOnWindow();
    QPalette palette;
    palette.setBrush(QPalette::Window, m_faceBrush);
    setPalette(palette);
    m_animationTimer.start(RainbowStrip::interval, this);
}

CProgressBarDialogEx::~CProgressBarDialogEx()
{
    ZEL_LOG_SCOPE;
    m_animationTimer.stop();
    m_closeTimer.stop();
}

void CProgressBarDialogEx::hangOnWindow()
{
    QWidget *ancestor = parentWidget();
    if (ancestor == nullptr)
        return;
    // Beyond the window as well: a dialog's parent may be another window.
    while (ancestor->parentWidget() != nullptr)
        ancestor = ancestor->parentWidget();
    setParent(ancestor);
}

void CProgressBarDialogEx::setLabel(const QString &label)
{
    ZEL_LOG_SCOPE;
    m_sLabel = label;
    const int wantedWidth = fontMetrics().size(Qt::TextSingleLine, label).width() + textMargin;
    if (wantedWidth > width())
        resize(wantedWidth, height());
    makeStrip();
    repaint();
    AccessibleProgress::announceMessage(this);
}

void CProgressBarDialogEx::setAutoClose(int milliseconds)
{
    ZEL_LOG_SCOPE;
    m_closeTimer.start(qMax(0, milliseconds), this);
}

void CProgressBarDialogEx::showDialog(bool modal)
{
    ZEL_LOG_SCOPE;
    setWindowModality(modal ? Qt::WindowModal : Qt::NonModal);
    if (const QScreen *screen = screenToShowOn()) {
        const QRect area = screen->availableGeometry();
        move(area.left() + (area.width() - width()) / 2, area.top() + (area.height() - height()) / 2);
    }
    if (!m_animationTimer.isActive()) // after it has closed by itself
        m_animationTimer.start(RainbowStrip::interval, this);
    show();
    QAccessibleEvent event(this, QAccessible::DialogStart);
    QAccessible::updateAccessibility(&event);
}

void CProgressBarDialogEx::closeDialog()
{
    ZEL_LOG_SCOPE;
    const QPointer<CProgressBarDialogEx> self(this);
    Q_EMIT closed();
    if (!self.isNull()) // a slot may have destroyed the panel
        close();
}

void CProgressBarDialogEx::timerEvent(QTimerEvent *event)
{
    ZEL_LOG_SCOPE;
    if (event->timerId() == m_animationTimer.timerId())
        scroll();
    else if (event->timerId() == m_closeTimer.timerId())
        endByItself();
}

void CProgressBarDialogEx::scroll()
{
    if (m_pArtwork->rainbow.step())
        repaint(stripRect());
}

void CProgressBarDialogEx::endByItself()
{
    const QPointer<CProgressBarDialogEx> self(this);
    closeDialog();
    if (self.isNull())
        return;
    m_animationTimer.stop();
    m_closeTimer.stop();
}

// On another screen, or after the application has resized the panel.
void CProgressBarDialogEx::prepareArtwork()
{
    const bool isForScreen = qFuzzyCompare(m_pArtwork->ratio, devicePixelRatioF());
    if (!isForScreen)
        m_pArtwork->load(devicePixelRatioF());
    const bool isAsWide = stripRect().width() == zel::deviceIndependentSize(m_pArtwork->mask).width();
    if (!isForScreen || !isAsWide)
        makeStrip();
}

void CProgressBarDialogEx::makeStrip()
{
    Artwork &artwork = *m_pArtwork;
    artwork.strip = artwork.mask = QPixmap();
    const QSize size = stripRect().size();
    if (size.isEmpty())
        return;
    QPixmap mask = emptyPixmap(size, artwork.ratio);
    mask.fill(UIGGetColor(QStringLiteral("UIGCLR_DEFAULT")));
    QPainter painter(&mask);
    painter.drawPixmap(0, 0, artwork.leftMask);
    painter.drawPixmap(size.width() - zel::deviceIndependentSize(artwork.rightMask).width(), 0, artwork.rightMask);
    painter.end();
    mask.setMask(QBitmap::fromImage(mask.toImage())); // dark is opaque
    artwork.mask = mask;
    artwork.strip = emptyPixmap(size, artwork.ratio);
}

// The right mask gives the strip its height. Empty without it.
QRect CProgressBarDialogEx::stripRect() const
{
    const int stripHeight = zel::deviceIndependentSize(m_pArtwork->rightMask).height();
    return QRect(faceMargins.left(), stripTop, width() - faceMargins.left() - faceMargins.right(), stripHeight);
}

void CProgressBarDialogEx::paintEvent(QPaintEvent *event)
{
    ZEL_LOG_SCOPE;
    prepareArtwork();
    QPainter painter(this);
    painter.fillRect(rect().marginsRemoved(faceMargins), m_faceBrush);
    const bool isTick = stripRect().contains(event->rect());
    if (!isTick)
        paintFace(&painter);
    paintStrip(&painter);
    paintShadows(&painter);
}

void CProgressBarDialogEx::paintFace(QPainter *painter) const
{
    QColor lineColor = UIGGetColor(QStringLiteral("UIGCLR_PROGRESSBARDIALOGEX_PEN"));
    lineColor.setAlpha(lineAlpha);
    const QRect face = rect().marginsRemoved(faceMargins);
    painter->fillRect(face.left() - lineOverhang, face.top(), face.width() + 2 * lineOverhang, 1, lineColor);
    painter->setPen(UIGGetColor(QStringLiteral("UIGCLR_WHITE")));
    painter->drawText(rect().adjusted(0, 0, 0, -textFoot), labelFlags, m_sLabel);
}

void CProgressBarDialogEx::paintStrip(QPainter *painter) const
{
    Artwork &artwork = *m_pArtwork;
    if (artwork.strip.isNull())
        return;
    artwork.strip.fill(Qt::transparent);
    QPainter stripPainter(&artwork.strip);
    artwork.rainbow.draw(&stripPainter);
    stripPainter.drawPixmap(0, 0, artwork.rainbowShadow);
    stripPainter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    stripPainter.drawPixmap(0, 0, artwork.mask);
    stripPainter.end();
    painter->drawPixmap(stripRect().topLeft(), artwork.strip);
}

void CProgressBarDialogEx::paintShadows(QPainter *painter) const
{
    const Artwork &artwork = *m_pArtwork;
    painter->drawPixmap(width() - rightShadowWidth, 0, artwork.rightShadow);
    painter->drawPixmap(0, 0, artwork.leftShadow);
    const QRect bottom(bottomShadowPlace.x(), bottomShadowPlace.y(), width() - bottomShadowPlace.x() - rightShadowWidth,
                       zel::deviceIndependentSize(artwork.bottomShadow).height());
    if (!bottom.isEmpty())
        painter->drawPixmap(bottom, artwork.bottomShadow);
}
