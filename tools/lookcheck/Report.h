#pragma once

#include <QByteArray>
#include <QString>

namespace lookcheck {

class Findings;

/** For people, as compilers write: file, line, severity, what; then the remedy. */
QString textReport(const Findings &findings, bool withNotes);

/** All keys of UIGraphics.xml with their built-in values, one per line. */
QString keysText();

/** For programs: an object with the counts, the findings and, apart from them, the notes. */
QByteArray jsonReport(const QString &directory, const Findings &findings);

} // namespace lookcheck
