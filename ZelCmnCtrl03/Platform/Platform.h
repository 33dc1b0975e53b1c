// What the library needs of the operating system and the window system, said by purpose. Qt's own services come first;
// the source file beside this header is the only one that may ask for the operating system.
#pragma once

#include <QString>

#include <memory>

class QStyle;
class QWidget;

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
 * The file of the library or program that the address, of a function for instance, was loaded from.
 *
 * Empty where the system does not tell.
 */
QString fileOfAddress(const void *address);

/**
 * A style object of its own that draws standard push buttons as the platform does.
 *
 * Where the platform has no native style it is Fusion, whose light, thin-lined buttons look at home in the house
 * palette. Never null.
 */
std::unique_ptr<QStyle> createNativeStyle();

/**
 * Lets the window system move the widget's window with the pointer until the mouse button goes up. For a handler of a
 * press of the left button; the widget that was pressed is told of a release soon after, whether the button is up or
 * not.
 *
 * False when the window system cannot do that, or the window was never shown: nothing moves then.
 */
bool startWindowDrag(const QWidget *widget);

/**
 * Places a window, in its maximum size, at the top left corner of its screen, beside the bars that the system keeps
 * there. It becomes no larger than the area that these leave.
 *
 * For frameless windows, which window managers maximize as they please: a splash screen often not at all. Does nothing
 * for a widget that is no window.
 */
void coverScreen(QWidget *window);

} // namespace Platform
