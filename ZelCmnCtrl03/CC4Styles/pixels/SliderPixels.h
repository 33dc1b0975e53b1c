// The hand-placed pixels of groove and handle of a slider, as data. Order is meaning: a later line covers an earlier
// one.
#pragma once

#include "CC4Styles/PixelTable.h"

namespace SliderPixels {

using PixelTable::bottom;
using PixelTable::column;
using PixelTable::Ink;
using PixelTable::left;
using PixelTable::Operation;
using PixelTable::point;
using PixelTable::right;
using PixelTable::row;
using PixelTable::top;

inline constexpr Ink shade = {"UIGCLR_COMPLEX_BORDER_TOP"};
inline constexpr Ink innerShade = {"UIGCLR_COMPLEX_BORDER_TOP_INNER"};
inline constexpr Ink border = {"UIGCLR_COMPLEX_BORDER_BOTTOM"};
inline constexpr Ink outline = {"UIGCLR_COMPLEX_BORDER_PEN"};
inline constexpr Ink smoothing = {"UIGCLR_COMPLEX_BORDER_INNER_PEN"};

inline constexpr Operation horizontalGroove[] = {
    row(shade, left + 1, right - 1, top),          //
    row(innerShade, left + 2, right - 2, top + 1), //
    row(border, left + 1, right - 1, bottom),      //
    column(border, left, top + 1, bottom - 1),     //
    column(border, right, top + 1, bottom - 1),    //
};

inline constexpr Operation verticalGroove[] = {
    row(border, left + 1, right - 1, top),             //
    row(border, left + 1, right - 1, bottom),          //
    column(border, right, top + 1, bottom - 1),        //
    column(shade, left, top + 1, bottom - 1),          //
    column(innerShade, left + 1, top + 2, bottom - 2), //
};

/** A pentagon with its point downward, for a handle 10 wide and 18 high. */
inline constexpr Operation horizontalHandle[] = {
    row(outline, left + 1, right - 1, top),
    column(outline, left, top + 1, top + 13),
    point(outline, left + 1, top + 14),
    point(outline, left + 2, top + 15),
    point(outline, left + 3, top + 16),
    point(outline, left + 4, top + 17),
    column(outline, right, top + 1, top + 13),
    point(outline, right - 1, top + 14),
    point(outline, right - 2, top + 15),
    point(outline, right - 3, top + 16),
    point(outline, right - 4, top + 17),

    point(smoothing, left + 1, top + 1),
    point(smoothing, left + 1, top + 13),
    point(smoothing, left + 2, top + 14),
    point(smoothing, left + 3, top + 15),
    point(smoothing, left + 4, top + 16),
    point(smoothing, right - 1, top + 1),
    point(smoothing, right - 1, top + 13),
    point(smoothing, right - 2, top + 14),
    point(smoothing, right - 3, top + 15),
    point(smoothing, right - 4, top + 16),

    row({"UIGCLR_COMPLEX_BORDER_INNER_LINE1"}, left + 2, right - 2, top + 1),
    row({"UIGCLR_COMPLEX_BORDER_INNER_LINE2"}, left + 2, right - 2, top + 2),
    row({"UIGCLR_COMPLEX_BORDER_INNER_LINE3"}, left + 2, right - 2, top + 3),
    row({"UIGCLR_COMPLEX_BORDER_INNER_LINE4"}, left + 2, right - 2, top + 4),
    row({"UIGCLR_COMPLEX_BORDER_INNER_LINE5"}, left + 2, right - 2, top + 5),
    row({"UIGCLR_COMPLEX_BORDER_INNER_LINE6"}, left + 2, right - 2, top + 6),
    row({"UIGCLR_COMPLEX_BORDER_INNER_LINE7"}, left + 2, right - 2, top + 7),
    row({"UIGCLR_COMPLEX_BORDER_INNER_LINE8"}, left + 2, right - 2, top + 8),
    row({"UIGCLR_COMPLEX_BORDER_INNER_LINE9"}, left + 2, right - 2, top + 9),
    row({"UIGCLR_COMPLEX_BORDER_INNER_LINE10"}, left + 2, right - 2, top + 10),
    row({"UIGCLR_COMPLEX_BORDER_INNER_LINE11"}, left + 2, right - 2, top + 11),
    row({"UIGCLR_COMPLEX_BORDER_INNER_LINE12"}, left + 2, right - 2, top + 12),
    row({"UIGCLR_COMPLEX_BORDER_INNER_LINE13"}, left + 3, right - 3, top + 13),
};

} // namespace SliderPixels
