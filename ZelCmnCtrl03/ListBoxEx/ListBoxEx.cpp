#include "ListBoxEx/ListBoxEx.h"

#include "UiGraphics.h"
#include "include/qt_globals.h"

#include <QLinearGradient>

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

} // namespace

CListBoxEx::CListBoxEx(QWidget *parent) : QListWidget(parent)
{
    ZEL_LOG_SCOPE;
    setFont(UIGGetFont(fontPixels, -1, false));
}

CListBoxEx::~CListBoxEx()
{
    ZEL_LOG_SCOPE;
}

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
