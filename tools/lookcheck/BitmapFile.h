// Reading of one bitmap that may be anything.
#pragma once

#include <QSize>
#include <QString>

class QImage;

namespace lookcheck {

/** What a file turned out to be. */
struct BitmapFile
{
    QSize size;              // invalid when the file is no bitmap that can be used
    QString error;           // why; empty for a good one
    bool isTooLarge = false; // by what it says of itself: it was not read
};

/** Reads the file once, whole, unless it is too large. `image` may be null. */
BitmapFile readBitmap(const QString &path, QImage *image = nullptr);

} // namespace lookcheck
