#include "BitmapFile.h"

#include "UiGraphicsBitmaps.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>

#include <utility>

namespace lookcheck {

namespace {

constexpr qint64 largestFile = qint64(16) * 1024 * 1024;

// Here, Qt may lack the plugin.
bool isSvg(const QString &path)
{
    constexpr qint64 beginning = 1024; // bytes; a prolog and comments may come first
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(beginning).contains("<svg");
}

BitmapFile failed(BitmapFault fault, const QString &error)
{
    BitmapFile file;
    file.fault = fault;
    file.error = error;
    return file;
}

} // namespace

BitmapFile readBitmap(const QString &path, QImage *image)
{
    const QFileInfo info(path);
    if (!info.isFile())
        return failed(BitmapFault::NoBitmap, QStringLiteral("This is no file."));
    if (!info.isReadable())
        return failed(BitmapFault::Forbidden, QStringLiteral("This user may not read the file."));
    if (info.size() > largestFile)
        return failed(BitmapFault::Unchecked, QStringLiteral("The file is larger than 16 megabytes."));
    QImageReader reader(path);
    if (reader.format().startsWith("svg") || (reader.format().isEmpty() && isSvg(path)))
        return failed(BitmapFault::Drawing, QStringLiteral("This is an SVG drawing."));
    const QSize size = reader.size();
    if (size.width() > largestBitmapSide || size.height() > largestBitmapSide)
        return failed(BitmapFault::TooLarge, QStringLiteral("The bitmap is %1 x %2 pixels; no control is that large.")
                                                 .arg(size.width())
                                                 .arg(size.height()));
    QImage read = size.isValid() ? reader.read() : QImage();
    if (read.isNull())
        return failed(BitmapFault::NoBitmap, QStringLiteral("The file is no bitmap, or is damaged."));
    BitmapFile file;
    file.size = read.size();
    if (image != nullptr)
        *image = std::move(read);
    return file;
}

} // namespace lookcheck
