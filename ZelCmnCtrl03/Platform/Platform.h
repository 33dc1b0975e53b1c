// What the library needs of the operating system and the window system, said by purpose. Qt's own services come first;
// the source file beside this header is the only one that may ask for the operating system.
#pragma once

#include <QPixmap>
#include <QRect>
#include <QString>

#include <memory>

class QScreen;
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

/** What a file is, and what tells one content of it from another: when it was written last, in nanoseconds, and its
 * size in bytes. */
struct FileStamp
{
    qint64 written = 0;
    qint64 size = -1;
    bool isFile = false; // and no directory, pipe or device

    bool exists() const { return size >= 0; }
};

/** The stamp of a file or directory, if there is one; quick, because every painting that loads a bitmap asks for
 * several. */
FileStamp fileStamp(const QString &path);

/**
 * A style object of its own that draws standard push buttons as the platform does.
 *
 * Where the platform has no native style it is Fusion, whose light, thin-lined buttons look at home in the house
 * palette. Never null.
 */
std::unique_ptr<QStyle> createNativeStyle();

/**
 * What the user sees now in `area`, in global coordinates, in the finest density of the screens that it touches.
 *
 * Null where the window system gives no such picture. Parts beyond the screens are transparent.
 */
QPixmap pictureOfDesktop(const QRect &area);

/**
 * Lets the window system move the widget's window with the pointer until the mouse button goes up. For a handler of a
 * press of the left button; the widget that was pressed is told of a release soon after, whether the button is up or
 * not.
 *
 * False when the window system cannot do that, or the window was never shown: nothing moves then.
 */
bool startWindowDrag(const QWidget *widget);

/**
 * Lets the window move itself with the pointer until the left mouse button goes up: where the window system does not.
 * `pointer` is where that button was pressed, in global coordinates.
 */
void followPointer(QWidget *window, const QPoint &pointer);

/**
 * Places a window, in its maximum size, at the top left corner of its screen, beside the bars that the system keeps
 * there. It becomes no larger than the area that these leave.
 *
 * For frameless windows, which window managers maximize as they please: a splash screen often not at all. Does nothing
 * for a widget that is no window.
 */
void coverScreen(QWidget *window);

/**
 * The task bar or dock at the bottom edge of the screen, in global coordinates.
 *
 * Without one it is an empty strip just below the screen, so that its top is always where windows have to end.
 */
QRect taskBarRect(const QScreen &screen);

/** True when the task bar hides itself. Only Windows tells; false elsewhere. */
bool taskBarHidesItself();

} // namespace Platform
