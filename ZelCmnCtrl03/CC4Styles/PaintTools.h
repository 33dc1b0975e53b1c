// The painters' tools: cache keys, the one cached-picture helper, gradients, outlines, three-slice faces. No style and
// no widget is known here.
#pragma once

#include <QColor>
#include <QLine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QString>

class QStyleOption;

namespace PaintTools {

/** The key of a picture that depends on the option's state, active sub-controls and palette, and on its size. */
QString stateKey(QLatin1String key, const QStyleOption *option, const QSize &size);

/** The device pixel ratio that a picture for this painter is wanted in. */
qreal deviceRatio(const QPainter *painter);

/** A transparent picture of so many of the painter's pixels. */
QPixmap emptyPicture(const QSize &size, qreal ratio);

/** What QPixmapCache has under the key for this painter's device; null if nothing. */
QPixmap findPicture(const QString &key, const QPainter *painter);
void storePicture(const QString &key, const QPainter *painter, const QPixmap &picture);

/** Whether what is drawn on the painter, piece by piece, looks as if drawn on a picture that is then put there. */
bool showsPixelsAsDrawn(const QPainter *painter);

/** What `draw(painter, rect)` draws on a picture, rect being (0, 0) and `size`: new, empty and transparent before. */
template <typename Draw>
QPixmap newPicture(const QPainter *painter, const QSize &size, Draw &&draw)
{
    QPixmap picture = emptyPicture(size, deviceRatio(painter));
    QPainter picturePainter(&picture);
    draw(&picturePainter, QRect(QPoint(0, 0), size));
    picturePainter.end();
    return picture;
}

/** The picture of a key and a size that is not empty, found or drawn. */
template <typename Draw>
QPixmap cachedPicture(const QPainter *painter, const QSize &size, const QString &key, Draw &&draw)
{
    QPixmap picture = findPicture(key, painter);
    if (picture.isNull()) {
        picture = newPicture(painter, size, draw);
        storePicture(key, painter, picture);
    }
    return picture;
}

/**
 * Puts the picture of the key at `topLeft`; on a miss `draw(painter, rect)` draws it once, rect being (0, 0) and
 * `size`.
 *
 * On a device pixel ratio of 1 the key is taken as it is; on any other the ratio is added to it.
 */
template <typename Draw>
void drawCachedPicture(QPainter *painter, const QPoint &topLeft, const QSize &size, const QString &key, Draw &&draw)
{
    if (!size.isEmpty())
        painter->drawPixmap(topLeft, cachedPicture(painter, size, key, draw));
}

/** Has a painter draw as a new one on a picture at `topLeft` would. Much quicker than to save and restore all of it. */
class OnPicture
{
public:
    OnPicture(QPainter *painter, const QPoint &topLeft);
    ~OnPicture();
    Q_DISABLE_COPY(OnPicture)

private:
    QPainter *const m_painter;
    const QPoint m_topLeft;
    const QPoint m_brushOrigin;
    const bool m_wasAntialiased;
};

/**
 * Puts a picture that is not kept at `topLeft`: straight on the painter where that gives the same pixels.
 *
 * `draw` has to stay inside its rectangle, where a picture would cut off the rest, and to leave the painter as it was.
 */
template <typename Draw>
void drawPassingPicture(QPainter *painter, const QPoint &topLeft, const QSize &size, Draw &&draw)
{
    if (size.isEmpty())
        return;
    if (!showsPixelsAsDrawn(painter)) {
        painter->drawPixmap(topLeft, newPicture(painter, size, draw));
        return;
    }
    const OnPicture onPicture(painter, topLeft);
    draw(painter, QRect(QPoint(0, 0), size));
}

/** As drawCachedPicture, but drawn anew each time unless somebody else has stored a picture under the key. */
template <typename Draw>
void drawFoundPicture(QPainter *painter, const QPoint &topLeft, const QSize &size, const QString &key, Draw &&draw)
{
    const QPixmap found = findPicture(key, painter);
    if (found.isNull())
        drawPassingPicture(painter, topLeft, size, draw);
    else
        painter->drawPixmap(topLeft, found);
}

/** As drawCachedPicture, with the picture fitted into `target`. */
template <typename Draw>
void drawFittedPicture(QPainter *painter, const QRect &target, const QSize &size, const QString &key, Draw &&draw)
{
    if (size.isEmpty() || target.isEmpty())
        return;
    painter->drawPixmap(target, cachedPicture(painter, size, key, draw));
}

/** A straight line of whole pixels, both ends included. Unlike a pen's it stays crisp whatever the painter is set to.
 */
void fillLine(QPainter *painter, const QPoint &from, const QPoint &to, const QColor &color);
void fillPoint(QPainter *painter, const QPoint &point, const QColor &color);

/**
 * What QPainter::drawRect() strokes with the painter's pen, faster: antialiased or not, where pen and painter are
 * plain.
 *
 * Its right and bottom lines are just outside `rect`. Antialiased, every line is two pixels wide, of half the colour.
 */
void strokeRect(QPainter *painter, const QRect &rect);

/** A bitmap at a place of `area`; what would be outside is cut off. */
void drawInside(QPainter *painter, const QRect &area, const QPoint &topLeft, const QPixmap &bitmap);

/** The outermost pixels of `rect`. */
void drawOutline(QPainter *painter, const QRect &rect, const QColor &color);

/** Fills `rect` with the tile side by side, counted from the painter's origin. A null tile draws nothing. */
void fillTiled(QPainter *painter, const QRect &rect, const QPixmap &tile);

/** A vertical gradient over `rect`, rendered once per size and pair of colours. */
void drawVerticalGradient(QPainter *painter, const QRect &rect, const QColor &top, const QColor &bottom);

/** A gradient over `rect` from one point of it to another, rendered once per size, direction and pair of colours. */
void drawLinearGradient(QPainter *painter, const QRect &rect, const QLine &direction, const QColor &from,
                        const QColor &to);

/** `factor` percent of colorA in colorB, per channel and truncated; the alpha is colorA's. */
QColor mergedColors(const QColor &colorA, const QColor &colorB, int factor);

/** A rectangle with round corners; `radius` is the side of the corner arc's box, so twice the arc's true radius. */
QPainterPath roundRectPath(const QRect &rect, int radius);

/** The bitmaps of a three-slice face: two caps and a middle that is tiled between them. */
struct ThreeSlices
{
    QPixmap left;
    QPixmap right;
    QPixmap middle;
};

/** Loads `<name>LeftCap.png`, `<name>RightCap.png` and `<name>Blit.png`, scaled to `height`. Missing ones stay null. */
ThreeSlices loadSlices(const QString &name, int height, qreal ratio);

/**
 * Draws a three-slice face over `rect`. The last column of `rect` stays free, the caps keep their width, and the middle
 * covers what is left of the width less `reserve` pixels.
 */
void drawSlices(QPainter *painter, const QRect &rect, const ThreeSlices &slices, int reserve);

} // namespace PaintTools
