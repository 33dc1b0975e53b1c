// The frames of text boxes and spin boxes, pixel by pixel. The order is part of the picture: later ones lie on top.
#pragma once

#include "CC4Styles/PixelTable.h"

namespace TextBoxPixels {

// Name by name: Qt has a global left and right, with which a directive would clash.
using PixelTable::area;
using PixelTable::bottom;
using PixelTable::column;
using PixelTable::Ink;
using PixelTable::left;
using PixelTable::Operation;
using PixelTable::point;
using PixelTable::right;
using PixelTable::row;
using PixelTable::slotInk;
using PixelTable::top;

namespace NormalInks {
inline constexpr Ink border{"UIGCLR_LE_BORDER"};
inline constexpr Ink topEdge{"UIGCLR_LE_TOPBORDER1"};
inline constexpr Ink edge{"UIGCLR_LE_BOTTOMBORDER1"};
inline constexpr Ink softer{"UIGCLR_LE_BACKGROUND", 0x64};
inline constexpr Ink soft{"UIGCLR_LE_BACKGROUND", 0xC8};
inline constexpr Ink shade{"UIGCLR_LE_TOPBORDER2"};
inline constexpr Ink stripe{"UIGCLR_LE_TOPBORDER2", 0x28};
} // namespace NormalInks

namespace NormalTable {
using namespace NormalInks;
inline constexpr Operation operations[] = {
    row(border, left + 1, right - 1, top),
    row(border, left + 1, right - 1, bottom),
    column(border, left, top + 1, bottom - 1),
    column(border, right, top + 1, bottom - 1),
    point(border, left + 1, top + 1),
    point(border, right - 1, top + 1),
    point(border, left + 1, bottom - 1),
    point(border, right - 1, bottom - 1),
    point(border, left + 2, top + 1),
    point(border, left + 2, bottom - 1),
    point(border, right - 2, top + 1),
    point(border, right - 2, bottom - 1),

    row(topEdge, left + 3, right - 3, top + 1),

    row(edge, left + 2, right - 2, bottom - 1),
    column(edge, left + 1, top + 2, bottom - 2),
    column(edge, right - 1, top + 2, bottom - 2),
    point(edge, left + 2, top + 2),
    point(edge, right - 2, top + 2),
    point(edge, left + 2, top + 1),
    point(edge, right - 2, top + 1),
    point(edge, left + 2, bottom - 2),
    point(edge, right - 2, bottom - 2),

    point(softer, left + 1, top + 1),
    point(softer, right - 1, top + 1),
    point(softer, left + 1, bottom - 1),
    point(softer, right - 1, bottom - 1),
    point(softer, left + 1, top + 2),
    point(softer, left + 2, top + 1),
    point(softer, right - 1, top + 2),
    point(softer, right - 2, top + 1),
    point(softer, left + 1, bottom - 3),
    point(softer, left + 2, bottom - 2),
    point(softer, left + 3, bottom - 1),
    point(softer, right - 1, bottom - 3),
    point(softer, right - 2, bottom - 2),
    point(softer, right - 3, bottom - 1),

    point(soft, left + 1, bottom - 2),
    point(soft, left + 2, bottom - 1),
    point(soft, right - 1, bottom - 2),
    point(soft, right - 2, bottom - 1),

    row(shade, left + 3, right - 3, top + 2),
    point(shade, left + 2, top + 3),
    point(shade, right - 2, top + 3),
    point(shade, left + 2, bottom - 3),
    point(shade, left + 3, bottom - 2),
    point(shade, right - 2, bottom - 3),
    point(shade, right - 3, bottom - 2),

    row(stripe, left, right, top + 6),
    row(stripe, left, right, top + 7),
    row(stripe, left, right, top + 10),
    row(stripe, left, right, top + 11),
    row(stripe, left, right, top + 12),
};
} // namespace NormalTable

// The alphas of one pass over the transparent frame, in the order of the slots.
enum TransparentSlot
{
    OuterAlpha,
    BottomAlpha,
    CornerAlpha,
    InnerAlpha,
    FillAlpha,
    FillEdgeAlpha,
    TransparentSlotCount
};

inline constexpr int restingAlphas[TransparentSlotCount] = {0x50, 0x3C, 0x50, 0x64, 0x64, 0x64};
inline constexpr int hoveredAlphas[TransparentSlotCount] = {0x78, 0x64, 0x78, 0x8C, 0x8C, 0x8C};
inline constexpr int focussedAlphas[TransparentSlotCount] = {0xC8, 0xB4, 0x78, 0xDC, 0xFF, 0xDC};

namespace TransparentInks {
inline constexpr Ink outer = slotInk("UIGCLR_TB_TRANS_BORDER1", OuterAlpha);
inline constexpr Ink lower = slotInk("UIGCLR_TB_TRANS_BORDER1", BottomAlpha);
inline constexpr Ink corner = slotInk("UIGCLR_TB_TRANS_BORDER1", CornerAlpha);
inline constexpr Ink dark = slotInk("UIGCLR_TB_TRANS_BORDER2", InnerAlpha);
inline constexpr Ink light = slotInk("UIGCLR_TB_TRANS_BORDER3", InnerAlpha);
inline constexpr Ink fill = slotInk("UIGCLR_TB_TRANS_FILLRECT", FillAlpha);
inline constexpr Ink fillEdge = slotInk("UIGCLR_TB_TRANS_FILLRECT", FillEdgeAlpha);
} // namespace TransparentInks

// Light from the top left: the bottom right corner has no corner points.
namespace TransparentTable {
using namespace TransparentInks;
inline constexpr Operation operations[] = {
    row(outer, left + 2, right - 2, top),
    column(outer, left, top + 2, bottom - 2),
    column(outer, right, top + 2, bottom - 2),

    row(lower, left + 3, right - 3, bottom),

    row(corner, left + 1, right - 1, bottom - 1),
    point(corner, left + 1, top + 1),
    point(corner, right - 1, top + 1),
    point(corner, left + 1, bottom - 2),

    row(dark, left + 3, right - 3, top + 1),
    column(dark, left + 1, top + 3, bottom - 3),
    point(dark, left + 2, top + 2),
    point(dark, right - 2, top + 2),
    point(dark, left + 2, bottom - 2),

    row(light, left + 3, right, top + 2),
    column(light, left + 2, top + 3, bottom - 2),
    point(light, left + 3, top + 3),
    point(light, right - 1, top + 3),

    area(fill, left + 4, top + 4, right - 1, bottom - 2),

    row(fillEdge, left + 4, right - 2, top + 3),
    column(fillEdge, left + 3, top + 4, bottom - 2),
};
} // namespace TransparentTable

namespace SpinBoxInks {
inline constexpr Ink background{"UIGCLR_SPIN_BACKGROUND"};
inline constexpr Ink wash = slotInk("UIGCLR_SPIN_BORDER", 0);
inline constexpr Ink border{"UIGCLR_SPIN_BORDER"};
} // namespace SpinBoxInks

inline constexpr int enabledWash[] = {0};
inline constexpr int disabledWash[] = {10};

namespace SpinBoxTable {
using namespace SpinBoxInks;
inline constexpr Operation operations[] = {
    area(background, left, top, right, bottom),
    area(wash, left, top, right, bottom),
    row(border, left, right, top),
    row(border, left, right, bottom),
    column(border, left, top, bottom),
    column(border, right, top, bottom),
};
} // namespace SpinBoxTable

} // namespace TextBoxPixels
