// What somebody meant who wrote a name wrongly.
#pragma once

#include <QString>
#include <QStringList>

namespace lookcheck {

/** The one of `names` that takes the fewest changed letters; empty when none is near. Upper and lower case count less.
 */
QString nearest(const QString &written, const QStringList &names);

} // namespace lookcheck
