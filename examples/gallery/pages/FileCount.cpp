#include "FileCount.h"

#include <QDir>
#include <QStandardPaths>

namespace gallery {

namespace {

constexpr int stepInterval = 20; // milliseconds
constexpr int filesPerStep = 300;

} // namespace

FileCount::FileCount(QObject *parent)
    : QObject(parent), m_roots(QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
{
    connect(&m_timer, &QTimer::timeout, this, &FileCount::countSome);
}

void FileCount::start()
{
    m_timer.start(stepInterval);
}

void FileCount::cancel()
{
    if (m_timer.isActive())
        end();
}

bool FileCount::openNextRoot()
{
    if (m_roots.isEmpty())
        return false;
    m_files = std::make_unique<QDirIterator>(m_roots.takeFirst(), QDir::Files, QDirIterator::Subdirectories);
    return true;
}

void FileCount::countSome()
{
    for (int i = 0; i < filesPerStep; ++i) {
        while (m_files == nullptr || !m_files->hasNext()) {
            if (!openNextRoot()) {
                end();
                return;
            }
        }
        m_files->next();
        ++m_count;
    }
    Q_EMIT counted(m_count, QDir::toNativeSeparators(m_files->fileInfo().path()));
}

void FileCount::end()
{
    m_timer.stop();
    Q_EMIT ended();
}

} // namespace gallery
