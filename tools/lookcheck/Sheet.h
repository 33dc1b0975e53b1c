#pragma once

#include <QString>
#include <QStringList>

namespace lookcheck {

class Look;

/**
 * Writes a page that shows each specimen of the gallery in the built-in look and in this one.
 *
 * `gallery` is the program, empty for the one beside this program. Gives what went wrong; empty when the page is
 * written. An older page stays where writing fails.
 */
QString writeSheet(const Look &look, const QString &file, const QString &gallery);

/** The UIGraphics.xml files that have no effect, and why: the page shows the look without them. */
QStringList faultsOfFiles(const Look &look);

} // namespace lookcheck
