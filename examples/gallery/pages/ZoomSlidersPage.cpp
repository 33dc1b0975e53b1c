#include "Pages.h"

#include "MakerTools.h"

#include <ZelCmnCtrl03/CZoomSlider>

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>

namespace gallery {

namespace {

constexpr int sliderLength = 150;
constexpr int longSliderLength = 220;
constexpr int maximum = 100;
constexpr int startValue = 40;
constexpr int imagePixels = 20;
constexpr int tickCount = 11;
constexpr int narrowestValue = 40; // the value changes its length and nothing else shall move

/** What a zoom slider is for, and how it does it. */
struct Purpose
{
    QString smaller; // names of images
    QString larger;
    QSlider::TickPosition ticks = QSlider::NoTicks;
    bool hasKnob = false;
    bool snaps = false;
};

const QString smallPicture = QStringLiteral("zoom-smaller");
const QString largePicture = QStringLiteral("zoom-larger");
const QString cooler = QStringLiteral("cooler");
const QString warmer = QStringLiteral("warmer");

QString imagePath(const QString &name)
{
    return QStringLiteral(":/gallery/%1.png").arg(name);
}

QPixmap image(const QString &name)
{
    return sampleIcon(name).pixmap(QSize(imagePixels, imagePixels));
}

CZoomSlider *makeSlider(const Purpose &purpose, State state, const MakerSettings &settings, QWidget *parent)
{
    auto *slider = new CZoomSlider(parent, imagePath(purpose.smaller), imagePath(purpose.larger));
    // The buttons have their sizes; these ones are for any density of screen.
    slider->setSmallerButtonImage(image(purpose.smaller));
    slider->setLargerButtonImage(image(purpose.larger));
    if (purpose.hasKnob)
        slider->setKnobImage(image(QStringLiteral("knob")));
    slider->setMaximum(maximum);
    slider->setSliderPosition(startValue);
    slider->setTicks(purpose.ticks, tickCount);
    slider->setSliderToSnapping(purpose.snaps);
    if (state == State::Disabled)
        slider->setEnabled(false);
    applyForeignStyle(slider, settings);
    const QList<QWidget *> parts = slider->findChildren<QWidget *>();
    for (QWidget *part : parts)
        applyStyles(part, state, settings);
    slider->setFixedWidth(isStill(state) ? sliderLength : longSliderLength);
    slider->resize(slider->sizeHint());
    return slider;
}

void reportSignals(const CZoomSlider *slider, const MakerSettings &settings)
{
    const auto tell = [slider, &settings](const char *verb, void (CZoomSlider::*signal)(int)) {
        QObject::connect(slider, signal, slider, [verb, report = settings.report](int value) {
            report(QStringLiteral("%1 %2").arg(QLatin1String(verb)).arg(value));
        });
    };
    tell("zoomed to", &CZoomSlider::zoomChanged);
    tell("slider moved to", &CZoomSlider::signal_SliderMoved);
    tell("pressed at", &CZoomSlider::temperatureSliderPressed);
    tell("released at", &CZoomSlider::temperatureSliderReleased);
}

QWidget *withValue(CZoomSlider *slider, QWidget *parent)
{
    auto *panel = new QWidget(parent);
    auto *line = new QHBoxLayout(panel);
    line->setContentsMargins(0, 0, 0, 0);
    auto *value = new QLabel(QString::number(slider->sliderPosition()));
    value->setMinimumWidth(narrowestValue);
    line->addWidget(slider);
    line->addWidget(value);
    for (const auto signal : {&CZoomSlider::zoomChanged, &CZoomSlider::signal_SliderMoved})
        QObject::connect(slider, signal, value, qOverload<int>(&QLabel::setNum));
    panel->resize(panel->sizeHint());
    return panel;
}

Maker zoomSlider(const Purpose &purpose)
{
    return [purpose](State state, const MakerSettings &settings, QWidget *parent) -> QWidget * {
        CZoomSlider *slider = makeSlider(purpose, state, settings, parent);
        if (isStill(state))
            return slider;
        reportSignals(slider, settings);
        return withValue(slider, parent);
    };
}

const std::vector<Row> stateRows = {
    {QStringLiteral("Zoom"), zoomSlider({smallPicture, largePicture})},
    {QStringLiteral("Ticks below"), zoomSlider({smallPicture, largePicture, QSlider::TicksBelow})},
    {QStringLiteral("Knob image"), zoomSlider({smallPicture, largePicture, QSlider::NoTicks, true})},
    {QStringLiteral("Colour temperature"), zoomSlider({cooler, warmer, QSlider::TicksBothSides})},
};

const std::vector<Column> states = {
    {QStringLiteral("Normal"), State::Normal},     {QStringLiteral("Hovered"), State::Hovered},
    {QStringLiteral("Focused"), State::Focused},   {QStringLiteral("Pressed"), State::Pressed},
    {QStringLiteral("Disabled"), State::Disabled},
};

const std::vector<Row> workingRows = {
    {QStringLiteral("Zoom"), zoomSlider({smallPicture, largePicture})},
    {QStringLiteral("Signals of a snapping one"),
     zoomSlider({smallPicture, largePicture, QSlider::TicksBelow, true, true})},
    {QStringLiteral("Colour temperature"), zoomSlider({cooler, warmer})},
};

} // namespace

PageDescription zoomSlidersPage()
{
    return {QStringLiteral("zoom-slider"),
            QStringLiteral("Zoom sliders"),
            {
                {QStringLiteral("States"),
                 QStringLiteral("The smaller end is on the left, in a layout from right to left too."),
                 table(stateRows, states)},
                {QStringLiteral("Working controls"),
                 QStringLiteral("The buttons go by one step. Told to snap, it sends other signals and moves as ever."),
                 workingControls(workingRows)},
            }};
}

} // namespace gallery
