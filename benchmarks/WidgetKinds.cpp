#include "WidgetKinds.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QStyle>
#include <QTabBar>
#include <QToolButton>
#include <QTreeWidget>

namespace {

using Widget = std::unique_ptr<QWidget>;

Widget pushButton()
{
    return std::make_unique<QPushButton>(QStringLiteral("Print"));
}

Widget defaultButton()
{
    auto button = std::make_unique<QPushButton>(QStringLiteral("Print"));
    button->setDefault(true);
    return button;
}

Widget flatButton()
{
    auto button = std::make_unique<QPushButton>(QStringLiteral("Print"));
    button->setFlat(true);
    return button;
}

Widget toolButton()
{
    auto button = std::make_unique<QToolButton>();
    button->setText(QStringLiteral("Rotate"));
    return button;
}

Widget checkBox()
{
    auto box = std::make_unique<QCheckBox>(QStringLiteral("Borderless"));
    box->setChecked(true);
    return box;
}

Widget radioButton()
{
    auto button = std::make_unique<QRadioButton>(QStringLiteral("Portrait"));
    button->setChecked(true);
    return button;
}

Widget lineEdit()
{
    return std::make_unique<QLineEdit>(QStringLiteral("Holiday photos"));
}

Widget comboBox()
{
    auto box = std::make_unique<QComboBox>();
    box->addItems({QStringLiteral("Glossy paper"), QStringLiteral("Matte paper")});
    return box;
}

Widget spinBox()
{
    auto box = std::make_unique<QSpinBox>();
    box->setValue(12);
    return box;
}

Widget slider()
{
    auto slider = std::make_unique<QSlider>(Qt::Horizontal);
    slider->setTickPosition(QSlider::TicksBelow);
    slider->setTickInterval(10);
    slider->setValue(40);
    return slider;
}

Widget scrollBar(Qt::Orientation orientation)
{
    auto bar = std::make_unique<QScrollBar>(orientation);
    bar->setRange(0, 100);
    bar->setPageStep(40);
    bar->setValue(30);
    return bar;
}

Widget horizontalScrollBar()
{
    return scrollBar(Qt::Horizontal);
}

Widget verticalScrollBar()
{
    return scrollBar(Qt::Vertical);
}

Widget progressBar()
{
    auto bar = std::make_unique<QProgressBar>();
    bar->setValue(60);
    return bar;
}

Widget groupBox()
{
    return std::make_unique<QGroupBox>(QStringLiteral("Paper"));
}

Widget tabBar()
{
    auto bar = std::make_unique<QTabBar>();
    for (const char *name : {"General", "Colour", "Layout", "Paper"})
        bar->addTab(QLatin1String(name));
    bar->setCurrentIndex(1);
    return bar;
}

Widget header()
{
    auto header = std::make_unique<QHeaderView>(Qt::Horizontal);
    auto *model = new QStandardItemModel(4, 6, header.get());
    model->setHorizontalHeaderLabels({QStringLiteral("Name"), QStringLiteral("Size"), QStringLiteral("Date"),
                                      QStringLiteral("Camera"), QStringLiteral("Lens"), QStringLiteral("Place")});
    header->setModel(model);
    return header;
}

Widget menu()
{
    auto menu = std::make_unique<QMenu>();
    for (int i = 0; i < 12; ++i)
        menu->addAction(QStringLiteral("Command number %1").arg(i));
    return menu;
}

Widget tree()
{
    auto tree = std::make_unique<QTreeWidget>();
    tree->setHeaderHidden(true);
    tree->setIconSize(QSize(16, 16));
    for (int i = 0; i < 4; ++i) {
        auto *album = new QTreeWidgetItem(tree.get(), {QStringLiteral("Album %1").arg(i)});
        for (int j = 0; j < 4; ++j)
            new QTreeWidgetItem(album, {QStringLiteral("Photo %1").arg(j)});
        album->setExpanded(true);
    }
    return tree;
}

Widget list()
{
    auto list = std::make_unique<QListWidget>();
    list->setIconSize(QSize(16, 16));
    for (int i = 0; i < 50; ++i)
        list->addItem(QStringLiteral("Photo number %1").arg(i));
    list->setCurrentRow(3);
    return list;
}

Widget label()
{
    return std::make_unique<QLabel>(QStringLiteral("Paper size"));
}

} // namespace

const std::vector<WidgetKind> &widgetKinds()
{
    static const std::vector<WidgetKind> kinds = {
        {QStringLiteral("push button"), pushButton, QSize(96, 28), 1.1, 1.0},
        {QStringLiteral("push button, default"), defaultButton, QSize(96, 28), 1.1, 0},
        {QStringLiteral("push button, flat"), flatButton, QSize(96, 28), 1.1, 0},
        {QStringLiteral("tool button"), toolButton, QSize(72, 26), 0, 0},
        {QStringLiteral("check box"), checkBox, QSize(120, 22), 0.65, 0},
        {QStringLiteral("radio button"), radioButton, QSize(120, 22), 0.65, 0},
        {QStringLiteral("line edit"), lineEdit, QSize(160, 24), 0.8, 0},
        {QStringLiteral("combo box"), comboBox, QSize(140, 24), 1.1, 0},
        {QStringLiteral("spin box"), spinBox, QSize(96, 24), 1.4, 0},
        {QStringLiteral("slider with ticks"), slider, QSize(200, 31), 0.95, 0},
        {QStringLiteral("scroll bar, horizontal"), horizontalScrollBar, QSize(240, 21), 0.4, 0},
        {QStringLiteral("scroll bar, vertical"), verticalScrollBar, QSize(21, 240), 0.4, 0},
        {QStringLiteral("progress bar"), progressBar, QSize(200, 22), 0.4, 0},
        {QStringLiteral("group box"), groupBox, QSize(240, 160), 0.45, 0},
        {QStringLiteral("tab bar of 4"), tabBar, QSize(400, 30), 0.6, 0},
        {QStringLiteral("header of 6"), header, QSize(600, 24), 1.1, 0},
        {QStringLiteral("menu of 12"), menu, QSize(200, 300), 0.85, 0},
        {QStringLiteral("tree of 20"), tree, QSize(300, 480), 1.1, 0},
        {QStringLiteral("list of 50"), list, QSize(300, 480), 1.1, 0},
        {QStringLiteral("form of 40"), makeForm, QSize(800, 400), 0.75, 1.0},
    };
    return kinds;
}

std::unique_ptr<QWidget> makeForm()
{
    constexpr int columns = 4;
    constexpr int rows = 10;
    using Maker = Widget (*)();
    constexpr Maker makers[] = {label,  lineEdit, comboBox,   spinBox,  checkBox,
                                slider, label,    pushButton, groupBox, radioButton};
    auto form = std::make_unique<QWidget>();
    auto *grid = new QGridLayout(form.get());
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            grid->addWidget(makers[(row + column * 3) % 10]().release(), row, column);
    return form;
}

void dress(QWidget &widget, QStyle &style, const QSize &size)
{
    // On the outermost widget alone: a palette of its own would keep each from sharing cached pictures with its likes.
    widget.setPalette(style.standardPalette());
    QList<QWidget *> all = widget.findChildren<QWidget *>();
    all.prepend(&widget);
    for (QWidget *one : std::as_const(all)) {
        one->setStyle(&style);
        one->ensurePolished();
    }
    widget.resize(size);
    // Views lay out what they show when they are painted first, and their scroll bars with the second painting.
    Canvas canvas(size);
    canvas.paint(widget);
    canvas.paint(widget);
}
