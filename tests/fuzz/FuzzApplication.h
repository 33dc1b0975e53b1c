// The application that the fuzz targets of the controls run in: without a screen, silent, in the house look.
#pragma once

#include <QString>

namespace FuzzApplication {

/** Makes the application object, once. Bitmaps come from the build's artwork, or from the folder. */
void start(const QString &graphicsDir = QString());

/** Destroys every window that is left and gives the application its look back: no input sees the one before it. */
void restore();

/** Writes what is done, for whoever looks at a finding: only where ZEL_FUZZ_TELL is set. */
void tell(const char *what, const char *to);

} // namespace FuzzApplication
