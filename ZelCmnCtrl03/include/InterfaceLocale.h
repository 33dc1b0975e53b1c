#pragma once

#include "include/zelcmnctrl_export.h"

#include <QLocale>

namespace zel {

/**
 * The user interface language of the look as a locale, for choosing the texts that go with it: `QTranslator::load()`.
 *
 * It is the language that ZEL_LANGUAGE, the settings or the process's locale give, in this order, and so may differ
 * from `QLocale()`. The C locale where that is no language known to Qt; `QLocale()` without the utility library. Call
 * it once the application object is there: the first call reads the look.
 */
ZELCMNCTRL_EXPORT QLocale interfaceLocale();

} // namespace zel
