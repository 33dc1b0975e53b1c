#include "ProgressDialogEx/DialogFace.h"

#include "UiGraphics.h"

namespace {

// Degrees, counter-clockwise from three o'clock.
constexpr int atNine = 180;
constexpr int atSix = 270;
constexpr int quarter = 90;

} // namespace

QPainterPath DialogFace::roundBottomPath(const QRect &rect, int radius)
{
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;
    rect.getCoords(&x1, &y1, &x2, &y2);
    QPainterPath path;
    path.moveTo(x2, y1);
    path.lineTo(x1, y1);
    path.lineTo(x1, y2 - radius);
    path.arcTo(x1, y2 - radius, radius, radius, atNine, quarter);
    path.lineTo(x1 + radius, y2);
    path.arcTo(x2 - radius, y2 - radius, radius, radius, atSix, quarter);
    path.closeSubpath();
    return path;
}

QRegion DialogFace::regionOf(const QPainterPath &path)
{
    return QRegion(path.toFillPolygon().toPolygon(), Qt::OddEvenFill);
}

QRadialGradient DialogFace::gradient(const QRect &rect, int radius)
{
    const QPoint middle(rect.width() / 2, rect.height() / 2);
    QRadialGradient gradient(middle, radius, middle);
    gradient.setColorAt(1, UIGGetColor(QStringLiteral("UIGCLR_PROGRESSDIALOGEX_GRAD1")));
    gradient.setColorAt(0, UIGGetColor(QStringLiteral("UIGCLR_PROGRESSDIALOGEX_GRAD2")));
    return gradient;
}
