// Style, window or application torn down while boxes, menus and lists are open: a process for each.
#include "helpers/HouseTest.h"

#include <QProcess>

class tst_Teardown : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingStumbles_data();
    void nothingStumbles();
    void withoutAPictureOfTheDesktop();

private:
    static QByteArray failureOf(const QString &open, const QString &end, const QString &platform = QString());
};

void tst_Teardown::nothingStumbles_data()
{
    QTest::addColumn<QString>("open");
    QTest::addColumn<QString>("end");
    for (const char *open : {"box", "owned-box", "menu", "button-menu", "list", "progress", "rainbow", "bar"})
        for (const char *end : {"quits", "exits", "style", "blue-style", "look", "window"}) {
            // What stands on the stack belongs to its function, not to the window.
            if (qstrcmp(open, "box") == 0 && qstrcmp(end, "window") == 0)
                continue;
            QTest::addRow("%s, %s", open, end) << QString::fromLatin1(open) << QString::fromLatin1(end);
        }
}

void tst_Teardown::nothingStumbles()
{
    QFETCH(QString, open);
    QFETCH(QString, end);
    QCOMPARE(failureOf(open, end), QByteArray());
}

// A window system that gives none, for the shadow of a message box.
void tst_Teardown::withoutAPictureOfTheDesktop()
{
    for (const char *open : {"box", "owned-box"})
        QCOMPARE(failureOf(QString::fromLatin1(open), QStringLiteral("quits"), QStringLiteral("minimal")),
                 QByteArray());
}

QByteArray tst_Teardown::failureOf(const QString &open, const QString &end, const QString &platform)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!platform.isEmpty())
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(PROBE), {open, end});
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return "failed: " + process.readAllStandardError();
    const QByteArray wanted = end == QLatin1String("exits") ? "open\n" : "open\nended\n";
    const QByteArray said = process.readAllStandardOutput();
    return said == wanted ? QByteArray() : "said: " + said;
}

HOUSE_TEST_MAIN(tst_Teardown)
#include "tst_Teardown.moc"
