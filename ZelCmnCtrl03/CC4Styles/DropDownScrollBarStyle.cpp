#include "CC4Styles/DropDownScrollBarStyle.h"

#include "CC4Styles/PaintTools.h"
#include "CC4Styles/ScrollBarPainter.h"
#include "include/qt_compat.h"

#include <QPainter>
#include <QStyleOptionComplex>
#include <QWidget>

namespace {

using ScrollBarPainter::bitmap;
using ScrollBarPainter::ScrollBar;

constexpr int inset = 3;
constexpr int grooveShift = 1;
constexpr int sliderShift = 3;
constexpr int sliderWidth = 19;

constexpr int sliderInset = 1; // of a vertical slider's bitmaps from the edge of its picture
constexpr int secondCapFromEnd = 3;

void paintGroove(QPainter *picture, const QRect &area, const ScrollBar &)
{
    PaintTools::fillTiled(picture, area, bitmap(QStringLiteral("ddScrollbarSliderGrayBlit.png"), picture));
}

void paintCentered(QPainter *picture, const QRect &area, const QPixmap &arrow)
{
    const QSize size = zel::deviceIndependentSize(arrow);
    picture->drawPixmap(area.center() - QPoint(size.width() / 2 - 1, size.height() / 2), arrow);
}

void paintBackArrow(QPainter *picture, const QRect &area, const ScrollBar &bar)
{
    if (bar.horizontal)
        ScrollBarPainter::paintBlueArrowLeft(picture, area);
    else
        paintCentered(picture, area, bitmap(QStringLiteral("ddScrollbarArrowUp.png"), picture));
}

void paintForwardArrow(QPainter *picture, const QRect &area, const ScrollBar &bar)
{
    if (bar.horizontal)
        ScrollBarPainter::paintBlueArrowRight(picture, area);
    else
        paintCentered(picture, area, bitmap(QStringLiteral("ddScrollbarArrowDown.png"), picture));
}

void paintVerticalSlider(QPainter *picture, const QRect &area)
{
    const QPixmap top = bitmap(QStringLiteral("ddScrollbarSliderTop.png"), picture);
    const QPixmap bottom = bitmap(QStringLiteral("ddScrollbarSliderBottom.png"), picture);
    const QPixmap tile = bitmap(QStringLiteral("ddScrollbarSliderBlit.png"), picture);
    const auto height = [](const QPixmap &cap) {
        return zel::deviceIndependentSize(cap).height();
    };
    const int left = area.left() + sliderInset;
    picture->drawPixmap(left, area.top(), top);
    picture->drawPixmap(left, area.bottom() - secondCapFromEnd, bottom);
    PaintTools::fillTiled(picture,
                          QRect(left, area.top() + height(top), zel::deviceIndependentSize(tile).width(),
                                area.height() - height(top) - height(bottom)),
                          tile);
}

// A horizontal slider is its two caps; drop-downs have none.
void paintSlider(QPainter *picture, const QRect &area, const ScrollBar &bar)
{
    if (bar.horizontal)
        ScrollBarPainter::paintHouseCaps(picture, area, bar);
    else
        paintVerticalSlider(picture, area);
}

// The keys are those of the main style's scroll bar, which takes these pictures for its own where all else is equal.
constexpr ScrollBarPainter::Look dropDownLook = {
    {"scrollbar_groove", paintGroove, grooveShift},
    {"scrollbar_subline", paintBackArrow},
    {"scrollbar_addline", paintForwardArrow},
    {"scrollbar_slider", paintSlider, sliderShift, sliderWidth},
    true,
    inset,
};

} // namespace

CDropDownScrollBarStyle::CDropDownScrollBarStyle() = default;

CDropDownScrollBarStyle::~CDropDownScrollBarStyle() = default;

void CDropDownScrollBarStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                                 QPainter *painter, const QWidget *widget) const
{
    if (widget == nullptr)
        return;
    painter->fillRect(widget->rect(), option->palette.color(QPalette::Base));
    if (control == CC_ScrollBar)
        ScrollBarPainter::draw(painter, dropDownLook, option, proxy(), widget);
    else
        CCommonControlStyle::drawComplexControl(control, option, painter, widget);
}
