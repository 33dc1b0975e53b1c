#pragma once

#include "Specimen.h"

namespace gallery {

// Each in the source file of its name.
PageDescription buttonsPage();
PageDescription menusPage();
PageDescription checkBoxesPage();
PageDescription messageBoxesPage();
PageDescription textBoxesPage();
PageDescription dropDownsPage();
PageDescription listBoxesPage();
PageDescription labelsPage();
PageDescription framesPage();
PageDescription slidersPage();
PageDescription rangeSlidersPage();
PageDescription zoomSlidersPage();
PageDescription iconButtonsPage();
PageDescription titleBarPage();
PageDescription progressPage();
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
