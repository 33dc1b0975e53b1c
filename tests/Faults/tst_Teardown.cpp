// Style, window or application torn down while boxes, menus and lists are open: a process for each.
#include "helpers/HouseTest.h"

#include <QProcess>

class tst_Teardown : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingStumbles_data();
    void nothingStumbles();
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
    QProcess process;
    process.start(QStringLiteral(PROBE), {open, end});
    QVERIFY(process.waitForFinished());
    const QByteArray errors = process.readAllStandardError();
    QVERIFY2(process.exitStatus() == QProcess::NormalExit, errors.constData());
    QVERIFY2(process.exitCode() == 0, errors.constData());
    const QByteArray wanted = end == QLatin1String("exits") ? "open\n" : "open\nended\n";
    QCOMPARE(process.readAllStandardOutput(), wanted);
}

HOUSE_TEST_MAIN(tst_Teardown)
#include "tst_Teardown.moc"
