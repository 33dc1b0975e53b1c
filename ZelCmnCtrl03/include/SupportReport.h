#pragma once

#include "include/zelcmnctrl_export.h"

#include <QString>

namespace zel {

/**
 * What this process really uses of the library and of Qt, as lines of text for a report of trouble: the versions that
 * were built with and that run, the style in force and what it stands on, the utility library, the language, the
 * graphics directory, the UIGraphics.xml files with what they have replaced or why nothing, the fonts with what shows
 * for them, and the bitmaps that were asked for in vain.
 *
 * It tells of what has happened up to now and starts nothing, so call it late, with the windows in question shown. It
 * may be called at any time on the GUI thread, also without an application object and without the utility library. The
 * text is English and meant for people; its lines may change from version to version.
 *
 * No program has to call it: with the environment variable ZEL_SUPPORT set to 1 every application that has loaded the
 * library prints the report on standard error when its application object goes, with any other text into the file of
 * that name, which it replaces. Set to 0, or empty, it does nothing.
 */
ZELCMNCTRL_EXPORT QString supportReport();

} // namespace zel
