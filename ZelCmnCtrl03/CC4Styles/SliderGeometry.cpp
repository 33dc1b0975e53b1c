// Where the parts of a slider are.
#include "CC4Styles/CommonControlStyle.h"

#include "SliderEx/SliderEx.h"
#include "include/qt_compat.h"

#include <QStyleOption>

namespace {

constexpr QSize drawnHandle(10, 18); // of a horizontal slider

QSize handleSize(Qt::Orientation orientation, const QWidget *widget)
{
    const auto *slider = qobject_cast<const CSliderEx *>(widget);
    const bool hasKnob = slider != nullptr && !slider->knobImage().isNull();
    const QSize size = hasKnob ? zel::deviceIndependentSize(slider->knobImage()) : drawnHandle;
    return orientation == Qt::Horizontal ? size : size.transposed();
}

// The handle makes room for the tick marks: it goes away from those of one side, and stays for those of both.
int shiftForTicks(const QStyleOptionSlider *option, int tickOffset)
{
    int shift = 0;
    if ((option->tickPosition & QSlider::TicksAbove) != 0)
        shift += tickOffset;
    if ((option->tickPosition & QSlider::TicksBelow) != 0)
        shift -= tickOffset;
    return shift;
}

int handlePosition(const QStyleOptionSlider *option, int span)
{
    return QStyle::sliderPositionFromValue(option->minimum, option->maximum, option->sliderPosition, span,
                                           option->upsideDown);
}

// One pixel of the track stays free at either end.
QRect horizontalHandle(const QStyleOptionSlider *option, const QSize &size, int shift)
{
    const QRect &track = option->rect;
    const int position = handlePosition(option, track.width() - size.width() - 2);
    QRect handle = QStyle::visualRect(option->direction, track, QRect(QPoint(position + 1, 0), size));
    handle.moveTop(track.center().y() - size.height() / 2 + shift);
    return handle;
}

QRect verticalHandle(const QStyleOptionSlider *option, const QSize &size, int shift, int frameWidth)
{
    const QRect &track = option->rect;
    const int position = handlePosition(option, track.height() - 2 * frameWidth - size.height());
    const int left = track.center().x() - size.width() / 2 + shift; // in either direction
    return QRect(QPoint(left, position + frameWidth), size);
}

} // namespace

QRect CCommonControlStyle::sliderSubControlRect(const QStyleOptionComplex *option, SubControl subControl,
                                                const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (slider == nullptr || subControl != SC_SliderHandle)
        return QProxyStyle::subControlRect(CC_Slider, option, subControl, widget);

    const QSize size = handleSize(slider->orientation, widget);
    const int shift = shiftForTicks(slider, proxy()->pixelMetric(PM_SliderTickmarkOffset, option, widget));
    if (slider->orientation == Qt::Horizontal)
        return horizontalHandle(slider, size, shift);
    return verticalHandle(slider, size, shift, proxy()->pixelMetric(PM_DefaultFrameWidth));
}
