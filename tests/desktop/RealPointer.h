// The pointer and the keys of the window system, moved by xdotool.
#pragma once

#include <QPoint>
#include <QProcess>
#include <QStringList>
#include <QTest>
#include <QWidget>

namespace RealPointer {

inline void xdotool(const QStringList &arguments)
{
    QCOMPARE(QProcess::execute(QStringLiteral("xdotool"), arguments), 0);
}

/** To a place on the screen. */
inline void moveTo(const QPoint &place)
{
    xdotool({QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())});
}

// 1 is the left button, 3 the right one, 4 and 5 are the wheel.

inline void click(int button = 1)
{
    xdotool({QStringLiteral("click"), QString::number(button)});
}

inline void clickAt(const QPoint &place, int button = 1)
{
    moveTo(place);
    click(button);
}

/** On the screen. */
inline QPoint middleOf(const QWidget *widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

inline void press(int button = 1)
{
    xdotool({QStringLiteral("mousedown"), QString::number(button)});
}

inline void release(int button = 1)
{
    xdotool({QStringLiteral("mouseup"), QString::number(button)});
}

/** By the name that X gives it, such as "Down". */
inline void key(const char *name)
{
    xdotool({QStringLiteral("key"), QLatin1String(name)});
}

} // namespace RealPointer
