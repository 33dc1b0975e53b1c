#include "Pages.h"

#include "MenuBench.h"
#include "MenuEntries.h"
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

QWidget *makeBench(State, const MakerSettings &settings, QWidget *parent)
{
    return new MenuBench(settings, parent);
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

} // namespace

PageDescription menusPage()
{
    return {QStringLiteral("menus"),
            QStringLiteral("Menus"),
            {
                {QStringLiteral("Pictures"),
                 QStringLiteral("Icons, a shortcut, a disabled entry, checked and unchecked entries and a submenu."),
                 table(pictureRows, pictureStates)},
                {QStringLiteral("Working controls"),
                 QStringLiteral("The submenu of a CMenuEx opens by click or by key, not by waiting."),
                 workingControls({{QString(), makeBench}})},
            }};
}

} // namespace gallery
