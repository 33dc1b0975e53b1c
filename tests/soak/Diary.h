// What has been done last, told when the process comes to a bad end.
#pragma once

#include <QString>

namespace Diary {

/** Tells it at a signal, at a report of the sanitizers, and when nothing has been written for some time. */
void open(unsigned seed);

void write(const QString &entry);

/** The last entries, for a run that ends by itself. */
void tell();

} // namespace Diary
