// zel_bench: our painting, our controls and the look registry beside their peers.
#include "CommandLine.h"
#include "Groups.h"

#include <QApplication>
#include <QTextStream>

#include <algorithm>

namespace {

constexpr double sliceSeconds = 0.002;
constexpr int processRoundsPerRound = 3; // so many rounds of the others for one of whole processes

std::vector<Comparison> everything()
{
    std::vector<Comparison> all;
    for (auto group : {warmPainting, coldPainting, leastPainting, houseControls, registry, wholeProcesses}) {
        std::vector<Comparison> comparisons = group();
        std::move(comparisons.begin(), comparisons.end(), std::back_inserter(all));
    }
    return all;
}

bool isOfProcesses(const Comparison &comparison)
{
    return !comparison.contenders.empty() && comparison.contenders.front().takeSample;
}

void measure(std::vector<Comparison> &comparisons, int rounds)
{
    for (Comparison &comparison : comparisons) {
        const int fewer = std::max(1, rounds / processRoundsPerRound);
        takeTurns(comparison, isOfProcesses(comparison) ? fewer : rounds, sliceSeconds);
    }
}

/** What the contenders of that name do. */
std::vector<std::function<void()>> runsOf(std::vector<Comparison> &comparisons, const QString &name)
{
    std::vector<std::function<void()>> runs;
    for (Comparison &comparison : comparisons) {
        prepare(comparison);
        for (const Contender &contender : comparison.contenders)
            if (contender.name == name && contender.run)
                runs.push_back(contender.run);
    }
    return runs;
}

/** For a profiler, which finds it by its name: one contender alone, so many times. */
Q_NEVER_INLINE void runAlone(const std::vector<std::function<void()>> &runs, int count)
{
    for (const std::function<void()> &run : runs)
        for (int i = 0; i < count; ++i)
            run();
}

int profile(std::vector<Comparison> &comparisons, const QString &name, int count)
{
    const std::vector<std::function<void()>> runs = runsOf(comparisons, name);
    if (runs.empty())
        return refuse(QStringLiteral("--alone: nothing of what is chosen has a contender '%1'").arg(name));
    runAlone(runs, count);
    return AllKept;
}

} // namespace

int main(int argc, char *argv[])
{
    // The same for every machine, and for the processes that are started from here.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "default.debug=false;default.warning=false"); // the platform's
    qputenv("QT_STYLE_OVERRIDE", "");
    QApplication application(argc, argv);
    if (QCoreApplication::arguments().contains(registryStartOption)) {
        QTextStream(stdout) << qint64(registryStartNanoseconds()) << Qt::endl;
        return 0;
    }
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Paints widgets and asks the look registry, each beside its peers. Ends with 1 when a promise is not kept."));
    addCommonOptions(parser);
    const QCommandLineOption roundsOption(QStringLiteral("rounds"), QStringLiteral("Turns of each contender."),
                                          QStringLiteral("number"), QStringLiteral("61"));
    const QCommandLineOption aloneOption(QStringLiteral("alone"),
                                         QStringLiteral("For a profiler: this contender only, --rounds times."),
                                         QStringLiteral("contender"));
    parser.addOptions({roundsOption, aloneOption});
    parser.process(application);
    bool isNumber = false;
    const int rounds = parser.value(roundsOption).toInt(&isNumber);
    if (!isNumber || rounds < 1)
        return refuse(QStringLiteral("--rounds wants a whole number from 1 up"));

    std::vector<Comparison> comparisons = everything();
    if (const std::optional<int> status = choose(parser, comparisons))
        return *status;
    if (parser.isSet(aloneOption))
        return profile(comparisons, parser.value(aloneOption), rounds);
    measure(comparisons, rounds);
    return report(parser, comparisons, rounds);
}
