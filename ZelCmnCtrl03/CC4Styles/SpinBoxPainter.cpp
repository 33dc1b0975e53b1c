// The spin box: its frame, the square of its two buttons, and their chevrons.
#include "CC4Styles/CommonControlStyle.h"

#include "CC4Styles/PaintTools.h"
#include "UiGraphics.h"

#include <QPainter>
#include <QStyleOptionSpinBox>

namespace {

/** A line of pixels, counted from the top left corner of a button; `fromRight` counts the end from the right edge. */
struct SheenLine
{
    int alpha;
    int x1;
    int y1;
    int x2; // from the button's right edge
    int y2;
};

// From the up button. Order is meaning: later lines lie over earlier ones.
constexpr SheenLine sheenLines[] = {
    {130, 1, 7, 1, 7},   {220, 1, 1, 1, 1},   {220, 1, 4, 1, 4},   {230, 1, 2, 1, 2},   {230, 1, 3, 1, 3},
    {230, 1, 5, 14, 5},  {255, 1, 2, 2, 2},   {255, 2, 3, 13, 3},  {255, 3, 3, 12, 3},  {255, 13, 3, 2, 3},
    {190, 2, 5, 1, 5},   {190, 1, 6, 1, 6},   {245, 1, 8, 1, 8},   {185, 1, 9, 1, 9},   {180, 1, 10, 1, 10},
    {160, 1, 11, 1, 11}, {170, 1, 12, 1, 12}, {235, 1, 13, 1, 13}, {170, 1, 14, 1, 14}, {50, 1, 8, 14, 12},
    {50, 14, 8, 1, 13},
};

/** A row of a chevron, in a button's coordinates. */
struct ChevronRow
{
    int y;
    int x1;
    int x2;
};

constexpr ChevronRow upChevron[] = {{1, 8, 8}, {2, 7, 9},   {3, 6, 10}, {4, 5, 7},  {4, 9, 11},
                                    {5, 4, 6}, {5, 10, 12}, {6, 5, 5},  {6, 11, 11}};
constexpr ChevronRow downChevron[] = {{1, 5, 5},  {1, 11, 11}, {2, 4, 6}, {2, 10, 12}, {3, 5, 7},
                                      {3, 9, 11}, {4, 6, 10},  {5, 7, 9}, {6, 8, 8}};

constexpr int buttonsSize = 16; // of the square that holds both
constexpr int disabledAlpha = 150;
constexpr int cornerAlpha = 130;

QColor withAlpha(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

void drawSheen(QPainter *painter, const QRect &up, const QRect &down, const QColor &sheen)
{
    const QColor corner = withAlpha(sheen, cornerAlpha);
    for (const QPoint &point : {up.topLeft(), up.topRight(), down.bottomLeft(), down.bottomRight()})
        PaintTools::fillPoint(painter, point, corner);
    for (const SheenLine &line : sheenLines)
        PaintTools::fillLine(painter, up.topLeft() + QPoint(line.x1, line.y1),
                             QPoint(up.right() - line.x2, up.top() + line.y2), withAlpha(sheen, line.alpha));
}

template <std::size_t Rows>
void drawChevron(QPainter *painter, const QPoint &topLeft, const ChevronRow (&rows)[Rows], const QColor &color)
{
    for (const ChevronRow &row : rows)
        PaintTools::fillLine(painter, topLeft + QPoint(row.x1, row.y), topLeft + QPoint(row.x2, row.y), color);
}

/** Lights the pressed button of an enabled box, and both of a disabled one. */
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
    const QColor arrow = UIGGetColor(QStringLiteral("UIGCLR_SPIN_ARROW"));
    drawButtonFaces(painter, option, up, down, sheen);
    painter->fillRect(QRect(up.topLeft(), QSize(buttonsSize, buttonsSize)),
                      withAlpha(border, enabled ? 255 : disabledAlpha));
    drawSheen(painter, up, down, sheen);
    drawChevron(painter, up.topLeft(), upChevron, arrow);
    drawChevron(painter, down.topLeft(), downChevron, arrow);
}

} // namespace

void CCommonControlStyle::drawSpinBox(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const
{
    const auto *spinBox = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
    if (spinBox == nullptr)
        return;
    const QRect rect = option->rect;
    const QString key = PaintTools::stateKey(QLatin1String("spinbox"), option, rect.size());
    const auto draw = [&](QPainter *picture, const QRect &area) {
        picture->fillRect(area, Qt::white);
        QStyleOptionFrame frame;
        static_cast<QStyleOption &>(frame) = QStyleOption(*option);
        frame.rect = area;
        frame.state |= State_Sunken;
        proxy()->drawPrimitive(PE_FrameLineEdit, &frame, picture, widget);
        QStyleOptionSpinBox here = *spinBox;
        here.rect = area;
        drawButtons(picture, spinBox, proxy()->subControlRect(CC_SpinBox, &here, SC_SpinBoxUp, widget),
                    proxy()->subControlRect(CC_SpinBox, &here, SC_SpinBoxDown, widget));
    };
    PaintTools::drawCachedPicture(painter, rect.topLeft(), rect.size(), key, draw);
}
