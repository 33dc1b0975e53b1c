// What the library needs of the operating system and the window system, said by purpose. Qt's own services come first;
// the source file beside this header is the only one that may ask for the operating system.
#pragma once

#include <QString>

#include <memory>

class QStyle;

namespace Platform {

/**
 * Makes the font file at `path` usable for this process alone, until it ends.
 *
 * Gives false, and changes nothing, when the file is no font or the process has no GUI application object.
 */
bool registerPrivateFont(const QString &path);

/**
 * The name under which the system shows the last component of `path` to the user.
 *
 * Empty when the system does not know such a file or directory. On systems without display names of their own it is the
 * file name.
 */
QString displayName(const QString &path);

/**
 * A style object of its own that draws standard push buttons as the platform does.
 *
 * Where the platform has no native style it is Fusion, whose light, thin-lined buttons look at home in the house
 * palette. Never null.
 */
std::unique_ptr<QStyle> createNativeStyle();

} // namespace Platform
