#include "Pages.h"

#include "MakerTools.h"

#include <ZelCmnCtrl03/CCheckBoxEx>
#include <ZelCmnCtrl03/CRadioButtonEx>

#include <QVBoxLayout>

namespace gallery {

namespace {

constexpr int labelWidth = 110;      // the long text takes two or three lines
constexpr int largeLabelWidth = 150; // for the longest word of German
constexpr int wideLabelWidth = 240;
constexpr int smallFontPixels = 10;
constexpr int largeFontPixels = 18;
constexpr int choiceGap = 6;

using TextOf = QString (*)(const SampleTexts &texts);

QString shortText(const SampleTexts &texts)
{
    return texts.order.border;
}

QString longText(const SampleTexts &texts)
{
    return texts.printAll;
}

QString tipText(const SampleTexts &texts)
{
    return texts.order.tip;
}

void reportUse(const QAbstractButton *button, const MakerSettings &settings)
{
    const auto report = settings.report;
    QObject::connect(
        button, &QAbstractButton::clicked, button, [report] { report(QStringLiteral("clicked")); });
    QObject::connect(button, &QAbstractButton::toggled, button,
                     [report](bool on) { report(on ? QStringLiteral("checked") : QStringLiteral("unchecked")); });
}

void finish(QAbstractButton *button, State state, const MakerSettings &settings)
{
    if (state == State::Disabled)
        button->setEnabled(false);
    applyStyles(button, state, settings);
    button->resize(button->sizeHint());
    reportUse(button, settings);
}

Maker nativeBox(Qt::CheckState checkState)
{
    return [checkState](State state, const MakerSettings &settings, QWidget *parent) {
        auto *box = new CCheckBoxEx(shortText(settings.texts), parent);
        box->setTristate(checkState == Qt::PartiallyChecked);
        box->setCheckState(checkState);
        finish(box, state, settings);
        return box;
    };
}

Maker nativeButton(bool isChecked)
{
    return [isChecked](State state, const MakerSettings &settings, QWidget *parent) {
        auto *button = new CRadioButtonEx(settings.texts.order.glossy, parent);
        button->setAutoExclusive(false);
        button->setChecked(isChecked);
        finish(button, state, settings);
        return button;
    };
}

/** Does to a button with a separate label what its row is about. */
template <class Button>
using Prepare = void (*)(Button *button);

template <class Button>
Maker labelled(TextOf textOf, Prepare<Button> prepare)
{
    return [textOf, prepare](State state, const MakerSettings &settings, QWidget *parent) {
        auto *button = new Button(textOf(settings.texts), parent, labelWidth);
        button->setAutoExclusive(false);
        prepare(button);
        finish(button, state, settings);
        return button;
    };
}

template <class Button>
void leave(Button *)
{}

template <class Button>
void check(Button *button)
{
    button->setChecked(true);
}

template <class Button>
void widen(Button *button)
{
    button->setFixedLabelWidth(wideLabelWidth);
}

template <class Button, int pixels, int width>
void setFontPixels(Button *button)
{
    QFont font = button->font();
    font.setPixelSize(pixels);
    button->setLabelFont(font);
    button->setFixedLabelWidth(width); // the height goes by the font
}

template <class Button>
void colour(Button *button)
{
    QPalette palette = button->palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        palette.setBrush(group, QPalette::WindowText, palette.brush(group, QPalette::Highlight));
    button->setLabelPalette(palette);
}

template <class Button>
std::vector<Row> labelRows(const QString &name)
{
    return {
        {name + QStringLiteral(", one line"), labelled<Button>(shortText, leave)},
        {QStringLiteral("Long text"), labelled<Button>(longText, leave)},
        {QStringLiteral("Checked"), labelled<Button>(longText, check)},
        {QStringLiteral("Coloured"), labelled<Button>(longText, colour)},
        {QStringLiteral("Small font"), labelled<Button>(longText, setFontPixels<Button, smallFontPixels, labelWidth>)},
        {QStringLiteral("Large font"),
         labelled<Button>(longText, setFontPixels<Button, largeFontPixels, largeLabelWidth>)},
        {QStringLiteral("Wider"), labelled<Button>(tipText, widen)},
    };
}

// Exclusive, as radio buttons of one parent are.
QWidget *makeChoice(State, const MakerSettings &settings, QWidget *parent)
{
    auto *panel = new QWidget(parent);
    auto *column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(choiceGap);
    const OrderTexts &texts = settings.texts.order;
    for (const QString &text : {texts.byPost, texts.inShop, settings.texts.printAll}) {
        auto *button = new CRadioButtonEx(text, panel, labelWidth);
        button->setChecked(text == texts.byPost); // before anybody is told
        const auto report = settings.report;
        QObject::connect(button, &QAbstractButton::toggled, button, [report, text](bool on) {
            if (on)
                report(QStringLiteral("now \"%1\"").arg(text));
        });
        column->addWidget(button);
    }
    applyForeignStyle(panel, settings);
    panel->resize(panel->sizeHint());
    return panel;
}

const std::vector<Column> states = {
    {QStringLiteral("Normal"), State::Normal},     {QStringLiteral("Hovered"), State::Hovered},
    {QStringLiteral("Focused"), State::Focused},   {QStringLiteral("Pressed"), State::Pressed},
    {QStringLiteral("Disabled"), State::Disabled},
};

const std::vector<Column> labelStates = {
    {QStringLiteral("Normal"), State::Normal},
    {QStringLiteral("Hovered"), State::Hovered},
    {QStringLiteral("Disabled"), State::Disabled},
};

const std::vector<Row> nativeRows = {
    {QStringLiteral("CCheckBoxEx"), nativeBox(Qt::Unchecked)},
    {QStringLiteral("Checked"), nativeBox(Qt::Checked)},
    {QStringLiteral("Partially checked"), nativeBox(Qt::PartiallyChecked)},
    {QStringLiteral("CRadioButtonEx"), nativeButton(false)},
    {QStringLiteral("Chosen"), nativeButton(true)},
};

const std::vector<Row> workingRows = {
    {QStringLiteral("CCheckBoxEx"), nativeBox(Qt::Unchecked)},
    {QStringLiteral("Separate label"), labelled<CCheckBoxEx>(longText, leave)},
    {QStringLiteral("CRadioButtonEx, one of three"), makeChoice},
};

} // namespace

PageDescription checkBoxesPage()
{
    return {QStringLiteral("check-boxes"),
            QStringLiteral("Check boxes"),
            {
                {QStringLiteral("States"), QStringLiteral("With the texts that Qt draws, in one line."),
                 table(nativeRows, states)},
                {QStringLiteral("Check boxes with separate labels"),
                 QStringLiteral("The text wraps at a width of 110 pixels, or at another one."),
                 table(labelRows<CCheckBoxEx>(QStringLiteral("CCheckBoxEx")), labelStates)},
                {QStringLiteral("Radio buttons with separate labels"), QStringLiteral("The same, for one of several."),
                 table(labelRows<CRadioButtonEx>(QStringLiteral("CRadioButtonEx")), labelStates)},
                {QStringLiteral("Working controls"),
                 QStringLiteral("A click on a separate label checks the box; the box itself alone tells of a click."),
                 workingControls(workingRows)},
            }};
}

} // namespace gallery
