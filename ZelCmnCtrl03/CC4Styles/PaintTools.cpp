#include "CC4Styles/PaintTools.h"

#include "UiGraphics.h"

#include <QPixmapCache>
#include <QStyleOption>

namespace PaintTools {

namespace {

// The key on a ratio of 1 is the plain one; a picture of another resolution must not be found under it.
QString keyForRatio(const QString &key, qreal ratio)
{
    return qFuzzyCompare(ratio, 1.0) ? key : key + QLatin1Char('@') + QString::number(ratio);
}

QPixmap scaledSlice(const QString &fileName, int height, qreal ratio)
{
    const QPixmap pixmap = UIGGetPixmap(fileName, ratio);
    if (pixmap.isNull())
        return pixmap;
    QPixmap slice = pixmap.scaledToHeight(qRound(height * ratio), Qt::FastTransformation);
    slice.setDevicePixelRatio(ratio);
    return slice;
}

qreal logicalWidth(const QPixmap &pixmap)
{
    return pixmap.isNull() ? 0.0 : pixmap.width() / pixmap.devicePixelRatioF();
}

// Tiles from the painter's origin. The pattern is given in device pixels and scaled here, because not every paint
// engine minds the device pixel ratio of a texture.
QBrush tiledBrush(QPixmap pixmap)
{
    const qreal scale = 1.0 / pixmap.devicePixelRatioF();
    pixmap.setDevicePixelRatio(1.0);
    QBrush brush(pixmap);
    brush.setTransform(QTransform::fromScale(scale, scale));
    return brush;
}

} // namespace

QString stateKey(QLatin1String key, const QStyleOption *option, const QSize &size)
{
    const auto *complex = qstyleoption_cast<const QStyleOptionComplex *>(option);
    const QStyle::SubControls active = complex != nullptr ? complex->activeSubControls : QStyle::SC_None;
    const QLatin1Char dash('-');
    QString text;
    text.reserve(key.size() + 64);
    text += key;
    text += dash;
    text += QString::number(static_cast<int>(option->state));
    text += dash;
    text += QString::number(static_cast<int>(active));
    text += dash;
    text += QString::number(option->palette.cacheKey());
    text += dash;
    text += QString::number(size.width());
    text += QLatin1Char('x');
    text += QString::number(size.height());
    return text;
}

qreal deviceRatio(const QPainter *painter)
{
    const QPaintDevice *device = painter->device();
    return device != nullptr ? device->devicePixelRatioF() : 1.0;
}

CachedPicture::CachedPicture(const QString &key, const QSize &size, const QPainter *painter)
{
    const qreal ratio = deviceRatio(painter);
    m_key = keyForRatio(key, ratio);
    m_found = QPixmapCache::find(m_key, &m_pixmap);
    if (m_found)
        return;
    m_pixmap = QPixmap(size * ratio);
    m_pixmap.setDevicePixelRatio(ratio);
    m_pixmap.fill(Qt::transparent);
}

void CachedPicture::store() const
{
    QPixmapCache::insert(m_key, m_pixmap);
}

void fillLine(QPainter *painter, const QPoint &from, const QPoint &to, const QColor &color)
{
    const QPoint topLeft(qMin(from.x(), to.x()), qMin(from.y(), to.y()));
    const QPoint bottomRight(qMax(from.x(), to.x()), qMax(from.y(), to.y()));
    painter->fillRect(QRect(topLeft, bottomRight), color);
}

void fillPoint(QPainter *painter, const QPoint &point, const QColor &color)
{
    painter->fillRect(QRect(point, QSize(1, 1)), color);
}

void drawOutline(QPainter *painter, const QRect &rect, const QColor &color)
{
    fillLine(painter, rect.topLeft(), rect.topRight(), color);
    fillLine(painter, rect.bottomLeft(), rect.bottomRight(), color);
    fillLine(painter, rect.topLeft(), rect.bottomLeft(), color);
    fillLine(painter, rect.topRight(), rect.bottomRight(), color);
}

void fillTiled(QPainter *painter, const QRect &rect, const QPixmap &tile)
{
    if (!rect.isEmpty() && !tile.isNull())
        painter->fillRect(rect, tiledBrush(tile));
}

void drawVerticalGradient(QPainter *painter, const QRect &rect, const QColor &top, const QColor &bottom)
{
    const QString key = QString::number(rect.width()) + QLatin1Char('x') + QString::number(rect.height()) +
                        QLatin1Char('-') + QString::number(top.rgba(), 16) + QLatin1Char('-') +
                        QString::number(bottom.rgba(), 16);
    drawCachedPicture(painter, rect.topLeft(), rect.size(), key, [&](QPainter *picture, const QRect &area) {
        const int x = (area.left() + area.right()) / 2;
        QLinearGradient gradient(x, area.top(), x, area.bottom());
        gradient.setColorAt(0, top);
        gradient.setColorAt(1, bottom);
        picture->fillRect(area, gradient);
    });
}

QColor mergedColors(const QColor &colorA, const QColor &colorB, int factor)
{
    const auto mixed = [factor](int a, int b) {
        return b * (100 - factor) / 100 + a * factor / 100;
    };
    QColor color = colorA;
    color.setRed(mixed(colorA.red(), colorB.red()));
    color.setGreen(mixed(colorA.green(), colorB.green()));
    color.setBlue(mixed(colorA.blue(), colorB.blue()));
    return color;
}

QPainterPath roundRectPath(const QRect &rect, int radius)
{
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;
    rect.getCoords(&x1, &y1, &x2, &y2);
    const int r = radius;
    const int half = r / 2;
    QPainterPath path;
    path.moveTo(x2, y1 + r);
    path.arcTo(x2 - r, y1, r, r, 0, 90);
    path.lineTo(x1 + r + half, y1);
    path.arcTo(x1, y1, r, r, 90, 90);
    path.lineTo(x1, y2 - r);
    path.arcTo(x1, y2 - r, r, r, 180, 90);
    path.lineTo(x1 + r, y2);
    path.arcTo(x2 - r, y2 - r, r, r, 270, 90);
    path.closeSubpath();
    return path;
}

ThreeSlices loadSlices(const QString &name, int height, qreal ratio)
{
    return {scaledSlice(name + QLatin1String("LeftCap.png"), height, ratio),
            scaledSlice(name + QLatin1String("RightCap.png"), height, ratio),
            scaledSlice(name + QLatin1String("Blit.png"), height, ratio)};
}

void drawSlices(QPainter *painter, const QRect &rect, const ThreeSlices &slices, int reserve)
{
    const qreal left = logicalWidth(slices.left);
    const qreal right = logicalWidth(slices.right);
    painter->drawPixmap(rect.topLeft(), slices.left);
    painter->drawPixmap(QPointF(rect.right() - right, rect.top()), slices.right);
    const qreal middle = rect.width() - reserve - left - right;
    if (slices.middle.isNull() || middle <= 0)
        return;
    painter->fillRect(QRectF(rect.left() + left, rect.top(), middle, rect.height()), tiledBrush(slices.middle));
}

} // namespace PaintTools
