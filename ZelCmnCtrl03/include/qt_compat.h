// Where Qt 5 and Qt 6 differ: the only place of this library that asks for the version of Qt.
#pragma once

#include <QEvent>
#include <QFont>
#include <QMouseEvent>
#include <QPoint>
#include <QtGlobal>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QEnterEvent>
#endif

namespace zel {

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
using EnterEvent = QEnterEvent;
#else
using EnterEvent = QEvent;
#endif

/** Sets a weight of the scale 0 to 99 (50 normal, 75 bold) that this library's callers use on every Qt. */
inline void setFontWeight(QFont &font, int weight)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    // Deprecated, and yet the only one that knows this scale.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    font.setLegacyWeight(weight);
    QT_WARNING_POP
#else
    font.setWeight(weight);
#endif
}

/** Where on the screen a mouse event happened. */
inline QPoint globalPosition(const QMouseEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->globalPosition().toPoint();
#else
    return event->globalPos();
#endif
}

} // namespace zel
