#include "Pages.h"

#include "MakerTools.h"

#include <ZelCmnCtrl03/CSliderEx>

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QSlider>

namespace gallery {

namespace {

constexpr int sliderLength = 140;
constexpr int sliderThickness = 28; // room for the whole handle and for tick marks on both sides
constexpr int knobPixels = 20;
constexpr int startValue = 40;
constexpr int narrowestValue = 40; // the value changes its length and nothing else shall move

void prepare(QSlider *slider, QSlider::TickPosition ticks, State state, const MakerSettings &settings)
{
    slider->setRange(0, 100);
    slider->setValue(startValue);
    slider->setTickPosition(ticks);
    if (state == State::Disabled)
        slider->setEnabled(false);
    applyStyles(slider, state, settings);
    const QSize size(sliderLength, sliderThickness);
    slider->setFixedSize(slider->orientation() == Qt::Horizontal ? size : size.transposed());
}

QWidget *withValue(QSlider *slider, QWidget *parent)
{
    auto *panel = new QWidget(parent);
    auto *line = new QHBoxLayout(panel);
    line->setContentsMargins(0, 0, 0, 0);
    auto *value = new QLabel(QString::number(slider->value()));
    value->setMinimumWidth(narrowestValue);
    line->addWidget(slider);
    line->addWidget(value);
    QObject::connect(slider, &QSlider::valueChanged, value, qOverload<int>(&QLabel::setNum));
    panel->resize(panel->sizeHint());
    return panel;
}

void reportPressAndRelease(const CSliderEx *slider, const MakerSettings &settings)
{
    const auto tell = [report = settings.report](const char *verb, int position) {
        report(QStringLiteral("%1 at %2").arg(QLatin1String(verb)).arg(position));
    };
    QObject::connect(
        slider, &CSliderEx::tempSliderPressed, slider, [tell](int at) { tell("pressed", at); });
    QObject::connect(slider, &CSliderEx::tempSliderReleased, slider, [tell](int at) { tell("released", at); });
}

// A working slider has its value beside it.
Maker houseSlider(QSlider::TickPosition ticks, bool hasKnob = false)
{
    return [ticks, hasKnob](State state, const MakerSettings &settings, QWidget *parent) -> QWidget * {
        auto *slider = new CSliderEx(parent);
        slider->setOrientation(Qt::Horizontal);
        if (hasKnob)
            slider->setKnobImage(sampleIcon(QStringLiteral("knob")).pixmap(QSize(knobPixels, knobPixels)));
        prepare(slider, ticks, state, settings);
        reportPressAndRelease(slider, settings);
        return isStill(state) ? slider : withValue(slider, parent);
    };
}

Maker plainSlider(Qt::Orientation orientation, QSlider::TickPosition ticks)
{
    return [orientation, ticks](State state, const MakerSettings &settings, QWidget *parent) -> QWidget * {
        auto *slider = new QSlider(orientation, parent);
        prepare(slider, ticks, state, settings);
        return isStill(state) ? slider : withValue(slider, parent);
    };
}

const std::vector<Row> stateRows = {
    {QStringLiteral("CSliderEx"), houseSlider(QSlider::NoTicks)},
    {QStringLiteral("Ticks below"), houseSlider(QSlider::TicksBelow)},
    {QStringLiteral("Ticks above"), houseSlider(QSlider::TicksAbove)},
    {QStringLiteral("Ticks on both sides"), houseSlider(QSlider::TicksBothSides)},
    {QStringLiteral("Knob image"), houseSlider(QSlider::NoTicks, true)},
    {QStringLiteral("QSlider"), plainSlider(Qt::Horizontal, QSlider::NoTicks)},
    {QStringLiteral("QSlider, ticks on both sides"), plainSlider(Qt::Horizontal, QSlider::TicksBothSides)},
    {QStringLiteral("QSlider, vertical"), plainSlider(Qt::Vertical, QSlider::TicksAbove)},
    {QStringLiteral("Vertical, ticks on the right"), plainSlider(Qt::Vertical, QSlider::TicksBelow)},
    {QStringLiteral("Vertical, on both sides"), plainSlider(Qt::Vertical, QSlider::TicksBothSides)},
};

const std::vector<Column> states = {
    {QStringLiteral("Normal"), State::Normal},     {QStringLiteral("Hovered"), State::Hovered},
    {QStringLiteral("Focused"), State::Focused},   {QStringLiteral("Pressed"), State::Pressed},
    {QStringLiteral("Disabled"), State::Disabled},
};

const std::vector<Row> workingRows = {
    {QStringLiteral("CSliderEx"), houseSlider(QSlider::TicksBelow)},
    {QStringLiteral("CSliderEx, knob image"), houseSlider(QSlider::NoTicks, true)},
    {QStringLiteral("QSlider"), plainSlider(Qt::Horizontal, QSlider::NoTicks)},
    {QStringLiteral("QSlider, vertical"), plainSlider(Qt::Vertical, QSlider::TicksBelow)},
};

} // namespace

PageDescription slidersPage()
{
    return {
        QStringLiteral("sliders"),
        QStringLiteral("Sliders"),
        {
            {QStringLiteral("States"), QStringLiteral("A slider that is hovered, focused or pressed looks as ever."),
             table(stateRows, states)},
            {QStringLiteral("Working controls"),
             QStringLiteral("A CSliderEx jumps to the click, and the wheel leaves it alone."),
             workingControls(workingRows)},
        }};
}

} // namespace gallery
