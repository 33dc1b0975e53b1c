#include "Specimens.h"

#include <algorithm>

namespace gallery {

namespace {

struct Row
{
    QString caption;
    Control control;
    CButtonEx::CButtonStyles look = CButtonEx::BSEX_Normal;
    Ground ground = Ground::Page;
    Content content = Content::Text; // in columns that want no other
    TextBoxLook textBoxLook = {};
};

struct Column
{
    QString caption;
    State state;
    Content content = Content::Text;
};

std::vector<Specimen> table(const std::vector<Row> &rows, const std::vector<Column> &columns)
{
    std::vector<Specimen> specimens;
    specimens.reserve(rows.size() * columns.size());
    for (const Row &row : rows) {
        for (const Column &column : columns) {
            const Content content = column.content == Content::Text ? row.content : column.content;
            specimens.push_back({row.caption, column.caption, row.control, row.look, row.ground, column.state, content,
                                 row.textBoxLook});
        }
    }
    return specimens;
}

const std::vector<Row> buttonRows = {
    {QStringLiteral("Normal"), Control::ButtonEx, CButtonEx::BSEX_Normal},
    {QStringLiteral("Active"), Control::ButtonEx, CButtonEx::BSEX_Active},
    {QStringLiteral("Tray"), Control::ButtonEx, CButtonEx::BSEX_Tray},
    {QStringLiteral("Tertiary"), Control::ButtonEx, CButtonEx::BSEX_Tertiary},
    {QStringLiteral("Transparent"), Control::ButtonEx, CButtonEx::BSEX_Transparent, Ground::Tray},
    {QStringLiteral("Glowing"), Control::ButtonEx, CButtonEx::BSEX_Glowing, Ground::Tray, Content::ImageAndText},
    {QStringLiteral("QPushButton"), Control::PushButton},
};

const std::vector<Column> buttonStates = {
    {QStringLiteral("Normal"), State::Normal},     {QStringLiteral("Hovered"), State::Hovered},
    {QStringLiteral("Focused"), State::Focused},   {QStringLiteral("Pressed"), State::Pressed},
    {QStringLiteral("Disabled"), State::Disabled}, {QStringLiteral("Default"), State::Default},
};

const std::vector<Column> buttonContents = {
    {QStringLiteral("Image"), State::Normal, Content::ImageAndText},
    {QStringLiteral("Image, pressed"), State::Pressed, Content::ImageAndText},
    {QStringLiteral("Image, no text"), State::Normal, Content::Image},
    {QStringLiteral("Flat"), State::Flat},
    {QStringLiteral("Long text"), State::Normal, Content::LongText},
    {QStringLiteral("Empty text"), State::Normal, Content::Nothing},
};

// The row has no caption: these are told apart by their columns.
const std::vector<Specimen> workingButtons = {
    {QString(), QStringLiteral("Normal"), Control::ButtonEx, CButtonEx::BSEX_Normal, Ground::Page, State::Working,
     Content::Text},
    {QString(), QStringLiteral("Normal, default"), Control::ButtonEx, CButtonEx::BSEX_Normal, Ground::Page,
     State::WorkingDefault, Content::Text},
    {QString(), QStringLiteral("Active"), Control::ButtonEx, CButtonEx::BSEX_Active, Ground::Page, State::Working,
     Content::ImageAndText},
    {QString(), QStringLiteral("Tray"), Control::ButtonEx, CButtonEx::BSEX_Tray, Ground::Page, State::Working,
     Content::ImageAndText},
    {QString(), QStringLiteral("Tertiary"), Control::ButtonEx, CButtonEx::BSEX_Tertiary, Ground::Page, State::Working,
     Content::Text},
    {QString(), QStringLiteral("QPushButton"), Control::PushButton, CButtonEx::BSEX_Normal, Ground::Page,
     State::Working, Content::ImageAndText},
};

const std::vector<Specimen> workingTray = {
    {QString(), QStringLiteral("Glowing, menu"), Control::ButtonEx, CButtonEx::BSEX_Glowing, Ground::Tray,
     State::Working, Content::PrintMenu},
    {QString(), QStringLiteral("Glowing, other menu"), Control::ButtonEx, CButtonEx::BSEX_Glowing, Ground::Tray,
     State::Working, Content::PhotosMenu},
    {QString(), QStringLiteral("Glowing"), Control::ButtonEx, CButtonEx::BSEX_Glowing, Ground::Tray, State::Working,
     Content::ImageAndText},
    {QString(), QStringLiteral("Transparent, menu"), Control::ButtonEx, CButtonEx::BSEX_Transparent, Ground::Tray,
     State::Working, Content::PrintMenu},
    {QString(), QStringLiteral("Transparent"), Control::ButtonEx, CButtonEx::BSEX_Transparent, Ground::Tray,
     State::Working, Content::ImageAndText},
};

const std::vector<Row> menuRows = {
    {QStringLiteral("CMenuEx"), Control::MenuEx},
    {QStringLiteral("QMenu"), Control::Menu},
};

const std::vector<Column> menuStates = {
    {QStringLiteral("Open"), State::Normal, Content::PrintMenu},
    {QStringLiteral("Entry hovered"), State::Hovered, Content::PrintMenu},
    {QStringLiteral("Disabled"), State::Disabled, Content::PrintMenu},
};

const std::vector<Row> menuBenchRow = {{QString(), Control::MenuBench}};
const std::vector<Column> menuBenchColumn = {{QString(), State::Working, Content::PhotosMenu}};

constexpr TextBoxLook transparentBlue = {CTextBoxEx::LineEditTransparent, CTextBoxEx::LineEditBlue};
constexpr TextBoxLook transparentGray = {CTextBoxEx::LineEditTransparent, CTextBoxEx::LineEditGray};
constexpr TextBoxLook normalGray = {CTextBoxEx::LineEditNormal, CTextBoxEx::LineEditGray};
constexpr TextBoxLook normalBlue = {CTextBoxEx::LineEditNormal, CTextBoxEx::LineEditBlue};

Row textBoxRow(const QString &caption, const TextBoxLook &look, Ground ground)
{
    return {caption, Control::TextBoxEx, CButtonEx::BSEX_Normal, ground, Content::Text, look};
}

Specimen workingTextBox(const QString &column, const TextBoxLook &look, Ground ground)
{
    return {QString(), column, Control::TextBoxEx, CButtonEx::BSEX_Normal, ground, State::Working, Content::Text, look};
}

const std::vector<Row> textBoxRows = {
    textBoxRow(QStringLiteral("Transparent, blue"), transparentBlue, Ground::Tray),
    textBoxRow(QStringLiteral("Transparent, gray"), transparentGray, Ground::Tray),
    {QStringLiteral("QLineEdit in a tray"), Control::LineEdit, CButtonEx::BSEX_Normal, Ground::Tray},
    textBoxRow(QStringLiteral("Normal, gray"), normalGray, Ground::Page),
    textBoxRow(QStringLiteral("Normal, blue"), normalBlue, Ground::Page),
    {QStringLiteral("QLineEdit"), Control::LineEdit},
};

const std::vector<Column> textBoxStates = {
    {QStringLiteral("Normal"), State::Normal},
    {QStringLiteral("Hovered"), State::Hovered},
    {QStringLiteral("Focused"), State::Focused},
    {QStringLiteral("Disabled"), State::Disabled},
    {QStringLiteral("Read-only"), State::ReadOnly},
    {QStringLiteral("Empty"), State::Normal, Content::Nothing},
    {QStringLiteral("Long text"), State::Normal, Content::LongText},
};

const std::vector<Specimen> workingTextBoxes = {
    workingTextBox(QStringLiteral("Normal, gray"), normalGray, Ground::Page),
    workingTextBox(QStringLiteral("Normal, blue"), normalBlue, Ground::Page),
};

// With the plain QLineEdit, whose white panel without a frame cannot be seen on the page.
const std::vector<Specimen> workingTextBoxTray = {
    workingTextBox(QStringLiteral("Transparent, blue"), transparentBlue, Ground::Tray),
    workingTextBox(QStringLiteral("Transparent, gray"), transparentGray, Ground::Tray),
    {QString(), QStringLiteral("QLineEdit"), Control::LineEdit, CButtonEx::BSEX_Normal, Ground::Tray, State::Working,
     Content::Text},
};

Row sliderRow(const QString &caption, Control control, Content content = Content::Text)
{
    return {caption, control, CButtonEx::BSEX_Normal, Ground::Page, content};
}

const std::vector<Row> sliderRows = {
    sliderRow(QStringLiteral("CSliderEx"), Control::SliderEx),
    sliderRow(QStringLiteral("Ticks below"), Control::SliderEx, Content::TicksBelow),
    sliderRow(QStringLiteral("Ticks above"), Control::SliderEx, Content::TicksAbove),
    sliderRow(QStringLiteral("Ticks on both sides"), Control::SliderEx, Content::TicksBothSides),
    sliderRow(QStringLiteral("Knob image"), Control::SliderEx, Content::Knob),
    sliderRow(QStringLiteral("QSlider"), Control::Slider),
    sliderRow(QStringLiteral("QSlider, vertical"), Control::VerticalSlider, Content::TicksAbove),
};

const std::vector<Column> sliderStates = {
    {QStringLiteral("Normal"), State::Normal},     {QStringLiteral("Hovered"), State::Hovered},
    {QStringLiteral("Focused"), State::Focused},   {QStringLiteral("Pressed"), State::Pressed},
    {QStringLiteral("Disabled"), State::Disabled},
};

const std::vector<Specimen> workingSliders = {
    {QString(), QStringLiteral("CSliderEx"), Control::SliderEx, CButtonEx::BSEX_Normal, Ground::Page, State::Working,
     Content::TicksBelow},
    {QString(), QStringLiteral("CSliderEx, knob image"), Control::SliderEx, CButtonEx::BSEX_Normal, Ground::Page,
     State::Working, Content::Knob},
    {QString(), QStringLiteral("QSlider"), Control::Slider, CButtonEx::BSEX_Normal, Ground::Page, State::Working,
     Content::Text},
    {QString(), QStringLiteral("QSlider, vertical"), Control::VerticalSlider, CButtonEx::BSEX_Normal, Ground::Page,
     State::Working, Content::TicksBelow},
};

} // namespace

const std::vector<PageDescription> &pages()
{
    static const std::vector<PageDescription> all = {
        {QStringLiteral("buttons"),
         QStringLiteral("Push buttons"),
         {
             {QStringLiteral("States"), QStringLiteral("Every look, held still in each state."),
              table(buttonRows, buttonStates)},
             {QStringLiteral("Contents"), QStringLiteral("The same looks with other texts and with an image."),
              table(buttonRows, buttonContents)},
             {QStringLiteral("Working controls"),
              QStringLiteral("Point, press and tab through these. The status line tells of each click."),
              workingButtons},
             {QStringLiteral("Working controls in a tray"),
              QStringLiteral("Those with a menu: the glowing ones open it as soon as the pointer is on them."),
              workingTray},
         }},
        {QStringLiteral("menus"),
         QStringLiteral("Menus"),
         {
             {QStringLiteral("Pictures"),
              QStringLiteral("Icons, a shortcut, a disabled entry, checked and unchecked entries and a submenu."),
              table(menuRows, menuStates)},
             {QStringLiteral("Working controls"),
              QStringLiteral("The submenu of a CMenuEx opens by click or by key, not by waiting."),
              table(menuBenchRow, menuBenchColumn)},
         }},
        {QStringLiteral("text-boxes"),
         QStringLiteral("Text boxes"),
         {
             {QStringLiteral("States"),
              QStringLiteral("Both looks in both text colours, held still. Read-only, a normal box is bare text. A "
                             "QLineEdit has no frame."),
              table(textBoxRows, textBoxStates)},
             {QStringLiteral("Working controls"),
              QStringLiteral("The status line tells of focus and edits. In an inactive window all text is gray."),
              workingTextBoxes},
             {QStringLiteral("Working controls in a tray"),
              QStringLiteral("The transparent look is brighter under the pointer, and brighter still with the focus."),
              workingTextBoxTray},
         }},
        {QStringLiteral("sliders"),
         QStringLiteral("Sliders"),
         {
             {QStringLiteral("States"), QStringLiteral("A slider that is hovered, focused or pressed looks as ever."),
              table(sliderRows, sliderStates)},
             {QStringLiteral("Working controls"),
              QStringLiteral("A CSliderEx jumps to the click, and the wheel leaves it alone."), workingSliders},
         }},
    };
    return all;
}

const PageDescription *findPage(const QString &name)
{
    const std::vector<PageDescription> &all = pages();
    const auto found =
        std::find_if(all.begin(), all.end(), [&name](const PageDescription &page) { return page.name == name; });
    return found != all.end() ? &*found : nullptr;
}

} // namespace gallery
