#pragma once

namespace lookcheck {

class Findings;
class Look;

/** The private font and the families of the look. Needs a QGuiApplication; registers the font with it. */
void checkFonts(const Look &look, Findings *findings);

} // namespace lookcheck
