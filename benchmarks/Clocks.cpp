#include "Clocks.h"

#include <QFile>

#include <ctime>
#include <unistd.h>

double processNanoseconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

qint64 residentKibibytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE) / 1024;
}
