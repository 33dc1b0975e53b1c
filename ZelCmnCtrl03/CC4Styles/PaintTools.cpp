#include "CC4Styles/PaintTools.h"

#include "UiGraphics.h"
#include "include/qt_compat.h"

#include <QPixmapCache>
#include <QStyleOption>
#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace PaintTools {

namespace {

/** The text of a key: it is made for every painting, so without the machinery that formats for people. */
class KeyText
{
public:
    explicit KeyText(QLatin1String start) { m_text.append(start.data(), start.size()); }
    explicit KeyText(qint64 number) { addNumber(number, 10); }

    void add(char separator, qint64 number, int base = 10)
    {
        m_text.append(separator);
        addNumber(number, base);
    }

    QString toString() const { return QString::fromLatin1(m_text.constData(), m_text.size()); }

private:
    void addNumber(qint64 number, int base)
    {
        std::array<char, 24> digits;
        const char *end = std::to_chars(digits.data(), digits.data() + digits.size(), number, base).ptr;
        m_text.append(digits.data(), static_cast<int>(end - digits.data()));
    }

    QVarLengthArray<char, 128> m_text;
};

// The key on a ratio of 1 is the plain one; a picture of another resolution must not be found under it.
QString keyForRatio(const QString &key, qreal ratio)
{
    return qFuzzyCompare(ratio, 1.0) ? key : key + QLatin1Char('@') + QString::number(ratio);
}

constexpr int widestSlice = 32767; // pixels: the raster engine does not go beyond

QPixmap scaledSlice(const QString &fileName, int height, qreal ratio)
{
    const QPixmap pixmap = UIGGetPixmap(fileName, ratio);
    const int newHeight = qRound(height * ratio);
    // A slice of one row in a high button would become wider than anything that can be painted, and take all memory.
    if (pixmap.isNull() || qint64(pixmap.width()) * newHeight > qint64(widestSlice) * pixmap.height())
        return QPixmap();
    QPixmap slice = pixmap.scaledToHeight(newHeight, Qt::FastTransformation);
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

// A pen and a painter whose strokes are whole pixels, or halves of them where antialiased.
bool strokesPlainly(const QPainter *painter)
{
    const QPen &pen = painter->pen();
    return pen.style() == Qt::SolidLine && pen.widthF() <= 1.0 && pen.brush().style() == Qt::SolidPattern &&
           pen.color().alpha() == 255 && painter->brush().style() == Qt::NoBrush &&
           painter->worldTransform().type() <= QTransform::TxTranslate && qFuzzyCompare(deviceRatio(painter), 1.0);
}

// Four lines that meet in the corners and do not cross.
void drawFrame(QPainter *painter, const QRect &rect, const QColor &color)
{
    painter->fillRect(rect.x(), rect.y(), rect.width(), 1, color);
    painter->fillRect(rect.x(), rect.bottom(), rect.width(), 1, color);
    painter->fillRect(rect.x(), rect.y() + 1, 1, rect.height() - 2, color);
    painter->fillRect(rect.right(), rect.y() + 1, 1, rect.height() - 2, color);
}

// Qt 6 hands a translucent fill of more rows to other threads, which takes ten times as long as a column.
constexpr int rowsAtOnce = 64;

void fillColumn(QPainter *painter, int x, int y, int height, const QColor &color)
{
    const int end = y + height;
    for (; y < end; y += rowsAtOnce)
        painter->fillRect(x, y, 1, std::min(rowsAtOnce, end - y), color);
}

QRect scaledRect(const QRect &rect, qreal factor)
{
    return QRect((QPointF(rect.topLeft()) * factor).toPoint(), (QSizeF(rect.size()) * factor).toSize());
}

} // namespace

QString stateKey(QLatin1String key, const QStyleOption *option, const QSize &size)
{
    const auto *complex = qstyleoption_cast<const QStyleOptionComplex *>(option);
    const QStyle::SubControls active = complex != nullptr ? complex->activeSubControls : QStyle::SC_None;
    KeyText text(key);
    text.add('-', static_cast<int>(option->state));
    text.add('-', static_cast<int>(active));
    text.add('-', option->palette.cacheKey());
    text.add('-', size.width());
    text.add('x', size.height());
    return text.toString();
}

qreal deviceRatio(const QPainter *painter)
{
    // Most painters scale nothing. A widget takes longer to tell its ratio than many a picture takes to be drawn.
    if (painter->deviceTransform().type() <= QTransform::TxTranslate)
        return 1.0;
    const QPaintDevice *device = painter->device();
    return device != nullptr ? device->devicePixelRatioF() : 1.0;
}

QPixmap emptyPicture(const QSize &size, qreal ratio)
{
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    return picture;
}

QPixmap findPicture(const QString &key, const QPainter *painter)
{
    QPixmap picture;
    QPixmapCache::find(keyForRatio(key, deviceRatio(painter)), &picture);
    return picture;
}

void storePicture(const QString &key, const QPainter *painter, const QPixmap &picture)
{
    QPixmapCache::insert(keyForRatio(key, deviceRatio(painter)), picture);
}

bool showsPixelsAsDrawn(const QPainter *painter)
{
    // Parts that cover each other must blend as on a picture, and pixels must stay whole.
    const qreal ratio = deviceRatio(painter);
    return painter->worldTransform().type() <= QTransform::TxTranslate && qFuzzyCompare(painter->opacity(), 1.0) &&
           painter->compositionMode() == QPainter::CompositionMode_SourceOver &&
           qFuzzyCompare(ratio, std::round(ratio));
}

OnPicture::OnPicture(QPainter *painter, const QPoint &topLeft)
    : m_painter(painter),
      m_topLeft(topLeft),
      m_brushOrigin(painter->brushOrigin()),
      m_wasAntialiased(painter->testRenderHint(QPainter::Antialiasing))
{
    painter->translate(topLeft);
    if (!m_brushOrigin.isNull())
        painter->setBrushOrigin(0, 0);
    if (m_wasAntialiased)
        painter->setRenderHint(QPainter::Antialiasing, false);
}

OnPicture::~OnPicture()
{
    if (m_wasAntialiased)
        m_painter->setRenderHint(QPainter::Antialiasing);
    if (!m_brushOrigin.isNull())
        m_painter->setBrushOrigin(m_brushOrigin);
    m_painter->translate(-m_topLeft);
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

void strokeRect(QPainter *painter, const QRect &rect)
{
    if (!strokesPlainly(painter) || rect.width() < 2 || rect.height() < 2) {
        painter->drawRect(rect);
        return;
    }
    QColor color = painter->pen().color();
    if (!painter->testRenderHint(QPainter::Antialiasing)) {
        drawFrame(painter, rect.adjusted(0, 0, 1, 1), color);
        return;
    }
    // Each line lies on the edge between two rows of pixels and covers half of both.
    color.setAlphaF(color.alphaF() / 2);
    for (const int y : {rect.y() - 1, rect.y(), rect.bottom(), rect.bottom() + 1})
        painter->fillRect(rect.x(), y, rect.width(), 1, color);
    for (const int x : {rect.x() - 1, rect.x(), rect.right(), rect.right() + 1}) // over the rows in the corners
        fillColumn(painter, x, rect.y(), rect.height(), color);
}

void drawInside(QPainter *painter, const QRect &area, const QPoint &topLeft, const QPixmap &bitmap)
{
    const QRect place(topLeft, zel::deviceIndependentSize(bitmap));
    const QRect visible = place & area;
    if (visible == place)
        painter->drawPixmap(topLeft, bitmap);
    else if (!visible.isEmpty())
        painter->drawPixmap(visible, bitmap, scaledRect(visible.translated(-topLeft), bitmap.devicePixelRatioF()));
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
    KeyText key(rect.width());
    key.add('x', rect.height());
    key.add('-', top.rgba(), 16);
    key.add('-', bottom.rgba(), 16);
    drawCachedPicture(painter, rect.topLeft(), rect.size(), key.toString(), [&](QPainter *picture, const QRect &area) {
        const int x = (area.left() + area.right()) / 2;
        QLinearGradient gradient(x, area.top(), x, area.bottom());
        gradient.setColorAt(0, top);
        gradient.setColorAt(1, bottom);
        picture->fillRect(area, gradient);
    });
}

void drawLinearGradient(QPainter *painter, const QRect &rect, const QLine &direction, const QColor &from,
                        const QColor &to)
{
    const QLine line = direction.translated(-rect.topLeft());
    KeyText key(QLatin1String("gradient"));
    for (const int number : {rect.width(), rect.height(), line.x1(), line.y1(), line.x2(), line.y2()})
        key.add('-', number);
    key.add('-', from.rgba(), 16);
    key.add('-', to.rgba(), 16);
    drawCachedPicture(painter, rect.topLeft(), rect.size(), key.toString(), [&](QPainter *picture, const QRect &area) {
        QLinearGradient gradient(line.p1(), line.p2());
        gradient.setColorAt(0, from);
        gradient.setColorAt(1, to);
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
