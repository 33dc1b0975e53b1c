// Tabs: their shapes and labels, the frame of their pages, the line below their bar.
#include "CC4Styles/CommonControlStyle.h"

#include "CC4Styles/PaintTools.h"
#include "UiGraphics.h"

#include <QPainter>
#include <QStyleOption>
#include <QTabBar>
#include <qdrawutil.h>

namespace {

constexpr int buttonGap = 4; // between a button of a tab and its label

using PaintTools::fillLine;
using PaintTools::fillPoint;

bool isRounded(QTabBar::Shape shape)
{
    return shape == QTabBar::RoundedNorth || shape == QTabBar::RoundedSouth || shape == QTabBar::RoundedWest ||
           shape == QTabBar::RoundedEast;
}

bool isEast(QTabBar::Shape shape)
{
    return shape == QTabBar::RoundedEast || shape == QTabBar::TriangularEast;
}

bool isVertical(QTabBar::Shape shape)
{
    return isEast(shape) || shape == QTabBar::RoundedWest || shape == QTabBar::TriangularWest;
}

/** A tab as it stands on its page: directions and corners, whatever side of the page it is on. */
struct StandingTab
{
    StandingTab(const QRect &rect, QTabBar::Shape shape, bool rightToLeft);

    QPoint up;
    QPoint right;
    QPoint topLeft;
    QPoint topRight;
    QPoint bottomLeft;
    QPoint bottomRight;

    QPoint down() const { return -up; }
    QPoint left() const { return -right; }
};

StandingTab::StandingTab(const QRect &rect, QTabBar::Shape shape, bool rightToLeft)
{
    switch (shape) {
    case QTabBar::RoundedSouth:
        *this = StandingTab(rect, QTabBar::RoundedNorth, rightToLeft);
        up = QPoint(0, 1);
        std::swap(topLeft, bottomLeft);
        std::swap(topRight, bottomRight);
        return;
    case QTabBar::RoundedWest:
        up = QPoint(-1, 0);
        right = QPoint(0, 1);
        topLeft = rect.topLeft();
        topRight = rect.bottomLeft();
        bottomLeft = rect.topRight();
        bottomRight = rect.bottomRight();
        return;
    case QTabBar::RoundedEast:
        up = QPoint(1, 0);
        right = QPoint(0, 1);
        topLeft = rect.topRight();
        topRight = rect.bottomRight();
        bottomLeft = rect.topLeft();
        bottomRight = rect.bottomLeft();
        return;
    default:
        up = QPoint(0, -1);
        right = rightToLeft ? QPoint(-1, 0) : QPoint(1, 0);
        topLeft = rightToLeft ? rect.topRight() : rect.topLeft();
        topRight = rightToLeft ? rect.topLeft() : rect.topRight();
        bottomLeft = rightToLeft ? rect.bottomRight() : rect.bottomLeft();
        bottomRight = rightToLeft ? rect.bottomLeft() : rect.bottomRight();
    }
}

/** The lines that a tab's shape is made of, each from its first to its second point. */
struct TabLines
{
    TabLines(const StandingTab &tab, int overlap)
        : topStart(tab.topLeft + 2 * tab.right),
          topEnd(tab.topRight + 2 * tab.left()),
          leftStart(tab.topLeft + 2 * tab.down()),
          leftEnd(tab.bottomLeft + overlap * tab.up + tab.down()),
          rightStart(tab.topRight + 2 * tab.down()),
          rightEnd(tab.bottomRight + overlap * tab.up + tab.down())
    {}

    QPoint topStart;
    QPoint topEnd;
    QPoint leftStart;
    QPoint leftEnd;
    QPoint rightStart;
    QPoint rightEnd;
};

void drawOutline(QPainter *painter, const StandingTab &tab, const TabLines &lines)
{
    const QColor out = UIGGetColor(QStringLiteral("UIGCLR_TABBAR_OUT"));
    fillLine(painter, lines.topStart, lines.topEnd, out);
    fillLine(painter, lines.leftStart, lines.leftEnd, out);
    fillLine(painter, lines.rightStart, lines.rightEnd, out);
    fillPoint(painter, tab.topLeft + tab.right + tab.down(), out);
    fillPoint(painter, tab.topRight + tab.left() + tab.down(), out);
    fillLine(painter, lines.rightStart + tab.right + tab.down(), lines.rightEnd + tab.right, out);
    fillLine(painter, lines.rightStart + tab.down(), lines.rightEnd,
             UIGGetColor(QStringLiteral("UIGCLR_TABBAR_SHADOW")));

    const QColor in = UIGGetColor(QStringLiteral("UIGCLR_TABBAR_IN"));
    fillLine(painter, lines.topStart + tab.down(), lines.topEnd + tab.down(), in);
    fillLine(painter, lines.rightStart + tab.left() + tab.down(), lines.rightEnd + tab.left(), in);
    fillLine(painter, lines.leftStart + tab.right + tab.down(), lines.leftEnd + tab.right, in);
}

void drawFace(QPainter *painter, const QRect &rect, const StandingTab &tab, const TabLines &lines, bool selected)
{
    if (selected) {
        painter->fillRect(rect.adjusted(2, 2, -2, -1), UIGGetColor(QStringLiteral("UIGCLR_WHITE")));
        return;
    }
    fillLine(painter, tab.bottomLeft + tab.right + 2 * tab.up, tab.bottomRight + tab.left() + 2 * tab.up,
             UIGGetColor(QStringLiteral("UIGCLR_TABBAR_IN")));
    // Along the tab, not across it.
    const QLine direction(lines.topStart + 2 * tab.right, lines.topEnd + 2 * tab.left());
    PaintTools::drawLinearGradient(painter, rect.adjusted(2, 2, -2, -3), direction,
                                   UIGGetColor(QStringLiteral("UIGCLR_RECTGRAD1")),
                                   UIGGetColor(QStringLiteral("UIGCLR_RECTGRAD2")));
}

// A selected tab is open to its page: the line below it is two stubs.
void drawBaseLine(QPainter *painter, const StandingTab &tab, bool selected)
{
    const QColor base = UIGGetColor(QStringLiteral("UIGCLR_TABBAR_BASELINE"));
    const QPoint left = tab.bottomLeft + tab.up;
    const QPoint right = tab.bottomRight + tab.up;
    if (selected) {
        fillLine(painter, right, right + 5 * tab.right, base);
        fillLine(painter, left, left + 5 * tab.left(), base);
        return;
    }
    fillLine(painter, left + 5 * tab.left(), right + 10 * tab.right, base);
}

/** The part of a page's frame that its tab bar covers. */
QRect openingOf(const QStyleOptionTabWidgetFrame *option, int overlap)
{
    const QRect rect = option->rect;
    const QSize bar = option->tabBarSize;
    const QSize corner = option->leftCornerWidgetSize;
    const bool reverse = option->direction == Qt::RightToLeft;
    const int x = reverse ? rect.right() + 1 - corner.width() - bar.width() : rect.left() + corner.width();
    switch (option->shape) {
    case QTabBar::RoundedNorth: return QRect(x, rect.top(), bar.width(), overlap);
    case QTabBar::RoundedSouth: return QRect(x, rect.bottom() + 1 - overlap, bar.width(), overlap);
    case QTabBar::RoundedWest: return QRect(rect.left(), rect.top() + corner.height(), overlap, bar.height());
    default: return QRect(rect.right() + 1 - overlap, rect.top() + corner.height(), overlap, bar.height());
    }
}

/** Four lines with corners cut by two pixels, in a rectangle. */
struct CutFrame
{
    explicit CutFrame(const QRect &rect, int inset)
        : top(rect.topLeft() + QPoint(2, inset), rect.topRight() + QPoint(-2, inset)),
          left(rect.topLeft() + QPoint(inset, 2), rect.bottomLeft() + QPoint(inset, -2)),
          right(rect.topRight() + QPoint(-inset, 2), rect.bottomRight() + QPoint(-inset, -2)),
          bottom(rect.bottomLeft() + QPoint(2, -inset), rect.bottomRight() + QPoint(-2, -inset))
    {}

    QLine top;
    QLine left;
    QLine right;
    QLine bottom;
};

void fillLine(QPainter *painter, const QLine &line, const QColor &color)
{
    fillLine(painter, line.p1(), line.p2(), color);
}

/** A point just beyond each end of a line. */
void fillBeyond(QPainter *painter, const QLine &line, const QPoint &direction, const QColor &color)
{
    fillPoint(painter, line.p1() - direction, color);
    fillPoint(painter, line.p2() + direction, color);
}

void drawPageFrame(QPainter *painter, const QRect &rect, const QColor &button, const QColor &border,
                   const QColor &merged)
{
    const CutFrame outer(rect, 0);
    const CutFrame inner(rect, 1);
    const QPoint across(1, 0);
    const QPoint down(0, 1);
    for (const QLine &line : {outer.top, outer.left, outer.right, outer.bottom})
        fillLine(painter, line, border);
    fillBeyond(painter, inner.left, down, border);
    fillBeyond(painter, inner.right, down, border);
    fillLine(painter, inner.left, button.lighter(105));
    fillLine(painter, inner.top, button.lighter(105));
    fillLine(painter, inner.right, button.darker(115));
    fillLine(painter, inner.bottom, button.darker(115));
    fillBeyond(painter, outer.left, down, merged);
    fillBeyond(painter, outer.right, down, merged);
    fillBeyond(painter, outer.top, across, merged);
    fillBeyond(painter, outer.bottom, across, merged);
}

QColor backgroundOf(const QStyleOption *option, const QWidget *widget)
{
    const QPalette::ColorRole role = widget != nullptr ? widget->backgroundRole() : QPalette::Window;
    return option->palette.color(role);
}

// What the buttons of a tab, such as the one that closes it, leave for its label. Along the text, so that left is where
// the text of an upright tab begins.
QRect besideButtons(const QRect &rect, const QStyleOptionTab *tab)
{
    const auto roomOf = [tab](const QSize &button) {
        if (!button.isValid() || button.isEmpty())
            return 0;
        return (isVertical(tab->shape) ? button.height() : button.width()) + buttonGap;
    };
    const int left = roomOf(tab->leftButtonSize);
    const int right = roomOf(tab->rightButtonSize);
    return tab->direction == Qt::RightToLeft && !isVertical(tab->shape) ? rect.adjusted(right, 0, -left, 0)
                                                                        : rect.adjusted(left, 0, -right, 0);
}

} // namespace

void CCommonControlStyle::drawTabBarTab(const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    if (qstyleoption_cast<const QStyleOptionTab *>(option) == nullptr)
        return;
    proxy()->drawControl(CE_TabBarTabShape, option, painter, widget);
    proxy()->drawControl(CE_TabBarTabLabel, option, painter, widget);
}

void CCommonControlStyle::drawTabBarTabShape(const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const auto *tabOption = qstyleoption_cast<const QStyleOptionTab *>(option);
    if (tabOption == nullptr)
        return;
    if (!isRounded(tabOption->shape)) {
        QCommonStyle::drawControl(CE_TabBarTabShape, option, painter, widget);
        return;
    }
    const bool enabled = option->state.testFlag(State_Enabled);
    const bool selected = option->state.testFlag(State_Selected) || tabOption->position == QStyleOptionTab::OnlyOneTab;
    const QRect rect = option->rect.adjusted(2, 0, -3, 0); // a gap of five pixels between neighbours
    const StandingTab standing(rect, tabOption->shape, option->direction == Qt::RightToLeft);
    const TabLines lines(standing, proxy()->pixelMetric(PM_TabBarBaseOverlap, option, widget));

    painter->save();
    const QRect body = QRect(lines.topStart + standing.down() + standing.left(), lines.rightEnd).normalized();
    if (enabled && selected && body.isValid())
        painter->fillRect(body, painter->brush());
    drawOutline(painter, standing, lines);
    drawFace(painter, rect, standing, lines, selected);
    drawBaseLine(painter, standing, selected);
    painter->restore();
}

void CCommonControlStyle::drawTabBarTabLabel(const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(option);
    if (tab == nullptr)
        return;
    const bool vertical = isVertical(tab->shape);
    const bool selected = option->state.testFlag(State_Selected);
    const bool enabled = option->state.testFlag(State_Enabled);
    QRect rect = option->rect;
    painter->save();
    if (vertical) {
        const bool east = isEast(tab->shape);
        QTransform turn =
            QTransform::fromTranslate(east ? rect.width() : 0, east ? rect.y() : rect.y() + rect.height());
        turn.rotate(east ? 90 : -90);
        painter->setTransform(turn, true);
        rect = QRect(0, 0, rect.height(), rect.width());
    }
    const int shiftX = proxy()->pixelMetric(PM_TabBarTabShiftHorizontal, option, widget);
    const int shiftY = proxy()->pixelMetric(PM_TabBarTabShiftVertical, option, widget);
    rect.adjust(0, 0, selected ? 0 : shiftX, selected ? 0 : shiftY);
    rect = besideButtons(rect, tab);
    int flags = Qt::AlignCenter | Qt::TextShowMnemonic;
    if (proxy()->styleHint(SH_UnderlineShortcut, option, widget) == 0)
        flags |= Qt::TextHideMnemonic;

    if (!tab->icon.isNull()) {
        const int small = proxy()->pixelMetric(PM_SmallIconSize, option, widget);
        const QSize size = tab->iconSize.isValid() ? tab->iconSize : QSize(small, small);
        const QIcon::Mode mode = enabled ? QIcon::Normal : QIcon::Disabled;
        const QSize real = tab->icon.actualSize(size, mode, QIcon::Off);
        const QRect place = tab->text.isEmpty()
                                ? alignedRect(Qt::LeftToRight, Qt::AlignCenter, real, rect)
                                : QRect(QPoint(rect.left() + 6, rect.center().y() - real.height() / 2), real);
        tab->icon.paint(painter, place, Qt::AlignCenter, mode, QIcon::Off);
        rect.setLeft(rect.left() + size.width() + 4);
    }
    const QPalette::ColorRole role = selected ? QPalette::Highlight : QPalette::WindowText;
    if (vertical)
        drawVerticalTabText(tab, rect, flags, painter, role);
    else
        drawTabItemText(painter, rect, flags, option->palette, enabled, tab->text, role);
    painter->restore();
}

// Through a picture: turned letters are drawn better as a turned picture of letters.
void CCommonControlStyle::drawVerticalTabText(const QStyleOptionTab *option, const QRect &rect, int flags,
                                              QPainter *painter, QPalette::ColorRole role) const
{
    if (rect.isEmpty())
        return;
    const qreal ratio = PaintTools::deviceRatio(painter);
    QPixmap picture(rect.size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter picturePainter(&picture);
    picturePainter.setFont(painter->font());
    drawTabItemText(&picturePainter, QRect(QPoint(0, 0), rect.size()), flags, option->palette,
                    option->state.testFlag(State_Enabled), option->text, role);
    picturePainter.end();
    proxy()->drawItemPixmap(painter, rect, flags, picture);
}

void CCommonControlStyle::drawFrameTabBarBase(const QStyleOption *option, QPainter *painter,
                                              const QWidget *widget) const
{
    const auto *base = qstyleoption_cast<const QStyleOptionTabBarBase *>(option);
    if (base == nullptr)
        return;
    if (!isRounded(base->shape)) {
        QCommonStyle::drawPrimitive(PE_FrameTabBarBase, option, painter, widget);
        return;
    }
    const QColor border = UIGGetColor(QStringLiteral("UIGCLR_FRAME_TABBASE"));
    const QColor white = UIGGetColor(QStringLiteral("UIGCLR_WHITE"));
    const QColor merged = mergedColors(backgroundOf(option, widget), border, 50);
    const bool south = base->shape == QTabBar::RoundedSouth;
    const QRect rect = option->rect;
    const QPoint above(0, 1);
    painter->save();
    painter->setClipRegion(QRegion(rect).subtracted(base->tabBarRect), Qt::ReplaceClip);
    PaintTools::fillLine(painter, rect.bottomLeft() - above, rect.bottomRight() - above, south ? merged : border);
    PaintTools::fillLine(painter, rect.bottomLeft(), rect.bottomRight(), south ? border : white);
    painter->restore();
}

void CCommonControlStyle::drawFrameTabWidget(const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const auto *frame = qstyleoption_cast<const QStyleOptionTabWidgetFrame *>(option);
    if (frame == nullptr)
        return;
    if (!isRounded(frame->shape)) {
        qDrawWinPanel(painter, option->rect, option->palette);
        return;
    }
    const QColor border = UIGGetColor(QStringLiteral("UIGCLR_FRAME_TABBORDER"));
    const QColor merged = mergedColors(backgroundOf(option, widget), border, 50);
    const QRect opening = openingOf(frame, proxy()->pixelMetric(PM_TabBarBaseOverlap, option, widget));
    painter->save();
    painter->setClipRegion(QRegion(option->rect).subtracted(opening), Qt::ReplaceClip);
    drawPageFrame(painter, option->rect, option->palette.color(QPalette::Button), border, merged);
    painter->restore();
}
