#include "Pages.h"

#include "MakerTools.h"

#include <ZelCmnCtrl03/CDropDownEx>

#include <QAbstractItemView>
#include <QLabel>

namespace gallery {

namespace {

constexpr int boxWidth = 150;     // too narrow for the long text
constexpr int wideBoxWidth = 290; // not even in German
constexpr int furtherCount = 14;

using Fill = void (*)(CDropDownEx *box, const SampleTexts &texts);

QStringList mainItems(const SampleTexts &texts)
{
    return {texts.order.glossy, texts.order.matte, texts.printAll};
}

QStringList furtherItems(const SampleTexts &texts)
{
    QStringList items;
    for (int i = 0; i < furtherCount; ++i)
        items.append(
            QStringLiteral("%1, %2 g/m²").arg(i % 2 == 0 ? texts.order.matte : texts.order.glossy).arg(130 + 20 * i));
    items.append(texts.order.inShop + QStringLiteral(": ") + texts.printAll);
    return items;
}

void addInTwoStages(CDropDownEx *box, const SampleTexts &texts)
{
    QStringList main = mainItems(texts);
    QStringList further = furtherItems(texts);
    box->addMoreItems(main, further);
}

void addWithToolTips(CDropDownEx *box, const SampleTexts &texts)
{
    box->enableToolTipsForDropDownElements(true);
    addInTwoStages(box, texts);
}

void addMainItems(CDropDownEx *box, const SampleTexts &texts)
{
    box->addItems(mainItems(texts));
}

void addShortList(CDropDownEx *box, const SampleTexts &texts)
{
    box->addItems(mainItems(texts) << CDropDownEx::tr("More..."));
}

void addAllItems(CDropDownEx *box, const SampleTexts &texts)
{
    box->addItems(mainItems(texts) + furtherItems(texts));
}

void addLongText(CDropDownEx *box, const SampleTexts &texts)
{
    box->addItems({texts.printAll});
}

// As wide as told, and as high as a layout would make it.
template <class Box>
Box *finish(Box *box, int width, State state, const MakerSettings &settings)
{
    if (state == State::Disabled)
        box->setEnabled(false);
    applyStyles(box, state, settings, QStyle::SC_ComboBoxArrow);
    box->resize(width, box->sizeHint().expandedTo(box->minimumSizeHint()).height());
    return box;
}

void reportUse(CDropDownEx *box, const MakerSettings &settings)
{
    const auto report = settings.report;
    QObject::connect(
        box, &QComboBox::currentTextChanged, box,
        [box, report](const QString &text) {
            report(box->moreSelected() ? QStringLiteral("shows all items") : QStringLiteral("now \"%1\"").arg(text));
        });
    QObject::connect(box, &CDropDownEx::customClicked, box, [report] { report(QStringLiteral("pressed")); });
}

Maker houseBox(Fill fill, int width = boxWidth)
{
    return [fill, width](State state, const MakerSettings &settings, QWidget *parent) {
        auto *box = new CDropDownEx(parent);
        fill(box, settings.texts);
        reportUse(box, settings);
        return finish(box, width, state, settings);
    };
}

QWidget *makePlainBox(State state, const MakerSettings &settings, QWidget *parent)
{
    auto *box = new QComboBox(parent);
    box->addItems(mainItems(settings.texts));
    return finish(box, boxWidth, state, settings);
}

// The list is a window of its own, so a picture of it has to do.
Maker openList(Fill fill, int rows)
{
    return [fill, rows](State, const MakerSettings &settings, QWidget *parent) {
        CDropDownEx box;
        if (settings.foreignStyle != nullptr)
            box.setStyle(settings.foreignStyle);
        fill(&box, settings.texts);
        QPalette colors = box.palette(); // an open list counts as active
        colors.setColor(QPalette::Inactive, QPalette::Text, colors.color(QPalette::Active, QPalette::Text));
        box.setPalette(colors);
        QWidget *list = box.view()->window();
        list->resize(wideBoxWidth, rows * box.view()->sizeHintForRow(0) + 4);
        box.view()->setCurrentIndex(box.model()->index(1, 0));
        auto *label = new QLabel(parent);
        list->grab(); // lays it out, with its scroll bar
        label->setPixmap(list->grab());
        label->resize(label->sizeHint());
        return label;
    };
}

const std::vector<Column> states = {
    {QStringLiteral("Normal"), State::Normal},     {QStringLiteral("Hovered"), State::Hovered},
    {QStringLiteral("Focused"), State::Focused},   {QStringLiteral("Pressed"), State::Pressed},
    {QStringLiteral("Disabled"), State::Disabled},
};

const std::vector<Row> stateRows = {
    {QStringLiteral("CDropDownEx"), houseBox(addMainItems)},
    {QStringLiteral("Long text"), houseBox(addLongText)},
    {QStringLiteral("QComboBox"), makePlainBox},
};

const std::vector<Row> listRows = {
    {QStringLiteral("Short"), openList(addShortList, 4)},
    {QStringLiteral("All items, with its own scroll bar"), openList(addAllItems, 10)},
};

const std::vector<Row> workingRows = {
    {QStringLiteral("In two stages"), houseBox(addInTwoStages)},
    {QStringLiteral("Wider"), houseBox(addInTwoStages, wideBoxWidth)},
    {QStringLiteral("With tool tips for items"), houseBox(addWithToolTips)},
    {QStringLiteral("In one stage"), houseBox(addAllItems)},
};

} // namespace

PageDescription dropDownsPage()
{
    return {QStringLiteral("drop-downs"),
            QStringLiteral("Drop-downs"),
            {
                {QStringLiteral("States"), QStringLiteral("The text is blue in the active window and gray in others."),
                 table(stateRows, states)},
                {QStringLiteral("Open lists"), QStringLiteral("Pictures of them."), workingControls(listRows)},
                {QStringLiteral("Working controls"),
                 QStringLiteral("\"More...\" opens the list again with all items; an item chosen there stands on top "
                                "of the short list."),
                 workingControls(workingRows)},
            }};
}

} // namespace gallery
