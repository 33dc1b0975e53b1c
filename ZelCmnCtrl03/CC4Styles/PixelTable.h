// Hand-placed lines, points and areas as data, and the one interpreter that draws them.
#pragma once

#include <QtGlobal>

#include <cstddef>

class QPainter;
class QRect;

namespace PixelTable {

// Places are counted from the near edge by 0, 1, 2 and on, and from the far edge by -1, -2, -3 and on, so that
// `right - 1` is the last column but one.
inline constexpr int left = 0;
inline constexpr int top = 0;
inline constexpr int right = -1;
inline constexpr int bottom = -1;

/** What an operation is drawn with: a colour of the registry, and its alpha or the slot that the painter fills. */
struct Ink
{
    const char *colorKey;
    int alpha = 0xFF;
    int alphaSlot = -1; // index into the painter's alphas; negative for none
};

/** An ink whose alpha the painter gives. */
constexpr Ink slotInk(const char *colorKey, int alphaSlot)
{
    return {colorKey, 0xFF, alphaSlot};
}

/** Everything is a filled rectangle, both corners included: a line is one that is a pixel wide. */
struct Operation
{
    Ink ink;
    int x1;
    int y1;
    int x2;
    int y2;
};

constexpr Operation row(const Ink &ink, int x1, int x2, int y)
{
    return {ink, x1, y, x2, y};
}

constexpr Operation column(const Ink &ink, int x, int y1, int y2)
{
    return {ink, x, y1, x, y2};
}

constexpr Operation point(const Ink &ink, int x, int y)
{
    return {ink, x, y, x, y};
}

constexpr Operation area(const Ink &ink, int x1, int y1, int x2, int y2)
{
    return {ink, x1, y1, x2, y2};
}

/**
 * Draws the operations in their order over `rect`; `alphas` (0 to 255) fill the slots.
 *
 * A line or area whose ends have crossed because `rect` is too small draws nothing, and nothing is drawn outside
 * `rect`. The painter is left as it was.
 */
void draw(QPainter *painter, const QRect &rect, const Operation *operations, std::size_t count,
          const int *alphas = nullptr);

template <std::size_t count>
void draw(QPainter *painter, const QRect &rect, const Operation (&operations)[count], const int *alphas = nullptr)
{
    draw(painter, rect, operations, count, alphas);
}

/** As draw(), several times faster where many operations share a small place. All inks count as opaque. */
void drawComposed(QPainter *painter, const QRect &rect, const Operation *operations, std::size_t count);

template <std::size_t count>
void drawComposed(QPainter *painter, const QRect &rect, const Operation (&operations)[count])
{
    drawComposed(painter, rect, operations, count);
}

} // namespace PixelTable
