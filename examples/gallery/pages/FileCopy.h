#pragma once

#include <QObject>
#include <QString>
#include <QTemporaryDir>
#include <QTimer>

namespace gallery {

/**
 * A real piece of work: temporary files, and copies of all of them, one at each step of a timer. Everything goes with
 * the object.
 */
class FileCopy : public QObject
{
    Q_OBJECT

public:
    FileCopy(int fileCount, QObject *parent);

    /** Makes the files and begins. False, with nothing begun, when the disk does not take them. */
    bool start();
    /** Stops after the present file. Does nothing once the work has ended. */
    void cancel();

    int fileCount() const { return m_fileCount; }
    int copiedCount() const { return m_copiedCount; }

Q_SIGNALS:
    void copied(const QString &name, int count);
    /** Fires once: with all files copied, or before that after cancel() or a failure. */
    void ended();

private:
    void copyNext();
    void end();

    int m_fileCount;
    int m_copiedCount = 0;
    QTemporaryDir m_directory;
    QTimer m_timer;
};

} // namespace gallery
