#include "LookReport.h"
#include "helpers/HouseTest.h"

#include "CC4Styles/CC4StyleFactory.h"

#include <QApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

class tst_StylePlugin : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyRoadGivesTheSameLook_data();
    void everyRoadGivesTheSameLook();
    void worksInstalled();
};

namespace {

struct ProbeRun
{
    QString output;
    QString errors;
};

ProbeRun runProbe(const QString &root, const QStringList &arguments, const QString &overriding = QString())
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), QDir(root).filePath(QStringLiteral(PLUGINS)));
    if (!overriding.isEmpty())
        environment.insert(QStringLiteral("QT_STYLE_OVERRIDE"), overriding);
    QProcess probe;
    probe.setProcessEnvironment(environment);
    probe.start(QStringLiteral(STYLE_PROBE), arguments);
    probe.waitForFinished();
    return {QString::fromLocal8Bit(probe.readAllStandardOutput()),
            QString::fromLocal8Bit(probe.readAllStandardError())};
}

/** What the library's own style looks like in an application that takes it from the factory. */
QString expectedReport(CC4StyleFactory::Styles kind)
{
    CC4StyleFactory::getStyle(kind);
    const QString report = lookReport();
    CC4StyleFactory::releaseStyle(kind);
    return report;
}

} // namespace

void tst_StylePlugin::everyRoadGivesTheSameLook_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("overriding");
    const QString cc4 = QStringLiteral("cc4");
    const QString blue = QStringLiteral("cc4-blue");
    const int main = CC4StyleFactory::CC4Style;
    const int blueScroll = CC4StyleFactory::BlueScrollStyle;
    QTest::newRow("-style cc4") << main << QStringList{QStringLiteral("-style"), cc4} << QString();
    QTest::newRow("override cc4") << main << QStringList() << cc4;
    QTest::newRow("QStyleFactory CC4") << main << QStringList(cc4.toUpper()) << QString();
    QTest::newRow("-style cc4-blue") << blueScroll << QStringList{QStringLiteral("-style"), blue} << QString();
    QTest::newRow("override cc4-blue") << blueScroll << QStringList() << blue;
    QTest::newRow("QStyleFactory cc4-blue") << blueScroll << QStringList(blue) << QString();
}

void tst_StylePlugin::everyRoadGivesTheSameLook()
{
    QFETCH(int, kind);
    QFETCH(QStringList, arguments);
    QFETCH(QString, overriding);
    const ProbeRun run = runProbe(QStringLiteral(BUILD_DIR), arguments, overriding);
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.output, expectedReport(static_cast<CC4StyleFactory::Styles>(kind)));
}

void tst_StylePlugin::worksInstalled()
{
    const QTemporaryDir prefix;
    QProcess install;
    install.start(QStringLiteral(CMAKE_PROGRAM),
                  {QStringLiteral("--install"), QStringLiteral(BUILD_DIR), QStringLiteral("--prefix"), prefix.path()});
    QVERIFY(install.waitForFinished());
    QCOMPARE(install.exitCode(), 0);
    const ProbeRun run = runProbe(prefix.path(), {QStringLiteral("-style"), QStringLiteral("cc4")});
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.output, expectedReport(CC4StyleFactory::CC4Style));
}

HOUSE_TEST_MAIN(tst_StylePlugin)
#include "tst_StylePlugin.moc"
