// A graphics directory for the registry's probe, and a run of it there.
#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QMap>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

/** A deployer's graphics directory, an installation's settings and one run of the probe in it. */
class Deployment
{
public:
    Deployment() { QDir().mkpath(graphics()); }

    QString graphics() const { return m_dir.filePath(QStringLiteral("graphics")); }
    QString logFile() const { return m_dir.filePath(QStringLiteral("log")); }
    QString home() const { return m_dir.path(); }

    void write(const QString &name, const QByteArray &content) const
    {
        const QString path = graphics() + QLatin1Char('/') + name;
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), qint64(content.size()));
    }

    void addBitmap(const QString &name, const QSize &size) const
    {
        const QString path = graphics() + QLatin1Char('/') + name;
        QDir().mkpath(QFileInfo(path).path());
        QImage image(size, QImage::Format_ARGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(path));
    }

    void set(const QString &variable, const QString &value) { m_variables.insert(variable, value); }

    /** The probe's answers in the order of the questions. */
    QStringList ask(const QStringList &questions, const QString &probe = QStringLiteral(PROBE)) const
    {
        QProcessEnvironment environment; // empty: nothing of the developer's machine reaches the probe
        for (const char *variable : {"QT_QPA_PLATFORM", "XDG_RUNTIME_DIR", "ASAN_OPTIONS", "LSAN_OPTIONS"})
            environment.insert(QLatin1String(variable), qEnvironmentVariable(variable));
        environment.insert(QStringLiteral("HOME"), home());
        environment.insert(QStringLiteral("ZEL_LANGUAGE"), QStringLiteral("en"));
        environment.insert(QStringLiteral("ZEL_GRAPHICS_DIR"), graphics());
        environment.insert(QStringLiteral("ZEL_LOG"), QStringLiteral("trace"));
        environment.insert(QStringLiteral("ZEL_LOG_FILE"), logFile());
        for (auto it = m_variables.begin(); it != m_variables.end(); ++it)
            environment.insert(it.key(), it.value());
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(probe, questions);
        constexpr int patience = 100000; // milliseconds; under the sanitizers the gallery takes its time
        if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit ||
            process.exitCode() != 0)
            return {QStringLiteral("probe failed: ") + QString::fromLocal8Bit(process.readAllStandardError())};
        QStringList answers;
        for (const QByteArray &line : process.readAllStandardOutput().trimmed().split('\n'))
            answers.append(QString::fromUtf8(line.mid(line.indexOf('=') + 1)));
        return answers;
    }

    QString log() const
    {
        QFile file(logFile());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private:
    QTemporaryDir m_dir;
    QMap<QString, QString> m_variables;
};
