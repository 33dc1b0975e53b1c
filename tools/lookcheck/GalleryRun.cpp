#include "GalleryRun.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>

namespace lookcheck {

namespace {

constexpr int longestRun = 5 * 60 * 1000; // milliseconds; it takes a few seconds
constexpr int longestMessage = 500;

QProcessEnvironment environmentOf(const GalleryRun &run, const QString &scratch)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ZEL_GRAPHICS_DIR"), run.graphicsDirectory);
    environment.insert(QStringLiteral("ZEL_LANGUAGE"), run.language.isEmpty() ? QStringLiteral("en") : run.language);
    environment.insert(QStringLiteral("XDG_STATE_HOME"), scratch);
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::number(run.scale));
    for (const char *name : {"QT_STYLE_OVERRIDE", "ZEL_LOG", "ZEL_LOG_FILE"})
        environment.remove(QLatin1String(name));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    return environment;
}

} // namespace

QString galleryBesideProgram()
{
    return QStandardPaths::findExecutable(QStringLiteral("zel_gallery"), {QCoreApplication::applicationDirPath()});
}

QString installedArtwork()
{
    return QDir::cleanPath(QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral(LOOKCHECK_ARTWORK)));
}

QString runGallery(const QString &program, const GalleryRun &run, const QString &scratch)
{
    QProcess gallery;
    gallery.setProcessEnvironment(environmentOf(run, scratch));
    gallery.setStandardOutputFile(QProcess::nullDevice());
    gallery.start(program, {QStringLiteral("--pictures"), run.picturesDirectory});
    if (!gallery.waitForStarted())
        return QStringLiteral("The gallery '%1' does not start: %2").arg(program, gallery.errorString());
    if (!gallery.waitForFinished(longestRun)) {
        gallery.kill();
        gallery.waitForFinished();
        return QStringLiteral("The gallery does not come to an end.");
    }
    if (gallery.exitStatus() == QProcess::NormalExit && gallery.exitCode() == 0)
        return QString();
    return QStringLiteral("The gallery fails over '%1': %2")
        .arg(run.graphicsDirectory,
             QString::fromLocal8Bit(gallery.readAllStandardError()).right(longestMessage).trimmed());
}

} // namespace lookcheck
