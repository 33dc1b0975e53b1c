// The bitmaps that the library loads from the graphics directory, as data, and how their sizes hang together.
#pragma once

#include <QFileInfo>
#include <QSize>
#include <QString>

/**
 * One bitmap. Those that name the same widths are equally wide, and those that name the same heights equally high;
 * where they are not, seams and steps show. Sizes count in pixels of the file without @2x.
 */
struct LookBitmap
{
    const char16_t *name;
    const char16_t *widths = nullptr;  // whose width it shares; null: has a width of its own
    const char16_t *heights = nullptr; // the same of the height
    QSize room = QSize();              // what is larger is cut off; invalid: no limit
};

inline constexpr LookBitmap lookBitmaps[] = {
    // A pressed face is painted over the resting one, and the three slices of each side by side.
    {u"PushbuttonWhiteLeftCap.png", u"left caps of the white push button", u"slices of the white push button"},
    {u"PushbuttonWhiteBlit.png", u"middles of the white push button", u"slices of the white push button"},
    {u"PushbuttonWhiteRightCap.png", u"right caps of the white push button", u"slices of the white push button"},
    {u"PushbuttonWhitePressedLeftCap.png", u"left caps of the white push button", u"slices of the white push button"},
    {u"PushbuttonWhitePressedBlit.png", u"middles of the white push button", u"slices of the white push button"},
    {u"PushbuttonWhitePressedRightCap.png", u"right caps of the white push button", u"slices of the white push button"},
    {u"PushbuttonGreenLeftCap.png", u"left caps of the green push button", u"slices of the green push button"},
    {u"PushbuttonGreenBlit.png", u"middles of the green push button", u"slices of the green push button"},
    {u"PushbuttonGreenRightCap.png", u"right caps of the green push button", u"slices of the green push button"},
    {u"PushbuttonGreenPressedLeftCap.png", u"left caps of the green push button", u"slices of the green push button"},
    {u"PushbuttonGreenPressedBlit.png", u"middles of the green push button", u"slices of the green push button"},
    {u"PushbuttonGreenPressedRightCap.png", u"right caps of the green push button", u"slices of the green push button"},
    {u"PushbuttonBlueLeftCap.png", u"left caps of the blue push button", u"slices of the blue push button"},
    {u"PushbuttonBlueBlit.png", u"middles of the blue push button", u"slices of the blue push button"},
    {u"PushbuttonBlueRightCap.png", u"right caps of the blue push button", u"slices of the blue push button"},
    {u"PushbuttonBluePressedLeftCap.png", u"left caps of the blue push button", u"slices of the blue push button"},
    {u"PushbuttonBluePressedBlit.png", u"middles of the blue push button", u"slices of the blue push button"},
    {u"PushbuttonBluePressedRightCap.png", u"right caps of the blue push button", u"slices of the blue push button"},

    // In the middle of the picture that is fitted into the place of the indicator.
    {u"CheckboxActive.png", u"check boxes", u"check boxes", {15, 15}},
    {u"CheckboxActiveHover.png", u"check boxes", u"check boxes", {15, 15}},
    {u"CheckboxActivePressed.png", u"check boxes", u"check boxes", {15, 15}},
    {u"CheckboxActiveChecked.png", u"check boxes", u"check boxes", {15, 15}},
    {u"CheckboxActiveCheckedHover.png", u"check boxes", u"check boxes", {15, 15}},
    {u"CheckboxInactive.png", u"check boxes", u"check boxes", {15, 15}},
    {u"CheckboxInactiveChecked.png", u"check boxes", u"check boxes", {15, 15}},
    {u"RadiobuttonActive.png", u"radio buttons", u"radio buttons", {16, 16}},
    {u"RadiobuttonActiveHover.png", u"radio buttons", u"radio buttons", {16, 16}},
    {u"RadiobuttonActiveSelected.png", u"radio buttons", u"radio buttons", {16, 16}},
    {u"RadiobuttonActiveSelectedHover.png", u"radio buttons", u"radio buttons", {16, 16}},
    {u"RadiobuttonInactive.png", u"radio buttons", u"radio buttons", {16, 16}},
    {u"RadiobuttonInactiveSelected.png", u"radio buttons", u"radio buttons", {16, 16}},

    // The house scroll bar and the combo box.
    {u"ScrollbarBlueArrowTop.png", u"arrow buttons of scroll bars", u"arrow buttons of scroll bars"},
    {u"ScrollbarBlueArrowBottom.png", u"arrow buttons of scroll bars", u"arrow buttons of scroll bars"},
    {u"ScrollbarBlueArrowLeft.png", u"arrow buttons of scroll bars", u"arrow buttons of scroll bars"},
    {u"ScrollbarBlueArrowRight.png", u"arrow buttons of scroll bars", u"arrow buttons of scroll bars"},
    {u"ScrollbarBlueSliderTop.png", u"upper and lower caps of scroll bars", u"upper and lower caps of scroll bars"},
    {u"ScrollbarBlueSliderBottom.png", u"upper and lower caps of scroll bars", u"upper and lower caps of scroll bars"},
    {u"ScrollbarBlueSliderLeft.png", u"left and right caps of scroll bars", u"left and right caps of scroll bars"},
    {u"ScrollbarBlueSliderRight.png", u"left and right caps of scroll bars", u"left and right caps of scroll bars"},
    {u"ScrollbarGreySliderTop.png", u"upper and lower caps of scroll bars", u"upper and lower caps of scroll bars"},
    {u"ScrollbarGreySliderBottom.png", u"upper and lower caps of scroll bars", u"upper and lower caps of scroll bars"},
    {u"ScrollbarGreySliderLeft.png", u"left and right caps of scroll bars", u"left and right caps of scroll bars"},
    {u"ScrollbarGreySliderRight.png", u"left and right caps of scroll bars", u"left and right caps of scroll bars"},
    {u"dropdown-menu-arrow.png", nullptr, nullptr},

    // The blue scroll bar.
    {u"BlueCenterScrollBarTop.png", u"upper and lower caps of the blue scroll bar",
     u"upper and lower caps of the blue scroll bar"},
    {u"BlueCenterScrollBarBottom.png", u"upper and lower caps of the blue scroll bar",
     u"upper and lower caps of the blue scroll bar"},
    {u"BlueCenterScrollBarLeft.png", u"left and right caps of the blue scroll bar",
     u"left and right caps of the blue scroll bar"},
    {u"BlueCenterScrollBarRight.png", u"left and right caps of the blue scroll bar",
     u"left and right caps of the blue scroll bar"},
    {u"BlueCenterScrollBarVGrooveBlt.png", u"body and groove of the upright blue scroll bar", nullptr},
    {u"BlueCenterVSliderBlit.png", u"body and groove of the upright blue scroll bar", nullptr},
    {u"BlueCenterScrollBarHGrooveBlt.png", nullptr, u"body and groove of the level blue scroll bar"},
    {u"BlueCenterHSliderBlit.png", nullptr, u"body and groove of the level blue scroll bar"},
    {u"BlueCenterScrollbarArrowUp.png", u"upright arrows of the blue scroll bar",
     u"upright arrows of the blue scroll bar"},
    {u"BlueCenterScrollbarArrowDown.png", u"upright arrows of the blue scroll bar",
     u"upright arrows of the blue scroll bar"},
    {u"BlueCenterScrollbarArrowLeft.png", u"level arrows of the blue scroll bar",
     u"level arrows of the blue scroll bar"},
    {u"BlueCenterScrollbarArrowRight.png", u"level arrows of the blue scroll bar",
     u"level arrows of the blue scroll bar"},

    // The scroll bar of drop-down lists.
    {u"ddScrollbarArrowUp.png", u"arrows of the drop-down scroll bar", u"arrows of the drop-down scroll bar"},
    {u"ddScrollbarArrowDown.png", u"arrows of the drop-down scroll bar", u"arrows of the drop-down scroll bar"},
    {u"ddScrollbarSliderTop.png", u"caps and body of the drop-down scroll bar", u"caps of the drop-down scroll bar"},
    {u"ddScrollbarSliderBottom.png", u"caps and body of the drop-down scroll bar", u"caps of the drop-down scroll bar"},
    {u"ddScrollbarSliderBlit.png", u"caps and body of the drop-down scroll bar", nullptr},
    {u"ddScrollbarSliderGrayBlit.png", nullptr, nullptr},

    // Title bars. The icon stands three pixels from the edges of a button of 17 pixels.
    {u"Close.png", u"icons of title bars", u"icons of title bars", {14, 14}},
    {u"Minimize.png", u"icons of title bars", u"icons of title bars", {14, 14}},
    {u"Maximize.png", u"icons of title bars", u"icons of title bars", {14, 14}},
    {u"restore.png", u"icons of title bars", u"icons of title bars", {14, 14}},

    // Beside the help link of message boxes.
    {u"Help.png", nullptr, nullptr},

    // The busy indicators. The masks cut the shadow of the strip as they cut the strip.
    {u"status-rainbow.png", nullptr, nullptr},
    {u"status-rainbow-shadow.png", nullptr, u"masks and shadow of the rainbow strip"},
    {u"status-rainbow-mask-left.png", nullptr, u"masks and shadow of the rainbow strip"},
    {u"status-rainbow-mask-right.png", nullptr, u"masks and shadow of the rainbow strip"},
    {u"status-left-shadow.png", nullptr, u"side shadows of the busy panel"},
    {u"status-right-shadow.png", nullptr, u"side shadows of the busy panel"},
    {u"status-bottom-shadow.png", nullptr, nullptr},
};

/** The longest side of a bitmap that is loaded, in pixels. No control has longer ones; some unpack to gigabytes. */
inline constexpr int longestBitmapSide = 4096;

/** The strip of the busy indicators has to fill what its masks leave. */
inline constexpr const char16_t *rainbowStripBitmap = u"status-rainbow.png";
inline constexpr const char16_t *rainbowMaskBitmap = u"status-rainbow-mask-right.png";

/** Where the twin for screens of twice the density would be: "name.png" gives "name@2x.png". */
inline QString doubleResolutionPath(const QString &path)
{
    const QFileInfo file(path);
    return file.path() + QLatin1Char('/') + file.completeBaseName() + QLatin1String("@2x.") + file.suffix();
}
