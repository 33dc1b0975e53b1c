#pragma once

#include "Specimen.h"

#include <QWidget>

class QMenu;

namespace gallery {

// Entries for menus of a bar. The menu owns them.
void fillFileMenu(QMenu *menu, const SampleTexts &texts); // icons, shortcuts, titles, a disabled entry, a submenu
void fillViewMenu(QMenu *menu, const SampleTexts &texts); // checks, and one of several sizes

/** What a small window with a menu bar has inside. The menus work, and tell what was chosen. */
class MenuBarWindow : public QWidget
{
    Q_OBJECT

public:
    MenuBarWindow(const MakerSettings &settings, QWidget *parent);
};

} // namespace gallery
