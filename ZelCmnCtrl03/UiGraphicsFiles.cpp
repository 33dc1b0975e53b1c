#include "UiGraphics.h"

#include "UiGraphicsBitmaps.h"
#include "include/qt_globals.h"

#include <QDir>
#include <QImageReader>
#include <QPixmapCache>

#include <cstring>
#include <iterator>
#include <utility>

namespace {

QString withDisplayNames(const QString &path, QChar separator)
{
    // The first section, the drive or the root, is not translated.
    QString localized = path.section(separator, 0, 0) + separator;
    const int last = static_cast<int>(path.count(separator));
    for (int i = 1; i <= last; ++i) {
        const QString name = Platform::displayName(path.section(separator, 0, i));
        if (name.isEmpty()) {
            ZEL_LOG(zel::LogError, zel::UiGraphics,
                    QStringLiteral("CUIGraphics::UIGetLocalizedPath - Error while retriving the localized path"));
            continue;
        }
        if (!localized.endsWith(separator))
            localized += separator;
        localized += name;
    }
    return localized;
}

} // namespace

CUIGraphics::FoundFile CUIGraphics::findFile(const QString &fileName)
{
    ZEL_UIG_DETAIL(QStringLiteral("ENTER - CUIGraphics::RetrieveFilePath(%1)").arg(fileName));
    if (fileName.isEmpty()) {
        ZEL_UIG_DETAIL(QStringLiteral("CUIGraphics::RetrieveFilePath : File Name is Empty"));
        return {};
    }
    for (const QString &dir : std::as_const(m_searchedDirs)) {
        const QString path = dir + fileName;
        const Platform::FileStamp stamp = Platform::fileStamp(path);
        if (!stamp.exists())
            continue;
        ZEL_UIG_DETAIL(QStringLiteral("CUIGraphics::RetrieveFilePath : Graphics path found : %1").arg(path));
        return {path, stamp};
    }
    ZEL_UIG_DETAIL(
        QStringLiteral("CUIGraphics::RetrieveFilePath : ERROR : Graphics path not found for: %1").arg(fileName));
    return {};
}

QString CUIGraphics::RetrieveFilePath(const QString &fileName)
{
    return findFile(fileName).path;
}

QString CUIGraphics::UIGGetImagePath(const QString &fileName)
{
    initializeUIG();
    ZEL_LOG_SCOPE_OF(zel::UiGraphics);
    const QString path = findBitmap(fileName).path;
    if (!path.isEmpty())
        ZEL_UIG_DETAIL(path);
    return path;
}

CUIGraphics::FoundFile CUIGraphics::findBitmap(const QString &fileName)
{
    FoundFile file = findFile(fileName);
    if (file.path.isEmpty() && !fileName.isEmpty())
        m_use.missingBitmaps.insert(fileName);
    return file;
}

// Asked before anything is decoded. Opening a pipe would wait for its writer, and a file of some kilobytes may hold a
// bitmap that fills the memory.
bool CUIGraphics::mayLoad(const FoundFile &file, const QImageReader &reader)
{
    const QSize size = file.stamp.isFile ? reader.size() : QSize();
    const bool isTooLarge = size.width() > largestBitmapSide || size.height() > largestBitmapSide;
    if (size.isValid() && !isTooLarge)
        return true;
    const bool isNews = !m_use.unreadableBitmaps.contains(file.path); // and no record for every painting
    m_use.unreadableBitmaps.insert(file.path);
    if (isNews && (isTooLarge || !file.stamp.isFile))
        ZEL_LOG(zel::LogError, zel::UiGraphics,
                QStringLiteral(
                    "CUIGraphics::mayLoad : %1 is not loaded: it is no file, or more than %2 pixels wide or high")
                    .arg(file.path)
                    .arg(largestBitmapSide));
    return false;
}

template <typename Picture>
Picture CUIGraphics::checked(const Picture &picture, const QString &path)
{
    if (picture.isNull())
        m_use.unreadableBitmaps.insert(path);
    return picture;
}

// As QPixmap(path) does it: a file that has not changed is decoded once, as long as QPixmapCache keeps it. This key
// takes a tenth of the time of Qt's own, which is made of dates and numbers in letters.
QPixmap CUIGraphics::loadedPixmap(const FoundFile &file, qreal ratio)
{
    const qint64 stamp[] = {file.stamp.written, file.stamp.size};
    QChar stampText[2 * sizeof(qint64) / sizeof(QChar)]; // nobody reads this key
    static_assert(sizeof(stampText) == sizeof(stamp));
    std::memcpy(static_cast<void *>(stampText), stamp, sizeof(stamp));
    const QString key = file.path + QLatin1Char('*') + QString::fromRawData(stampText, int(std::size(stampText)));
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    QImageReader reader(file.path);
    if (!mayLoad(file, reader))
        return pixmap;
    pixmap = checked(QPixmap::fromImageReader(&reader), file.path);
    if (pixmap.isNull())
        return pixmap;
    if (ratio > 1.0)
        pixmap.setDevicePixelRatio(ratio); // also where Qt was told not to read it from the name
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

QString CUIGraphics::UIGetLocalizedPath(const QString &nonLocalizedPath)
{
    ZEL_LOG_SCOPE_OF(zel::UiGraphics);
    if (nonLocalizedPath.trimmed().isEmpty()) {
        ZEL_UIG_DETAIL(QStringLiteral("CUIGraphics::UIGetLocalizedPath : nonLocalizedPath is Empty"));
        return QString();
    }
    const QChar separator = QDir::separator();
    QString path = QDir::toNativeSeparators(nonLocalizedPath);
    if (path.endsWith(separator))
        path.chop(1);

    try {
        return withDisplayNames(path, separator);
    } catch (...) {
        ZEL_LOG(zel::LogException, zel::UiGraphics,
                QStringLiteral("CUIGraphics::UIGetLocalizedPath - Exception while retriving the localized path"));
        return QString();
    }
}

QPixmap UIGGetPixmap(const QString &fileName, qreal devicePixelRatio)
{
    CUIGraphics::initializeUIG();
    const CUIGraphics::FoundFile file = CUIGraphics::findBitmap(fileName);
    if (file.path.isEmpty())
        return QPixmap();
    if (devicePixelRatio > 1.0) {
        const QString twin = doubleResolutionPath(file.path);
        const Platform::FileStamp stamp = Platform::fileStamp(twin);
        const QPixmap pixmap = stamp.exists() ? CUIGraphics::loadedPixmap({twin, stamp}, 2.0) : QPixmap();
        if (!pixmap.isNull())
            return pixmap;
    }
    return CUIGraphics::loadedPixmap(file, 1.0);
}

QImage UIGGetImage(const QString &fileName)
{
    CUIGraphics::initializeUIG();
    const CUIGraphics::FoundFile file = CUIGraphics::findBitmap(fileName);
    QImageReader reader(file.path);
    if (file.path.isEmpty() || !CUIGraphics::mayLoad(file, reader))
        return QImage();
    return CUIGraphics::checked(reader.read(), file.path);
}

QIcon UIGGetIcon(const QString &fileName)
{
    CUIGraphics::initializeUIG();
    const CUIGraphics::FoundFile file = CUIGraphics::findBitmap(fileName);
    if (file.path.isEmpty() || !CUIGraphics::mayLoad(file, QImageReader(file.path)))
        return QIcon();
    // An icon that is made from a path takes the twin along.
    const QString twin = doubleResolutionPath(file.path);
    const Platform::FileStamp stamp = Platform::fileStamp(twin);
    if (stamp.exists() && !CUIGraphics::mayLoad({twin, stamp}, QImageReader(twin)))
        return CUIGraphics::loadedPixmap(file, 1.0);
    return QIcon(file.path);
}
