// The push button's faces, its bevel and its label.
#include "CC4Styles/CommonControlStyle.h"

#include "ButtonEx/ButtonEx.h"
#include "CC4Styles/ButtonText.h"
#include "CC4Styles/PaintTools.h"
#include "UiGraphics.h"
#include "include/qt_compat.h"

#include <QPainter>
#include <QPushButton>
#include <QStyleOptionButton>

namespace {

constexpr int iconGap = 4; // between icon and text of a plain button

/** What tells the three bitmap faces apart. */
struct SlicedLook
{
    const char *cacheName;
    const char *bitmaps;
    const char *highlightTop;
    const char *highlightBottom;
    int restingReserve;       // pixels of the resting face that the middle leaves free
    bool narrowInsets;        // a narrow button has its image further in
    bool pressedImageIsInset; // the pressed face has its image where it stands beside a text, also without a text
};

constexpr SlicedLook normalLook{
    "panelbuttoncommand", "PushbuttonWhite", "UIGCLR_PB_NORMAL_TOP", "UIGCLR_PB_NORMAL_BOTTOM", 1, false, false};
constexpr SlicedLook activeLook{
    "panelActiveButtonCommand", "PushbuttonGreen", "UIGCLR_PB_ACTIVE_TOP", "UIGCLR_PB_ACTIVE_BOTTOM", 1, true, true};
constexpr SlicedLook trayLook{
    "panelTrayButtonCommand", "PushbuttonBlue", "UIGCLR_PB_ACTIVE_TOP", "UIGCLR_PB_ACTIVE_BOTTOM", 0, true, true};

// Up to this width a green or blue button sets image and text further in. Image and label count it differently: the one
// has the width that the image leaves, the other the label's own.
constexpr int narrowUpTo = 110;
constexpr int imageInset = 10;
constexpr int narrowImageInset = 20;
constexpr int textOffset = 11;
constexpr int narrowTextOffset = 21;

constexpr int disabledOpacity = 0x99; // 60 percent

QColor withAlpha(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

/** One painting of a bitmap face: the decisions, taken from option and widget. */
struct SlicedFace
{
    SlicedFace(const SlicedLook &faceLook, const QStyleOptionButton *buttonOption, const QWidget *widget)
        : look(faceLook), option(buttonOption), hasWidget(widget != nullptr)
    {
        const QStyle::State state = option->state;
        enabled = state.testFlag(QStyle::State_Enabled);
        pressed = enabled && (state & (QStyle::State_Sunken | QStyle::State_On));
        const bool attended = state & (QStyle::State_MouseOver | QStyle::State_HasFocus);
        isPushButton = qobject_cast<const QPushButton *>(widget) != nullptr;
        lit = isPushButton && enabled && !pressed && attended;
        if (const auto *button = qobject_cast<const CButtonEx *>(widget))
            image = button->pixmap();
    }

    QString cacheKey(const QSize &size) const;
    QPoint imagePosition(const QSize &size) const;
    QPoint insetImagePosition(const QSize &size) const;
    QPoint pressedImagePosition(const QSize &size) const;

    const SlicedLook &look;
    const QStyleOptionButton *option;
    QPixmap image;
    bool hasWidget;
    bool isPushButton = false;
    bool enabled = false;
    bool pressed = false;
    bool lit = false;
};

// The plain key says nothing of the image and its place, nor of the widget, and yet the picture shows them: two buttons
// of one size must not find each other's.
QString SlicedFace::cacheKey(const QSize &size) const
{
    const QString key = PaintTools::stateKey(QLatin1String(look.cacheName), option, size);
    if (!hasWidget)
        return key + QLatin1String("-filled");
    if (!isPushButton)
        return key + QLatin1String("-unlit");
    if (image.isNull())
        return key;
    const QPoint place = imagePosition(size);
    const QPoint pressedPlace = pressedImagePosition(size);
    return key + QStringLiteral("-image%1-%2,%3-%4,%5")
                     .arg(image.cacheKey())
                     .arg(place.x())
                     .arg(place.y())
                     .arg(pressedPlace.x())
                     .arg(pressedPlace.y());
}

QPoint SlicedFace::imagePosition(const QSize &size) const
{
    if (!option->text.isEmpty())
        return insetImagePosition(size);
    const QSize imageSize = zel::deviceIndependentSize(image);
    return QPoint((size.width() - imageSize.width()) / 2, (size.height() - imageSize.height()) / 2);
}

QPoint SlicedFace::insetImagePosition(const QSize &size) const
{
    const QSize imageSize = zel::deviceIndependentSize(image);
    const bool narrow = size.width() + 2 - imageSize.width() <= narrowUpTo;
    const int inset = look.narrowInsets && narrow ? narrowImageInset : imageInset;
    return option->rect.topLeft() + QPoint(inset, (size.height() - imageSize.height()) / 2);
}

QPoint SlicedFace::pressedImagePosition(const QSize &size) const
{
    return look.pressedImageIsInset ? insetImagePosition(size) : imagePosition(size);
}

void drawHighlight(QPainter *painter, const QRect &rect, const SlicedLook &look)
{
    const QColor top = UIGGetColor(QLatin1String(look.highlightTop));
    const QColor bottom = UIGGetColor(QLatin1String(look.highlightBottom));
    painter->fillRect(rect.left(), rect.top(), rect.width(), 2, top);
    painter->fillRect(rect.left(), rect.bottom() - 1, rect.width(), 2, bottom);
    const int height = rect.bottom();
    PaintTools::drawVerticalGradient(painter, QRect(rect.left(), rect.top(), 2, height), top, bottom);
    PaintTools::drawVerticalGradient(painter, QRect(rect.right() - 2, rect.top(), 3, height), top, bottom);
}

void fade(QPainter *painter, const QRect &rect)
{
    painter->setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter->fillRect(rect, withAlpha(UIGGetColor(QStringLiteral("UIGCLR_FOLDERSEL_TITLE")), disabledOpacity));
    painter->setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void renderFace(QPainter *painter, const QRect &rect, const SlicedFace &face)
{
    const qreal ratio = PaintTools::deviceRatio(painter);
    const QString bitmaps = QLatin1String(face.look.bitmaps);
    if (!face.hasWidget)
        painter->fillRect(rect, face.option->palette.window());
    PaintTools::drawSlices(painter, rect, PaintTools::loadSlices(bitmaps, rect.height(), ratio),
                           face.look.restingReserve);
    if (!face.image.isNull())
        painter->drawPixmap(face.imagePosition(rect.size()), face.image);
    if (face.pressed) {
        const QString pressedBitmaps = bitmaps + QLatin1String("Pressed");
        PaintTools::drawSlices(painter, rect, PaintTools::loadSlices(pressedBitmaps, rect.height(), ratio), 0);
        if (!face.image.isNull())
            painter->drawPixmap(face.pressedImagePosition(rect.size()), face.image);
    }
    if (face.lit)
        drawHighlight(painter, rect, face.look);
    if (!face.enabled)
        fade(painter, rect);
}

void drawSlicedPushButton(const SlicedLook &look, const QStyleOption *option, QPainter *painter, const QWidget *widget)
{
    const auto *buttonOption = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (buttonOption == nullptr)
        return;
    const SlicedFace face(look, buttonOption, widget);
    const QRect rect = option->rect;
    PaintTools::drawCachedPicture(painter, rect.topLeft(), rect.size(), face.cacheKey(rect.size()),
                                  [&face](QPainter *picture, const QRect &area) { renderFace(picture, area, face); });
}

constexpr int glowBorder = 25;

/** A strip of the glow's border, with a gradient between two points of it. */
void fillGlowStrip(QPainter *painter, const QRect &strip, const QPoint &from, const QPoint &to, const QColor &start,
                   const QColor &end)
{
    QLinearGradient gradient(from, to);
    gradient.setColorAt(0.0, start);
    gradient.setColorAt(1.0, end);
    painter->fillRect(strip, gradient);
}

void fillGlowCorner(QPainter *painter, const QPoint &topLeft, const QPoint &centre, const QColor &core,
                    const QColor &edge)
{
    QRadialGradient gradient(centre, glowBorder, centre);
    gradient.setColorAt(0.0, core);
    gradient.setColorAt(1.0, edge);
    painter->fillRect(QRect(topLeft, QSize(glowBorder, glowBorder)), gradient);
}

void drawGlow(QPainter *painter, int w, int h, const QColor &core, const QColor &edge)
{
    constexpr int b = glowBorder;
    painter->fillRect(b, b, w - 2 * b, h - 2 * b, core);

    fillGlowCorner(painter, QPoint(0, 0), QPoint(b, b), core, edge);
    fillGlowCorner(painter, QPoint(w - b, 0), QPoint(w - b, b), core, edge);
    fillGlowCorner(painter, QPoint(0, h - b), QPoint(b, h - b), core, edge);
    fillGlowCorner(painter, QPoint(w - b, h - b), QPoint(w - b, h - b), core, edge);

    fillGlowStrip(painter, QRect(b, 0, w - 2 * b, b), QPoint(b, 0), QPoint(b, b), edge, core);
    fillGlowStrip(painter, QRect(b, h - b, w - 2 * b, b), QPoint(b, h - b), QPoint(b, h), core, edge);
    fillGlowStrip(painter, QRect(0, b, b, h - 2 * b), QPoint(0, b), QPoint(b, b), edge, core);
    fillGlowStrip(painter, QRect(w - b, b, b, h - 2 * b), QPoint(w - b, b), QPoint(w, b), core, edge);
}

void setButtonText(QPalette &palette, const QColor &active, const QColor &disabled)
{
    palette.setBrush(QPalette::Active, QPalette::ButtonText, active);
    palette.setBrush(QPalette::Disabled, QPalette::ButtonText, disabled);
    palette.setBrush(QPalette::Inactive, QPalette::ButtonText, active);
}

void setBlackLabel(QPalette &palette)
{
    const QColor black = UIGGetColor(QStringLiteral("UIGCLR_BLACK"));
    setButtonText(palette, withAlpha(black, 0xC8), withAlpha(black, 0x3C));
}

void setWhiteLabel(QPalette &palette, const QString &disabledKey)
{
    setButtonText(palette, UIGGetColor(QStringLiteral("UIGCLR_WHITE")), UIGGetColor(disabledKey));
}

void setLabelColors(QPalette &palette, const CButtonEx *button)
{
    if (button->buttonStyle() == CButtonEx::BSEX_Glowing)
        setWhiteLabel(palette, QStringLiteral("UIGCLR_WHITE")); // over the glow, whatever its text colour
    else
        ButtonText::setColors(palette, button);
}

int textOffsetBesideImage(CButtonEx::CButtonStyles look, const QRect &rect)
{
    const bool narrowInsets = look == CButtonEx::BSEX_Active || look == CButtonEx::BSEX_Tray;
    return narrowInsets && rect.width() <= narrowUpTo ? narrowTextOffset : textOffset;
}

// Icon and text are centred together. Gives the place of the text.
QRect drawPlainButtonIcon(const QStyleOptionButton *option, QPainter *painter)
{
    const QSize icon = option->iconSize;
    const int textWidth =
        option->text.isEmpty() ? 0 : iconGap + option->fontMetrics.size(Qt::TextShowMnemonic, option->text).width();
    const QRect label = QStyle::alignedRect(option->direction, Qt::AlignCenter,
                                            QSize(icon.width() + textWidth, option->rect.height()), option->rect);
    const QRect iconRect = QStyle::alignedRect(option->direction, Qt::AlignLeft | Qt::AlignVCenter, icon, label);
    const bool isEnabled = option->state.testFlag(QStyle::State_Enabled);
    option->icon.paint(painter, iconRect, Qt::AlignCenter, isEnabled ? QIcon::Normal : QIcon::Disabled,
                       option->state.testFlag(QStyle::State_On) ? QIcon::On : QIcon::Off);
    return QStyle::visualRect(option->direction, label, label.adjusted(icon.width() + iconGap, 0, 0, 0));
}

} // namespace

void ButtonText::setColors(QPalette &palette, const CButtonEx *button)
{
    switch (button->buttonStyle()) {
    case CButtonEx::BSEX_Normal: return setBlackLabel(palette);
    case CButtonEx::BSEX_Transparent:
    case CButtonEx::BSEX_Glowing: return setButtonText(palette, button->textColor(), button->textColor());
    case CButtonEx::BSEX_Active:
    case CButtonEx::BSEX_Tray: return setWhiteLabel(palette, QStringLiteral("UIGCLR_PALETTE_DISABLED_BUTTONTEXT"));
    case CButtonEx::BSEX_Tertiary: return; // keeps the palette's own
    }
}

void CCommonControlStyle::drawNormalPushButton(const QStyleOption *option, QPainter *painter,
                                               const QWidget *widget) const
{
    drawSlicedPushButton(normalLook, option, painter, widget);
}

void CCommonControlStyle::drawActivePushButton(const QStyleOption *option, QPainter *painter,
                                               const QWidget *widget) const
{
    drawSlicedPushButton(activeLook, option, painter, widget);
}

void CCommonControlStyle::drawTrayPushButton(const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    drawSlicedPushButton(trayLook, option, painter, widget);
}

void CCommonControlStyle::drawTransparentPushButton(const QStyleOption *option, QPainter *painter,
                                                    const QWidget *widget) const
{
    const auto *buttonOption = qstyleoption_cast<const QStyleOptionButton *>(option);
    const auto *button = qobject_cast<const CButtonEx *>(widget);
    if (buttonOption == nullptr || button == nullptr)
        return;
    const QRect rect = option->rect;
    const QSize image = zel::deviceIndependentSize(button->pixmap());
    const int x = buttonOption->text.isEmpty() ? (rect.width() - image.width()) / 2 : rect.left();
    painter->save();
    painter->drawPixmap(x, (rect.height() - image.height()) / 2, button->pixmap());
    painter->restore();
}

void CCommonControlStyle::drawGlowingPushButton(const QStyleOption *option, QPainter *painter,
                                                const QWidget *widget) const
{
    const auto *button = qobject_cast<const CButtonEx *>(widget);
    if (qstyleoption_cast<const QStyleOptionButton *>(option) == nullptr || button == nullptr)
        return;
    const int w = option->rect.width();
    const int h = option->rect.height();
    const qreal strength = static_cast<qreal>(button->getGlowAlpha());
    painter->save();
    if (strength > 0) {
        painter->setPen(withAlpha(UIGGetColor(QStringLiteral("UIGCLR_WHITE")), 0x50));
        painter->drawRoundedRect(option->rect.adjusted(0, 0, -1, -1), 10, 10, Qt::RelativeSize);
        QColor core = UIGGetColor(QStringLiteral("UIGCLR_GLOW"));
        core.setAlphaF(strength * 0.7);
        drawGlow(painter, w, h, core, withAlpha(UIGGetColor(QStringLiteral("UIGCLR_BLACK")), 0));
    }
    const QSize image = zel::deviceIndependentSize(button->pixmap());
    painter->drawPixmap((w - 14 - image.width()) / 2, (h - 15 - image.height()) / 2, button->pixmap());
    painter->restore();
}

void CCommonControlStyle::drawPanelButtonCommand(const QStyleOption *option, QPainter *painter,
                                                 const QWidget *widget) const
{
    const auto *button = qobject_cast<const CButtonEx *>(widget);
    if (button == nullptr)
        return;
    switch (button->buttonStyle()) {
    case CButtonEx::BSEX_Normal: return drawNormalPushButton(option, painter, widget);
    case CButtonEx::BSEX_Transparent: return drawTransparentPushButton(option, painter, widget);
    case CButtonEx::BSEX_Glowing: return drawGlowingPushButton(option, painter, widget);
    case CButtonEx::BSEX_Active: return drawActivePushButton(option, painter, widget);
    case CButtonEx::BSEX_Tray: return drawTrayPushButton(option, painter, widget);
    case CButtonEx::BSEX_Tertiary: return; // has no face
    }
}

// Fusion draws the face of a tool button as that of a push button, which this style keeps for its own buttons.
void CCommonControlStyle::drawPanelButtonTool(const QStyleOption *option, QPainter *painter,
                                              const QWidget *widget) const
{
    if (m_pNativeStyle != nullptr && m_bFusionIsBase)
        m_pNativeStyle->drawPrimitive(PE_PanelButtonTool, option, painter, widget);
    else
        QProxyStyle::drawPrimitive(PE_PanelButtonTool, option, painter, widget);
}

void CCommonControlStyle::drawPushButtonBevel(const QStyleOption *option, QPainter *painter,
                                              const QWidget *widget) const
{
    const auto *buttonOption = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (buttonOption == nullptr)
        return;
    QRect face = option->rect;
    if (buttonOption->features & QStyleOptionButton::DefaultButton)
        drawDefaultFrame(buttonOption, painter, widget);
    if (buttonOption->features & QStyleOptionButton::AutoDefaultButton) {
        const int indicator = proxy()->pixelMetric(PM_ButtonDefaultIndicator, option, widget);
        face.adjust(indicator, indicator, -indicator, -indicator);
    }
    const bool flat = buttonOption->features & QStyleOptionButton::Flat;
    if (!flat || (option->state & (State_Sunken | State_On)))
        drawPushButtonFace(buttonOption, face, painter, widget);
    if (const auto *button = qobject_cast<const CButtonEx *>(widget))
        drawPushButtonChevron(buttonOption, face, painter, button);
}

// The base's. Plastique draws it line by line, Fusion has none.
void CCommonControlStyle::drawDefaultFrame(const QStyleOptionButton *option, QPainter *painter,
                                           const QWidget *widget) const
{
    if (m_bFusionIsBase)
        return proxy()->drawPrimitive(PE_FrameDefaultButton, option, painter, widget);
    const QRect rect = option->rect;
    const QString key = PaintTools::stateKey(QLatin1String("framedefaultbutton"), option, rect.size());
    PaintTools::drawCachedPicture(painter, rect.topLeft(), rect.size(), key, [&](QPainter *picture, const QRect &area) {
        QStyleOptionButton frame = *option;
        frame.rect = area;
        proxy()->drawPrimitive(PE_FrameDefaultButton, &frame, picture, widget);
    });
}

void CCommonControlStyle::drawPushButtonFace(const QStyleOptionButton *option, const QRect &face, QPainter *painter,
                                             const QWidget *widget) const
{
    if (qobject_cast<const CButtonEx *>(widget) == nullptr) {
        // The bevel alone, so that the label is drawn once.
        m_pNativeStyle->drawControl(CE_PushButtonBevel, option, painter, widget);
        return;
    }
    QStyleOptionButton panel = *option;
    panel.rect = face;
    proxy()->drawPrimitive(PE_PanelButtonCommand, &panel, painter, widget);
}

void CCommonControlStyle::drawPushButtonChevron(const QStyleOptionButton *option, const QRect &face, QPainter *painter,
                                                const CButtonEx *button) const
{
    const bool bare =
        button->buttonStyle() == CButtonEx::BSEX_Glowing || button->buttonStyle() == CButtonEx::BSEX_Transparent;
    if (!button->chevron() || !bare)
        return;
    const int width = proxy()->pixelMetric(PM_MenuButtonIndicator, option, button);
    QStyleOptionButton chevron = *option;
    chevron.rect = QRect(face.right() - width, face.height() - 20, width, face.height() - 4);
    proxy()->drawPrimitive(PE_IndicatorArrowDown, &chevron, painter, button);
}

void CCommonControlStyle::drawPushButtonLabel(const QStyleOption *option, QPainter *painter,
                                              const QWidget *widget) const
{
    const auto *buttonOption = qstyleoption_cast<const QStyleOptionButton *>(option);
    const auto *button = qobject_cast<const CButtonEx *>(widget);
    if (buttonOption == nullptr)
        return QProxyStyle::drawControl(CE_PushButtonLabel, option, painter, widget);
    if (button != nullptr) {
        drawHouseButtonLabel(buttonOption, painter, button);
        return;
    }
    int flags = Qt::AlignCenter | Qt::TextShowMnemonic;
    if (proxy()->styleHint(SH_UnderlineShortcut, option, widget) == 0)
        flags |= Qt::TextHideMnemonic;
    const QRect textRect = buttonOption->icon.isNull() ? option->rect : drawPlainButtonIcon(buttonOption, painter);
    proxy()->drawItemText(painter, textRect, flags, option->palette, option->state.testFlag(State_Enabled),
                          buttonOption->text, QPalette::ButtonText);
}

void CCommonControlStyle::drawHouseButtonLabel(const QStyleOptionButton *option, QPainter *painter,
                                               const CButtonEx *button) const
{
    const CButtonEx::CButtonStyles look = button->buttonStyle();
    QFont font = button->font();
    font.setStyleStrategy(QFont::PreferAntialias);
    if (look == CButtonEx::BSEX_Glowing)
        font.setPixelSize(14);
    painter->setFont(font); // and it stays: this is the last that is painted of a button

    QStyleOptionButton label = *option;
    setLabelColors(label.palette, button);
    if (look == CButtonEx::BSEX_Tertiary) {
        QProxyStyle::drawControl(CE_PushButtonLabel, &label, painter, button);
        return;
    }
    int flags = Qt::AlignCenter | Qt::TextShowMnemonic;
    if (look == CButtonEx::BSEX_Glowing) {
        flags = Qt::AlignHCenter | Qt::AlignBottom | Qt::TextShowMnemonic;
    } else if (!button->pixmap().isNull()) {
        const int imageWidth = zel::deviceIndependentSize(button->pixmap()).width();
        label.rect.setLeft(label.rect.left() + imageWidth + textOffsetBesideImage(look, option->rect));
        flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic;
    }
    proxy()->drawItemText(painter, label.rect, flags, label.palette, label.state.testFlag(State_Enabled), label.text,
                          QPalette::ButtonText);
}
