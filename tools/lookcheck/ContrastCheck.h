#pragma once

#include <QColor>

namespace lookcheck {

class Findings;
class Look;

/** The contrast ratio of WCAG 2 of two opaque colours: 1 to 21. */
double contrastRatio(const QColor &left, const QColor &right);

/**
 * Texts that are hard to read on what is behind them.
 *
 * A text is told when its contrast is below 4.5 to 1 and lower than in the built-in look. Where it is low but no lower,
 * it is a note: that is the house look, which not every deployer may change.
 */
void checkContrast(const Look &look, Findings *findings);

} // namespace lookcheck
