// The painters' tools: cache keys, the one cached-picture helper, gradients, outlines, three-slice faces. No style and
// no widget is known here.
#pragma once

#include <QColor>
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

/** A picture in QPixmapCache for one painter's device: found under its key, or new, empty and transparent. */
class CachedPicture
{
public:
    CachedPicture(const QString &key, const QSize &size, const QPainter *painter);

    bool isFound() const { return m_found; }
    QPixmap &pixmap() { return m_pixmap; }
    void store() const;

private:
    QString m_key;
    QPixmap m_pixmap;
    bool m_found;
};

/** The picture of a key and a size that is not empty, found or drawn. */
template <typename Draw>
QPixmap cachedPicture(const QPainter *painter, const QSize &size, const QString &key, Draw &&draw)
{
    CachedPicture picture(key, size, painter);
    if (!picture.isFound()) {
        QPainter picturePainter(&picture.pixmap());
        draw(&picturePainter, QRect(QPoint(0, 0), size));
        picturePainter.end();
        picture.store();
    }
    return picture.pixmap();
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

/** As above, for a picture that is drawn anew each time unless somebody else has stored one under the key. */
template <typename Draw>
void drawFoundPicture(QPainter *painter, const QPoint &topLeft, const QSize &size, const QString &key, Draw &&draw)
{
    if (size.isEmpty())
        return;
    CachedPicture picture(key, size, painter);
    if (!picture.isFound()) {
        QPainter picturePainter(&picture.pixmap());
        draw(&picturePainter, QRect(QPoint(0, 0), size));
    }
    painter->drawPixmap(topLeft, picture.pixmap());
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

/** The outermost pixels of `rect`. */
void drawOutline(QPainter *painter, const QRect &rect, const QColor &color);

/** Fills `rect` with the tile side by side, counted from the painter's origin. A null tile draws nothing. */
void fillTiled(QPainter *painter, const QRect &rect, const QPixmap &tile);

/** A vertical gradient over `rect`, rendered once per size and pair of colours. */
void drawVerticalGradient(QPainter *painter, const QRect &rect, const QColor &top, const QColor &bottom);

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
