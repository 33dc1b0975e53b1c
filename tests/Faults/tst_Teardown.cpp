// Style, window or application torn down while boxes, menus and lists are open: a process for each.
#include "helpers/HouseTest.h"

#include <QProcess>

namespace {

// What the probe says when all goes well.
QByteArray saidAfter(const QByteArray &end)
{
    if (end == "exits")
        return "open\n";
    if (end == "quits")
        return "open\nended\n";
    return end == "window" ? "open\nnothing left\nended\n" : "open\nnew look\nended\n";
}

} // namespace

class tst_Teardown : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingStumbles_data();
    void nothingStumbles();
    void withoutAPictureOfTheDesktop();

private:
    /** What the probe says; how it failed, where it did. */
    static QByteArray saidBy(const QString &open, const QString &end, const QString &platform = QString());
};

void tst_Teardown::nothingStumbles_data()
{
    QTest::addColumn<QString>("open");
    QTest::addColumn<QString>("end");
    QTest::addColumn<QByteArray>("wanted");
    for (const char *open : {"box", "owned-box", "menu", "button-menu", "list", "progress", "rainbow", "bar"})
        for (const char *end : {"quits", "exits", "style", "blue-style", "look", "window"}) {
            // What stands on the stack belongs to its function, not to the window.
            if (qstrcmp(open, "box") == 0 && qstrcmp(end, "window") == 0)
                continue;
            QTest::addRow("%s, %s", open, end)
                << QString::fromLatin1(open) << QString::fromLatin1(end) << saidAfter(end);
        }
}

void tst_Teardown::nothingStumbles()
{
    QFETCH(QString, open);
    QFETCH(QString, end);
    QFETCH(QByteArray, wanted);
    QCOMPARE(saidBy(open, end), wanted);
}

// A window system that gives none, for the shadow of a message box: it lies on white.
void tst_Teardown::withoutAPictureOfTheDesktop()
{
    for (const char *open : {"box", "owned-box"})
        QCOMPARE(saidBy(QString::fromLatin1(open), QStringLiteral("shadow"), QStringLiteral("minimal")),
                 QByteArray("open\n#ffffffff\n#ff919191\nended\n"));
}

QByteArray tst_Teardown::saidBy(const QString &open, const QString &end, const QString &platform)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!platform.isEmpty())
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(PROBE), {open, end});
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return "failed: " + process.readAllStandardError();
    return process.readAllStandardOutput();
}

HOUSE_TEST_MAIN(tst_Teardown)
#include "tst_Teardown.moc"
