// The programs that measure, each run for a moment. Only what does not depend on the machine is looked at.
#include "helpers/HouseTest.h"

#include "CommandLine.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

namespace {

constexpr int runLimit = 60 * 1000; // milliseconds
const QString bench = QStringLiteral(BENCH);
const QString animations = QStringLiteral(ANIMATIONS);

/** One run of a program to its end. */
struct Run
{
    Run(const QString &program, const QStringList &arguments,
        const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(program, arguments);
        const bool hasEnded = process.waitForFinished(runLimit) && process.exitStatus() == QProcess::NormalExit;
        status = hasEnded ? process.exitCode() : -1;
        output = process.readAllStandardOutput();
        errors = process.readAllStandardError();
    }

    /** The comparisons that it has told; none where anything but JSON is in the output. */
    QJsonArray comparisons() const
    {
        return QJsonDocument::fromJson(output).object()[QStringLiteral("comparisons")].toArray();
    }

    int status = -1;
    QByteArray output;
    QByteArray errors;
};

/** zel_bench among programs that tell what a test wants of them. */
class Stage
{
public:
    Stage() { QVERIFY(QFile::copy(bench, path("zel_bench"))); }

    void put(const char *name, const QByteArray &commands) const
    {
        QFile script(path(name));
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\n" + commands + '\n');
        QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    Run run() const
    {
        return Run(path("zel_bench"), {QStringLiteral("--rounds"), QStringLiteral("1"), QStringLiteral("--only"),
                                       QStringLiteral("a process"), QStringLiteral("--json")});
    }

private:
    QString path(const char *name) const { return m_directory.filePath(QString::fromLatin1(name)); }

    QTemporaryDir m_directory;
};

} // namespace

class tst_BenchmarkPrograms : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void paintingIsMeasured();
    void promiseOfBeingAheadIsTold();
    void nothingChosenIsAnError_data();
    void nothingChosenIsAnError();
    void namesAreListed();
    void firstPaintTellsTimeAndMemory_data();
    void firstPaintTellsTimeAndMemory();
    void unknownStyleFails();
    void processesAreJudged_data();
    void processesAreJudged();
    void animationRuns();
    void standingStripFails();
};

void tst_BenchmarkPrograms::paintingIsMeasured()
{
    const Run run(bench, {QStringLiteral("--rounds"), QStringLiteral("1"), QStringLiteral("--only"),
                          QStringLiteral("limits of painting"), QStringLiteral("--json")});
    QCOMPARE(run.status, int(AllKept)); // nothing is promised of these
    QCOMPARE(run.comparisons().size(), 1);
    const QJsonArray contenders = run.comparisons().at(0)[QStringLiteral("contenders")].toArray();
    QCOMPARE(contenders.size(), 4);
    for (const QJsonValue &contender : contenders)
        QVERIFY(contender[QStringLiteral("median")].toDouble() > 0);
    QVERIFY(contenders.at(1)[QStringLiteral("ratio")].toDouble() > 1);
}

void tst_BenchmarkPrograms::promiseOfBeingAheadIsTold()
{
    const QStringList arguments{QStringLiteral("--rounds"), QStringLiteral("1"), QStringLiteral("--only"),
                                QStringLiteral("painting: form of 40")};
    const Run asJson(bench, arguments + QStringList{QStringLiteral("--json")});
    QCOMPARE(asJson.comparisons().size(), 1); // and not the one with the cache cleared
    const QJsonObject form = asJson.comparisons().at(0).toObject();
    QCOMPARE(form[QStringLiteral("aheadOf")].toArray().at(0).toString(), QStringLiteral("Windows"));
    for (const char *promise : {"aheadKept", "limitKept", "kept"})
        QVERIFY2(form[QLatin1String(promise)].isBool(), promise);
    QCOMPARE(form[QStringLiteral("kept")].toBool(),
             form[QStringLiteral("aheadKept")].toBool() && form[QStringLiteral("limitKept")].toBool());
    const Run asTable(bench, arguments);
    QVERIFY2(asTable.output.contains("; 1 to Windows"), asTable.output.constData());
}

void tst_BenchmarkPrograms::nothingChosenIsAnError_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("no such name") << bench << QStringList{QStringLiteral("--only"), QStringLiteral("nobody")};
    QTest::newRow("no such contender") << bench
                                       << QStringList{QStringLiteral("--only"), QStringLiteral("limits"),
                                                      QStringLiteral("--alone"), QStringLiteral("nobody")};
    QTest::newRow("no such animation") << animations << QStringList{QStringLiteral("--only"), QStringLiteral("nobody")};
}

void tst_BenchmarkPrograms::nothingChosenIsAnError()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    const Run run(program, arguments);
    QCOMPARE(run.status, int(WrongArguments));
    QVERIFY2(run.errors.contains("'nobody'"), run.errors.constData());
    QCOMPARE(run.output, QByteArray());
}

void tst_BenchmarkPrograms::namesAreListed()
{
    const Run run(bench, {QStringLiteral("--list"), QStringLiteral("--only"), QStringLiteral("push button, flat")});
    QCOMPARE(run.status, int(AllKept));
    QCOMPARE(run.output, QByteArray("painting: push button, flat\npainting, cache cleared: push button, flat\n"));
}

void tst_BenchmarkPrograms::firstPaintTellsTimeAndMemory_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("ours") << QStringLiteral(FIRST_PAINT_HOUSE) << QStringList();
    QTest::newRow("Fusion") << QStringLiteral(FIRST_PAINT_QT) << QStringList{QStringLiteral("Fusion")};
    QTest::newRow("Windows") << QStringLiteral(FIRST_PAINT_QT) << QStringList{QStringLiteral("Windows")};
}

void tst_BenchmarkPrograms::firstPaintTellsTimeAndMemory()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    const Run run(program, arguments);
    QCOMPARE(run.status, 0);
    const QList<QByteArray> figures = run.output.simplified().split(' ');
    QCOMPARE(figures.size(), 2);
    for (const QByteArray &figure : figures)
        QVERIFY2(figure.toLongLong() > 0, run.output.constData());
}

void tst_BenchmarkPrograms::unknownStyleFails()
{
    const Run run(QStringLiteral(FIRST_PAINT_QT), {QStringLiteral("no style has this name")});
    QCOMPARE(run.status, 1);
    QCOMPARE(run.output, QByteArray());
}

void tst_BenchmarkPrograms::processesAreJudged_data()
{
    QTest::addColumn<QByteArray>("house");
    QTest::addColumn<QByteArray>("qt");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("complaint");
    const QByteArray good = "echo 20000000 30000";
    const QByteArray heavy = "echo 29000000 30000";
    QTest::newRow("both alike") << good << good << int(AllKept) << QByteArray();
    QTest::newRow("ours takes too long") << heavy << good << int(NotKept) << QByteArray();
    QTest::newRow("ours tells nothing") << QByteArray("true") << good << int(NotKept)
                                        << QByteArray("zel_first_paint_house ours failed: exit status 0");
    QTest::newRow("ours fails at the end")
        << good + "; exit 3" << good << int(NotKept) << QByteArray("zel_first_paint_house ours failed: exit status 3");
    QTest::newRow("ours crashes") << good + "; kill -SEGV $$" << good << int(NotKept)
                                  << QByteArray("zel_first_paint_house ours failed: Process crashed");
    QTest::newRow("no memory is told") << QByteArray("echo 20000000") << good << int(NotKept)
                                       << QByteArray("zel_first_paint_house ours failed");
    QTest::newRow("both tell nothing") << QByteArray("true") << QByteArray("true") << int(NotKept)
                                       << QByteArray("zel_first_paint_qt Fusion failed");
    QTest::newRow("the last peer fails") << good << QByteArray("[ $1 = Windows ] || " + good) << int(NotKept)
                                         << QByteArray("zel_first_paint_qt Windows failed");
}

void tst_BenchmarkPrograms::processesAreJudged()
{
    QFETCH(QByteArray, house);
    QFETCH(QByteArray, qt);
    QFETCH(int, status);
    QFETCH(QByteArray, complaint);
    const Stage stage;
    stage.put("zel_first_paint_house", house);
    stage.put("zel_first_paint_qt", qt);
    const Run run = stage.run();
    QVERIFY2(run.errors.contains(complaint), run.errors.constData());
    QCOMPARE(run.errors.contains("failed"), !complaint.isEmpty());
    QCOMPARE(run.status, status);
    QCOMPARE(run.comparisons().size(), 2);
}

void tst_BenchmarkPrograms::animationRuns()
{
    // The slowest: it paints four times, which any machine has the time for.
    const Run run(animations, {QStringLiteral("--seconds"), QStringLiteral("1.4"), QStringLiteral("--only"),
                               QStringLiteral("CButtonEx, default"), QStringLiteral("--json")});
    QVERIFY2(run.status == AllKept, run.errors.constData());
    QCOMPARE(run.comparisons().size(), 1);
    const QJsonArray contenders = run.comparisons().at(0)[QStringLiteral("contenders")].toArray();
    QCOMPARE(contenders.size(), 2);
    for (const QJsonValue &contender : contenders)
        QVERIFY(contender[QStringLiteral("median")].toDouble() > 0);
}

// Without its picture the strip has nothing to move.
void tst_BenchmarkPrograms::standingStripFails()
{
    const QTemporaryDir empty;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ZEL_GRAPHICS_DIR"), empty.path());
    const Run run(animations,
                  {QStringLiteral("--seconds"), QStringLiteral("1.4"), QStringLiteral("--only"),
                   QStringLiteral("CRainbowProgressDialog"), QStringLiteral("--json")},
                  environment);
    QCOMPARE(run.status, int(NotKept));
    QVERIFY2(run.errors.contains("CRainbowProgressDialog: ours failed: painted 0 times"), run.errors.constData());
    const QJsonArray contenders = run.comparisons().at(0)[QStringLiteral("contenders")].toArray();
    QVERIFY(contenders.at(0)[QStringLiteral("median")].isNull());
}

HOUSE_TEST_MAIN(tst_BenchmarkPrograms)
#include "tst_BenchmarkPrograms.moc"
