// Groove, handle and tick marks of a slider.
#include "CC4Styles/CommonControlStyle.h"

#include "CC4Styles/PaintTools.h"
#include "CC4Styles/pixels/SliderPixels.h"
#include "SliderEx/SliderEx.h"
#include "UiGraphics.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <vector>

namespace {

constexpr int standardTickCount = 15;
constexpr int tickUnits = 100; // that a horizontal slider is divided into, whatever its range: tickInterval counts them
constexpr int tickMargin = 5;  // from the ends of the slider to the outermost tick marks
constexpr int tickDistance = 2; // from the slider's edge; a long tick mark is one pixel nearer

// Percent of the colour's brightness.
constexpr int tickShade = 178;
constexpr int handleTopLight = 104;
constexpr int handleBottomShade = 105;

// Where the image of the handle is drawn, from the handle's own place.
constexpr int dropWithTicksBelow = 2;
constexpr int liftWithTicksAbove = 1;

bool hasTicksAbove(const QStyleOptionSlider *option)
{
    return (option->tickPosition & QSlider::TicksAbove) != 0;
}

bool hasTicksBelow(const QStyleOptionSlider *option)
{
    return (option->tickPosition & QSlider::TicksBelow) != 0;
}

// A handle points at its tick marks: away from where it points without any, for those above alone.
bool isTurnedOver(const QStyleOptionSlider *option)
{
    return hasTicksAbove(option) && !hasTicksBelow(option);
}

// What a part's picture is filled with. A gradient would begin anew in each part.
QBrush partGround(const QPalette &palette)
{
    switch (palette.window().style()) {
    case Qt::LinearGradientPattern:
    case Qt::RadialGradientPattern:
    case Qt::ConicalGradientPattern: return QBrush(Qt::transparent);
    default: return palette.window();
    }
}

void drawGroove(QPainter *painter, const QRect &rect, const QStyleOptionSlider *option)
{
    painter->fillRect(rect, partGround(option->palette));
    if (option->orientation == Qt::Horizontal)
        PixelTable::draw(painter, rect, SliderPixels::horizontalGroove);
    else
        PixelTable::draw(painter, rect, SliderPixels::verticalGroove);
}

// Points to the left or to the right.
QPolygon verticalHandleShape(const QRect &rect, bool pointsLeft)
{
    const int top = rect.top() + 1;
    const int tip = rect.top() + 5;
    const int bottom = rect.bottom();
    const int right = rect.right();
    const int left = rect.left();
    if (pointsLeft)
        return QPolygon({{right, top}, {right - 10, top}, {right - 14, tip}, {right - 10, bottom}, {right, bottom}});
    return QPolygon({{left + 1, top}, {left + 10, top}, {left + 14, tip}, {left + 10, bottom}, {left + 1, bottom}});
}

QBrush verticalHandleFill(const QStyleOptionSlider *option, const QRect &rect)
{
    if (!option->state.testFlag(QStyle::State_Enabled))
        return option->palette.window();
    const QColor button = option->palette.button().color();
    const int centre = rect.center().x();
    QLinearGradient gradient(centre, rect.top(), centre, rect.bottom());
    gradient.setColorAt(0, button.lighter(handleTopLight));
    gradient.setColorAt(1, button.darker(handleBottomShade));
    return gradient;
}

void drawHandle(QPainter *painter, const QRect &rect, const QStyleOptionSlider *option)
{
    painter->fillRect(rect, partGround(option->palette));
    if (option->orientation == Qt::Horizontal)
        return PixelTable::drawComposed(painter, rect, SliderPixels::horizontalHandle);
    painter->save();
    painter->setClipRect(rect, Qt::IntersectClip);
    painter->setPen(Qt::NoPen);
    painter->setBrush(verticalHandleFill(option, rect));
    painter->drawPolygon(verticalHandleShape(rect, isTurnedOver(option)));
    painter->restore();
}

// Lowered to tick marks below, lifted to those above.
QPoint handlePlace(const QPoint &topLeft, const QStyleOptionSlider *option)
{
    if (hasTicksBelow(option))
        return topLeft + QPoint(0, dropWithTicksBelow);
    return isTurnedOver(option) ? topLeft - QPoint(0, liftWithTicksAbove) : topLeft;
}

QPixmap turnedOver(const QPixmap &image)
{
    return QPixmap::fromImage(image.toImage().mirrored(false, true));
}

void drawHandlePart(QPainter *painter, const QRect &handle, const QStyleOptionSlider *option, const CSliderEx *slider)
{
    const auto draw = [option](QPainter *picture, const QRect &rect) {
        drawHandle(picture, rect, option);
    };
    const QPixmap knob = slider != nullptr ? slider->knobImage() : QPixmap();
    const QPoint place = handlePlace(handle.topLeft(), option);
    if (isTurnedOver(option))
        painter->drawPixmap(place,
                            turnedOver(knob.isNull() ? PaintTools::newPicture(painter, handle.size(), draw) : knob));
    else if (!knob.isNull())
        painter->drawPixmap(place, knob);
    else
        PaintTools::drawPassingPicture(painter, place, handle.size(), draw);
}

// Places of tick marks in the order of drawing; the first and the last one of that order are the long ones.

std::vector<int> evenlySpreadTicks(int first, int last, int count)
{
    std::vector<int> places;
    places.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        places.push_back(first + (last - first) * i / (count - 1));
    return places;
}

// With one exactly in the middle, which comes first.
std::vector<int> centredTicks(int first, int last, int count)
{
    const int middle = (first + last) / 2;
    const int half = (count - 1) / 2;
    std::vector<int> places = {middle};
    places.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < half; ++i)
        places.push_back(first + (middle - first) * i / half);
    for (int i = 1; i <= half; ++i)
        places.push_back(middle + (last - middle) * i / half);
    return places;
}

std::vector<int> tickPlaces(const QStyleOptionSlider *option)
{
    const QRect &rect = option->rect;
    if (option->orientation != Qt::Horizontal)
        return evenlySpreadTicks(rect.top() + tickMargin, rect.bottom() - tickMargin, standardTickCount);
    const int first = rect.left() + tickMargin;
    const int last = rect.right() - tickMargin;
    const int count = option->tickInterval == 0 ? standardTickCount : tickUnits / option->tickInterval;
    if (count <= 0)
        return {};
    return count % 2 == 0 ? evenlySpreadTicks(first, last, count) : centredTicks(first, last, count);
}

/** One tick mark, both ends included, in either order. */
void drawTick(QPainter *painter, Qt::Orientation orientation, int place, int begin, int end, const QColor &color)
{
    const int start = std::min(begin, end);
    const int length = std::max(begin, end) - start + 1;
    if (orientation == Qt::Horizontal)
        painter->fillRect(place, start, 1, length, color);
    else
        painter->fillRect(start, place, length, 1, color);
}

void drawTicks(QPainter *painter, const QStyleOptionSlider *option, int offset)
{
    const bool isHorizontal = option->orientation == Qt::Horizontal;
    const int nearEdge = isHorizontal ? option->rect.top() : option->rect.left();
    const int farEdge = isHorizontal ? option->rect.bottom() : option->rect.right();
    const QColor color = option->palette.window().color().darker(tickShade);
    const std::vector<int> places = tickPlaces(option);
    for (std::size_t i = 0; i < places.size(); ++i) {
        const bool isLong = i == 0 || i + 1 == places.size();
        const int distance = isLong ? tickDistance - 1 : tickDistance;
        if (hasTicksAbove(option))
            drawTick(painter, option->orientation, places[i], nearEdge + distance, nearEdge + offset, color);
        if (hasTicksBelow(option))
            drawTick(painter, option->orientation, places[i], farEdge - distance, farEdge - offset, color);
    }
}

} // namespace

void CCommonControlStyle::drawSlider(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (slider == nullptr)
        return;
    const QRect groove = proxy()->subControlRect(CC_Slider, slider, SC_SliderGroove, widget);
    const QRect handle = proxy()->subControlRect(CC_Slider, slider, SC_SliderHandle, widget);
    const auto *sliderEx = qobject_cast<const CSliderEx *>(widget);
    // The slider is told what is painted; nothing that painting depends on changes by it.
    if (sliderEx != nullptr)
        const_cast<CSliderEx *>(sliderEx)->setHandleRect(handle);

    if (slider->subControls.testFlag(SC_SliderGroove))
        PaintTools::drawPassingPicture(painter, groove.topLeft(), groove.size(),
                                       [slider](QPainter *part, const QRect &rect) { drawGroove(part, rect, slider); });
    if (slider->subControls.testFlag(SC_SliderHandle) && handle.isValid())
        drawHandlePart(painter, handle, slider, sliderEx);
    if (slider->subControls.testFlag(SC_SliderTickmarks))
        drawTicks(painter, slider, proxy()->pixelMetric(PM_SliderTickmarkOffset, slider, widget));
}
