#include "Census.h"

#include <ZelCmnCtrl03/CC4StyleFactory>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QFile>
#include <QPixmapCache>
#include <QSet>
#include <QWidget>

#include <algorithm>
#include <memory>

#include <malloc.h>
#include <unistd.h>

#ifdef __SANITIZE_ADDRESS__
// Of the sanitizer's runtime; GCC does not always come with the header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // NOLINT(bugprone-reserved-identifier): its name
#endif

namespace {

long residentKilobytes()
{
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLong() * (sysconf(_SC_PAGESIZE) / 1024);
}

// What is in use of what has been allocated.
long heapKilobytes()
{
#ifdef __SANITIZE_ADDRESS__
    return long(__sanitizer_get_current_allocated_bytes() / 1024);
#else
    const auto info = mallinfo2();
    return long((info.uordblks + info.hblkhd) / 1024);
#endif
}

// Without the desktop's, which Qt 5 makes when it needs it and keeps.
QWidgetList widgets()
{
    QWidgetList widgets = QApplication::allWidgets();
    widgets.erase(std::remove_if(widgets.begin(), widgets.end(),
                                 [](const QWidget *widget) { return widget->windowType() == Qt::Desktop; }),
                  widgets.end());
    return widgets;
}

int runningTimers()
{
    QSet<const QObject *> objects;
    QList<QObject *> roots{qApp};
    for (QWidget *widget : widgets())
        roots.append(widget);
    for (QObject *root : roots) {
        objects.insert(root);
        for (const QObject *child : root->findChildren<QObject *>())
            objects.insert(child);
    }
    int timers = 0;
    for (const QObject *object : objects)
        timers += int(QAbstractEventDispatcher::instance()->registeredTimers(const_cast<QObject *>(object)).size());
    return timers;
}

// A style that nobody holds is forgotten, and the next one who asks gets another.
bool isForgotten(CC4StyleFactory::CC4Styles kind)
{
    const QStyle *first = CC4StyleFactory::getStyle(kind);
    const std::unique_ptr<const QStyle> owned(kind == CC4StyleFactory::TBWStyle ? first : nullptr);
    CC4StyleFactory::releaseStyle(kind);
    const QStyle *second = CC4StyleFactory::getStyle(kind);
    const std::unique_ptr<const QStyle> alsoOwned(kind == CC4StyleFactory::TBWStyle && second != first ? second
                                                                                                       : nullptr);
    CC4StyleFactory::releaseStyle(kind);
    return first != second;
}

} // namespace

Census Census::take()
{
    Census census;
    census.widgets = int(::widgets().size());
    census.timers = runningTimers();
    const long withPixmaps = ::heapKilobytes();
    QPixmapCache::clear();
    census.heapKilobytes = ::heapKilobytes();
    census.pixmapCacheKilobytes = withPixmaps - census.heapKilobytes;
    census.residentKilobytes = ::residentKilobytes();
    return census;
}

QString Census::widgetClasses()
{
    QStringList classes;
    for (const QWidget *widget : ::widgets())
        classes.append(QLatin1String(widget->metaObject()->className()));
    return classes.join(QLatin1Char(' '));
}

QString Census::heading()
{
    return QStringLiteral("                       heap KB  pixmap cache KB  resident KB   widgets   timers");
}

QString Census::row(const QString &when) const
{
    return QStringLiteral("%1 %2 %3 %4 %5 %6")
        .arg(when, -16)
        .arg(heapKilobytes, 12)
        .arg(pixmapCacheKilobytes, 16)
        .arg(residentKilobytes, 12)
        .arg(widgets, 9)
        .arg(timers, 8);
}

bool areStylesReleased()
{
    return isForgotten(CC4StyleFactory::CC4Style) && isForgotten(CC4StyleFactory::TBWStyle) &&
           isForgotten(CC4StyleFactory::BlueScrollStyle);
}
