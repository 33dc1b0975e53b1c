#include "Pages.h"

#include <algorithm>

namespace gallery {

const std::vector<PageDescription> &pages()
{
    static const std::vector<PageDescription> all = {
        buttonsPage(),      checkBoxesPage(), textBoxesPage(),    dropDownsPage(),   listBoxesPage(),   labelsPage(),
        framesPage(),       slidersPage(),    rangeSlidersPage(), zoomSlidersPage(), iconButtonsPage(), titleBarPage(),
        messageBoxesPage(), progressPage(),   menusPage(),        standardPage(),    formPage(),        tabsPage(),
        listsPage(),        scrollBarsPage(), splittersPage(),
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
