// Whole processes, one after the other in turn: zel_first_paint_house, zel_first_paint_qt, and this program itself.
#include "Groups.h"

#include <QCoreApplication>
#include <QProcess>

namespace {

struct Taken
{
    double nanoseconds = 0;
    double kibibytes = 0;
};

// A process that fails gives zeros: the table shows them, and no ratio.
Taken runOnce(const QString &program, const QString &argument)
{
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + QLatin1Char('/') + program, {argument});
    process.waitForFinished();
    const QList<QByteArray> figures = process.readAllStandardOutput().simplified().split(' ');
    return {figures.value(0).toDouble(), figures.value(1).toDouble()};
}

Comparison registryStart(int rounds)
{
    Comparison start{QStringLiteral("start-up"),
                     QStringLiteral("the look registry"),
                     nanoseconds,
                     {{QStringLiteral("ours"), {}, {}}},
                     {}};
    for (int round = 0; round < rounds; ++round)
        start.contenders.front().samples.push_back(
            runOnce(QStringLiteral("zel_bench"), registryStartOption).nanoseconds);
    return start;
}

std::vector<Comparison> firstPaint(int rounds)
{
    const QString group = QStringLiteral("a process with a form of 40");
    Comparison time{
        group, QStringLiteral("CPU time to first painting"), nanoseconds, {}, {Promise::Difference, 3e6, {}}};
    Comparison memory{group, QStringLiteral("resident memory"), kibibytes, {}, {Promise::Difference, 3 * 1024, {}}};
    const std::vector<QString> styles = contendingStyles();
    for (const QString &style : styles) {
        time.contenders.push_back({style, {}, {}});
        memory.contenders.push_back({style, {}, {}});
    }
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < styles.size(); ++i) {
            const Taken taken = runOnce(
                i == 0 ? QStringLiteral("zel_first_paint_house") : QStringLiteral("zel_first_paint_qt"), styles[i]);
            time.contenders[i].samples.push_back(taken.nanoseconds);
            memory.contenders[i].samples.push_back(taken.kibibytes);
        }
    }
    return {time, memory};
}

} // namespace

std::vector<Comparison> wholeProcesses(int rounds)
{
    std::vector<Comparison> all = firstPaint(rounds);
    all.push_back(registryStart(rounds));
    return all;
}
