#include "CC4Styles/TBWStyle.h"

#include "CC4Styles/PaintTools.h"

#include <QPainter>
#include <QStyleOptionHeader>

namespace {

/** A row of the sort arrow, counted from the middle of its place. */
struct ArrowRow
{
    int y;
    int x1;
    int x2;
};

constexpr ArrowRow upArrow[] = {{1, -4, 2}, {0, -3, 1}, {-1, -2, 0}, {-2, -1, -1}};
constexpr ArrowRow downArrow[] = {{-2, -4, 2}, {-1, -3, 1}, {0, -2, 0}, {1, -1, -1}};

bool isSorted(const QStyleOptionHeader &header)
{
    return header.sortIndicator != QStyleOptionHeader::None && !header.text.isEmpty();
}

} // namespace

CTBWStyle::CTBWStyle(QObject *parent) : QProxyStyle(QStringLiteral("Windows"))
{
    Q_UNUSED(parent)
}

CTBWStyle::~CTBWStyle() = default;

void CTBWStyle::dispose()
{
    delete this;
}

void CTBWStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                              const QWidget *widget) const
{
    if (element == PE_IndicatorHeaderArrow)
        drawHeaderArrow(option, painter);
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void CTBWStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    switch (element) {
    case CE_Header: return drawHeader(option, painter, widget);
    case CE_HeaderSection: return; // its fill comes with CE_Header
    default: return QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void CTBWStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                   const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void CTBWStyle::drawHeaderArrow(const QStyleOption *option, QPainter *painter) const
{
    const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(option);
    if (header == nullptr || !isSorted(*header))
        return;
    const auto &rows = header->sortIndicator == QStyleOptionHeader::SortUp ? upArrow : downArrow;
    const QRect rect = option->rect;
    const QPoint middle(rect.x() + rect.width() / 2, rect.y() + rect.height() / 2);
    const QColor color = option->palette.color(QPalette::ButtonText);
    for (const ArrowRow &row : rows)
        PaintTools::fillLine(painter, middle + QPoint(row.x1, row.y), middle + QPoint(row.x2, row.y), color);
}

// The base asks back for CE_HeaderSection, which is empty, so it adds no more than label and arrow.
void CTBWStyle::drawHeader(const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(option);
    if (header == nullptr)
        return;
    const QRect fill = option->rect.adjusted(-1, 0, -1, 0);
    const QRect outline = option->rect.adjusted(-1, 0, -1, -1);
    if (isSorted(*header)) {
        // Where the highlight lets it through. The base draws the arrow once more, on top.
        QStyleOptionHeader arrow = *header;
        arrow.rect = proxy()->subElementRect(SE_HeaderArrow, option, widget);
        proxy()->drawPrimitive(PE_IndicatorHeaderArrow, &arrow, painter, widget);
        painter->fillRect(fill, option->palette.highlight());
        painter->drawRect(outline);
    } else {
        painter->fillRect(fill, option->palette.color(QPalette::Button));
        painter->drawRect(outline);
        // Twice with the next: smoothed letters come out bolder.
        QProxyStyle::drawControl(CE_Header, option, painter, widget);
    }
    QProxyStyle::drawControl(CE_Header, option, painter, widget);
}
