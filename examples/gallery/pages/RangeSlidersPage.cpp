#include "Pages.h"

#include "MakerTools.h"

#include <ZelCmnCtrl03/CDSliderEx>

#include <QHBoxLayout>
#include <QLabel>

namespace gallery {

namespace {

constexpr int sliderLength = 140;
constexpr int longSliderLength = 260;
constexpr int sliderThickness = 28;
constexpr int maximum = 100;
constexpr int narrowestValues = 70; // the values change their length and nothing else shall move

struct Range
{
    int lower;
    int upper;
};

CDSliderEx *makeSlider(const Range &range, State state, const MakerSettings &settings, QWidget *parent)
{
    auto *slider = new CDSliderEx(parent);
    slider->setMaximum(maximum);
    slider->setSliderPosition(1, range.upper);
    slider->setSliderPosition(0, range.lower);
    if (state == State::Disabled)
        slider->setEnabled(false);
    applyStyles(slider, state, settings, QStyle::SC_SliderHandle);
    slider->setFixedSize(isStill(state) ? sliderLength : longSliderLength, sliderThickness);
    return slider;
}

// The range slider tells of one handle at a time, so its label keeps both.
class RangeLabel : public QLabel
{
public:
    explicit RangeLabel(const Range &range) : m_values{range.lower, range.upper}
    {
        setMinimumWidth(narrowestValues);
        take(0, range.lower);
    }

    void take(int handle, int value)
    {
        m_values[handle] = value;
        setText(QStringLiteral("%1 – %2").arg(m_values[0]).arg(m_values[1]));
    }

private:
    int m_values[2];
};

QWidget *withValues(CDSliderEx *slider, const Range &range, QWidget *parent)
{
    auto *panel = new QWidget(parent);
    auto *line = new QHBoxLayout(panel);
    line->setContentsMargins(0, 0, 0, 0);
    auto *values = new RangeLabel(range);
    line->addWidget(slider);
    line->addWidget(values);
    QObject::connect(slider, &CDSliderEx::valueChanged, values,
                     [values](int value, int handle) { values->take(handle, value); });
    panel->resize(panel->sizeHint());
    return panel;
}

void reportSignals(const CDSliderEx *slider, const MakerSettings &settings)
{
    const auto tell = [report = settings.report](const char *verb, int value, int handle) {
        report(QStringLiteral("handle %1 %2 %3").arg(handle).arg(QLatin1String(verb)).arg(value));
    };
    QObject::connect(
        slider, &CDSliderEx::valueChanged, slider, [tell](int value, int handle) { tell("moved to", value, handle); });
    QObject::connect(slider, &CDSliderEx::sliderReleased, slider,
                     [tell](int value, int handle) { tell("released at", value, handle); });
}

Maker rangeSlider(const Range &range)
{
    return [range](State state, const MakerSettings &settings, QWidget *parent) -> QWidget * {
        CDSliderEx *slider = makeSlider(range, state, settings, parent);
        if (isStill(state))
            return slider;
        reportSignals(slider, settings);
        return withValues(slider, range, parent);
    };
}

const std::vector<Row> stateRows = {
    {QStringLiteral("Whole range"), rangeSlider({0, maximum})},
    {QStringLiteral("Part of it"), rangeSlider({25, 70})},
    {QStringLiteral("As near as can be"), rangeSlider({46, 53})},
    {QStringLiteral("Over each other"), rangeSlider({50, 50})},
};

const std::vector<Column> states = {
    {QStringLiteral("Normal"), State::Normal},     {QStringLiteral("Hovered"), State::Hovered},
    {QStringLiteral("Focused"), State::Focused},   {QStringLiteral("Pressed"), State::Pressed},
    {QStringLiteral("Disabled"), State::Disabled},
};

const std::vector<Row> workingRows = {
    {QStringLiteral("CDSliderEx"), rangeSlider({25, 70})},
    {QStringLiteral("As near as can be"), rangeSlider({46, 53})},
};

} // namespace

PageDescription rangeSlidersPage()
{
    return {QStringLiteral("range-sliders"),
            QStringLiteral("Range sliders"),
            {
                {QStringLiteral("States"),
                 QStringLiteral("A range slider looks the same in every state, and in a "
                                "layout from right to left."),
                 table(stateRows, states)},
                {QStringLiteral("Working controls"),
                 QStringLiteral("Drag either handle; the keys move the one that was dragged last. They stay seven "
                                "values apart."),
                 workingControls(workingRows)},
            }};
}

} // namespace gallery
