#include "CC4Styles/CommonControlStyle.h"

#include "CC4Styles/PaintTools.h"
#include "Platform/Platform.h"
#include "UiGraphics.h"
#include "include/qt_globals.h"

#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

namespace {

// Fusion is part of every Qt; Plastique is a plugin of Qt 5 alone. Never the application's current style: a proxy owns
// its base.
QString baseStyleKey()
{
    const QString plastique = QStringLiteral("plastique");
    if (QStyleFactory::keys().contains(plastique, Qt::CaseInsensitive))
        return plastique;
    const QString fusion = QStringLiteral("Fusion");
    ZEL_LOG(zel::LogDetail, zel::CommonControls,
            QStringLiteral("CCommonControlStyle: no Plastique style, the base style is Fusion"));
    return fusion;
}

struct PaletteEntry
{
    QPalette::ColorRole role;
    const char *keySuffix;
};

constexpr PaletteEntry paletteEntries[] = {
    {QPalette::WindowText, "FOREGROUND"},
    {QPalette::Button, "BUTTON"},
    {QPalette::Light, "LIGHT"},
    {QPalette::Midlight, "MIDLIGHT"},
    {QPalette::Dark, "DARK"},
    {QPalette::Mid, "MID"},
    {QPalette::Text, "TEXT"},
    {QPalette::BrightText, "BRIGHTTEXT"},
    {QPalette::ButtonText, "BUTTONTEXT"},
    {QPalette::Base, "BASE"},
    {QPalette::Window, "BACKGROUND"},
    {QPalette::Shadow, "SHADOW"},
    {QPalette::Highlight, "HIGHLIGHT"},
    {QPalette::HighlightedText, "HIGHLIGHTEDTEXT"},
    {QPalette::Link, "LINK"},
    {QPalette::LinkVisited, "LINKVISITED"},
};

// In the roles that the house palette sets; the others come from the platform's theme, and may change with it.
bool hasHouseColors(const QPalette &palette, const QPalette &house)
{
    for (const PaletteEntry &entry : paletteEntries) {
        for (const auto group : {QPalette::Disabled, QPalette::Active, QPalette::Inactive})
            if (palette.brush(group, entry.role) != house.brush(group, entry.role))
                return false;
    }
    return true;
}

void fillGroup(QPalette &palette, QPalette::ColorGroup group, const char *keyPrefix)
{
    for (const PaletteEntry &entry : paletteEntries)
        palette.setBrush(group, entry.role, UIGGetColor(QLatin1String(keyPrefix) + QLatin1String(entry.keySuffix)));
}

} // namespace

CCommonControlStyle::CCommonControlStyle()
    : QProxyStyle(baseStyleKey()),
      m_pNativeStyle(Platform::createNativeStyle()),
      m_bFusionIsBase(baseStyle()->inherits("QFusionStyle"))
{
    QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
    QApplication::setEffectEnabled(Qt::UI_FadeMenu, false);
}

CCommonControlStyle::~CCommonControlStyle() = default;

void CCommonControlStyle::dispose()
{
    delete this;
}

void CCommonControlStyle::polish(QApplication *application)
{
    QProxyStyle::polish(application);
    // An application takes its palette from the platform's theme first, and asks the style only for what is missing
    // there. The house look is one with its palette, so it is set; an application's own palette still wins.
    if (QCoreApplication::testAttribute(Qt::AA_SetPalette))
        return;
    QApplication::setPalette(standardPalette());
    m_bPaletteGiven = true;
}

void CCommonControlStyle::polish(QPalette &) {}

void CCommonControlStyle::unpolish(QApplication *application)
{
    // An application that has set a palette since keeps it.
    if (m_bPaletteGiven && hasHouseColors(QApplication::palette(), standardPalette()))
        QApplication::setPalette(QPalette());
    m_bPaletteGiven = false;
    QProxyStyle::unpolish(application);
}

QPalette CCommonControlStyle::standardPalette() const
{
    QPalette palette;
    fillGroup(palette, QPalette::Disabled, "UIGCLR_PALETTE_DISABLED_");
    fillGroup(palette, QPalette::Active, "UIGCLR_PALETTE_ACTIVE_");
    fillGroup(palette, QPalette::Inactive, "UIGCLR_PALETTE_INACTIVE_");
    return palette;
}

void CCommonControlStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                        const QWidget *widget) const
{
    switch (element) {
    case PE_Frame: return drawFrame(option, painter, widget);
    case PE_FrameFocusRect: return; // this look has no focus rectangle
    case PE_FrameMenu: return drawFrameMenu(option, painter, widget);
    case PE_FrameTabWidget: return drawFrameTabWidget(option, painter, widget);
    case PE_FrameTabBarBase: return drawFrameTabBarBase(option, painter, widget);
    case PE_FrameLineEdit: return drawFrameLineEdit(option, painter, widget);
    case PE_PanelMenu: return; // the menu's gradient shows
    case PE_PanelButtonCommand: return drawPanelButtonCommand(option, painter, widget);
    case PE_PanelButtonTool: return drawPanelButtonTool(option, painter, widget);
    case PE_PanelLineEdit: return drawPanelLineEdit(option, painter, widget);
    case PE_IndicatorArrowDown: return drawIndicatorArrowDown(option, painter, widget);
    case PE_IndicatorBranch: return drawIndicatorBranch(option, painter);
    case PE_IndicatorCheckBox: return drawIndicatorCheckBox(option, painter);
    case PE_IndicatorHeaderArrow: return drawIndicatorHeaderArrow(option, painter, widget);
    case PE_IndicatorRadioButton: return drawIndicatorRadioButton(option, painter);
    case PE_PanelTipLabel: return drawPanelTipLabel(painter, widget);
    default: return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void CCommonControlStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                      const QWidget *widget) const
{
    switch (element) {
    case CE_PushButtonBevel: return drawPushButtonBevel(option, painter, widget);
    case CE_PushButtonLabel: return drawPushButtonLabel(option, painter, widget);
    case CE_TabBarTab: return drawTabBarTab(option, painter, widget);
    case CE_TabBarTabShape: return drawTabBarTabShape(option, painter, widget);
    case CE_TabBarTabLabel: return drawTabBarTabLabel(option, painter, widget);
    case CE_MenuItem: return drawMenuItem(option, painter, widget);
    case CE_MenuEmptyArea: return; // the menu's gradient shows
    case CE_Header: return drawHeader(option, painter, widget);
    case CE_HeaderSection: return drawHeaderSection(option, painter);
    case CE_Splitter: return drawSplitter(option, painter);
    case CE_ComboBoxLabel: return drawComboBoxLabel(option, painter, widget);
    // Items are drawn by our own metrics. The others every base draws as this does, on a longer way.
    case CE_ItemViewItem:
    case CE_PushButton:
    case CE_CheckBox:
    case CE_CheckBoxLabel:
    case CE_RadioButton:
    case CE_RadioButtonLabel: return QCommonStyle::drawControl(element, option, painter, widget);
    default: return QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void CCommonControlStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                             QPainter *painter, const QWidget *widget) const
{
    switch (control) {
    case CC_ComboBox: return drawComboBox(option, painter);
    case CC_ScrollBar: return drawScrollBar(option, painter, widget);
    case CC_SpinBox: return drawSpinBox(option, painter, widget);
    case CC_Slider: return drawSlider(option, painter, widget);
    default: return QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

void CCommonControlStyle::drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette,
                                       bool enabled, const QString &text, QPalette::ColorRole textRole) const
{
    painter->setRenderHint(QPainter::Antialiasing);
    QStyle::drawItemText(painter, rect, flags, palette, enabled, text, textRole);
}

void CCommonControlStyle::drawTabItemText(QPainter *painter, const QRect &rect, int alignment, const QPalette &palette,
                                          bool enabled, const QString &text, QPalette::ColorRole textRole) const
{
    if (text.isEmpty())
        return;
    const QPen savedPen = painter->pen();
    const bool penChanges = textRole != QPalette::NoRole;
    if (penChanges)
        painter->setPen(QPen(palette.brush(textRole), savedPen.widthF()));
    if (!enabled && proxy()->styleHint(SH_DitherDisabledText) != 0) {
        QRect textRect;
        painter->drawText(rect, alignment, text, &textRect);
        painter->fillRect(textRect, QBrush(painter->background().color(), Qt::Dense5Pattern));
        return; // with the role's pen left in place, as QStyle leaves it
    }
    if (!enabled && proxy()->styleHint(SH_EtchDisabledText) != 0) {
        const QPen textPen = painter->pen();
        painter->setPen(palette.light().color());
        painter->drawText(rect.translated(1, 1), alignment, text);
        painter->setPen(textPen);
    }
    painter->drawText(rect, alignment, text);
    if (penChanges)
        painter->setPen(savedPen);
}

QString CCommonControlStyle::uniqueName(const QString &key, const QStyleOption *option, const QSize &size) const
{
    const QByteArray latin1 = key.toLatin1();
    return PaintTools::stateKey(QLatin1String(latin1), option, size);
}

void CCommonControlStyle::drawGradient(QPainter *painter, const QRect &rect, const QColor &topColor,
                                       const QColor &bottomColor, bool transparent) const
{
    // The picture starts transparent either way: what an opaque gradient covers does not matter, and one that is not
    // opaque must not show what happened to be in memory.
    Q_UNUSED(transparent)
    PaintTools::drawVerticalGradient(painter, rect, topColor, bottomColor);
}

QColor CCommonControlStyle::mergedColors(const QColor &colorA, const QColor &colorB, int factor) const
{
    return PaintTools::mergedColors(colorA, colorB, factor);
}

QPainterPath CCommonControlStyle::getRoundRectPath(const QRect &rect, int radius) const
{
    return PaintTools::roundRectPath(rect, radius);
}

QPainterPath CCommonControlStyle::getRoundRectWithArrowPath(const QRect &rect, int radius, int direction) const
{
    return direction == 0 ? PaintTools::roundRectPath(rect, radius) : QPainterPath();
}
