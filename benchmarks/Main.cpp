// zel_bench: our painting, our controls and the look registry beside their peers.
#include "Groups.h"
#include "Report.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

#include <algorithm>

namespace {

constexpr int notKept = 1;
constexpr int wrongArguments = 2;
constexpr double sliceSeconds = 0.002;
constexpr int processRoundsPerRound = 3; // so many rounds of the others for one of whole processes

std::vector<Comparison> everything()
{
    std::vector<Comparison> all;
    for (auto group : {warmPainting, coldPainting, leastPainting, houseControls, registry}) {
        std::vector<Comparison> comparisons = group();
        std::move(comparisons.begin(), comparisons.end(), std::back_inserter(all));
    }
    return all;
}

void keepWanted(std::vector<Comparison> &comparisons, const QString &wanted)
{
    const auto isUnwanted = [&wanted](const Comparison &comparison) {
        const QString name = comparison.group + QStringLiteral(": ") + comparison.name;
        return !name.contains(wanted, Qt::CaseInsensitive);
    };
    comparisons.erase(std::remove_if(comparisons.begin(), comparisons.end(), isUnwanted), comparisons.end());
}

/** For a profiler, which finds it by its name: one contender alone, so many times. */
Q_NEVER_INLINE int runAlone(std::vector<Comparison> &comparisons, const QString &name, int count)
{
    for (Comparison &comparison : comparisons) {
        for (Contender &contender : comparison.contenders) {
            if (contender.name != name)
                continue;
            for (int i = 0; i < count; ++i)
                contender.run();
        }
    }
    return 0;
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
    parser.addHelpOption();
    const QCommandLineOption onlyOption(QStringLiteral("only"),
                                        QStringLiteral("What has this in its name, such as 'painting: form'."),
                                        QStringLiteral("text"));
    const QCommandLineOption roundsOption(QStringLiteral("rounds"), QStringLiteral("Turns of each contender."),
                                          QStringLiteral("number"), QStringLiteral("61"));
    const QCommandLineOption jsonOption(QStringLiteral("json"), QStringLiteral("Print JSON in place of the table."));
    const QCommandLineOption aloneOption(QStringLiteral("alone"),
                                         QStringLiteral("For a profiler: this contender only, --rounds times."),
                                         QStringLiteral("contender"));
    parser.addOptions({onlyOption, roundsOption, jsonOption, aloneOption});
    parser.process(application);
    bool isNumber = false;
    const int rounds = parser.value(roundsOption).toInt(&isNumber);
    if (!isNumber || rounds < 1) {
        QTextStream(stderr) << QStringLiteral("--rounds wants a whole number from 1 up\n");
        return wrongArguments;
    }

    std::vector<Comparison> comparisons = everything();
    keepWanted(comparisons, parser.value(onlyOption));
    if (parser.isSet(aloneOption))
        return runAlone(comparisons, parser.value(aloneOption), rounds);
    for (Comparison &comparison : comparisons)
        takeTurns(comparison, rounds, sliceSeconds);
    std::vector<Comparison> processes = wholeProcesses(std::max(1, rounds / processRoundsPerRound));
    keepWanted(processes, parser.value(onlyOption));
    std::move(processes.begin(), processes.end(), std::back_inserter(comparisons));
    if (parser.isSet(jsonOption))
        printJson(comparisons, rounds);
    else
        printTable(comparisons);
    return std::all_of(comparisons.begin(), comparisons.end(), isKept) ? 0 : notKept;
}
