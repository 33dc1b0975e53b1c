#include "Findings.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace lookcheck {

QString nameOf(Severity severity)
{
    switch (severity) {
    case Severity::Error: return QStringLiteral("error");
    case Severity::Warning: return QStringLiteral("warning");
    case Severity::Note: break;
    }
    return QStringLiteral("note");
}

// The looks of several languages share files, and so what is wrong with them.
void Findings::add(const Finding &finding)
{
    const QString identity = finding.file + QLatin1Char('\n') + QString::number(finding.line) + finding.what;
    if (m_known.contains(identity))
        return;
    m_known.insert(identity);
    m_findings.append(finding);
}

bool Findings::isFirst(const QString &part)
{
    const int known = static_cast<int>(m_known.size());
    m_known.insert(part);
    return m_known.size() > known;
}

template <typename Condition>
QVector<Finding> Findings::sorted(Condition &&isWanted) const
{
    QVector<Finding> wanted;
    QHash<QString, int> places; // of the files
    for (const Finding &finding : m_findings) {
        if (!places.contains(finding.file))
            places.insert(finding.file, static_cast<int>(places.size()));
        if (isWanted(finding))
            wanted.append(finding);
    }
    std::stable_sort(wanted.begin(), wanted.end(), [&places](const Finding &left, const Finding &right) {
        return std::make_pair(places.value(left.file), left.line) <
               std::make_pair(places.value(right.file), right.line);
    });
    return wanted;
}

QVector<Finding> Findings::faults() const
{
    return sorted([](const Finding &finding) { return finding.severity != Severity::Note; });
}

QVector<Finding> Findings::notes() const
{
    return sorted([](const Finding &finding) { return finding.severity == Severity::Note; });
}

int Findings::count(Severity severity) const
{
    return static_cast<int>(std::count_if(
        m_findings.cbegin(), m_findings.cend(),
        [severity](const Finding &finding) { return finding.severity == severity; }));
}

QString quoted(const QString &text)
{
    return QLatin1Char('"') + harmless(text) + QLatin1Char('"');
}

// Terminals obey control characters, and those that turn the direction of writing hide what a name really says.
QString withoutControls(QString text)
{
    for (QChar &character : text)
        if (!character.isPrint())
            character = QLatin1Char('?');
    return text;
}

QString harmless(const QString &text)
{
    constexpr int longest = 60;
    const QString shown = withoutControls(text.left(longest));
    return text.size() > longest ? shown + QStringLiteral("...") : shown;
}

QString counted(int count, const QString &noun)
{
    return QStringLiteral("%1 %2%3").arg(QString::number(count), noun, count == 1 ? QString() : QStringLiteral("s"));
}

} // namespace lookcheck
