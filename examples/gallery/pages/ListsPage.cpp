#include "Pages.h"

#include "MakerTools.h"

#include <QDate>
#include <QHeaderView>
#include <QListWidget>
#include <QTableWidget>
#include <QTreeWidget>

namespace gallery {

namespace {

constexpr QSize viewSize(340, 200);
constexpr QSize tableSize(340, 240);
constexpr int iconPixels = 48;
constexpr int smallIconPixels = 16;
constexpr int pictureCount = 9;
const QDate firstDay(2026, 3, 14);

QString fileName(int number)
{
    return QStringLiteral("DSC_%1.jpg").arg(number * 7 % 100, 4, 10, QLatin1Char('0'));
}

QString day(int number)
{
    return firstDay.addDays(number * 5 % 9).toString(Qt::ISODate);
}

template <class View>
QWidget *finish(View *view, const QSize &size, State state, const MakerSettings &settings)
{
    if (state == State::Disabled)
        view->setEnabled(false);
    applyForeignStyle(view, settings);
    view->resize(size);
    return view;
}

void addFolder(QTreeWidget *tree, const QString &name, int count)
{
    auto *folder = new QTreeWidgetItem(tree, {name, QString::number(count)});
    folder->setIcon(0, sampleIcon(QStringLiteral("photo")));
    for (int i = 1; i <= count; ++i)
        new QTreeWidgetItem(folder, {fileName(i), day(i)});
}

Maker sortedTree(Qt::SortOrder order)
{
    return [order](State state, const MakerSettings &settings, QWidget *parent) {
        const SampleTexts &texts = settings.texts;
        auto *tree = new QTreeWidget(parent);
        tree->setHeaderLabels({texts.order.name, texts.order.date});
        tree->setIconSize(QSize(smallIconPixels, smallIconPixels));
        tree->setAlternatingRowColors(order == Qt::DescendingOrder);
        addFolder(tree, texts.photos, 3);
        addFolder(tree, texts.folder, 2);
        addFolder(tree, texts.share, 2);
        tree->topLevelItem(2)->setDisabled(true);
        tree->setSortingEnabled(true);
        tree->sortByColumn(0, order);
        tree->expandItem(tree->topLevelItem(1)); // the photos, whichever order
        tree->setCurrentItem(tree->topLevelItem(1)->child(0));
        return finish(tree, viewSize, state, settings);
    };
}

void fillTable(QTableWidget *table, const SampleTexts &texts)
{
    table->setHorizontalHeaderLabels({texts.order.name, texts.order.date, texts.order.copies});
    for (int row = 0; row < table->rowCount(); ++row) {
        auto *copies = new QTableWidgetItem;
        copies->setData(Qt::DisplayRole, 1 + row * 3 % 5); // a number, so that it is sorted as one
        auto *name = new QTableWidgetItem(fileName(row));
        name->setCheckState(row % 2 == 0 ? Qt::Checked : Qt::Unchecked);
        table->setItem(row, 0, name);
        table->setItem(row, 1, new QTableWidgetItem(day(row)));
        table->setItem(row, 2, copies);
    }
}

Maker sortedTable(Qt::SortOrder order)
{
    return [order](State state, const MakerSettings &settings, QWidget *parent) {
        auto *table = new QTableWidget(pictureCount, 3, parent);
        table->setAlternatingRowColors(order == Qt::DescendingOrder);
        fillTable(table, settings.texts);
        table->setSortingEnabled(true);
        table->sortByColumn(1, order);
        table->selectRow(2);
        return finish(table, tableSize, state, settings);
    };
}

void addPictures(QListWidget *list)
{
    for (int i = 0; i < pictureCount; ++i)
        new QListWidgetItem(sampleIcon(QStringLiteral("photos-48")), fileName(i), list);
    list->setCurrentRow(1);
}

QWidget *makeList(State state, const MakerSettings &settings, QWidget *parent)
{
    auto *list = new QListWidget(parent);
    list->setIconSize(QSize(smallIconPixels, smallIconPixels));
    list->setAlternatingRowColors(true);
    list->setSortingEnabled(true);
    addPictures(list);
    return finish(list, viewSize, state, settings);
}

QWidget *makeIcons(State state, const MakerSettings &settings, QWidget *parent)
{
    auto *list = new QListWidget(parent);
    list->setViewMode(QListView::IconMode);
    list->setIconSize(QSize(iconPixels, iconPixels));
    list->setResizeMode(QListView::Adjust);
    list->setSpacing(8);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    addPictures(list);
    return finish(list, viewSize, state, settings);
}

// Icons of the size that the style proposes.
QWidget *makeLargeIcons(State state, const MakerSettings &settings, QWidget *parent)
{
    auto *list = new QListWidget(parent);
    addPictures(list);
    return finish(list, viewSize, state, settings);
}

const std::vector<Row> rows = {
    {QStringLiteral("QTreeWidget"), sortedTree(Qt::AscendingOrder)},
    {QStringLiteral("QTreeWidget, alternating"), sortedTree(Qt::DescendingOrder)},
    {QStringLiteral("QTableWidget"), sortedTable(Qt::AscendingOrder)},
    {QStringLiteral("QTableWidget, alternating"), sortedTable(Qt::DescendingOrder)},
    {QStringLiteral("QListWidget, alternating"), makeList},
    {QStringLiteral("The same, icons in the style's size"), makeLargeIcons},
    {QStringLiteral("QListWidget, icons"), makeIcons},
};

const std::vector<Column> states = {
    {QStringLiteral("Working"), State::Working},
    {QStringLiteral("Disabled"), State::Disabled},
};

} // namespace

PageDescription listsPage()
{
    return {QStringLiteral("lists"),
            QStringLiteral("Lists"),
            {
                {QStringLiteral("Lists, tables and trees"),
                 QStringLiteral("A click on a header sorts by its column, another one the other way round."),
                 table(rows, states)},
            }};
}

} // namespace gallery
