#pragma once

#include <ZelCmnCtrl03/CButtonEx>
#include <ZelCmnCtrl03/CTextBoxEx>

#include <QString>

#include <vector>

namespace gallery {

/** The kinds of control. Each has its maker in ControlMaker.cpp. */
enum class Control
{
    ButtonEx,
    PushButton,
    MenuEx,
    Menu,
    MenuBench,
    TextBoxEx,
    LineEdit,
    SliderEx,
    Slider,
    VerticalSlider
};

/** Everything but the working ones stands still: it shows its state for good and knows nothing of pointer and keys. */
enum class State
{
    Working,
    WorkingDefault,
    Normal,
    Hovered,
    Focused,
    Pressed,
    Disabled,
    Default,
    Flat,
    ReadOnly
};

enum class Content
{
    Text,
    LongText,
    ImageAndText,
    Image,
    Nothing,
    PrintMenu,
    PhotosMenu,
    TicksBelow,
    TicksAbove,
    TicksBothSides,
    Knob
};

/** What is behind a control. */
enum class Ground
{
    Page,
    Tray
};

/** Of a CTextBoxEx. */
struct TextBoxLook
{
    CTextBoxEx::CLineEditStyles style = CTextBoxEx::LineEditTransparent;
    CTextBoxEx::CLineEditColor color = CTextBoxEx::LineEditBlue;
};

/** One control of the gallery. Specimens of one group with the same row or column caption stand in line. */
struct Specimen
{
    QString row;
    QString column;
    Control control;
    CButtonEx::CButtonStyles look;
    Ground ground;
    State state;
    Content content;
    TextBoxLook textBoxLook = {};

    bool isStill() const { return state != State::Working && state != State::WorkingDefault; }
};

struct SpecimenGroup
{
    QString heading;
    QString note;
    std::vector<Specimen> specimens;
};

struct PageDescription
{
    QString name; // on the command line and in file names
    QString title;
    std::vector<SpecimenGroup> groups;
};

/** The whole gallery. A new family is a page here and a maker for each of its controls. */
const std::vector<PageDescription> &pages();

/** Null for a name that no page has. */
const PageDescription *findPage(const QString &name);

} // namespace gallery
