// The hand-placed pixels of the buttons of a spin box, as data. Order is meaning: a later line covers an earlier one.
#pragma once

#include "CC4Styles/PixelTable.h"

namespace SpinBoxPixels {

using PixelTable::column;
using PixelTable::Ink;
using PixelTable::left;
using PixelTable::Operation;
using PixelTable::point;
using PixelTable::right;
using PixelTable::row;
using PixelTable::top;

constexpr Ink sheenInk(int alpha)
{
    return {"UIGCLR_SPIN_BACKGROUND", alpha};
}

inline constexpr Ink arrow = {"UIGCLR_SPIN_ARROW"};

/** Over the square that holds both buttons, 16 wide and high. */
inline constexpr Operation sheen[] = {
    row(sheenInk(130), left + 1, right - 1, top + 7),
    row(sheenInk(220), left + 1, right - 1, top + 1),
    row(sheenInk(220), left + 1, right - 1, top + 4),
    row(sheenInk(230), left + 1, right - 1, top + 2),
    row(sheenInk(230), left + 1, right - 1, top + 3),
    point(sheenInk(230), left + 1, top + 5),
    row(sheenInk(255), left + 1, right - 2, top + 2),
    point(sheenInk(255), left + 2, top + 3),
    point(sheenInk(255), left + 3, top + 3),
    point(sheenInk(255), right - 2, top + 3),
    row(sheenInk(190), left + 2, right - 1, top + 5),
    row(sheenInk(190), left + 1, right - 1, top + 6),
    row(sheenInk(245), left + 1, right - 1, top + 8),
    row(sheenInk(185), left + 1, right - 1, top + 9),
    row(sheenInk(180), left + 1, right - 1, top + 10),
    row(sheenInk(160), left + 1, right - 1, top + 11),
    row(sheenInk(170), left + 1, right - 1, top + 12),
    row(sheenInk(235), left + 1, right - 1, top + 13),
    row(sheenInk(170), left + 1, right - 1, top + 14),
    column(sheenInk(50), left + 1, top + 8, top + 12),
    column(sheenInk(50), right - 1, top + 8, top + 13),
};

// Over a button, 16 wide and 8 high.

inline constexpr Operation upChevron[] = {
    point(arrow, 8, 1),  row(arrow, 7, 9, 2),   row(arrow, 6, 10, 3), row(arrow, 5, 7, 4), row(arrow, 9, 11, 4),
    row(arrow, 4, 6, 5), row(arrow, 10, 12, 5), point(arrow, 5, 6),   point(arrow, 11, 6),
};

inline constexpr Operation downChevron[] = {
    point(arrow, 5, 1),   point(arrow, 11, 1),  row(arrow, 4, 6, 2), row(arrow, 10, 12, 2), row(arrow, 5, 7, 3),
    row(arrow, 9, 11, 3), row(arrow, 6, 10, 4), row(arrow, 7, 9, 5), point(arrow, 8, 6),
};

} // namespace SpinBoxPixels
