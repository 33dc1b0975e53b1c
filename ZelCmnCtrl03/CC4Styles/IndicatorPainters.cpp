// Small marks: arrows.
#include "CC4Styles/CommonControlStyle.h"

#include "UiGraphics.h"

#include <QPainter>
#include <QStyleOption>

// A triangle of shrinking rows at the right end of the rectangle. Its height counts from the painter's origin: callers
// give rectangles that are placed for it.
void CCommonControlStyle::drawIndicatorArrowDown(const QStyleOption *option, QPainter *painter) const
{
    QColor color = UIGGetColor(QStringLiteral("UIGCLR_INDICATOR_ARROW"));
    color.setAlpha(0xB4);
    const int right = option->rect.right();
    const int top = option->rect.height() / 2;
    // Rows as rectangles: they stay whole pixels on every device pixel ratio, which lines do not.
    for (int row = 0; row < 5; ++row)
        painter->fillRect(right - 14 + row, top + row, 9 - 2 * row, 1, color);
}
