// What the three scroll bar looks share: which elements there are, where, in which order, and under which keys.
#pragma once

#include <QRect>
#include <QString>

class QPainter;
class QPixmap;
class QStyle;
class QStyleOptionComplex;
class QStyleOptionSlider;
class QWidget;

namespace ScrollBarPainter {

/** One painting of a scroll bar. */
struct ScrollBar
{
    const QStyleOptionSlider *option;
    bool horizontal;
    bool enabled;
};

/** One of a look's four elements: the start of its picture's key, and what paints the picture over `area`. */
struct Element
{
    const char *key;
    void (*paint)(QPainter *picture, const QRect &area, const ScrollBar &bar);
    int shift = 0;          // of the picture, to the right
    int stretchedWidth = 0; // of the picture on the screen; 0 for its own
};

/** A scroll bar look. */
struct Look
{
    Element groove;
    Element backArrow;
    Element forwardArrow;
    Element slider;
    bool isStored = true; // its pictures, in QPixmapCache
    int inset = 0;        // of the left edge of every element
};

/**
 * Draws the elements that the option asks for: groove, back arrow, forward arrow, slider. Where they are is for the
 * style to say. An option that is no QStyleOptionSlider draws nothing.
 */
void draw(QPainter *painter, const Look &look, const QStyleOptionComplex *option, const QStyle *style,
          const QWidget *widget);

/** The bitmap in the resolution that the picture is painted in. */
QPixmap bitmap(const QString &name, const QPainter *picture);

// Pictures that more than one look uses.

/** What shows where a groove leaves the bar free. */
void paintGround(QPainter *picture, const QRect &area, const ScrollBar &bar);
/** The house scroll bar's arrows, each at the outer end of its area. */
void paintBlueArrowLeft(QPainter *picture, const QRect &area);
void paintBlueArrowRight(QPainter *picture, const QRect &area);
void paintBlueArrowTop(QPainter *picture, const QRect &area);
void paintBlueArrowBottom(QPainter *picture, const QRect &area);
/** The caps at the ends of a slider: `<name>Left.png` and `<name>Right.png`, or `<name>Top.png` and `<name>Bottom.png`.
 */
void paintCaps(QPainter *picture, const QRect &area, const ScrollBar &bar, const QString &name);
/** The caps of the house scroll bar's slider: blue, or gray when disabled. */
void paintHouseCaps(QPainter *picture, const QRect &area, const ScrollBar &bar);

} // namespace ScrollBarPainter
