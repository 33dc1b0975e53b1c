// What the checks tell, and in which severity.
#pragma once

#include <QSet>
#include <QString>
#include <QVector>

namespace lookcheck {

enum class Severity
{
    Error,   // something is not drawn, or drawn wrongly
    Warning, // surely not what was meant
    Note     // as it may well be meant; counts for nothing
};

QString nameOf(Severity severity);

struct Finding
{
    Severity severity = Severity::Error;
    QString file;
    int line = 0; // 0: the whole file
    QString what;
    QString remedy;
};

/** Each finding once, file by file as they first came, and by line within a file. */
class Findings
{
public:
    void add(const Finding &finding);

    /** Whether a part of a finding, such as one place of several, is asked for the first time. */
    bool isFirst(const QString &part);

    /** Errors and warnings. */
    QVector<Finding> faults() const;
    QVector<Finding> notes() const;
    int count(Severity severity) const;
    bool hasFaults() const { return count(Severity::Error) + count(Severity::Warning) > 0; }

private:
    template <typename Condition>
    QVector<Finding> sorted(Condition &&isWanted) const;

    QVector<Finding> m_findings;
    QSet<QString> m_known;
};

/** A text of a deployer's file in quotation marks, of bounded length and without control characters. */
QString quoted(const QString &text);

/** The same without the quotation marks. */
QString harmless(const QString &text);

/** The same in full length: for texts that are bounded already, such as messages of Qt. */
QString withoutControls(QString text);

/** "2 errors", "1 error". */
QString counted(int count, const QString &noun);

} // namespace lookcheck
