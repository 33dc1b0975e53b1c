#include "ListBoxEx/ListBoxEx.h"

#include "UiGraphics.h"
#include "include/qt_globals.h"

#include <QLinearGradient>
#include <QStyledItemDelegate>

namespace {

constexpr int fontPixels = 12;
constexpr int rowHeight = 92;         // that the gradient counts on
constexpr double beforeNext = 0.0001; // of the whole gradient: the end of a row stays ahead of the start of the next

QLinearGradient rowsGradient(int rows)
{
    const double total = static_cast<double>(rows) * rowHeight;
    const QColor top = UIGGetColor(QStringLiteral("UIGCLR_LISTBOXEX_GRAD1"));
    const QColor bottom = UIGGetColor(QStringLiteral("UIGCLR_LISTBOXEX_GRAD2"));
    QLinearGradient gradient(0, 0, 0, total);
    for (int row = 0; row < rows; ++row) {
        gradient.setColorAt(row * rowHeight / total, top);
        gradient.setColorAt((row + 1) * rowHeight / total - beforeNext, bottom);
    }
    return gradient;
}

bool isRowsGradient(const QGradient *gradient)
{
    if (gradient == nullptr || gradient->type() != QGradient::LinearGradient || gradient->stops().size() < 2)
        return false;
    const auto rows = gradient->stops().size() / 2;
    const QPointF end(0, static_cast<double>(rows * rowHeight));
    return static_cast<const QLinearGradient *>(gradient)->finalStop() == end;
}

/**
 * Gives each selected row the shading of its own. The palette's brush lies still while the rows scroll over it, and Qt
 * paints a gradient in 1024 steps, which with many rows would be a few steps and uneven edges for each.
 */
class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const QGradient *gradient = option->palette.brush(QPalette::Active, QPalette::Highlight).gradient();
        // An application that sets a highlight of its own gets that.
        if (!option->state.testFlag(QStyle::State_Selected) || !isRowsGradient(gradient))
            return;
        const QPoint top = option->rect.topLeft();
        QLinearGradient shading(top, top + QPoint(0, option->rect.height()));
        shading.setColorAt(0, gradient->stops().constFirst().second);
        shading.setColorAt(1, gradient->stops().constLast().second);
        option->palette.setBrush(QPalette::Active, QPalette::Highlight, shading);
    }
};

} // namespace

CListBoxEx::CListBoxEx(QWidget *parent) : QListWidget(parent)
{
    ZEL_LOG_SCOPE;
    setItemDelegate(new RowDelegate(this));
    setFont(UIGGetFont(fontPixels, -1, false));
}

CListBoxEx::~CListBoxEx()
{
    ZEL_LOG_SCOPE;
}

// By value, as its callers know it. NOLINTNEXTLINE(performance-unnecessary-value-param)
void CListBoxEx::addRow(QString imagePath, QString text)
{
    ZEL_LOG_SCOPE;
    QIcon icon;
    icon.addPixmap(QPixmap(imagePath), QIcon::Normal, QIcon::Off);
    auto *item = new QListWidgetItem;
    item->setIcon(icon);
    item->setText(text);
    item->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    addItem(item);
    QPalette colors = palette();
    colors.setBrush(QPalette::Active, QPalette::Highlight, rowsGradient(count()));
    setPalette(colors);
}
