#include "MenuEntries.h"

#include "MakerTools.h"

#include <ZelCmnCtrl03/CMenuEx>

#include <QAction>
#include <QIcon>
#include <QKeySequence>

namespace gallery {

namespace {

QAction *addEntry(CMenuEx *menu, const QString &text, const QIcon &icon = QIcon())
{
    QAction *action = menu->addMenuItem(text, icon.isNull() ? nullptr : &icon);
    action->setParent(menu); // addMenuItem leaves it to its caller
    return action;
}

QAction *addEntry(QMenu *menu, const QString &text, const QIcon &icon = QIcon())
{
    return menu->addAction(icon, text);
}

template <class Menu>
void addEntries(Menu *menu, const SampleTexts &texts)
{
    addEntry(menu, texts.print, sampleIcon(QStringLiteral("print")))->setShortcut(QKeySequence::Print);
    addEntry(menu, texts.open, sampleIcon(QStringLiteral("photo")));
    addEntry(menu, texts.remove)->setEnabled(false);
    menu->addSeparator();
    QAction *details = addEntry(menu, texts.showDetails);
    details->setCheckable(true);
    details->setChecked(true);
    addEntry(menu, texts.photos)->setCheckable(true);
    menu->addSeparator();
    // A QMenu whatever the menu is: the result of CMenuEx::addMenu is nothing more.
    QMenu *submenu = menu->addMenu(texts.share);
    submenu->addAction(texts.email);
    submenu->addAction(texts.folder);
}

} // namespace

void fillMenu(CMenuEx *menu, const SampleTexts &texts)
{
    addEntries(menu, texts);
}

void fillMenu(QMenu *menu, const SampleTexts &texts)
{
    addEntries(menu, texts);
}

} // namespace gallery
