// The hand-placed pixels of groove and handle of a slider, as data. Order is meaning: a later line covers an earlier
// one.
#pragma once

namespace SliderPixels {

/** A coordinate inside a rectangle of any size: so many pixels after its first one, or after its last one. */
struct Place
{
    bool isFromFarEdge;
    int distance;
};

constexpr Place operator+(Place edge, int pixels)
{
    return {edge.isFromFarEdge, edge.distance + pixels};
}

constexpr Place operator-(Place edge, int pixels)
{
    return edge + -pixels;
}

/** A horizontal or vertical line of one colour, both ends included; a point is a line that ends where it begins. */
struct Line
{
    const char *colorKey;
    Place x1;
    Place y1;
    Place x2;
    Place y2;
};

constexpr Line line(const char *colorKey, Place x1, Place y1, Place x2, Place y2)
{
    return {colorKey, x1, y1, x2, y2};
}

constexpr Line point(const char *colorKey, Place x, Place y)
{
    return {colorKey, x, y, x, y};
}

// The first and last column and row.
inline constexpr Place L{false, 0};
inline constexpr Place T{false, 0};
inline constexpr Place R{true, 0};
inline constexpr Place B{true, 0};

inline constexpr char shade[] = "UIGCLR_COMPLEX_BORDER_TOP";
inline constexpr char innerShade[] = "UIGCLR_COMPLEX_BORDER_TOP_INNER";
inline constexpr char border[] = "UIGCLR_COMPLEX_BORDER_BOTTOM";
inline constexpr char outline[] = "UIGCLR_COMPLEX_BORDER_PEN";
inline constexpr char smoothing[] = "UIGCLR_COMPLEX_BORDER_INNER_PEN";

inline constexpr Line horizontalGroove[] = {
    line(shade, L + 1, T, R - 1, T),              //
    line(innerShade, L + 2, T + 1, R - 2, T + 1), //
    line(border, L + 1, B, R - 1, B),             //
    line(border, L, T + 1, L, B - 1),             //
    line(border, R, T + 1, R, B - 1),             //
};

inline constexpr Line verticalGroove[] = {
    line(border, L + 1, T, R - 1, T),             //
    line(border, L + 1, B, R - 1, B),             //
    line(border, R, T + 1, R, B - 1),             //
    line(shade, L, T + 1, L, B - 1),              //
    line(innerShade, L + 1, T + 2, L + 1, B - 2), //
};

/** A pentagon with its point downward, for a handle 10 wide and 18 high. */
inline constexpr Line horizontalHandle[] = {
    line(outline, L + 1, T, R - 1, T),
    line(outline, L, T + 1, L, T + 13),
    point(outline, L + 1, T + 14),
    point(outline, L + 2, T + 15),
    point(outline, L + 3, T + 16),
    point(outline, L + 4, T + 17),
    line(outline, R, T + 1, R, T + 13),
    point(outline, R - 1, T + 14),
    point(outline, R - 2, T + 15),
    point(outline, R - 3, T + 16),
    point(outline, R - 4, T + 17),

    point(smoothing, L + 1, T + 1),
    point(smoothing, L + 1, T + 13),
    point(smoothing, L + 2, T + 14),
    point(smoothing, L + 3, T + 15),
    point(smoothing, L + 4, T + 16),
    point(smoothing, R - 1, T + 1),
    point(smoothing, R - 1, T + 13),
    point(smoothing, R - 2, T + 14),
    point(smoothing, R - 3, T + 15),
    point(smoothing, R - 4, T + 16),

    line("UIGCLR_COMPLEX_BORDER_INNER_LINE1", L + 2, T + 1, R - 2, T + 1),
    line("UIGCLR_COMPLEX_BORDER_INNER_LINE2", L + 2, T + 2, R - 2, T + 2),
    line("UIGCLR_COMPLEX_BORDER_INNER_LINE3", L + 2, T + 3, R - 2, T + 3),
    line("UIGCLR_COMPLEX_BORDER_INNER_LINE4", L + 2, T + 4, R - 2, T + 4),
    line("UIGCLR_COMPLEX_BORDER_INNER_LINE5", L + 2, T + 5, R - 2, T + 5),
    line("UIGCLR_COMPLEX_BORDER_INNER_LINE6", L + 2, T + 6, R - 2, T + 6),
    line("UIGCLR_COMPLEX_BORDER_INNER_LINE7", L + 2, T + 7, R - 2, T + 7),
    line("UIGCLR_COMPLEX_BORDER_INNER_LINE8", L + 2, T + 8, R - 2, T + 8),
    line("UIGCLR_COMPLEX_BORDER_INNER_LINE9", L + 2, T + 9, R - 2, T + 9),
    line("UIGCLR_COMPLEX_BORDER_INNER_LINE10", L + 2, T + 10, R - 2, T + 10),
    line("UIGCLR_COMPLEX_BORDER_INNER_LINE11", L + 2, T + 11, R - 2, T + 11),
    line("UIGCLR_COMPLEX_BORDER_INNER_LINE12", L + 2, T + 12, R - 2, T + 12),
    line("UIGCLR_COMPLEX_BORDER_INNER_LINE13", L + 3, T + 13, R - 3, T + 13),
};

} // namespace SliderPixels
