// Where Qt 5 and Qt 6 differ: the only place of this library that asks for the version of Qt.
#pragma once

#include <QEvent>
#include <QFont>
#include <QMouseEvent>
#include <QPixmap>
#include <QPoint>
#include <QStyleOptionMenuItem>
#include <QtGlobal>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QEnterEvent>
#endif

// An operation whose base is virtual on one major only.
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#define ZEL_OVERRIDE_ON_QT5
#define ZEL_OVERRIDE_ON_QT6 override
#else
#define ZEL_OVERRIDE_ON_QT5 override
#define ZEL_OVERRIDE_ON_QT6
#endif

namespace zel {

// keepsEarlyAccessible: whether Qt keeps the accessible interface that an object got before its class was known.
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
using EnterEvent = QEnterEvent;
inline constexpr bool keepsEarlyAccessible = false;
#else
using EnterEvent = QEvent;
inline constexpr bool keepsEarlyAccessible = true;
#endif

/** Sets a weight of the scale 0 to 99 (50 normal, 75 bold), on every Qt. A weight beyond it counts as its end. */
inline void setFontWeight(QFont &font, int weight)
{
    const int bounded = qBound(0, weight, 99);
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    // Deprecated, and yet the only one that knows this scale.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    font.setLegacyWeight(bounded);
    QT_WARNING_POP
#else
    font.setWeight(bounded);
#endif
}

/** The size of a pixmap in the pixels that widgets and painters count in. */
inline QSize deviceIndependentSize(const QPixmap &pixmap)
{
    // A null pixmap may have a ratio of 0.
    return pixmap.isNull() ? QSize(0, 0) : pixmap.size() / pixmap.devicePixelRatioF();
}

/** The room that a menu keeps for the shortcuts of its items. */
inline int reservedShortcutWidth(const QStyleOptionMenuItem *option)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return option->reservedShortcutWidth;
#else
    return option->tabWidth;
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

/** Where in the widget a mouse event happened. */
inline QPoint localPosition(const QMouseEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->position().toPoint();
#else
    return event->pos();
#endif
}

} // namespace zel
