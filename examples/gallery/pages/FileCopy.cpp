#include "FileCopy.h"

#include <QDir>
#include <QFile>

namespace gallery {

namespace {

constexpr int fileBytes = 64 * 1024;
constexpr int stepInterval = 12; // milliseconds; slow enough to watch

const QString sourceDirectory = QStringLiteral("photos");
const QString targetDirectory = QStringLiteral("copies");

QString fileName(int number)
{
    return QStringLiteral("IMG_%1.jpg").arg(number, 4, 10, QLatin1Char('0'));
}

bool makeFile(const QString &path, char content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(QByteArray(fileBytes, content)) == fileBytes;
}

} // namespace

FileCopy::FileCopy(int fileCount, QObject *parent) : QObject(parent), m_fileCount(fileCount)
{
    connect(&m_timer, &QTimer::timeout, this, &FileCopy::copyNext);
}

bool FileCopy::start()
{
    const QDir directory(m_directory.path());
    if (!m_directory.isValid() || !directory.mkdir(sourceDirectory) || !directory.mkdir(targetDirectory))
        return false;
    for (int number = 1; number <= m_fileCount; ++number)
        if (!makeFile(directory.filePath(sourceDirectory + QLatin1Char('/') + fileName(number)), 'x'))
            return false;
    m_timer.start(stepInterval);
    return true;
}

void FileCopy::cancel()
{
    if (m_timer.isActive())
        end();
}

void FileCopy::copyNext()
{
    const QString name = fileName(m_copiedCount + 1);
    const QDir directory(m_directory.path());
    const QString place = QStringLiteral("%1/%2");
    if (!QFile::copy(directory.filePath(place.arg(sourceDirectory, name)),
                     directory.filePath(place.arg(targetDirectory, name)))) {
        end();
        return;
    }
    ++m_copiedCount;
    Q_EMIT copied(name, m_copiedCount);
    if (m_copiedCount == m_fileCount)
        end();
}

void FileCopy::end()
{
    m_timer.stop();
    Q_EMIT ended();
}

} // namespace gallery
