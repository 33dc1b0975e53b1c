#pragma once

namespace lookcheck {

class Findings;
class Look;

/** UIGraphics.xml, the common one and the language's: names that are no keys, and texts that say nothing. */
void checkXml(const Look &look, Findings *findings);

} // namespace lookcheck
