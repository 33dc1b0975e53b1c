#include "SliderMakers.h"

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

QSlider::TickPosition ticksOf(Content content)
{
    switch (content) {
    case Content::TicksAbove: return QSlider::TicksAbove;
    case Content::TicksBelow: return QSlider::TicksBelow;
    case Content::TicksBothSides: return QSlider::TicksBothSides;
    default: return QSlider::NoTicks;
    }
}

void prepare(QSlider *slider, Qt::Orientation orientation, const Specimen &specimen, const MakerSettings &settings)
{
    slider->setOrientation(orientation);
    slider->setRange(0, 100);
    slider->setValue(startValue);
    slider->setTickPosition(ticksOf(specimen.content));
    if (specimen.state == State::Disabled)
        slider->setEnabled(false);
    applyStyles(slider, specimen, settings);
    const QSize size(sliderLength, sliderThickness);
    slider->setFixedSize(orientation == Qt::Horizontal ? size : size.transposed());
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

void reportPressAndRelease(const CSliderEx *slider, const Specimen &specimen, const MakerSettings &settings)
{
    const auto tell = [caption = specimen.column, report = settings.report](const char *verb, int position) {
        report(QStringLiteral("%1: %2 at %3").arg(caption, QLatin1String(verb)).arg(position));
    };
    QObject::connect(
        slider, &CSliderEx::tempSliderPressed, slider, [tell](int at) { tell("pressed", at); });
    QObject::connect(slider, &CSliderEx::tempSliderReleased, slider, [tell](int at) { tell("released", at); });
}

QWidget *makePlain(Qt::Orientation orientation, const Specimen &specimen, const MakerSettings &settings,
                   QWidget *parent)
{
    auto *slider = new QSlider(parent);
    prepare(slider, orientation, specimen, settings);
    return specimen.isStill() ? slider : withValue(slider, parent);
}

} // namespace

QWidget *makeSliderEx(const Specimen &specimen, const MakerSettings &settings, QWidget *parent)
{
    auto *slider = new CSliderEx(parent);
    if (specimen.content == Content::Knob)
        slider->setKnobImage(sampleIcon(QStringLiteral("knob")).pixmap(QSize(knobPixels, knobPixels)));
    prepare(slider, Qt::Horizontal, specimen, settings);
    reportPressAndRelease(slider, specimen, settings);
    return specimen.isStill() ? slider : withValue(slider, parent);
}

QWidget *makeSlider(const Specimen &specimen, const MakerSettings &settings, QWidget *parent)
{
    return makePlain(Qt::Horizontal, specimen, settings, parent);
}

QWidget *makeVerticalSlider(const Specimen &specimen, const MakerSettings &settings, QWidget *parent)
{
    return makePlain(Qt::Vertical, specimen, settings, parent);
}

} // namespace gallery
