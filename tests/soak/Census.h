// What the process holds: counted at rest, on the first page, so that any two counts should be the same.
#pragma once

#include <QString>

struct Census
{
    long heapKilobytes = 0;        // in use, without the next
    long pixmapCacheKilobytes = 0; // that QPixmapCache gave back when it was cleared
    long residentKilobytes = 0;    // with what the sanitizers remember, each new stack for good
    int widgets = 0;
    int timers = 0; // running, of widgets and of what belongs to them or to the application

    /** Clears QPixmapCache on the way. */
    static Census take();
    /** The classes of all widgets, for a report. */
    static QString widgetClasses();
    QString row(const QString &when) const;
    static QString heading();
};

/** Whether no reference to a shared style is held, and none has been given back twice. Takes each style on the way. */
bool areStylesReleased();
