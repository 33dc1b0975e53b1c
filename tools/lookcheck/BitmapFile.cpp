#include "BitmapFile.h"

#include "UiGraphicsBitmaps.h"

#include <QFileInfo>
#include <QImage>
#include <QImageReader>

#include <utility>

namespace lookcheck {

namespace {

// Far beyond any bitmap of a control.
constexpr qint64 largestFile = qint64(16) * 1024 * 1024;

BitmapFile failed(const QString &error)
{
    BitmapFile file;
    file.error = error;
    return file;
}

BitmapFile tooLarge(const QString &error)
{
    BitmapFile file = failed(error);
    file.isTooLarge = true;
    return file;
}

} // namespace

BitmapFile readBitmap(const QString &path, QImage *image)
{
    const QFileInfo info(path);
    if (!info.isFile())
        return failed(QStringLiteral("This is no file."));
    if (!info.isReadable())
        return failed(QStringLiteral("This user may not read the file."));
    if (info.size() > largestFile)
        return tooLarge(QStringLiteral("The file is larger than 16 megabytes."));
    QImageReader reader(path);
    if (reader.format().startsWith("svg"))
        return failed(QStringLiteral("This is a drawing, not a bitmap."));
    const QSize size = reader.size();
    if (size.width() > longestBitmapSide || size.height() > longestBitmapSide)
        return tooLarge(QStringLiteral("The bitmap is %1 x %2 pixels; no control is that large.")
                            .arg(size.width())
                            .arg(size.height()));
    QImage read = size.isValid() ? reader.read() : QImage();
    if (read.isNull())
        return failed(QStringLiteral("The file is no bitmap, or is damaged."));
    BitmapFile file;
    file.size = read.size();
    if (image != nullptr)
        *image = std::move(read);
    return file;
}

} // namespace lookcheck
