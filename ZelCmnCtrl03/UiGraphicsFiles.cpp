#include "UiGraphics.h"

#include "Platform/Platform.h"
#include "UiGraphicsBitmaps.h"
#include "include/qt_globals.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace {

// Pixels, far beyond any control. A file of some kilobytes may hold a bitmap that fills the memory.
constexpr int largestBitmapSide = 4096;

bool isOfSoundSize(const QSize &size)
{
    return size.width() <= largestBitmapSide && size.height() <= largestBitmapSide;
}

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

QString CUIGraphics::RetrieveFilePath(const QString &fileName)
{
    ZEL_UIG_DETAIL(QStringLiteral("ENTER - CUIGraphics::RetrieveFilePath(%1)").arg(fileName));
    if (fileName.isEmpty()) {
        ZEL_UIG_DETAIL(QStringLiteral("CUIGraphics::RetrieveFilePath : File Name is Empty"));
        return QString();
    }
    if (!m_sGraphicsDir.isEmpty()) {
        const QString common = m_sGraphicsDir + QLatin1Char('/');
        for (const QString &path : {common + m_sLanguage + QLatin1Char('/') + fileName, common + fileName}) {
            if (!QFile::exists(path))
                continue;
            ZEL_UIG_DETAIL(QStringLiteral("CUIGraphics::RetrieveFilePath : Graphics path found : %1").arg(path));
            return path;
        }
    }
    ZEL_UIG_DETAIL(
        QStringLiteral("CUIGraphics::RetrieveFilePath : ERROR : Graphics path not found for: %1").arg(fileName));
    return QString();
}

QString CUIGraphics::UIGGetImagePath(const QString &fileName)
{
    initializeUIG();
    ZEL_LOG_SCOPE_OF(zel::UiGraphics);
    const QString path = pathOfBitmap(fileName);
    if (!path.isEmpty())
        ZEL_UIG_DETAIL(path);
    return path;
}

QString CUIGraphics::pathOfBitmap(const QString &fileName)
{
    const QString path = RetrieveFilePath(fileName);
    if (path.isEmpty() && !fileName.isEmpty())
        m_use.missingBitmaps.insert(fileName);
    return path;
}

// Found out once per file: its header has to be read for that. Opening a pipe would wait for its writer.
bool CUIGraphics::mayLoad(const QString &path)
{
    const auto known = m_mayLoad.constFind(path);
    if (known != m_mayLoad.constEnd())
        return *known;
    const bool may = QFileInfo(path).isFile() && isOfSoundSize(QImageReader(path).size());
    m_mayLoad.insert(path, may);
    if (may)
        return true;
    m_use.unreadableBitmaps.insert(path);
    ZEL_LOG(
        zel::LogError, zel::UiGraphics,
        QStringLiteral("CUIGraphics::mayLoad : %1 is not loaded: it is no file, or more than %2 pixels wide or high")
            .arg(path)
            .arg(largestBitmapSide));
    return false;
}

QString CUIGraphics::pathToLoad(const QString &fileName)
{
    const QString path = pathOfBitmap(fileName);
    return !path.isEmpty() && mayLoad(path) ? path : QString();
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
    const QString path = CUIGraphics::pathToLoad(fileName);
    if (path.isEmpty())
        return QPixmap();
    const QString twin = devicePixelRatio > 1.0 ? doubleResolutionPath(path) : QString();
    if (!QFile::exists(twin) || !CUIGraphics::mayLoad(twin))
        return CUIGraphics::checked(QPixmap(path), path);
    QPixmap pixmap(twin);
    pixmap.setDevicePixelRatio(2.0); // also where Qt was told not to read it from the name
    return CUIGraphics::checked(pixmap, twin);
}

QImage UIGGetImage(const QString &fileName)
{
    CUIGraphics::initializeUIG();
    const QString path = CUIGraphics::pathToLoad(fileName);
    return path.isEmpty() ? QImage() : CUIGraphics::checked(QImage(path), path);
}

QIcon UIGGetIcon(const QString &fileName)
{
    CUIGraphics::initializeUIG();
    const QString path = CUIGraphics::pathToLoad(fileName);
    return path.isEmpty() ? QIcon() : QIcon(path);
}
