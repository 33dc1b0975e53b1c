#pragma once

#include <QDirIterator>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <memory>

namespace gallery {

/** Work of open-ended length: counts the files in the shared data of this computer, some at each step of a timer. */
class FileCount : public QObject
{
    Q_OBJECT

public:
    explicit FileCount(QObject *parent);

    void start();
    /** Stops where it is. Does nothing once the work has ended. */
    void cancel();
    int count() const { return m_count; }

Q_SIGNALS:
    void counted(int count, const QString &directory);
    /** Fires once: after the last file, or after cancel(). */
    void ended();

private:
    bool openNextRoot();
    void countSome();
    void end();

    QStringList m_roots;
    std::unique_ptr<QDirIterator> m_files;
    int m_count = 0;
    QTimer m_timer;
};

} // namespace gallery
