#include "Sheet.h"

#include "GalleryRun.h"
#include "Look.h"
#include "SheetHtml.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QSaveFile>
#include <QTemporaryDir>

#include <utility>

namespace lookcheck {

namespace {

QStringList picturesIn(const QString &directory)
{
    return QDir(directory).entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
}

QVector<PicturePair> pairsOf(const QString &before, const QString &after)
{
    QStringList names = picturesIn(before) + picturesIn(after);
    names.removeDuplicates();
    QVector<PicturePair> pairs;
    for (const QString &name : std::as_const(names)) {
        const QString beforePath = before + QLatin1Char('/') + name;
        const QString afterPath = after + QLatin1Char('/') + name;
        PicturePair pair{QFileInfo(name).completeBaseName(), beforePath, afterPath, true};
        if (!QFileInfo::exists(beforePath))
            pair.before.clear();
        else if (!QFileInfo::exists(afterPath))
            pair.after.clear();
        else
            pair.differs = QImage(beforePath) != QImage(afterPath);
        pairs.append(pair);
    }
    return pairs;
}

} // namespace

QString writeSheet(const Look &look, const QString &file, const QString &gallery)
{
    const QString program = gallery.isEmpty() ? galleryBesideProgram() : gallery;
    if (program.isEmpty())
        return QStringLiteral("There is no zel_gallery beside this program. Name one with --gallery.");
    if (!QFileInfo(installedArtwork()).isDir())
        return QStringLiteral("There is no built-in artwork at '%1' to compare with.").arg(installedArtwork());
    const QTemporaryDir scratch;
    if (!scratch.isValid())
        return QStringLiteral("No temporary directory: %1").arg(scratch.errorString());
    const QString before = scratch.filePath(QStringLiteral("before"));
    const QString after = scratch.filePath(QStringLiteral("after"));
    const QString directory = QDir::current().absoluteFilePath(look.directory());
    for (const GalleryRun &run :
         {GalleryRun{installedArtwork(), look.language(), before}, GalleryRun{directory, look.language(), after}}) {
        const QString error = runGallery(program, run, scratch.filePath(QStringLiteral("state")));
        if (!error.isEmpty())
            return error;
    }
    QSaveFile page(file);
    if (!page.open(QIODevice::WriteOnly) || !writeSheetHtml(&page, look.directory(), pairsOf(before, after)) ||
        !page.commit())
        return QStringLiteral("Cannot write '%1': %2").arg(file, page.errorString());
    return QString();
}

} // namespace lookcheck
