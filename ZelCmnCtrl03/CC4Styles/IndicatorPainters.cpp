// Small marks: check boxes and radio buttons, arrows, the branch of a tree.
#include "CC4Styles/CommonControlStyle.h"

#include "CC4Styles/PaintTools.h"
#include "UiGraphics.h"

#include <QMenu>
#include <QPainter>
#include <QStyleOption>
#include <QToolButton>

namespace {

/** A row of a glyph: its first column and its width, in pixels. */
struct GlyphRow
{
    int y;
    int x;
    int width;
};

constexpr int branchField = 16; // the side of the field that the branch's glyphs stand in
constexpr GlyphRow openBranch[] = {{6, 4, 7}, {7, 5, 5}, {8, 6, 3}, {9, 7, 1}};
constexpr GlyphRow closedBranch[] = {{4, 6, 1}, {5, 6, 2}, {6, 6, 3}, {7, 6, 4}, {8, 6, 3}, {9, 6, 2}, {10, 6, 1}};

template <std::size_t Rows>
void drawBranch(QPainter *painter, const QPoint &topLeft, const GlyphRow (&rows)[Rows], Qt::LayoutDirection direction)
{
    const QRect field(topLeft, QSize(branchField, branchField));
    for (const GlyphRow &row : rows) {
        const QRect pixels(topLeft + QPoint(row.x, row.y), QSize(row.width, 1));
        painter->fillRect(QStyle::visualRect(direction, field, pixels), Qt::black);
    }
}

/** What tells the two indicators apart. */
struct Indicator
{
    const char *cacheName;
    const char *bitmaps;
    const char *checkedBitmaps; // end of the bitmap's name when checked
    const char *pressedBitmap;  // painted over the others; null for none
    QPoint bitmapPlace;
    QMargins trim; // taken off the rectangle; the picture is fitted into the rest
};

const Indicator checkBox{"checkbox",   "Checkbox",          "Checked", "CheckboxActivePressed.png",
                         QPoint(1, 1), QMargins(2, 1, 0, 0)};
const Indicator radioButton{"radiobutton", "Radiobutton", "Selected", nullptr, QPoint(2, 2), QMargins(1, 0, 0, 0)};

QString bitmapName(const Indicator &indicator, QStyle::State state)
{
    const bool enabled = state.testFlag(QStyle::State_Enabled);
    const bool checked = state & (QStyle::State_Sunken | QStyle::State_NoChange | QStyle::State_On);
    const bool attended = state & (QStyle::State_MouseOver | QStyle::State_HasFocus);
    QString name = QLatin1String(indicator.bitmaps);
    name += enabled ? QLatin1String("Active") : QLatin1String("Inactive");
    if (checked)
        name += QLatin1String(indicator.checkedBitmaps);
    if (enabled && attended)
        name += QLatin1String("Hover");
    return name + QLatin1String(".png");
}

void drawIndicator(const Indicator &indicator, const QStyleOption *option, QPainter *painter)
{
    if (qstyleoption_cast<const QStyleOptionButton *>(option) == nullptr)
        return;
    const QStyle::State state = option->state;
    const bool pressed = state.testFlag(QStyle::State_Enabled) && state.testFlag(QStyle::State_Sunken);
    const auto draw = [&](QPainter *picture, const QRect &) {
        const qreal ratio = PaintTools::deviceRatio(picture);
        picture->drawPixmap(indicator.bitmapPlace, UIGGetPixmap(bitmapName(indicator, state), ratio));
        if (pressed && indicator.pressedBitmap != nullptr)
            picture->drawPixmap(indicator.bitmapPlace, UIGGetPixmap(QLatin1String(indicator.pressedBitmap), ratio));
    };
    const QString key = PaintTools::stateKey(QLatin1String(indicator.cacheName), option, option->rect.size());
    PaintTools::drawFittedPicture(painter, option->rect.marginsRemoved(indicator.trim), option->rect.size(), key, draw);
}

} // namespace

void CCommonControlStyle::drawIndicatorCheckBox(const QStyleOption *option, QPainter *painter) const
{
    drawIndicator(checkBox, option, painter);
}

void CCommonControlStyle::drawIndicatorRadioButton(const QStyleOption *option, QPainter *painter) const
{
    drawIndicator(radioButton, option, painter);
}

// A triangle of shrinking rows at the right end of the rectangle. Its height counts from the painter's origin and not
// from the top of the rectangle: that is the look, and marks in low rectangles stand higher for it.
// It is made for the chevron of a button and for sort marks; in tool buttons and menus it would be out of place.
void CCommonControlStyle::drawIndicatorArrowDown(const QStyleOption *option, QPainter *painter,
                                                 const QWidget *widget) const
{
    if (qobject_cast<const QToolButton *>(widget) != nullptr || qobject_cast<const QMenu *>(widget) != nullptr)
        return QProxyStyle::drawPrimitive(PE_IndicatorArrowDown, option, painter, widget);
    QColor color = UIGGetColor(QStringLiteral("UIGCLR_INDICATOR_ARROW"));
    color.setAlpha(0xB4);
    const int right = option->rect.right();
    const int top = option->rect.height() / 2;
    for (int row = 0; row < 5; ++row)
        painter->fillRect(right - 14 + row, top + row, 9 - 2 * row, 1, color);
}

void CCommonControlStyle::drawIndicatorHeaderArrow(const QStyleOption *option, QPainter *painter,
                                                   const QWidget *widget) const
{
    const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(option);
    if (header == nullptr || header->sortIndicator == QStyleOptionHeader::None)
        return;
    const bool up = header->sortIndicator == QStyleOptionHeader::SortUp;
    proxy()->drawPrimitive(up ? PE_IndicatorArrowUp : PE_IndicatorArrowDown, option, painter, widget);
}

// The expand mark alone: this look has no branch lines.
void CCommonControlStyle::drawIndicatorBranch(const QStyleOption *option, QPainter *painter) const
{
    if (!option->state.testFlag(State_Children))
        return;
    const QRect rect = option->rect;
    const QPoint topLeft(rect.x() + rect.width() / 2 - 4, rect.y() + rect.height() / 2 - 3 - 4);
    if (option->state.testFlag(State_Open))
        drawBranch(painter, topLeft, openBranch, Qt::LeftToRight);
    else
        drawBranch(painter, topLeft, closedBranch, option->direction);
}
