// Whole processes, one after the other in turn: zel_first_paint_house, zel_first_paint_qt, and this program itself.
#include "Groups.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTextStream>

#include <cmath>

namespace {

// The figure of that number among those that a process prints. NaN where it fails, so that no promise looks kept.
double figureOf(const QString &program, const QString &argument, int number)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationDirPath() + QLatin1Char('/') + program, {argument});
    const bool hasEnded = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    const QByteArray output = process.readAllStandardOutput().simplified();
    const double figure = output.split(' ').value(number).toDouble();
    if (hasEnded && process.exitCode() == 0 && figure > 0)
        return figure;
    const QString end = hasEnded ? QStringLiteral("exit status %1").arg(process.exitCode()) : process.errorString();
    QTextStream(stderr) << QStringLiteral("%1 %2 failed: %3, and told \"%4\"\n")
                               .arg(program, argument, end, QString::fromLocal8Bit(output));
    return std::nan("");
}

Contender process(const QString &name, const QString &program, const QString &argument, int number)
{
    return {name,
            {},
            {},
            [=] {
                return figureOf(program, argument, number);
            }};
}

/** A figure of a process that shows a form, under each style. */
Comparison firstPaint(const QString &name, const QString &unit, int number, double limit)
{
    Comparison comparison{QStringLiteral("a process with a form of 40"), name, unit, {}, {}};
    comparison.promise = {Promise::Difference, limit, {}};
    QString program = QStringLiteral("zel_first_paint_house");
    for (const QString &style : contendingStyles()) {
        comparison.contenders.push_back(process(style, program, style, number));
        program = QStringLiteral("zel_first_paint_qt"); // all but the first
    }
    return comparison;
}

} // namespace

std::vector<Comparison> wholeProcesses()
{
    return {
        firstPaint(QStringLiteral("CPU time to first painting"), nanoseconds, 0, 3e6),
        firstPaint(QStringLiteral("resident memory"), kibibytes, 1, 3 * 1024),
        {QStringLiteral("start-up"),
         QStringLiteral("the look registry"),
         nanoseconds,
         {process(QStringLiteral("ours"), QStringLiteral("zel_bench"), registryStartOption, 0)},
         {}},
    };
}
