#include "CC4Styles/BlueScrollBarStyle.h"

#include "CC4Styles/PaintTools.h"
#include "CC4Styles/ScrollBarPainter.h"
#include "include/qt_compat.h"

#include <QPainter>

namespace {

using ScrollBarPainter::bitmap;
using ScrollBarPainter::ScrollBar;

constexpr int grooveThickness = 21;
constexpr int arrowInset = 7; // from the near edges
constexpr int forwardArrowFromEnd = 8;

void paintGroove(QPainter *picture, const QRect &area, const ScrollBar &bar)
{
    ScrollBarPainter::paintGround(picture, area, bar);
    if (bar.horizontal)
        PaintTools::fillTiled(picture, QRect(area.topLeft(), QSize(area.width(), grooveThickness)),
                              bitmap(QStringLiteral("BlueCenterScrollBarHGrooveBlt.png"), picture));
    else
        PaintTools::fillTiled(picture, QRect(area.topLeft(), QSize(grooveThickness, area.height())),
                              bitmap(QStringLiteral("BlueCenterScrollBarVGrooveBlt.png"), picture));
}

void paintBackArrow(QPainter *picture, const QRect &area, const ScrollBar &bar)
{
    const QString name = bar.horizontal ? QStringLiteral("BlueCenterScrollbarArrowLeft.png")
                                        : QStringLiteral("BlueCenterScrollbarArrowUp.png");
    picture->drawPixmap(area.topLeft() + QPoint(arrowInset, arrowInset), bitmap(name, picture));
}

void paintForwardArrow(QPainter *picture, const QRect &area, const ScrollBar &bar)
{
    if (bar.horizontal)
        picture->drawPixmap(area.right() - forwardArrowFromEnd, area.top() + arrowInset,
                            bitmap(QStringLiteral("BlueCenterScrollbarArrowRight.png"), picture));
    else
        picture->drawPixmap(area.left() + arrowInset, area.bottom() - forwardArrowFromEnd,
                            bitmap(QStringLiteral("BlueCenterScrollbarArrowDown.png"), picture));
}

void paintSlider(QPainter *picture, const QRect &area, const ScrollBar &bar)
{
    const QPixmap tile = bitmap(bar.horizontal ? QStringLiteral("BlueCenterHSliderBlit.png")
                                               : QStringLiteral("BlueCenterVSliderBlit.png"),
                                picture);
    const QSize thickness = zel::deviceIndependentSize(tile);
    const QRect body = bar.horizontal ? QRect(area.left() + 1, area.top(), area.width() - 2, thickness.height())
                                      : QRect(area.left(), area.top() + 1, thickness.width(), area.height() - 2);
    PaintTools::fillTiled(picture, body, tile);
    ScrollBarPainter::paintCaps(picture, area, bar, QStringLiteral("BlueCenterScrollBar"));
}

constexpr ScrollBarPainter::Look blueLook = {
    {"blue_scrollbar_groove", paintGroove},
    {"blue_scrollbar_subline", paintBackArrow},
    {"blue_scrollbar_addline", paintForwardArrow},
    {"blue_scrollbar_slider", paintSlider},
};

} // namespace

CBlueScrollBarStyle::CBlueScrollBarStyle() = default;

CBlueScrollBarStyle::~CBlueScrollBarStyle() = default;

void CBlueScrollBarStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                             QPainter *painter, const QWidget *widget) const
{
    if (control == CC_ScrollBar)
        ScrollBarPainter::draw(painter, blueLook, option, proxy(), widget);
    else
        CCommonControlStyle::drawComplexControl(control, option, painter, widget);
}
