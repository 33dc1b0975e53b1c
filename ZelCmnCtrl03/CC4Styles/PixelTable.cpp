#include "CC4Styles/PixelTable.h"

#include "UiGraphics.h"

#include <QPainter>

#include <algorithm>
#include <unordered_map>

namespace PixelTable {

namespace {

int placed(int place, int nearEdge, int farEdge)
{
    return place >= 0 ? nearEdge + place : farEdge + 1 + place;
}

QRect placed(const Operation &operation, const QRect &rect)
{
    return QRect(
        QPoint(placed(operation.x1, rect.left(), rect.right()), placed(operation.y1, rect.top(), rect.bottom())),
        QPoint(placed(operation.x2, rect.left(), rect.right()), placed(operation.y2, rect.top(), rect.bottom())));
}

// The registry does not change once it has started, and the keys are literals: what was found is found by their
// addresses from then on.
QColor colorOf(const char *key)
{
    static std::unordered_map<const char *, QColor> known;
    const auto found = known.find(key);
    if (found != known.end())
        return found->second;
    const bool isFinal = CUIGraphics::initializeUIG();
    const QColor color = UIGGetColor(QLatin1String(key));
    if (isFinal)
        known.emplace(key, color);
    return color;
}

/** Hands each operation that `rect` has room for to `fill(pixels, color, ink)`. */
template <typename Fill>
void forEach(const QRect &rect, const Operation *operations, std::size_t count, Fill &&fill)
{
    const char *colorKey = nullptr;
    QColor color;
    for (const Operation *operation = operations; operation != operations + count; ++operation) {
        const QRect pixels = placed(*operation, rect);
        if (pixels.isEmpty() || !pixels.intersects(rect))
            continue; // isEmpty: the ends have crossed, and an intersection would put them in order
        if (operation->ink.colorKey != colorKey) { // runs of one key are looked up once
            colorKey = operation->ink.colorKey;
            color = colorOf(colorKey);
        }
        fill(pixels & rect, color, operation->ink);
    }
}

} // namespace

void draw(QPainter *painter, const QRect &rect, const Operation *operations, std::size_t count, const int *alphas)
{
    if (rect.isEmpty())
        return;
    // Antialiasing would smear the edges of pixels on a fractional device pixel ratio.
    const bool wasAntialiased = painter->testRenderHint(QPainter::Antialiasing);
    if (wasAntialiased)
        painter->setRenderHint(QPainter::Antialiasing, false);
    forEach(rect, operations, count, [&](const QRect &pixels, QColor color, const Ink &ink) {
        color.setAlpha(ink.alphaSlot >= 0 ? alphas[ink.alphaSlot] : ink.alpha);
        // Rectangles and no lines: they are whole pixels on every device pixel ratio.
        painter->fillRect(pixels, color);
    });
    if (wasAntialiased)
        painter->setRenderHint(QPainter::Antialiasing);
}

// Scaled, an image would be smoothed on some painters.
void drawComposed(QPainter *painter, const QRect &rect, const Operation *operations, std::size_t count)
{
    if (painter->deviceTransform().type() > QTransform::TxTranslate)
        return draw(painter, rect, operations, count);
    QImage image(rect.size(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return;
    image.fill(Qt::transparent);
    auto *const first = reinterpret_cast<QRgb *>(image.bits());
    const qptrdiff width = image.bytesPerLine() / qptrdiff(sizeof(QRgb));
    forEach(image.rect(), operations, count, [=](const QRect &pixels, const QColor &color, const Ink &) {
        const QRgb rgb = color.rgb();
        for (int y = pixels.top(); y <= pixels.bottom(); ++y)
            std::fill_n(first + y * width + pixels.left(), pixels.width(), rgb);
    });
    painter->drawImage(rect.topLeft(), image);
}

} // namespace PixelTable
