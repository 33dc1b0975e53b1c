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

QStringList list(std::initializer_list<const char *> texts)
{
    QStringList all;
    for (const char *text : texts)
        all.append(QString::fromLatin1(text));
    return all;
}

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

    Run run() const { return Run(path("zel_bench"), list({"--rounds", "1", "--only", "a process", "--json"})); }

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
    void nothingChosenIsAnError();
    void namesAreListed();
    void firstPaintTellsTimeAndMemory();
    void processesAreJudged_data();
    void processesAreJudged();
    void animationRuns();
    void standingStripFails();
};

void tst_BenchmarkPrograms::paintingIsMeasured()
{
    const Run run(bench, list({"--rounds", "1", "--only", "limits of painting", "--json"}));
    QCOMPARE(run.status, int(AllKept)); // nothing is promised of these
    QCOMPARE(run.comparisons().size(), 1);
    const QJsonArray contenders = run.comparisons().at(0)[QStringLiteral("contenders")].toArray();
    QCOMPARE(contenders.size(), 4);
    for (const QJsonValue &contender : contenders)
        QVERIFY(contender[QStringLiteral("median")].toDouble() > 0);
    QVERIFY(contenders.at(1)[QStringLiteral("ratio")].toDouble() > 1);
}

void tst_BenchmarkPrograms::nothingChosenIsAnError()
{
    for (const Run &run :
         {Run(bench, list({"--only", "nobody"})), Run(bench, list({"--only", "limits", "--alone", "nobody"})),
          Run(animations, list({"--only", "nobody"}))}) {
        QCOMPARE(run.status, int(WrongArguments));
        QVERIFY2(run.errors.contains("'nobody'"), run.errors.constData());
        QCOMPARE(run.output, QByteArray());
    }
}

void tst_BenchmarkPrograms::namesAreListed()
{
    const Run run(bench, list({"--list", "--only", "push button, flat"}));
    QCOMPARE(run.status, int(AllKept));
    QCOMPARE(run.output, QByteArray("painting: push button, flat\npainting, cache cleared: push button, flat\n"));
}

void tst_BenchmarkPrograms::firstPaintTellsTimeAndMemory()
{
    for (const Run &run :
         {Run(QStringLiteral(FIRST_PAINT_HOUSE), {}), Run(QStringLiteral(FIRST_PAINT_QT), list({"Fusion"}))}) {
        QCOMPARE(run.status, 0);
        const QList<QByteArray> figures = run.output.simplified().split(' ');
        QCOMPARE(figures.size(), 2);
        for (const QByteArray &figure : figures)
            QVERIFY2(figure.toLongLong() > 0, run.output.constData());
    }
    const Run unknown(QStringLiteral(FIRST_PAINT_QT), list({"no style has this name"}));
    QCOMPARE(unknown.status, 1);
    QCOMPARE(unknown.output, QByteArray());
}

void tst_BenchmarkPrograms::processesAreJudged_data()
{
    QTest::addColumn<QByteArray>("house");
    QTest::addColumn<QByteArray>("qt");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("complaint");
    const QByteArray good = "echo 20000000 30000";
    const QByteArray heavy = "echo 29000000 30000";
    const QByteArray failed = "zel_first_paint_house ours failed: ";
    const auto row = [](const char *name, const QByteArray &house, const QByteArray &qt, const QByteArray &complaint) {
        QTest::newRow(name) << house << qt << int(NotKept) << complaint;
    };
    QTest::newRow("both alike") << good << good << int(AllKept) << QByteArray();
    row("ours takes too long", heavy, good, "");
    row("ours tells nothing", "true", good, failed + "exit status 0");
    row("ours fails at the end", good + "; exit 3", good, failed + "exit status 3");
    row("ours crashes", good + "; kill -SEGV $$", good, failed + "Process crashed");
    row("no memory is told", "echo 20000000", good, failed);
    row("the last peer fails", good, "[ $1 = Windows ] || " + good, "zel_first_paint_qt Windows failed");
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
    const Run run(animations, list({"--seconds", "1.4", "--only", "CButtonEx, default", "--json"}));
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
    const Run run(animations, list({"--seconds", "1.4", "--only", "CRainbowProgressDialog", "--json"}), environment);
    QCOMPARE(run.status, int(NotKept));
    QVERIFY2(run.errors.contains("CRainbowProgressDialog: ours failed: painted 0 times"), run.errors.constData());
    const QJsonArray contenders = run.comparisons().at(0)[QStringLiteral("contenders")].toArray();
    QVERIFY(contenders.at(0)[QStringLiteral("median")].isNull());
}

HOUSE_TEST_MAIN(tst_BenchmarkPrograms)
#include "tst_BenchmarkPrograms.moc"
