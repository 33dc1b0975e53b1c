#pragma once

#include "ControlMaker.h"

class CMenuEx;
class QMenu;

namespace gallery {

// Entries of every kind: with icon and shortcut, disabled, checked, unchecked, a separator and a submenu. The menu owns
// them.
void fillMenu(CMenuEx *menu, const SampleTexts &texts);
void fillMenu(QMenu *menu, const SampleTexts &texts);

/** A picture of the open menu, in the state of the specimen. */
QWidget *makeMenuExPicture(const Specimen &specimen, const MakerSettings &settings, QWidget *parent);
QWidget *makeMenuPicture(const Specimen &specimen, const MakerSettings &settings, QWidget *parent);

} // namespace gallery
