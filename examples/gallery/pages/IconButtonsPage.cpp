#include "Pages.h"

#include "MakerTools.h"
#include "PointedSpecimen.h"

#include <ZelCmnCtrl03/CCustomIconButton>

#include <QIcon>

namespace gallery {

namespace {

constexpr QSize smallIcon(11, 11);
constexpr QSize squareIcon(16, 16);
constexpr QSize wideIcon(19, 13);

using TipOf = QString (*)(const SampleTexts &texts);

QString noTip(const SampleTexts &texts)
{
    Q_UNUSED(texts)
    return QString();
}

QString openTip(const SampleTexts &texts)
{
    return texts.open;
}

QString removeTip(const SampleTexts &texts)
{
    return texts.remove;
}

QString longTip(const SampleTexts &texts)
{
    return texts.order.tip;
}

struct Tool
{
    QString icon;
    QSize size;
    TipOf tipOf = noTip;
};

QWidget *makeButton(const Tool &tool, State state, const MakerSettings &settings)
{
    auto *button = new CCustomIconButton;
    if (!tool.icon.isEmpty())
        button->AddIcons(sampleIcon(tool.icon).pixmap(tool.size));
    button->setToolTipText(tool.tipOf(settings.texts));
    showState(button, state);
    QObject::connect(button, &CCustomIconButton::customClicked, button,
                     [report = settings.report, icon = tool.icon] { report(QStringLiteral("clicked %1").arg(icon)); });
    return button;
}

Maker iconButtons(const std::vector<Tool> &tools)
{
    return [tools](State state, const MakerSettings &settings, QWidget *parent) -> QWidget * {
        std::vector<QWidget *> buttons;
        buttons.reserve(tools.size());
        for (const Tool &tool : tools)
            buttons.push_back(makeButton(tool, state, settings));
        return onBar(buttons, parent);
    };
}

const std::vector<Row> stateRows = {
    {QStringLiteral("Icon of 19 x 13"), iconButtons({{QStringLiteral("tool-rotate-left"), wideIcon}})},
    {QStringLiteral("Icon of 16 x 16"), iconButtons({{QStringLiteral("photo"), squareIcon}})},
    {QStringLiteral("Icon of 11 x 11"), iconButtons({{QStringLiteral("tool-add"), smallIcon}})},
    {QStringLiteral("No icon"), iconButtons({{QString(), QSize()}})},
};

const std::vector<Row> workingRows = {
    {QStringLiteral("Tool bar"), iconButtons({
                                     {QStringLiteral("tool-rotate-left"), wideIcon},
                                     {QStringLiteral("tool-rotate-right"), wideIcon},
                                     {QStringLiteral("print"), squareIcon, longTip},
                                     {QStringLiteral("tool-add"), smallIcon, openTip},
                                     {QStringLiteral("tool-remove"), smallIcon, removeTip},
                                 })},
};

} // namespace

PageDescription iconButtonsPage()
{
    return {QStringLiteral("icon-buttons"),
            QStringLiteral("Icon buttons"),
            {
                {QStringLiteral("States"), QStringLiteral("An icon less than 16 pixels wide is never grey."),
                 table(stateRows, pointedStates())},
                {QStringLiteral("Working controls"),
                 QStringLiteral("A click counts where the pointer is released. Tab and Space work too."),
                 workingControls(workingRows)},
            }};
}

} // namespace gallery
