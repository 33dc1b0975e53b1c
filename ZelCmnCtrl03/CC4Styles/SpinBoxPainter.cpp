// The spin box: its frame, the square of its two buttons, and their chevrons.
#include "CC4Styles/CommonControlStyle.h"

#include "CC4Styles/PaintTools.h"
#include "CC4Styles/pixels/SpinBoxPixels.h"
#include "UiGraphics.h"

#include <QPainter>
#include <QSpinBox>
#include <QStyleOptionSpinBox>

namespace {

constexpr int buttonsSize = 16; // of the square that holds both
constexpr int disabledAlpha = 150;
constexpr int cornerAlpha = 130;

QColor withAlpha(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

void drawCorners(QPainter *painter, const QRect &up, const QRect &down, const QColor &sheen)
{
    const QColor corner = withAlpha(sheen, cornerAlpha);
    for (const QPoint &point : {up.topLeft(), up.topRight(), down.bottomLeft(), down.bottomRight()})
        PaintTools::fillPoint(painter, point, corner);
}

/**
 * Lights the pressed button of an enabled box, and both of a disabled one. The square covers them where they lie under
 * it; it lets them through when disabled.
 */
void drawButtonFaces(QPainter *painter, const QStyleOptionSpinBox *option, const QRect &up, const QRect &down,
                     const QColor &sheen)
{
    const bool enabled = option->state.testFlag(QStyle::State_Enabled);
    const bool sunken = option->state.testFlag(QStyle::State_Sunken);
    if (!enabled || (sunken && (option->activeSubControls & QStyle::SC_SpinBoxUp)))
        painter->fillRect(up.adjusted(1, 1, -1, 0), sheen);
    if (!enabled || (sunken && (option->activeSubControls & QStyle::SC_SpinBoxDown)))
        painter->fillRect(down.adjusted(1, 0, -1, -1), sheen);
}

void drawButtons(QPainter *painter, const QStyleOptionSpinBox *option, const QRect &up, const QRect &down)
{
    const bool enabled = option->state.testFlag(QStyle::State_Enabled);
    const QColor border = UIGGetColor(QStringLiteral("UIGCLR_SPIN_BORDER"));
    const QColor sheen = UIGGetColor(QStringLiteral("UIGCLR_SPIN_BACKGROUND"));
    drawButtonFaces(painter, option, up, down, sheen);
    const QRect square(up.topLeft(), QSize(buttonsSize, buttonsSize));
    painter->fillRect(square, withAlpha(border, enabled ? 255 : disabledAlpha));
    drawCorners(painter, up, down, sheen);
    PixelTable::draw(painter, square, SpinBoxPixels::sheen);
    PixelTable::draw(painter, up, SpinBoxPixels::upChevron);
    PixelTable::draw(painter, down, SpinBoxPixels::downChevron);
}

QStyleOptionFrame frameOption(const QStyleOption &option, const QRect &rect)
{
    QStyleOptionFrame frame;
    frame.state = option.state | QStyle::State_Sunken;
    frame.direction = option.direction;
    frame.rect = rect;
    frame.fontMetrics = option.fontMetrics;
    frame.palette = option.palette;
    frame.styleObject = option.styleObject;
    return frame;
}

} // namespace

void CCommonControlStyle::drawSpinBox(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const
{
    const auto *spinBox = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
    if (spinBox == nullptr)
        return;
    const QRect rect = option->rect;
    QString key = PaintTools::stateKey(QLatin1String("spinbox"), option, rect.size());
    if (option->direction == Qt::RightToLeft)
        key += QLatin1String("-mirrored");
    if (qobject_cast<const QSpinBox *>(widget) == nullptr)
        key += QLatin1String("-frameless"); // the frame is for this widget alone
    const bool hasButtons = spinBox->buttonSymbols != QAbstractSpinBox::NoButtons;
    if (!hasButtons)
        key += QLatin1String("-buttonless");
    const auto draw = [&](QPainter *picture, const QRect &area) {
        picture->fillRect(area, Qt::white);
        const QStyleOptionFrame frame = frameOption(*option, area);
        proxy()->drawPrimitive(PE_FrameLineEdit, &frame, picture, widget);
        if (!hasButtons)
            return;
        QStyleOptionSpinBox here = *spinBox;
        here.rect = area;
        drawButtons(picture, spinBox, proxy()->subControlRect(CC_SpinBox, &here, SC_SpinBoxUp, widget),
                    proxy()->subControlRect(CC_SpinBox, &here, SC_SpinBoxDown, widget));
    };
    PaintTools::drawCachedPicture(painter, rect.topLeft(), rect.size(), key, draw);
}
