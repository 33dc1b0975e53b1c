// Reading of one bitmap that may be anything.
#pragma once

#include <QSize>
#include <QString>

class QImage;

namespace lookcheck {

enum class BitmapFault
{
    None,
    NoBitmap,  // nothing that Qt could draw
    Forbidden, // for this user
    TooLarge,  // for the library, by what it says of itself
    Unchecked, // a file so large that it was not read here
    Drawing    // an SVG, which Qt draws only where it has the plugin
};

/** What a file turned out to be. */
struct BitmapFile
{
    QSize size; // invalid where there is a fault
    BitmapFault fault = BitmapFault::None;
    QString error; // the fault in words
};

/** Reads the file once, whole, unless it is too large. `image` may be null. */
BitmapFile readBitmap(const QString &path, QImage *image = nullptr);

} // namespace lookcheck
