#include "ButtonEx/ButtonEx.h"

#include "ButtonEx/ButtonEx_p.h"
#include "CC4Styles/CC4StyleFactory.h"
#include "MenuEx/MenuEx.h"
#include "UiGraphics.h"
#include "include/qt_globals.h"

#include <QImage>
#include <QTimerEvent>

#include <algorithm>

namespace {

struct Look
{
    CButtonEx::CButtonStyles style;
    QString name;
};

// In the order in which the bits of a combined value are tested; the last one stands for no bit at all.
const Look looks[] = {
    {CButtonEx::BSEX_Transparent, QStringLiteral("BSEX_Transparent")},
    {CButtonEx::BSEX_Glowing, QStringLiteral("BSEX_Glowing")},
    {CButtonEx::BSEX_Active, QStringLiteral("BSEX_Active")},
    {CButtonEx::BSEX_Tray, QStringLiteral("BSEX_Tray")},
    {CButtonEx::BSEX_Tertiary, QStringLiteral("BSEX_Tertiary")},
    {CButtonEx::BSEX_Normal, QStringLiteral("BSEX_Normal")},
};

const Look &lookOf(CButtonEx::CButtonStyles style)
{
    const auto *found = std::find_if(std::begin(looks), std::end(looks),
                                     [style](const Look &look) { return (style & look.style) != 0; });
    return found != std::end(looks) ? *found : *std::prev(std::end(looks));
}

constexpr int fontPixels = 14;
constexpr QSize buttonSize(83, 27);

// Milliseconds.
constexpr int pulseInterval = 100;
constexpr int glowInterval = 20;
constexpr int menuInterval = 250;

constexpr int pulseSteps = 14;
constexpr int pulsePixels = 2;
constexpr double glowStep = 0.1;
constexpr int idleTicksToClose = 5;

// What a text needs around it, in pixels. Short texts get more, so that a row of buttons looks even.
constexpr int glowingMargin = 20;
constexpr int glowingImageMargin = 14;
constexpr int narrowestText = 43;
constexpr int wideText = 90;
constexpr int shortTextMargin = 40;
constexpr int longTextMargin = 20;
constexpr int imageMargin = 4;

QPixmap pixmapFromFile(const QString &path)
{
    return QPixmap::fromImage(QImage(path), Qt::OrderedAlphaDither | Qt::OrderedDither);
}

} // namespace

QPointer<CMenuEx> CButtonEx::s_pOpenMenu;
QPointer<CButtonEx> CButtonEx::s_pMenuOpener;

CButtonEx::CButtonEx(QWidget *parent)
    : QPushButton(parent),
      m_sButtonStyle(lookOf(BSEX_Normal).name),
      m_font(UIGGetFont(fontPixels, -1, false)),
      m_textColor(UIGGetColor(QStringLiteral("UIGCLR_BUTTONEX_TEXT"))),
      d(new CButtonExPrivate)
{
    ZEL_LOG_SCOPE;
    d->init();
    setCursor(Qt::PointingHandCursor);
    setMouseTracking(true);
    setFont(m_font);
    if (QStyle *houseStyle = CC4StyleFactory::getStyle(CC4StyleFactory::CC4Style))
        setStyle(houseStyle);
    else
        ZEL_LOG(zel::LogDetail, zel::CommonControls, QStringLiteral("CButtonEx::Style is NULL"));
    connect(this, &QAbstractButton::clicked, this, &CButtonEx::buttonClickedPrivate);
    connect(this, &QAbstractButton::pressed, this, &CButtonEx::onButtonPressed);
}

CButtonEx::~CButtonEx()
{
    ZEL_LOG_SCOPE;
    m_pulseTimer.stop();
    m_glowTimer.stop();
    if (s_pMenuOpener == this)
        s_pOpenMenu.clear(); // nobody is left to watch it
    CC4StyleFactory::releaseStyle(CC4StyleFactory::CC4Style);
    delete d;
}

void CButtonEx::setButtonStyle(CButtonStyles style)
{
    ZEL_LOG_SCOPE;
    m_buttonStyle = lookOf(style).style;
    m_sButtonStyle = lookOf(style).name;
    update();
}

void CButtonEx::setButtonStyle(QString style)
{
    ZEL_LOG_SCOPE;
    const auto *look = std::find_if(std::begin(looks), std::end(looks),
                                    [&style](const Look &candidate) { return candidate.name == style; });
    const bool isName = look != std::end(looks);
    m_sButtonStyle = isName ? look->name : QString();
    if (isName)
        m_buttonStyle = look->style;
    update();
}

const QString &CButtonEx::StyleToString(CButtonStyles style)
{
    ZEL_LOG_SCOPE;
    return lookOf(style).name;
}

void CButtonEx::setDefault(bool on)
{
    ZEL_LOG_SCOPE;
    QPushButton::setDefault(on);
    if (m_buttonStyle == BSEX_Active)
        return;
    if (on)
        m_pulseTimer.start(pulseInterval, this);
    else
        m_pulseTimer.stop();
}

void CButtonEx::makeDefault(bool on)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(on)
}

void CButtonEx::setImage(const QPixmap &image)
{
    ZEL_LOG_SCOPE;
    setPixmap(image);
    resize(zel::deviceIndependentSize(m_image));
}

void CButtonEx::setImage(const QString &path)
{
    ZEL_LOG_SCOPE;
    setImage(pixmapFromFile(path));
}

void CButtonEx::setPixmap(const QPixmap &image)
{
    ZEL_LOG_SCOPE;
    m_image = image;
    update();
}

void CButtonEx::setFont(const QFont &font)
{
    ZEL_LOG_SCOPE;
    QWidget::setFont(font);
    m_font = font;
    m_font.setStyleStrategy(QFont::PreferAntialias);
}

void CButtonEx::setTextColor(const QColor &color)
{
    ZEL_LOG_SCOPE;
    m_textColor = color;
}

void CButtonEx::setChevron(bool on)
{
    ZEL_LOG_SCOPE;
    m_bChevron = on;
}

void CButtonEx::setMenu(QMenu *menu)
{
    ZEL_LOG_SCOPE;
    if (m_buttonStyle != BSEX_Glowing && m_buttonStyle != BSEX_Transparent)
        return;
    auto *houseMenu = qobject_cast<CMenuEx *>(menu);
    if (houseMenu == nullptr && menu != nullptr) {
        zel::logError(QStringLiteral("CButtonEx::setMenu - the menu is no CMenuEx"));
        return;
    }
    d->m_pMenu = houseMenu;
    setChevron(true);
}

QSize CButtonEx::sizeHint() const
{
    ZEL_LOG_SCOPE;
    return buttonSize;
}

QSize CButtonEx::buttonSizeHint()
{
    ZEL_LOG_SCOPE;
    return QSize(0, 0);
}

void CButtonEx::d_zel_func_CButtonEx(CButtonExPrivate **out)
{
    *out = d;
}

void CButtonEx::buttonClickedPrivate()
{
    ZEL_LOG_SCOPE;
    m_bPressed = true;
    Q_EMIT clicked2(this);
}

void CButtonEx::onButtonPressed()
{
    ZEL_LOG_SCOPE;
    m_bPressed = true;
    if (!s_pOpenMenu.isNull())
        s_pOpenMenu->hide();
}

void CButtonEx::enterEvent(zel::EnterEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    if (m_buttonStyle != BSEX_Glowing || !isEnabled())
        return;
    m_fGlowAlpha = 0.0F;
    m_iGlowDirection = 1;
    m_glowTimer.start(glowInterval, this);
    const QPointer<CButtonEx> self(this); // who is told of a menu's end may destroy the button
    if (!s_pOpenMenu.isNull() && s_pOpenMenu != d->m_pMenu)
        s_pOpenMenu->hide();
    if (self.isNull())
        return;
    s_pOpenMenu = d->m_pMenu;
    s_pMenuOpener = this;
    if (!s_pOpenMenu.isNull() && m_bMenuArmed && !m_bPressed)
        openMenu();
}

void CButtonEx::openMenu()
{
    m_bMouseOver = true;
    d->m_iIdleTicks = 0;
    m_bMenuArmed = false;
    setDown(true);
    // Whoever is told of the menu may destroy the button.
    const QPointer<CButtonEx> self(this);
    d->m_pMenu->popup(mapToGlobal(QPoint(0, -height())));
    if (self.isNull())
        return;
    setDown(false);
    if (!d->m_pMenu.isNull())
        d->m_pointerWatch.start(d->m_pMenu, this);
}

void CButtonEx::leaveEvent(QEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    if (m_buttonStyle == BSEX_Glowing && isEnabled()) {
        m_iGlowDirection = -1;
        m_glowTimer.start(glowInterval, this);
    }
    m_bMenuArmed = true;
    m_bPressed = false;
    d->m_iIdleTicks = 0;
    m_bMouseOver = false;
    if (!s_pOpenMenu.isNull())
        d->m_menuTimer.start(menuInterval, this);
    else
        d->m_menuTimer.stop();
}

void CButtonEx::timerEvent(QTimerEvent *event)
{
    ZEL_LOG_SCOPE;
    const int timer = event->timerId();
    if (timer == m_pulseTimer.timerId())
        beat();
    else if (timer == m_glowTimer.timerId())
        stepGlow();
    else if (timer == d->m_menuTimer.timerId())
        watchMenu();
}

// Two beats in the first 400 milliseconds of every 1400.
void CButtonEx::beat()
{
    if (m_buttonStyle == BSEX_Active) {
        m_pulseTimer.stop();
        return;
    }
    m_iPulseStep = (m_iPulseStep + 1) % pulseSteps;
    if (m_iPulseStep == 1 || m_iPulseStep == 3)
        swell(pulsePixels);
    else if (m_iPulseStep == 2 || m_iPulseStep == 4)
        swell(-pulsePixels);
}

// Around the centre. A direction in which the size is fixed does not take part: a button with a text keeps its width.
void CButtonEx::swell(int pixels)
{
    const QSize before = size();
    resize(before + QSize(pixels, pixels));
    move(pos() - QPoint(width() - before.width(), height() - before.height()) / 2);
}

void CButtonEx::stepGlow()
{
    if (m_iGlowDirection == 0)
        return;
    m_fGlowAlpha = static_cast<float>(static_cast<double>(m_fGlowAlpha) + m_iGlowDirection * glowStep);
    if (m_fGlowAlpha < 0.0F || m_fGlowAlpha > 1.0F) {
        m_iGlowDirection = 0;
        m_glowTimer.stop();
    }
    repaint();
}

void CButtonEx::watchMenu()
{
    if (s_pOpenMenu.isNull())
        return;
    if (s_pOpenMenu != d->m_pMenu)
        d->m_menuTimer.stop();
    if (s_pOpenMenu->cursorOnMenu() || m_bMouseOver)
        d->m_iIdleTicks = 0;
    else
        ++d->m_iIdleTicks;
    if (d->m_iIdleTicks < idleTicksToClose)
        return;
    d->m_menuTimer.stop();
    d->m_iIdleTicks = 0;
    s_pOpenMenu->hide(); // last: who is told of it may destroy the button
}

void CButtonEx::resizeEvent(QResizeEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    ensurePolished();
    const int contents = widthForContents();
    if (m_buttonStyle == BSEX_Glowing)
        setMaximumWidth(contents);
    else if (!text().isEmpty())
        setFixedWidth(std::max(contents, minimumWidth()));
}

int CButtonEx::widthForContents() const
{
    const int textWidth = text().isEmpty() ? 0 : fontMetrics().horizontalAdvance(text());
    const int imageWidth = zel::deviceIndependentSize(m_image).width();
    if (m_buttonStyle == BSEX_Glowing) {
        const int forImage = m_image.isNull() ? 0 : imageWidth + glowingImageMargin;
        return std::max(textWidth + glowingMargin, forImage);
    }
    int width = std::max(textWidth, narrowestText);
    width += width < wideText ? shortTextMargin : longTextMargin;
    return m_image.isNull() ? width : width + imageWidth + imageMargin;
}
