// Wrapped text from right to left. Internal.
#pragma once

class QLabel;
class QPainter;

/**
 * Qt draws a wrapped plain text of a right-to-left language with each line moved to the left by the space that it was
 * broken at: a ragged right edge, and a letter cut off at the left where the line is full.
 */
namespace RightToLeftText {

/** True for a label with such a text, and without what only QLabel can draw: frame, indent and shortcut. */
bool isIn(const QLabel &label);

/** Draws the label's text, in its font, colour, margins and alignment. */
void draw(QPainter *painter, const QLabel &label);

} // namespace RightToLeftText
