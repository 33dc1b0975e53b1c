#pragma once

#include "include/zelcmnctrl_export.h"

#include <QPainterPath>
#include <QProxyStyle>

#include <memory>

class CButtonEx;
class CTextBoxEx;
class QStyleOptionButton;
class QStyleOptionMenuItem;
class QStyleOptionTab;
class QStyleOptionFrame;

/**
 * The house style: one look for standard Qt widgets and for the controls of this library.
 *
 * Take the shared object from CC4StyleFactory rather than making one; a style handed to QApplication::setStyle belongs
 * to the application from then on. As the application's style it brings its palette along, unless the application has
 * set one itself, and turns the fading and animation of menus off for the whole application.
 *
 * Everything that it does not draw itself is drawn by its base: Plastique where Qt has that style, Fusion elsewhere.
 *
 * The painters below are what the style's own entry points call. An option of the wrong type paints nothing; only the
 * label of a push button goes to the base then. All sizes are pixels of the painter.
 */
class ZELCMNCTRL_EXPORT CCommonControlStyle : public QProxyStyle
{
    Q_OBJECT

public:
    CCommonControlStyle();
    ~CCommonControlStyle() override;

    /** Deletes the style. For whoever owns one directly: never for one that an application has, never on null. */
    void dispose();

    // What Qt asks of a style.

    /** Makes standardPalette() the application's, unless it has set one of its own. */
    void polish(QApplication *application) override;
    /** Leaves the palette as it is. */
    void polish(QPalette &palette) override;
    /** Takes back the palette that polish() gave to the application. */
    void unpolish(QApplication *application) override;

    /** Prepares a widget for the look: hover, text colours by button look, the menu's gradient, the spin box's font. */
    void polish(QWidget *widget) override;
    /** Ends the hover of push buttons and combo boxes; palettes and fonts stay. */
    void unpolish(QWidget *widget) override;

    /** The house palette: sixteen roles in three groups from the registry's UIGCLR_PALETTE_ colours. */
    QPalette standardPalette() const override;

    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr, const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;
    /**
     * The base's sizes, but that a combo box and a spin box are as high as this look draws them, and that a slider has
     * the room for its handle and tick marks.
     */
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget = nullptr) const override;
    /** The base's places, but that tabs and the items of views are laid out by this style's own metrics. */
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl subControl,
                         const QWidget *widget = nullptr) const override;

    /** Shapes the label of the tool tips whenever Qt shows or sizes it. */
    bool eventFilter(QObject *object, QEvent *event) override;

    /** An alignment as it is seen: left and right exchanged for Qt::RightToLeft, unless it is absolute. */
    Qt::Alignment visualAlignment(Qt::LayoutDirection direction, Qt::Alignment alignment);

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;

    /** Draws with antialiasing, which stays on for the painter afterwards. */
    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette, bool enabled,
                      const QString &text, QPalette::ColorRole textRole = QPalette::NoRole) const override;

    // Push button faces. The first three take a QStyleOptionButton and any widget, null included; the last two need a
    // CButtonEx, and without one draw nothing.

    /** The white face, with the button's image. */
    void drawNormalPushButton(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    /** The green face, with the button's image. */
    void drawActivePushButton(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    /** The blue face, with the button's image. */
    void drawTrayPushButton(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    /** The button's image alone. */
    void drawTransparentPushButton(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    /** The button's image over a glow as strong as CButtonEx::getGlowAlpha() says. */
    void drawGlowingPushButton(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;

    // Frames.

    /** The palette's background with a cosmetic line around. Turns antialiasing on, and leaves it on. */
    void drawFrame(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    /** Draws nothing; kept for callers of older versions. */
    void drawToolbarFrame(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;

    // Frames of text boxes. They take any option.

    /** The opaque frame, for any widget and the same in all states. */
    void drawNormalTextBox(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    /**
     * The half-transparent frame with its filling, brighter under the pointer and once more over it with the focus.
     * Needs a CTextBoxEx, which is asked for both; without one it draws nothing.
     */
    void drawTransparentTextBox(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;

    // Tools of the painters.

    /**
     * The QPixmapCache key of a picture: "key-state-activeSubControls-palette-widthxheight".
     *
     * The key text is taken as Latin-1.
     */
    QString uniqueName(const QString &key, const QStyleOption *option, const QSize &size) const;

    /**
     * Fills `rect` with a vertical gradient that is cached per size and pair of colours.
     *
     * `transparent` says that the colours may let the background through; it makes no difference to the picture.
     */
    void drawGradient(QPainter *painter, const QRect &rect, const QColor &topColor, const QColor &bottomColor,
                      bool transparent) const;

    /** `factor` percent (0 to 100) of colorA in colorB, per channel, truncated; the alpha is colorA's. */
    QColor mergedColors(const QColor &colorA, const QColor &colorB, int factor) const;

    /** `rect` with round corners; `radius` is the side of the corner arc's box, twice the arc's true radius. */
    QPainterPath getRoundRectPath(const QRect &rect, int radius) const;

    /** The path of getRoundRectPath for direction 0, an empty path for any other. */
    QPainterPath getRoundRectWithArrowPath(const QRect &rect, int radius, int direction) const;

    /** QStyle::drawItemText for the labels of tabs: without antialiasing. An empty text changes nothing. */
    void drawTabItemText(QPainter *painter, const QRect &rect, int alignment, const QPalette &palette, bool enabled,
                         const QString &text, QPalette::ColorRole textRole) const;

private:
    Q_DISABLE_COPY(CCommonControlStyle)

    void drawPanelButtonCommand(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawPanelButtonTool(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawIndicatorArrowDown(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawFrameLineEdit(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawTextBoxFrame(const QStyleOptionFrame *option, QPainter *painter, const CTextBoxEx *box) const;
    void drawPanelLineEdit(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;

    void drawFrameMenu(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawFrameTabWidget(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawFrameTabBarBase(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawIndicatorCheckBox(const QStyleOption *option, QPainter *painter) const;
    void drawIndicatorRadioButton(const QStyleOption *option, QPainter *painter) const;
    void drawIndicatorHeaderArrow(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawIndicatorBranch(const QStyleOption *option, QPainter *painter) const;
    void drawPanelTipLabel(QPainter *painter, const QWidget *widget) const;

    void drawTabBarTab(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawTabBarTabShape(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawTabBarTabLabel(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawVerticalTabText(const QStyleOptionTab *option, const QRect &rect, int flags, QPainter *painter,
                             QPalette::ColorRole role) const;
    void drawMenuItem(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawSubMenuArrow(const QStyleOptionMenuItem *option, QPainter *painter, const QWidget *widget) const;
    void drawHeader(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawHeaderSection(const QStyleOption *option, QPainter *painter) const;
    void drawSplitter(const QStyleOption *option, QPainter *painter) const;
    void drawComboBoxLabel(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;

    void drawComboBox(const QStyleOptionComplex *option, QPainter *painter) const;
    void drawScrollBar(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const;
    void drawSpinBox(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const;

    int toolTipOpacity(const QWidget *widget) const;
    bool drawsFor(const QWidget *widget) const;
    QRect spinBoxRect(const QStyleOptionComplex *option, SubControl subControl) const;
    QRect comboBoxRect(const QStyleOptionComplex *option, SubControl subControl, const QWidget *widget) const;

    void drawPushButtonBevel(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawDefaultFrame(const QStyleOptionButton *option, QPainter *painter, const QWidget *widget) const;
    void drawPushButtonFace(const QStyleOptionButton *option, const QRect &face, QPainter *painter,
                            const QWidget *widget) const;
    void drawPushButtonChevron(const QStyleOptionButton *option, const QRect &face, QPainter *painter,
                               const CButtonEx *button) const;
    void drawPushButtonLabel(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawHouseButtonLabel(const QStyleOptionButton *option, QPainter *painter, const CButtonEx *button) const;

    /** Tells a CSliderEx the rectangle of its handle. */
    void drawSlider(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const;
    QRect sliderSubControlRect(const QStyleOptionComplex *option, SubControl subControl, const QWidget *widget) const;

    std::unique_ptr<QStyle> m_pNativeStyle; // draws the face of a push button that is no CButtonEx
    const bool m_bFusionIsBase;             // painters make good what Fusion draws otherwise
    bool m_bPaletteGiven = false;           // to the application, by polish()
    bool m_bShapingToolTip = false;         // its own resizing must not shape it again
};
