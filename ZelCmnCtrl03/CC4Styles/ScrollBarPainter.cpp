#include "CC4Styles/ScrollBarPainter.h"

#include "CC4Styles/PaintTools.h"
#include "UiGraphics.h"

#include <QStyleOptionSlider>

#include <utility>

namespace ScrollBarPainter {

namespace {

constexpr int capInset = 2; // of a cap from the edge of the bar
constexpr int secondCapFromEnd = 3;
constexpr int forwardArrowFromEnd = 21;
constexpr QSize forwardArrowKeySize(16, 16); // whatever its size: one picture serves all bars of a state

void drawElement(QPainter *painter, const Element &element, bool isStored, const ScrollBar &bar, const QRect &rect,
                 const QString &key)
{
    const auto paint = [&](QPainter *picture, const QRect &area) {
        element.paint(picture, area, bar);
    };
    QRect target = rect.translated(element.shift, 0);
    if (element.stretchedWidth != 0) {
        target.setWidth(element.stretchedWidth);
        PaintTools::drawFittedPicture(painter, target, rect.size(), key, paint);
    } else if (isStored) {
        PaintTools::drawCachedPicture(painter, target.topLeft(), rect.size(), key, paint);
    } else {
        PaintTools::drawFoundPicture(painter, target.topLeft(), rect.size(), key, paint);
    }
}

} // namespace

void draw(QPainter *painter, const Look &look, const QStyleOptionComplex *option, const QStyle *style,
          const QWidget *widget)
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (slider == nullptr)
        return;
    const ScrollBar bar{slider, slider->orientation == Qt::Horizontal, slider->state.testFlag(QStyle::State_Enabled)};
    const auto rectOf = [&](QStyle::SubControl part) {
        return style->subControlRect(QStyle::CC_ScrollBar, slider, part, widget).adjusted(look.inset, 0, 0, 0);
    };
    const auto keyOf = [slider](const Element &element, const QSize &size) {
        return PaintTools::stateKey(QLatin1String(element.key), slider, size);
    };
    // The two orientations must not share a picture; the groove's own key is the same for both.
    const QString orientation = bar.horizontal ? QStringLiteral("-horizontal") : QString();
    Element backArrow = look.backArrow;
    Element forwardArrow = look.forwardArrow;
    QString ends = orientation;
    if (bar.horizontal && slider->direction == Qt::RightToLeft) { // the way back is to the right
        std::swap(backArrow.paint, forwardArrow.paint);
        ends += QLatin1String("-mirrored");
    }

    if (slider->subControls & QStyle::SC_ScrollBarGroove) {
        const QRect rect = slider->rect.adjusted(look.inset, 0, 0, 0);
        drawElement(painter, look.groove, look.isStored, bar, rect, keyOf(look.groove, rect.size()));
    }
    if (slider->subControls & QStyle::SC_ScrollBarSubLine) {
        const QRect rect = rectOf(QStyle::SC_ScrollBarSubLine);
        drawElement(painter, backArrow, look.isStored, bar, rect, keyOf(backArrow, rect.size()) + ends);
    }
    if (slider->subControls & QStyle::SC_ScrollBarAddLine) {
        drawElement(painter, forwardArrow, look.isStored, bar, rectOf(QStyle::SC_ScrollBarAddLine),
                    keyOf(forwardArrow, forwardArrowKeySize) + ends);
    }
    const QRect rect = rectOf(QStyle::SC_ScrollBarSlider);
    if ((slider->subControls & QStyle::SC_ScrollBarSlider) && rect.isValid())
        drawElement(painter, look.slider, look.isStored, bar, rect, keyOf(look.slider, rect.size()) + orientation);
}

QPixmap bitmap(const QString &name, const QPainter *picture)
{
    return UIGGetPixmap(name, PaintTools::deviceRatio(picture));
}

void paintGround(QPainter *picture, const QRect &area, const ScrollBar &bar)
{
    const QPalette &palette = bar.option->palette;
    picture->fillRect(area, palette.window());
    picture->fillRect(area, QBrush(palette.color(QPalette::Base), Qt::Dense4Pattern));
}

void paintBlueArrowLeft(QPainter *picture, const QRect &area)
{
    PaintTools::drawInside(picture, area, area.topLeft(),
                           bitmap(QStringLiteral("ScrollbarBlueArrowLeft.png"), picture));
}

void paintBlueArrowRight(QPainter *picture, const QRect &area)
{
    PaintTools::drawInside(picture, area, QPoint(area.right() - forwardArrowFromEnd, area.top()),
                           bitmap(QStringLiteral("ScrollbarBlueArrowRight.png"), picture));
}

void paintBlueArrowTop(QPainter *picture, const QRect &area)
{
    PaintTools::drawInside(picture, area, area.topLeft(), bitmap(QStringLiteral("ScrollbarBlueArrowTop.png"), picture));
}

void paintBlueArrowBottom(QPainter *picture, const QRect &area)
{
    PaintTools::drawInside(picture, area, QPoint(area.left(), area.bottom() - forwardArrowFromEnd),
                           bitmap(QStringLiteral("ScrollbarBlueArrowBottom.png"), picture));
}

void paintCaps(QPainter *picture, const QRect &area, const ScrollBar &bar, const QString &name)
{
    const auto drawCap = [&](const char *end, int x, int y) {
        PaintTools::drawInside(picture, area, QPoint(x, y), bitmap(name + QLatin1String(end), picture));
    };
    if (bar.horizontal) {
        drawCap("Left.png", area.left(), area.top() + capInset);
        drawCap("Right.png", area.right() - secondCapFromEnd, area.top() + capInset);
        return;
    }
    drawCap("Top.png", area.left() + capInset, area.top());
    drawCap("Bottom.png", area.left() + capInset, area.bottom() - secondCapFromEnd);
}

void paintHouseCaps(QPainter *picture, const QRect &area, const ScrollBar &bar)
{
    paintCaps(picture, area, bar,
              bar.enabled ? QStringLiteral("ScrollbarBlueSlider") : QStringLiteral("ScrollbarGreySlider"));
}

} // namespace ScrollBarPainter
