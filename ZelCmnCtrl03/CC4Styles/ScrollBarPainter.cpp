// The scroll bar: a light groove, arrow buttons at its ends, a slider of coloured strips with a cap at each end.
#include "CC4Styles/CommonControlStyle.h"

#include "CC4Styles/PaintTools.h"
#include "UiGraphics.h"

#include <QPainter>
#include <QPixmapCache>
#include <QStyleOptionSlider>

namespace {

// One colour per line of pixels across the bar's thickness: from the left edge of a vertical bar, from the lower edge
// of a horizontal one.
constexpr QRgb grooveStrip[] = {0xCFCFCF, 0xF0F0F0, 0xE2E2E2, 0xE2E2E2, 0xE4E4E3, 0xE5E4E5, 0xE7E7E6,
                                0xE9E9E9, 0xEBEAEB, 0xEDECED, 0xF0F0EF, 0xF1F2F2, 0xF5F4F4, 0xF6F6F7,
                                0xF8F8F9, 0xFBFAFB, 0xFDFDFC, 0xFEFEFE, 0xFEFEFE, 0xE3E3E3, 0xCFCFCF};
constexpr QRgb blueStrip[] = {0x57A2C0, 0x8DCBEA, 0x64B2D7, 0x65B3D9, 0x66B9DA, 0x69B8DB, 0x69B8DB, 0x6BB9DE, 0x6CBEE1,
                              0x7BC2E5, 0x7CCBE6, 0x7DCEE8, 0x82CEEB, 0x85CCED, 0x86CEED, 0xAFE1F4, 0x5B9AB5};
constexpr QRgb greyStrip[] = {0xC7C7C7, 0xE1E1E1, 0xD4D4D4, 0xD4D4D4, 0xD6D6D6, 0xD6D6D6, 0xD7D7D7, 0xD8D8D8, 0xD8D8D8,
                              0xDDDDDD, 0xDEDEDE, 0xDFDFDF, 0xDFDFDF, 0xE1E1E1, 0xE2E2E2, 0xECECEC, 0xC7C7C7};

constexpr int sliderInset = 2; // of the slider's strips from the edge of the bar
constexpr int forwardArrowFromEnd = 21;
constexpr int secondCapFromEnd = 3;
constexpr QSize forwardArrowKeySize(16, 16);

template <std::size_t Lines>
void drawStrips(QPainter *painter, const QRect &rect, const QRgb (&strip)[Lines], int first, bool horizontal)
{
    const int last = static_cast<int>(Lines) - 1;
    for (int line = 0; line <= last; ++line) {
        const QRect place = horizontal ? QRect(rect.left(), rect.top() + first + last - line, rect.width(), 1)
                                       : QRect(rect.left() + first + line, rect.top(), 1, rect.height());
        painter->fillRect(place, QColor(strip[line]));
    }
}

/** One painting of a scroll bar. */
struct ScrollBar
{
    const QStyleOptionSlider *option;
    bool horizontal;
    bool enabled;

    QString key(const char *element, const QSize &size) const
    {
        return PaintTools::stateKey(QLatin1String(element), option, size);
    }
    // The two orientations must not share a picture; the groove's own key is the same for both.
    QString orientedKey(const char *element, const QSize &size) const
    {
        return horizontal ? key(element, size) + QLatin1String("-horizontal") : key(element, size);
    }
};

void drawGroove(QPainter *painter, const ScrollBar &bar)
{
    const QRect rect = bar.option->rect;
    const QPalette &palette = bar.option->palette;
    PaintTools::drawFoundPicture(
        painter, rect.topLeft(), rect.size(), bar.key("scrollbar_groove", rect.size()),
        [&](QPainter *picture, const QRect &area) {
            picture->fillRect(area, palette.window());
            picture->fillRect(area, QBrush(palette.color(QPalette::Base), Qt::Dense4Pattern));
            drawStrips(picture, area, grooveStrip, 0, bar.horizontal);
            const QRect edge(area.topLeft(), bar.horizontal ? QSize(area.width(), 1) : QSize(1, area.height()));
            picture->fillRect(edge, QBrush(palette.color(QPalette::Base).darker(115), Qt::Dense4Pattern));
        });
}

void drawArrow(QPainter *painter, const QRect &rect, const QString &key, const QString &bitmap, const QPoint &place)
{
    PaintTools::drawFoundPicture(
        painter, rect.topLeft(), rect.size(), key,
        [&](QPainter *picture, const QRect &) {
            picture->drawPixmap(place, UIGGetPixmap(bitmap, PaintTools::deviceRatio(picture)));
        });
}

void drawBackArrow(QPainter *painter, const ScrollBar &bar, const QRect &rect)
{
    const QString bitmap =
        bar.horizontal ? QStringLiteral("ScrollbarBlueArrowLeft.png") : QStringLiteral("ScrollbarBlueArrowTop.png");
    drawArrow(painter, rect, bar.orientedKey("scrollbar_subline", rect.size()), bitmap, QPoint(0, 0));
}

void drawForwardArrow(QPainter *painter, const ScrollBar &bar, const QRect &rect)
{
    const QString bitmap =
        bar.horizontal ? QStringLiteral("ScrollbarBlueArrowRight.png") : QStringLiteral("ScrollbarBlueArrowBottom.png");
    const QPoint place = bar.horizontal ? QPoint(rect.width() - 1 - forwardArrowFromEnd, 0)
                                        : QPoint(0, rect.height() - 1 - forwardArrowFromEnd);
    drawArrow(painter, rect, bar.orientedKey("scrollbar_addline", forwardArrowKeySize), bitmap, place);
}

void drawCaps(QPainter *painter, const QRect &area, const ScrollBar &bar)
{
    const QString bitmaps = bar.enabled ? QStringLiteral("ScrollbarBlueSlider") : QStringLiteral("ScrollbarGreySlider");
    const qreal ratio = PaintTools::deviceRatio(painter);
    const auto bitmap = [&](const char *end) {
        return UIGGetPixmap(bitmaps + QLatin1String(end), ratio);
    };
    if (bar.horizontal) {
        painter->drawPixmap(area.left(), area.top() + sliderInset, bitmap("Left.png"));
        painter->drawPixmap(area.right() - secondCapFromEnd, area.top() + sliderInset, bitmap("Right.png"));
        return;
    }
    painter->drawPixmap(area.left() + sliderInset, area.top(), bitmap("Top.png"));
    painter->drawPixmap(area.left() + sliderInset, area.bottom() - secondCapFromEnd, bitmap("Bottom.png"));
}

void drawSliderBody(QPainter *painter, const ScrollBar &bar, const QRect &rect)
{
    PaintTools::drawFoundPicture(
        painter, rect.topLeft(), rect.size(), bar.orientedKey("scrollbar_slider", rect.size()),
        [&bar](QPainter *picture, const QRect &area) {
            const auto &strip = bar.enabled ? blueStrip : greyStrip;
            drawStrips(picture, area, strip, sliderInset, bar.horizontal);
            drawCaps(picture, area, bar);
        });
}

} // namespace

void CCommonControlStyle::drawScrollBar(const QStyleOptionComplex *option, QPainter *painter,
                                        const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (slider == nullptr)
        return;
    const ScrollBar bar{slider, slider->orientation == Qt::Horizontal, slider->state.testFlag(State_Enabled)};
    const auto rectOf = [&](SubControl part) {
        return proxy()->subControlRect(CC_ScrollBar, slider, part, widget);
    };
    if (slider->subControls & SC_ScrollBarGroove)
        drawGroove(painter, bar);
    if (slider->subControls & SC_ScrollBarSubLine)
        drawBackArrow(painter, bar, rectOf(SC_ScrollBarSubLine));
    if (slider->subControls & SC_ScrollBarAddLine)
        drawForwardArrow(painter, bar, rectOf(SC_ScrollBarAddLine));
    const QRect sliderRect = rectOf(SC_ScrollBarSlider);
    if ((slider->subControls & SC_ScrollBarSlider) && sliderRect.isValid())
        drawSliderBody(painter, bar, sliderRect);
}
