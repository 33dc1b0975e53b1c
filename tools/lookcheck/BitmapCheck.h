#pragma once

#include <QString>

namespace lookcheck {

class Findings;
class Look;

/**
 * The bitmaps that the library loads: missing, unreadable, of sizes that do not fit together.
 *
 * With `mayLack` one that is missing is no finding.
 */
void checkBitmaps(const Look &look, bool mayLack, Findings *findings);

/** The path of a file of the look that a program should better not load; empty when there is none. */
QString oversizedFile(const Look &look);

} // namespace lookcheck
