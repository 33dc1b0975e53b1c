// What assistive tools hear of a CLabelEx. Internal.
#pragma once

#include <QString>

class CLabelEx;
class QLabel;

namespace LabelExAccessible {

/** Makes every CLabelEx tell its role, link, picture or text, and the text that is seen. For its constructor. */
void install(CLabelEx *label);

/** What is seen of a label's text: without mark-up, and without the ampersands that mark a shortcut. */
QString plainText(const QLabel &label);

} // namespace LabelExAccessible
