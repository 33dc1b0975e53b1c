#include "UiGraphics.h"

#include "UiGraphicsBitmaps.h"
#include "include/qt_globals.h"

#include <QDir>
#include <QImageReader>
#include <QPixmapCache>

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

// Asked before the file is decoded.
bool isTooLarge(const QImageReader &reader)
{
    const QSize size = reader.size();
    return !size.isValid() || size.width() > longestBitmapSide || size.height() > longestBitmapSide;
}

// As QPixmap(path) does it: a file that has not changed is decoded once, as long as QPixmapCache keeps it. This key
// takes a tenth of the time of Qt's own, which is made of dates and numbers in letters.
QPixmap loadedPixmap(const QString &path, const Platform::FileStamp &stamp, qreal ratio)
{
    const auto *stampText = reinterpret_cast<const QChar *>(&stamp); // its bytes: nobody reads this key
    const QString key = path + QLatin1Char('*') + QString::fromRawData(stampText, sizeof(stamp) / sizeof(QChar));
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    QImageReader reader(path);
    if (isTooLarge(reader))
        return pixmap;
    pixmap = QPixmap::fromImageReader(&reader);
    if (pixmap.isNull())
        return pixmap;
    if (ratio > 1.0)
        pixmap.setDevicePixelRatio(ratio); // also where Qt was told not to read it from the name
    QPixmapCache::insert(key, pixmap);
    return pixmap;
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

template <typename Picture>
Picture CUIGraphics::checked(const Picture &picture, const QString &path)
{
    if (picture.isNull())
        m_use.unreadableBitmaps.insert(path);
    return picture;
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
        if (stamp.exists())
            return CUIGraphics::checked(loadedPixmap(twin, stamp, 2.0), twin);
    }
    return CUIGraphics::checked(loadedPixmap(file.path, file.stamp, 1.0), file.path);
}

QImage UIGGetImage(const QString &fileName)
{
    CUIGraphics::initializeUIG();
    const QString path = CUIGraphics::findBitmap(fileName).path;
    if (path.isEmpty())
        return QImage();
    QImageReader reader(path);
    return CUIGraphics::checked(isTooLarge(reader) ? QImage() : reader.read(), path);
}

QIcon UIGGetIcon(const QString &fileName)
{
    CUIGraphics::initializeUIG();
    const QString path = CUIGraphics::findBitmap(fileName).path;
    return path.isEmpty() ? QIcon() : QIcon(path);
}
