// The pointer of the window system, moved by xdotool.
#pragma once

#include <QPoint>
#include <QProcess>
#include <QStringList>
#include <QTest>

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

/** 1 is the left button, 3 the right one, 4 and 5 are the wheel. */
inline void click(int button)
{
    xdotool({QStringLiteral("click"), QString::number(button)});
}

inline void press(int button)
{
    xdotool({QStringLiteral("mousedown"), QString::number(button)});
}

inline void release(int button)
{
    xdotool({QStringLiteral("mouseup"), QString::number(button)});
}

} // namespace RealPointer
