#pragma once

class CButtonEx;
class QPalette;

namespace ButtonText {

/** Sets the ButtonText brushes of the three colour groups by the button's look. */
void setColors(QPalette &palette, const CButtonEx *button);

} // namespace ButtonText
