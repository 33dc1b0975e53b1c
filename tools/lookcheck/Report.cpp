#include "Report.h"

#include "Findings.h"
#include "Look.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace lookcheck {

namespace {

QString textOf(const Finding &finding)
{
    const QString place =
        finding.line == 0 ? finding.file : QStringLiteral("%1:%2").arg(finding.file, QString::number(finding.line));
    const QString head = QStringLiteral("%1: %2: %3\n").arg(place, nameOf(finding.severity), finding.what);
    return finding.remedy.isEmpty() ? head : head + QStringLiteral("    %1\n").arg(finding.remedy);
}

QString summaryOf(const Findings &findings, bool withNotes)
{
    QString summary =
        QStringLiteral("%1, %2").arg(counted(findings.count(Severity::Error), QStringLiteral("error")),
                                     counted(findings.count(Severity::Warning), QStringLiteral("warning")));
    if (!findings.hasFaults())
        summary = QStringLiteral("Nothing found");
    const int notes = findings.count(Severity::Note);
    if (notes > 0)
        summary += QStringLiteral("; %1").arg(counted(notes, QStringLiteral("note")));
    return summary + (notes > 0 && !withNotes ? QStringLiteral(" (see --notes).\n") : QStringLiteral(".\n"));
}

QJsonArray arrayOf(const QVector<Finding> &findings)
{
    QJsonArray array;
    for (const Finding &finding : findings)
        array.append(QJsonObject{
            {QStringLiteral("severity"), nameOf(finding.severity)},
            {QStringLiteral("file"), finding.file},
            {QStringLiteral("line"), finding.line == 0 ? QJsonValue() : QJsonValue(finding.line)},
            {QStringLiteral("what"), finding.what},
            {QStringLiteral("remedy"), finding.remedy},
        });
    return array;
}

} // namespace

QString textReport(const Findings &findings, bool withNotes)
{
    QString report;
    for (const Finding &finding : findings.faults())
        report += textOf(finding);
    if (withNotes)
        for (const Finding &finding : findings.notes())
            report += textOf(finding);
    return report + summaryOf(findings, withNotes);
}

QString keysText()
{
    constexpr int keyWidth = 44;
    QString text;
    for (const QString &key : colorKeys())
        text += key.leftJustified(keyWidth) + builtInColor(key).name().mid(1).toUpper() + QLatin1Char('\n');
    for (const QString &key : familyKeys())
        text += key.leftJustified(keyWidth) + builtInFamily(key) + QLatin1Char('\n');
    return text;
}

QByteArray jsonReport(const QString &directory, const Findings &findings)
{
    return QJsonDocument(QJsonObject{
                             {QStringLiteral("directory"), directory},
                             {QStringLiteral("errors"), findings.count(Severity::Error)},
                             {QStringLiteral("warnings"), findings.count(Severity::Warning)},
                             {QStringLiteral("findings"), arrayOf(findings.faults())},
                             {QStringLiteral("notes"), arrayOf(findings.notes())},
                         })
        .toJson();
}

} // namespace lookcheck
