// The bitmap that the busy indicators scroll, and how far it has come.
#pragma once

#include <QPixmap>

class QPainter;

class RainbowStrip
{
public:
    static constexpr int interval = 10; // milliseconds between two steps

    /** Loads the bitmap for a device pixel ratio. Returns at once, with false, when it is there already. */
    bool prepareFor(qreal ratio);

    /** One pixel to the right, and from the last one back to the first. False when there is no bitmap to move. */
    bool step();

    /** Draws the bitmap three times side by side from the painter's origin, so that no gap comes into view. */
    void draw(QPainter *painter) const;

    /** Whether the drawing hides all that lies behind an area of this size at the origin, at every step. */
    bool covers(const QSize &area) const;

private:
    QPixmap m_image;
    QSize m_size; // of the image, in pixels of the widget
    int m_iOffset = 0;
    qreal m_ratio = 0.0;
};
