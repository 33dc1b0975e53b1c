// What the small self-painting buttons have in common: the values of their state, their bevel and the place of an icon.
#pragma once

#include <QPoint>

class QPainter;
class QPixmap;
class QRect;

namespace IconButtonPainting {

/** The state of a button. */
enum State : int
{
    Normal = 0,
    PointerOver = 1,
    Pressed = 2
};

/** The colour keys of a bevel. */
struct BevelColors
{
    const char *light;
    const char *shadow;
};

// The buttons of title bars are all of one kind.
inline constexpr BevelColors titleBevel = {"UIGCLR_WHITE", "UIGCLR_TEXT_DISABLED"};
inline constexpr int titleButtonSide = 17;
inline constexpr QPoint titleIconPlace(3, 3);

/** The bevel of a button that stands out, lit from the top left. The last row and column of `rect` stay free. */
void drawRaisedBevel(QPainter *painter, const QRect &rect, const BevelColors &colors);

/** The bevel of a button that is pressed in. Its top and left lines run through to the end of `rect`. */
void drawSunkenBevel(QPainter *painter, const QRect &rect, const BevelColors &colors);

/** The bevel that goes with a state; none for Normal. */
void drawBevel(QPainter *painter, const QRect &rect, const BevelColors &colors, State state);

/** The icon at its own size, counted in the painter's pixels. A null icon draws nothing. */
void drawIcon(QPainter *painter, const QPoint &topLeft, const QPixmap &icon);

} // namespace IconButtonPainting
