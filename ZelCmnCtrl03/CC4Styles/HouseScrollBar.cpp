// The main style's scroll bar: a light groove, arrow buttons at its ends, a slider of coloured strips.
#include "CC4Styles/CommonControlStyle.h"

#include "CC4Styles/ScrollBarPainter.h"

#include <QImage>
#include <QPainter>
#include <QStyleOptionSlider>

#include <algorithm>
#include <iterator>

namespace {

using ScrollBarPainter::ScrollBar;

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
constexpr int edgeShade = 115; // percent of the base colour's brightness

/** The colours of the lines, and where the first one is. */
template <std::size_t Count>
struct Strip
{
    const QRgb (&colors)[Count];
    int first;
};

constexpr Strip<21> groove{grooveStrip, 0};
constexpr Strip<17> blueBody{blueStrip, sliderInset};
constexpr Strip<17> greyBody{greyStrip, sliderInset};

template <std::size_t Count>
void drawLevelStrip(QPainter *painter, const QRect &area, const Strip<Count> &strip)
{
    int y = area.top() + strip.first + static_cast<int>(Count) - 1; // of the first line, the lowest one
    for (const QRgb color : strip.colors) {
        if (y <= area.bottom())
            painter->fillRect(QRect(area.left(), y, area.width(), 1), QColor(color));
        --y;
    }
}

// Columns are slow to fill. A piece of the bar is kept as an image and put there as often as it takes.
constexpr int pieceLength = 64;

template <std::size_t Count>
QImage uprightPiece(const Strip<Count> &strip)
{
    QImage piece(static_cast<int>(Count), pieceLength, QImage::Format_RGB32);
    for (int y = 0; y < pieceLength; ++y)
        for (std::size_t column = 0; column < Count; ++column)
            piece.setPixel(static_cast<int>(column), y, strip.colors[column]);
    return piece;
}

void drawUpright(QPainter *painter, const QRect &area, int first, const QImage &piece)
{
    const int width = std::min(piece.width(), area.width() - first);
    if (width <= 0)
        return; // drawImage() takes that for all of the piece
    for (int y = 0; y < area.height(); y += pieceLength) {
        const QRect visible(0, 0, width, std::min(pieceLength, area.height() - y));
        painter->drawImage(area.topLeft() + QPoint(first, y), piece, visible);
    }
}

// With the shade of its outermost column, every other pixel, which depends on the palette.
const QImage &uprightGroove(QRgb shade)
{
    static QImage piece = uprightPiece(groove);
    if (piece.pixel(0, 1) != shade)
        for (int y = 1; y < pieceLength; y += 2)
            piece.setPixel(0, y, shade);
    return piece;
}

void paintGroove(QPainter *picture, const QRect &area, const ScrollBar &bar)
{
    // The strip covers bars of the usual thickness.
    if ((bar.horizontal ? area.height() : area.width()) > static_cast<int>(std::size(grooveStrip)))
        ScrollBarPainter::paintGround(picture, area, bar);
    const QColor shade = bar.option->palette.color(QPalette::Base).darker(edgeShade);
    if (!bar.horizontal)
        return drawUpright(picture, area, 0, uprightGroove(shade.rgb()));
    drawLevelStrip(picture, area, groove);
    picture->fillRect(QRect(area.topLeft(), QSize(area.width(), 1)), QBrush(shade, Qt::Dense4Pattern));
}

void paintBackArrow(QPainter *picture, const QRect &area, const ScrollBar &bar)
{
    if (bar.horizontal)
        ScrollBarPainter::paintBlueArrowLeft(picture, area);
    else
        ScrollBarPainter::paintBlueArrowTop(picture, area);
}

void paintForwardArrow(QPainter *picture, const QRect &area, const ScrollBar &bar)
{
    if (bar.horizontal)
        ScrollBarPainter::paintBlueArrowRight(picture, area);
    else
        ScrollBarPainter::paintBlueArrowBottom(picture, area);
}

void paintSlider(QPainter *picture, const QRect &area, const ScrollBar &bar)
{
    static const QImage uprightBlue = uprightPiece(blueBody);
    static const QImage uprightGrey = uprightPiece(greyBody);
    if (bar.horizontal)
        drawLevelStrip(picture, area, bar.enabled ? blueBody : greyBody);
    else
        drawUpright(picture, area, sliderInset, bar.enabled ? uprightBlue : uprightGrey);
    ScrollBarPainter::paintHouseCaps(picture, area, bar);
}

constexpr ScrollBarPainter::Look houseLook = {
    {"scrollbar_groove", paintGroove},
    {"scrollbar_subline", paintBackArrow},
    {"scrollbar_addline", paintForwardArrow},
    {"scrollbar_slider", paintSlider},
    false,
};

} // namespace

void CCommonControlStyle::drawScrollBar(const QStyleOptionComplex *option, QPainter *painter,
                                        const QWidget *widget) const
{
    ScrollBarPainter::draw(painter, houseLook, option, proxy(), widget);
}
