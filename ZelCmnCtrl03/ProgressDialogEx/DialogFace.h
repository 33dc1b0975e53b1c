// The shape and the background that the progress dialogs share.
#pragma once

#include <QPainterPath>
#include <QRadialGradient>
#include <QRegion>

namespace DialogFace {

/** A rectangle with square corners at the top and round ones at the bottom; their true radius is half of `radius`. */
QPainterPath roundBottomPath(const QRect &rect, int radius);

/** The pixels of a path, as a mask. Of the last row and column of a rectangle there are none. */
QRegion regionOf(const QPainterPath &path);

/** Light in the middle of `rect`, dark from `radius` pixels on. */
QRadialGradient gradient(const QRect &rect, int radius);

} // namespace DialogFace
