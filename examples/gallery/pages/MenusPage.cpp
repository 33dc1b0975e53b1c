#include "Pages.h"

#include "MenuBarWindow.h"
#include "MenuEntries.h"
#include "MenuTrials.h"
#include "Panels.h"

#include <ZelCmnCtrl03/CMenuEx>

namespace gallery {

namespace {

/** A picture of the open menu. */
template <class Menu>
QWidget *makePicture(State state, const MakerSettings &settings, QWidget *parent)
{
    Menu menu;
    if (settings.foreignStyle != nullptr)
        menu.setStyle(settings.foreignStyle);
    fillMenu(&menu, settings.texts);
    menu.setEnabled(settings.isEnabled && state != State::Disabled);
    menu.resize(menu.sizeHint());
    if (state == State::Hovered)
        menu.setActiveAction(menu.actions().constFirst());
    return new Picture(menu.grab(), parent);
}

template <void (*fill)(QMenu *menu, const SampleTexts &texts)>
QWidget *makeBarMenuPicture(State state, const MakerSettings &settings, QWidget *parent)
{
    QMenu menu;
    if (settings.foreignStyle != nullptr)
        menu.setStyle(settings.foreignStyle);
    fill(&menu, settings.texts);
    menu.setEnabled(settings.isEnabled);
    menu.resize(menu.sizeHint());
    if (state == State::Hovered)
        menu.setActiveAction(menu.actions().constLast());
    return new Picture(menu.grab(), parent);
}

QWidget *makeMenuBarWindow(State state, const MakerSettings &settings, QWidget *parent)
{
    auto *window = new MenuBarWindow(settings, parent);
    if (state == State::Disabled)
        window->setEnabled(false);
    return window;
}

QWidget *makeTrials(State, const MakerSettings &settings, QWidget *parent)
{
    return new MenuTrials(settings, parent);
}

const std::vector<Row> pictureRows = {
    {QStringLiteral("CMenuEx"), makePicture<CMenuEx>},
    {QStringLiteral("QMenu"), makePicture<QMenu>},
};

const std::vector<Column> pictureStates = {
    {QStringLiteral("Open"), State::Normal},
    {QStringLiteral("Entry hovered"), State::Hovered},
    {QStringLiteral("Disabled"), State::Disabled},
};

const std::vector<Row> barRows = {{QString(), makeMenuBarWindow}};
const std::vector<Column> barStates = {
    {QStringLiteral("Working"), State::Working},
    {QStringLiteral("Disabled"), State::Disabled},
};

const std::vector<Row> barMenuRows = {
    {QStringLiteral("Titles and shortcuts"), makeBarMenuPicture<fillFileMenu>},
    {QStringLiteral("Checks and choices"), makeBarMenuPicture<fillViewMenu>},
};

const std::vector<Column> barMenuStates = {
    {QStringLiteral("Open"), State::Normal},
    {QStringLiteral("Entry hovered"), State::Hovered},
};

} // namespace

PageDescription menusPage()
{
    return {
        QStringLiteral("menus"),
        QStringLiteral("Menus"),
        {
            {QStringLiteral("Pictures"),
             QStringLiteral("Icons, a shortcut, a disabled entry, checked and unchecked entries and a submenu."),
             table(pictureRows, pictureStates)},
            {QStringLiteral("Working controls"),
             QStringLiteral("The submenu of a CMenuEx opens by click or by key, not by waiting."),
             workingControls({{QString(), makeTrials}})},
            {QStringLiteral("A window with a menu bar"),
             QStringLiteral("Its menus are of Qt's own kind. One is longer than most screens, one is disabled."),
             table(barRows, barStates)},
            {QStringLiteral("Menus of the bar"),
             QStringLiteral("Separators, with a title that this look does not show, and choices of one of several."),
             table(barMenuRows, barMenuStates)},
        }};
}

} // namespace gallery
