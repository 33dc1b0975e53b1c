#include "CommandLine.h"

#include "Report.h"

#include <QTextStream>

#include <algorithm>

namespace {

const QString only = QStringLiteral("only");
const QString list = QStringLiteral("list");
const QString json = QStringLiteral("json");

template <typename IsWanted>
void keep(std::vector<Comparison> &comparisons, IsWanted isWanted)
{
    const auto isUnwanted = [&isWanted](const Comparison &comparison) {
        return !isWanted(fullName(comparison));
    };
    comparisons.erase(std::remove_if(comparisons.begin(), comparisons.end(), isUnwanted), comparisons.end());
}

} // namespace

void addCommonOptions(QCommandLineParser &parser)
{
    parser.addHelpOption();
    parser.addOptions({
        {only,
         QStringLiteral("What has this name, such as 'painting: push button'; or else all that have it in theirs, such "
                        "as 'button'."),
         QStringLiteral("text")},
        {list, QStringLiteral("Print the names in place of measuring.")},
        {json, QStringLiteral("Print JSON in place of the table.")},
    });
}

QString fullName(const Comparison &comparison)
{
    return comparison.group + QStringLiteral(": ") + comparison.name;
}

void keepChosen(std::vector<Comparison> &comparisons, const QString &text)
{
    const auto isIt = [&text](const QString &name) {
        return name.compare(text, Qt::CaseInsensitive) == 0;
    };
    const auto hasIt = [&text](const QString &name) {
        return name.contains(text, Qt::CaseInsensitive);
    };
    const bool isName = std::any_of(comparisons.begin(), comparisons.end(),
                                    [&isIt](const Comparison &comparison) { return isIt(fullName(comparison)); });
    if (isName)
        keep(comparisons, isIt);
    else
        keep(comparisons, hasIt);
}

std::optional<int> choose(const QCommandLineParser &parser, std::vector<Comparison> &comparisons)
{
    const QString text = parser.value(only);
    keepChosen(comparisons, text);
    if (parser.isSet(list)) {
        QTextStream out(stdout);
        for (const Comparison &comparison : comparisons)
            out << fullName(comparison) << QLatin1Char('\n');
        return AllKept;
    }
    if (comparisons.empty())
        return refuse(QStringLiteral("nothing has '%1' in its name; --list tells the names").arg(text));
    return std::nullopt;
}

int report(const QCommandLineParser &parser, const std::vector<Comparison> &comparisons, int rounds)
{
    if (parser.isSet(json))
        printJson(comparisons, rounds);
    else
        printTable(comparisons);
    const bool isGood = std::all_of(comparisons.begin(), comparisons.end(), [](const Comparison &comparison) {
        return isMeasured(comparison) && isKept(comparison);
    });
    return isGood ? AllKept : NotKept;
}

int refuse(const QString &message)
{
    QTextStream(stderr) << message << QLatin1Char('\n');
    return WrongArguments;
}
