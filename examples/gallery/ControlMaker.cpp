#include "ControlMaker.h"

#include "MenuBench.h"
#include "MenuMakers.h"
#include "PushButtonMakers.h"
#include "SliderMakers.h"
#include "StillStyle.h"
#include "TextBoxMakers.h"

#include <QIcon>
#include <QWidget>

#include <algorithm>

namespace gallery {

namespace {

struct MakerEntry
{
    Control control;
    QWidget *(*make)(const Specimen &specimen, const MakerSettings &settings, QWidget *parent);
    bool (*isSettled)(const Specimen &specimen, const QWidget *control); // null where nothing takes time
};

constexpr MakerEntry makers[] = {
    {Control::ButtonEx, makeButtonEx, isButtonExSettled},
    {Control::PushButton, makePushButton, nullptr},
    {Control::MenuEx, makeMenuExPicture, nullptr},
    {Control::Menu, makeMenuPicture, nullptr},
    {Control::MenuBench, makeMenuBench, nullptr},
    {Control::TextBoxEx, makeTextBoxEx, nullptr},
    {Control::LineEdit, makeLineEdit, nullptr},
    {Control::SliderEx, makeSliderEx, nullptr},
    {Control::Slider, makeSlider, nullptr},
    {Control::VerticalSlider, makeVerticalSlider, nullptr},
};

const MakerEntry &makerOf(Control control)
{
    const auto *found = std::find_if(std::begin(makers), std::end(makers),
                                     [control](const MakerEntry &entry) { return entry.control == control; });
    if (found == std::end(makers))
        qFatal("A kind of control has no maker.");
    return *found;
}

} // namespace

QWidget *makeControl(const Specimen &specimen, const MakerSettings &settings, QWidget *parent)
{
    QWidget *control = makerOf(specimen.control).make(specimen, settings, parent);
    if (specimen.isStill())
        control->setFocusPolicy(Qt::NoFocus);
    return control;
}

bool isSettled(const Specimen &specimen, const QWidget *control)
{
    const MakerEntry &maker = makerOf(specimen.control);
    return maker.isSettled == nullptr || maker.isSettled(specimen, control);
}

QStyle::State forcedState(State state)
{
    switch (state) {
    case State::Hovered: return QStyle::State_MouseOver;
    case State::Focused: return QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    case State::Pressed: return QStyle::State_Sunken;
    default: return QStyle::State_None;
    }
}

void applyStyles(QWidget *control, const Specimen &specimen, const MakerSettings &settings)
{
    if (settings.foreignStyle != nullptr)
        control->setStyle(settings.foreignStyle);
    const QStyle::State forced = forcedState(specimen.state);
    if (forced != QStyle::State_None)
        new StillStyle(control, forced); // belongs to the control
}

QIcon sampleIcon(const QString &name)
{
    return QIcon(QStringLiteral(":/gallery/%1.png").arg(name));
}

} // namespace gallery
