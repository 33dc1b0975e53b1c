#pragma once

class CMenuEx;
class QMenu;

namespace gallery {

struct SampleTexts;

// Entries of every kind: with icon and shortcut, disabled, checked, unchecked, a separator and a submenu. The menu owns
// them.
void fillMenu(CMenuEx *menu, const SampleTexts &texts);
void fillMenu(QMenu *menu, const SampleTexts &texts);

} // namespace gallery
