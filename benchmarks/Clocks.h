// What a process has taken so far.
#pragma once

#include <QtGlobal>

/** CPU time of this process, of all its threads: Qt 6 hands large fills to others. */
double processNanoseconds();

/** Memory of this process that is in the machine's; 0 where the system does not tell. */
qint64 residentKibibytes();
