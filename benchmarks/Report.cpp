#include "Report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <cmath>

namespace {

constexpr int nameWidth = 46;
constexpr int cellWidth = 12;
const QString failed = QStringLiteral("failed");

// Three digits that count, and a unit that suits them.
QString withUnit(double value, const QString &unit)
{
    if (std::isnan(value))
        return failed;
    struct Larger
    {
        const char *from;
        double factor;
        const char *to;
    };
    constexpr Larger steps[] = {{"ns", 1e3, "µs"}, {"µs", 1e3, "ms"}, {"KiB", 1024, "MiB"}};
    QString shownUnit = unit;
    for (const Larger &step : steps) {
        if (shownUnit != QString::fromUtf8(step.from) || qAbs(value) < step.factor)
            continue;
        value /= step.factor;
        shownUnit = QString::fromUtf8(step.to);
    }
    const int digits = qAbs(value) < 10 ? 2 : qAbs(value) < 100 ? 1 : 0;
    return QString::number(value, 'f', digits) + QLatin1Char(' ') + shownUnit;
}

QString ratioText(double ratio)
{
    return std::isnan(ratio) ? failed : QString::number(ratio, 'f', 2);
}

QString outcome(bool holds)
{
    return holds ? QStringLiteral("  kept") : QStringLiteral("  NOT KEPT");
}

QString limitText(const Comparison &comparison)
{
    const Promise &promise = comparison.promise;
    if (promise.kind == Promise::Nothing)
        return QString();
    const QString limit = promise.kind == Promise::Ratio ? QString::number(promise.limit)
                                                         : QLatin1Char('+') + withUnit(promise.limit, comparison.unit);
    return limit + outcome(isLimitKept(comparison));
}

QStringList namesAhead(const Comparison &comparison)
{
    QStringList names;
    for (const std::size_t other : comparison.promise.ahead)
        names.append(comparison.contenders[other].name);
    return names;
}

QString aheadText(const Comparison &comparison)
{
    if (comparison.promise.ahead.empty())
        return QString();
    return QStringLiteral("; 1 to ") + namesAhead(comparison).join(QStringLiteral(", ")) + outcome(isAhead(comparison));
}

QString headingOf(const Comparison &comparison)
{
    QString heading = comparison.group.leftJustified(nameWidth);
    for (std::size_t i = 0; i < comparison.contenders.size(); ++i)
        heading += comparison.contenders[i].name.rightJustified(i == 0 ? cellWidth : cellWidth + 10);
    return heading + QStringLiteral("    at most\n");
}

void printRow(QTextStream &out, const Comparison &comparison)
{
    const bool isDifference = comparison.promise.kind == Promise::Difference;
    out << comparison.name.leftJustified(nameWidth)
        << withUnit(median(comparison.contenders[0].samples), comparison.unit).rightJustified(cellWidth);
    for (std::size_t i = 1; i < comparison.contenders.size(); ++i) {
        const QString standing =
            isDifference ? withUnit(differenceTo(comparison, i), comparison.unit) : ratioText(ratioTo(comparison, i));
        out << withUnit(median(comparison.contenders[i].samples), comparison.unit).rightJustified(cellWidth)
            << standing.rightJustified(10);
    }
    out << QStringLiteral("    ") << limitText(comparison) << aheadText(comparison) << QLatin1Char('\n');
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
    const Promise &promise = comparison.promise;
    if (promise.kind != Promise::Nothing) {
        const bool isRatio = promise.kind == Promise::Ratio;
        object[isRatio ? QStringLiteral("ratioLimit") : QStringLiteral("differenceLimit")] = promise.limit;
        object[QStringLiteral("limitKept")] = isLimitKept(comparison);
    }
    if (!promise.ahead.empty()) {
        object[QStringLiteral("aheadOf")] = QJsonArray::fromStringList(namesAhead(comparison));
        object[QStringLiteral("aheadKept")] = isAhead(comparison);
    }
    if (promise.kind != Promise::Nothing || !promise.ahead.empty())
        object[QStringLiteral("kept")] = isKept(comparison);
    return object;
}

} // namespace

void printTable(const std::vector<Comparison> &comparisons)
{
    QTextStream out(stdout);
    QString heading;
    for (const Comparison &comparison : comparisons) {
        if (heading != headingOf(comparison)) // another group, or other contenders
            out << QLatin1Char('\n') << headingOf(comparison);
        heading = headingOf(comparison);
        printRow(out, comparison);
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
