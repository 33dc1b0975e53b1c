#include "CustomIconButton/IconButtonPainting.h"

#include "CC4Styles/PixelTable.h"
#include "include/qt_compat.h"

#include <QPainter>
#include <QPixmap>

namespace IconButtonPainting {

using PixelTable::bottom;
using PixelTable::column;
using PixelTable::left;
using PixelTable::Operation;
using PixelTable::right;
using PixelTable::row;
using PixelTable::top;

void drawRaisedBevel(QPainter *painter, const QRect &rect, const BevelColors &colors)
{
    const Operation lines[] = {
        row({colors.light}, left, right - 1, top),
        column({colors.light}, left, top, bottom - 1),
        column({colors.shadow}, right - 1, top, bottom - 1),
        row({colors.shadow}, left, right - 1, bottom - 1),
    };
    PixelTable::draw(painter, rect, lines);
}

void drawSunkenBevel(QPainter *painter, const QRect &rect, const BevelColors &colors)
{
    const Operation lines[] = {
        row({colors.shadow}, left, right, top),
        column({colors.shadow}, left, top, bottom),
        column({colors.light}, right - 1, top, bottom - 1),
        row({colors.light}, left, right - 1, bottom - 1),
    };
    PixelTable::draw(painter, rect, lines);
}

void drawBevel(QPainter *painter, const QRect &rect, const BevelColors &colors, State state)
{
    if (state == Pressed)
        drawSunkenBevel(painter, rect, colors);
    if (state == PointerOver)
        drawRaisedBevel(painter, rect, colors);
}

void drawIcon(QPainter *painter, const QPoint &topLeft, const QPixmap &icon)
{
    if (painter != nullptr && !icon.isNull())
        painter->drawPixmap(QRect(topLeft, zel::deviceIndependentSize(icon)), icon);
}

} // namespace IconButtonPainting
