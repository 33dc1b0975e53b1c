// Header sections.
#include "CC4Styles/CommonControlStyle.h"

#include "CC4Styles/PaintTools.h"
#include "UiGraphics.h"

#include <QPainter>
#include <QStyleOption>

void CCommonControlStyle::drawHeader(const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(option);
    if (header == nullptr)
        return;
    // The base draws the arrow once more, over the section. This one shows where a base draws none.
    if (header->sortIndicator != QStyleOptionHeader::None) {
        QStyleOptionHeader arrow = *header;
        arrow.rect = proxy()->subElementRect(SE_HeaderArrow, option, widget);
        proxy()->drawPrimitive(PE_IndicatorHeaderArrow, &arrow, painter, widget);
    }
    QProxyStyle::drawControl(CE_Header, option, painter, widget);
}

void CCommonControlStyle::drawHeaderSection(const QStyleOption *option, QPainter *painter) const
{
    const bool on = option->state.testFlag(State_On);
    painter->fillRect(option->rect,
                      on ? UIGGetColor(QStringLiteral("UIGCLR_CE_HEADER")) : option->palette.color(QPalette::Button));
    if (option->state & (State_Raised | State_Sunken))
        PaintTools::strokeRect(painter, option->rect);
}
