#include "Sheet.h"

#include "GalleryRun.h"
#include "Look.h"
#include "SheetHtml.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QTemporaryDir>

namespace lookcheck {

namespace {

constexpr int highDensity = 2; // screen pixels per pixel

/** Where the gallery has put its pictures: of one look, in both densities. */
struct Pictures
{
    explicit Pictures(const QString &directory)
        : single(directory + QLatin1String("/1x")), twin(directory + QLatin1String("/2x"))
    {}

    QString single;
    QString twin;
};

QString textOf(const QJsonValue &entry, const char *key)
{
    return entry.toObject().value(QLatin1String(key)).toString();
}

QString captionOf(const QJsonValue &entry)
{
    QStringList parts{textOf(entry, "row"), textOf(entry, "column")};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(": "));
}

QString fileIn(const QString &directory, const QString &name)
{
    const QString path = QStringLiteral("%1/%2.png").arg(directory, name);
    return QFileInfo::exists(path) ? path : QString();
}

bool differ(const QImage &before, const QImage &after)
{
    return before.size() != after.size() ||
           before.convertToFormat(QImage::Format_ARGB32) != after.convertToFormat(QImage::Format_ARGB32);
}

PicturePair pairOf(const QJsonValue &entry, const Pictures &before, const Pictures &after)
{
    const QString name = textOf(entry, "name");
    PicturePair pair{textOf(entry, "page"),       textOf(entry, "group"),     captionOf(entry),
                     fileIn(before.single, name), fileIn(after.single, name), QSize(),
                     Difference::Anywhere};
    const QImage old(pair.before);
    const QImage now(pair.after);
    pair.size = old.size().expandedTo(now.size());
    if (differ(old, now))
        return pair;
    const bool differsDensely = differ(QImage(fileIn(before.twin, name)), QImage(fileIn(after.twin, name)));
    pair.difference = differsDensely ? Difference::HighDensity : Difference::None;
    if (differsDensely) {
        pair.before = fileIn(before.twin, name);
        pair.after = fileIn(after.twin, name);
    }
    return pair;
}

// The gallery tells the captions of its pictures, in its own order.
QJsonArray entriesOf(const Pictures &pictures)
{
    QFile list(pictures.single + QLatin1String("/pictures.json"));
    return list.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(list.readAll()).array() : QJsonArray();
}

QString takePictures(const QString &program, const Look &look, const QString &directory, const Pictures &pictures,
                     const QString &scratch)
{
    const QString error = runGallery(program, {directory, look.language(), 1, pictures.single}, scratch);
    return error.isEmpty() ? runGallery(program, {directory, look.language(), highDensity, pictures.twin}, scratch)
                           : error;
}

} // namespace

QStringList faultsOfFiles(const Look &look)
{
    QStringList faults;
    for (const OverridesFile &file : look.overridesFiles()) {
        const int line = file.overrides.errorLine;
        const QString place = line > 0 ? QStringLiteral("%1:%2").arg(file.path, QString::number(line)) : file.path;
        if (file.overrides.fault != LookFileFault::None)
            faults.append(QStringLiteral("%1: The file has no effect at all: %2").arg(place, file.overrides.error));
    }
    return faults;
}

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
    const Pictures before(scratch.filePath(QStringLiteral("before")));
    const Pictures after(scratch.filePath(QStringLiteral("after")));
    const QString state = scratch.filePath(QStringLiteral("state"));
    const QString directory = QDir::current().absoluteFilePath(look.directory());
    QString error = takePictures(program, look, installedArtwork(), before, state);
    if (error.isEmpty())
        error = takePictures(program, look, directory, after, state);
    if (!error.isEmpty())
        return error;
    SheetContent content{QDir::cleanPath(directory), faultsOfFiles(look), {}};
    const QJsonArray entries = entriesOf(after);
    for (const auto &entry : entries)
        content.pairs.append(pairOf(entry, before, after));
    if (content.pairs.isEmpty())
        return QStringLiteral("The gallery '%1' has made no pictures.").arg(program);
    QSaveFile page(file);
    if (!page.open(QIODevice::WriteOnly) || !writeSheetHtml(&page, content) || !page.commit())
        return QStringLiteral("Cannot write '%1': %2").arg(file, page.errorString());
    return QString();
}

} // namespace lookcheck
