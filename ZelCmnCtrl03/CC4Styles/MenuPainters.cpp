// Menu items.
#include "CC4Styles/CommonControlStyle.h"

#include "CC4Styles/PaintTools.h"
#include "UiGraphics.h"
#include "include/qt_compat.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionMenuItem>

#include <algorithm>

namespace {

constexpr int textFlags =
    Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip | Qt::TextShowMnemonic;
constexpr int narrowestIconColumn = 20;
constexpr QSize checkPlace(13, 13); // the mark is centred on it
constexpr QSize iconSize(15, 15);
constexpr int labelPixels = 12;

/** One painting of a menu item: the decisions, taken from the option. */
struct MenuItem
{
    explicit MenuItem(const QStyleOptionMenuItem *item)
        : option(item),
          enabled(item->state.testFlag(QStyle::State_Enabled)),
          selected(item->state.testFlag(QStyle::State_Selected)),
          checkable(item->checkType != QStyleOptionMenuItem::NotCheckable),
          iconColumn(std::max(item->maxIconWidth, narrowestIconColumn))
    {}

    QRect visual(const QRect &rect) const { return QStyle::visualRect(option->direction, option->rect, rect); }

    const QStyleOptionMenuItem *option;
    bool enabled;
    bool selected;
    bool checkable;
    int iconColumn;
};

QRect centredIn(const QRect &rect, const QSize &size)
{
    return QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, rect);
}

void drawSeparator(QPainter *painter, const QRect &rect)
{
    painter->fillRect(rect.left() + 8, rect.top(), rect.width() - 16, 1, UIGGetColor(QStringLiteral("UIGCLR_BLACK")));
}

void drawCheckMark(QPainter *painter, const MenuItem &item)
{
    if (!item.checkable || !item.option->icon.isNull())
        return;
    const QString name =
        item.option->checked ? QStringLiteral("CheckboxActiveChecked.png") : QStringLiteral("CheckboxActive.png");
    const QPixmap mark = UIGGetPixmap(name, PaintTools::deviceRatio(painter));
    const QRect rect = item.option->rect;
    const QRect place = item.visual(QRect(QPoint(rect.left() + 7, rect.center().y() - 6), checkPlace));
    PaintTools::drawInside(painter, rect, centredIn(place, zel::deviceIndependentSize(mark)).topLeft(), mark);
}

// Whatever the size of the pixmap, it fills its place.
void drawIcon(QPainter *painter, const MenuItem &item, int smallIcon)
{
    if (item.option->icon.isNull())
        return;
    const QIcon::Mode enabledMode = item.selected ? QIcon::Active : QIcon::Normal;
    const qreal ratio = PaintTools::deviceRatio(painter);
    const QPixmap pixmap =
        item.option->icon.pixmap(QSize(smallIcon, smallIcon) * ratio, item.enabled ? enabledMode : QIcon::Disabled,
                                 item.option->checked ? QIcon::On : QIcon::Off);
    const QRect rect = item.option->rect;
    const QRect column = item.visual(QRect(rect.x(), rect.y(), item.iconColumn, rect.height()));
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawPixmap(centredIn(column, iconSize), pixmap);
    painter->setRenderHint(QPainter::SmoothPixmapTransform, false);
}

void drawString(QPainter *painter, const MenuItem &item, const QRect &rect, const QString &text)
{
    const QPalette &palette = item.option->palette;
    if (!item.enabled && !item.selected) {
        painter->setPen(palette.color(QPalette::Light));
        painter->drawText(rect.translated(1, 1), textFlags, text);
    }
    painter->setPen(palette.color(QPalette::Text));
    painter->drawText(rect, textFlags, text);
}

void drawTexts(QPainter *painter, const MenuItem &item)
{
    if (item.option->text.isEmpty())
        return;
    const QRect rect = item.option->rect;
    const int start = item.iconColumn + 5;
    const QRect place(rect.x() + start, rect.y() + 2,
                      rect.width() - start - zel::reservedShortcutWidth(item.option) - 14, rect.height() - 4);
    const QString label = item.option->text.section(QLatin1Char('\t'), 0, 0);
    painter->save();
    // The shortcut in the painter's font, the label in the menu's.
    if (label.size() < item.option->text.size())
        drawString(painter, item, item.visual(QRect(place.topRight(), rect.bottomRight())),
                   item.option->text.mid(label.size() + 1));
    QFont font = UIGGetFont(labelPixels, -1, false);
    font.setBold(item.option->menuItemType == QStyleOptionMenuItem::DefaultItem);
    painter->setFont(font);
    drawString(painter, item, item.visual(place), label);
    painter->restore();
}

} // namespace

void CCommonControlStyle::drawMenuItem(const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const auto *itemOption = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    if (itemOption == nullptr)
        return;
    const QRect rect = option->rect;
    painter->save();
    if (itemOption->menuItemType == QStyleOptionMenuItem::Separator) {
        drawSeparator(painter, rect);
        painter->restore();
        return;
    }
    const MenuItem item(itemOption);
    if (item.selected)
        painter->fillRect(rect.left(), rect.top() + 2, rect.width(), rect.height() - 5,
                          UIGGetColor(QStringLiteral("UIGCLR_MENU_SELECTED_COLOR")));
    drawCheckMark(painter, item);
    drawIcon(painter, item, proxy()->pixelMetric(PM_SmallIconSize, option, widget));
    drawTexts(painter, item);
    if (itemOption->menuItemType == QStyleOptionMenuItem::SubMenu)
        drawSubMenuArrow(itemOption, painter, widget);
    painter->restore();
}

void CCommonControlStyle::drawSubMenuArrow(const QStyleOptionMenuItem *option, QPainter *painter,
                                           const QWidget *widget) const
{
    const QRect rect = option->rect;
    const int size = (rect.height() - 4) / 2;
    QStyleOptionMenuItem arrow = *option;
    arrow.rect =
        visualRect(option->direction, rect,
                   QRect(rect.left() + rect.width() - 8 - size, rect.top() + rect.height() / 2 - size / 2, size, size));
    arrow.state = option->state & State_Enabled;
    if (option->state.testFlag(State_Selected))
        arrow.palette.setColor(QPalette::ButtonText, option->palette.color(QPalette::HighlightedText));
    const PrimitiveElement element = QApplication::isRightToLeft() ? PE_IndicatorArrowLeft : PE_IndicatorArrowRight;
    proxy()->drawPrimitive(element, &arrow, painter, widget);
}
