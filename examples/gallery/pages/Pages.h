#pragma once

#include "Specimen.h"

namespace gallery {

// Each in the source file of its name.
PageDescription buttonsPage();
PageDescription menusPage();
PageDescription messageBoxesPage();
PageDescription textBoxesPage();
PageDescription slidersPage();
PageDescription iconButtonsPage();
PageDescription titleBarPage();
PageDescription scrollBarsPage();
PageDescription tabsPage();
PageDescription listsPage();
PageDescription splittersPage();
PageDescription standardPage();
PageDescription formPage();

/** The whole gallery. */
const std::vector<PageDescription> &pages();

/** Null for a name that no page has. */
const PageDescription *findPage(const QString &name);

} // namespace gallery
