#include "Report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

namespace {

constexpr int nameWidth = 38;
constexpr int cellWidth = 12;

// Three digits that count, and a unit that suits them.
QString withUnit(double value, const QString &unit)
{
    struct Larger
    {
        const char *from;
        double factor;
        const char *to;
    };
    constexpr Larger steps[] = {{"ns", 1e3, "µs"}, {"µs", 1e3, "ms"}, {"KiB", 1024, "MiB"}};
    QString shownUnit = unit;
    for (const Larger &step : steps) {
        if (shownUnit != QLatin1String(step.from) || qAbs(value) < step.factor)
            continue;
        value /= step.factor;
        shownUnit = QString::fromUtf8(step.to);
    }
    const int digits = qAbs(value) < 10 ? 2 : qAbs(value) < 100 ? 1 : 0;
    return QString::number(value, 'f', digits) + QLatin1Char(' ') + shownUnit;
}

QString promiseText(const Comparison &comparison)
{
    const Promise &promise = comparison.promise;
    if (promise.kind == Promise::Nothing)
        return QString();
    const QString limit = promise.kind == Promise::Ratio ? QString::number(promise.limit)
                                                         : QLatin1Char('+') + withUnit(promise.limit, comparison.unit);
    return limit + (isKept(comparison) ? QStringLiteral("  kept") : QStringLiteral("  NOT KEPT"));
}

void printHeading(QTextStream &out, const Comparison &comparison)
{
    out << QLatin1Char('\n') << comparison.group.leftJustified(nameWidth);
    for (std::size_t i = 0; i < comparison.contenders.size(); ++i)
        out << comparison.contenders[i].name.rightJustified(i == 0 ? cellWidth : cellWidth + 10);
    out << QStringLiteral("    at most\n");
}

void printRow(QTextStream &out, const Comparison &comparison)
{
    const bool isDifference = comparison.promise.kind == Promise::Difference;
    out << comparison.name.leftJustified(nameWidth)
        << withUnit(median(comparison.contenders[0].samples), comparison.unit).rightJustified(cellWidth);
    for (std::size_t i = 1; i < comparison.contenders.size(); ++i) {
        const QString standing = isDifference ? withUnit(differenceTo(comparison, i), comparison.unit)
                                              : QString::number(ratioTo(comparison, i), 'f', 2);
        out << withUnit(median(comparison.contenders[i].samples), comparison.unit).rightJustified(cellWidth)
            << standing.rightJustified(10);
    }
    out << QStringLiteral("    ") << promiseText(comparison) << QLatin1Char('\n');
}

QJsonObject toJson(const Comparison &comparison)
{
    QJsonArray contenders;
    for (std::size_t i = 0; i < comparison.contenders.size(); ++i) {
        QJsonObject contender{{QStringLiteral("name"), comparison.contenders[i].name},
                              {QStringLiteral("median"), median(comparison.contenders[i].samples)}};
        if (i > 0)
            contender[QStringLiteral("ratio")] = ratioTo(comparison, i);
        contenders.append(contender);
    }
    QJsonObject object{{QStringLiteral("group"), comparison.group},
                       {QStringLiteral("name"), comparison.name},
                       {QStringLiteral("unit"), comparison.unit},
                       {QStringLiteral("contenders"), contenders}};
    if (comparison.promise.kind == Promise::Nothing)
        return object;
    const bool isRatio = comparison.promise.kind == Promise::Ratio;
    object[isRatio ? QStringLiteral("ratioLimit") : QStringLiteral("differenceLimit")] = comparison.promise.limit;
    object[QStringLiteral("kept")] = isKept(comparison);
    return object;
}

} // namespace

void printTable(const std::vector<Comparison> &comparisons)
{
    QTextStream out(stdout);
    QString group;
    for (const Comparison &comparison : comparisons) {
        if (comparison.group != group)
            printHeading(out, comparison);
        group = comparison.group;
        printRow(out, comparison);
        out.flush();
    }
}

void printJson(const std::vector<Comparison> &comparisons, int rounds)
{
    QJsonArray list;
    for (const Comparison &comparison : comparisons)
        list.append(toJson(comparison));
    const QJsonObject report{{QStringLiteral("qt"), QString::fromLatin1(qVersion())},
                             {QStringLiteral("rounds"), rounds},
                             {QStringLiteral("comparisons"), list}};
    QTextStream(stdout) << QString::fromUtf8(QJsonDocument(report).toJson());
}
