#include "Pages.h"

#include "MakerTools.h"

#include <QCheckBox>
#include <QIcon>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace gallery {

namespace {

constexpr QSize tabWidgetSize(340, 130);
constexpr QSize uprightSize(340, 320); // room for the tabs of all languages
constexpr int barWidth = 340;
constexpr int manyTabs = 12;
constexpr int iconPixels = 16;

QWidget *makeSheet(const QString &text)
{
    auto *sheet = new QWidget;
    auto *column = new QVBoxLayout(sheet);
    column->addWidget(new QCheckBox(text));
    column->addStretch();
    return sheet;
}

void addSheets(QTabWidget *tabs, const SampleTexts &texts)
{
    tabs->addTab(makeSheet(texts.showDetails), texts.photos);
    tabs->addTab(makeSheet(texts.order.border), sampleIcon(QStringLiteral("print")), texts.print);
    tabs->addTab(makeSheet(texts.order.byPost), texts.order.delivery);
    tabs->addTab(makeSheet(texts.email), texts.share);
    tabs->setTabEnabled(3, false);
    tabs->setTabToolTip(0, texts.order.tip);
    tabs->setIconSize(QSize(iconPixels, iconPixels));
}

QWidget *finish(QWidget *control, const QSize &size, State state, const MakerSettings &settings)
{
    if (state == State::Disabled)
        control->setEnabled(false);
    applyForeignStyle(control, settings);
    control->resize(size);
    return control;
}

Maker tabWidget(QTabWidget::TabPosition side, QTabWidget::TabShape shape)
{
    return [side, shape](State state, const MakerSettings &settings, QWidget *parent) {
        auto *tabs = new QTabWidget(parent);
        tabs->setTabPosition(side);
        tabs->setTabShape(shape);
        addSheets(tabs, settings.texts);
        tabs->setCurrentIndex(1);
        const bool isUpright = side == QTabWidget::West || side == QTabWidget::East;
        return finish(tabs, isUpright ? uprightSize : tabWidgetSize, state, settings);
    };
}

QWidget *makeDocuments(State state, const MakerSettings &settings, QWidget *parent)
{
    auto *tabs = new QTabWidget(parent);
    tabs->setDocumentMode(true);
    tabs->setTabsClosable(true);
    tabs->setMovable(true);
    addSheets(tabs, settings.texts);
    QObject::connect(tabs, &QTabWidget::tabCloseRequested, tabs, &QTabWidget::removeTab);
    return finish(tabs, tabWidgetSize + QSize(60, 0), state, settings);
}

QWidget *makeCorners(State state, const MakerSettings &settings, QWidget *parent)
{
    auto *tabs = new QTabWidget(parent);
    tabs->addTab(makeSheet(settings.texts.showDetails), settings.texts.photos);
    tabs->addTab(makeSheet(settings.texts.order.border), settings.texts.print);
    for (const Qt::Corner corner : {Qt::TopLeftCorner, Qt::TopRightCorner}) {
        auto *button = new QToolButton;
        button->setIcon(sampleIcon(QStringLiteral("photo")));
        tabs->setCornerWidget(button, corner);
    }
    return finish(tabs, tabWidgetSize, state, settings);
}

Maker tabBar(QTabBar::Shape shape, int count, bool isClosable)
{
    return [shape, count, isClosable](State state, const MakerSettings &settings, QWidget *parent) {
        auto *bar = new QTabBar(parent);
        bar->setShape(shape);
        bar->setTabsClosable(isClosable);
        bar->setMovable(true);
        for (int i = 1; i <= count; ++i)
            bar->addTab(QStringLiteral("%1 %2").arg(settings.texts.folder).arg(i));
        bar->setCurrentIndex(1);
        QObject::connect(bar, &QTabBar::tabCloseRequested, bar, &QTabBar::removeTab);
        const bool isUpright = bar->sizeHint().height() > bar->sizeHint().width();
        const QSize size = isUpright ? QSize(bar->sizeHint().width(), tabWidgetSize.height())
                                     : QSize(barWidth, bar->sizeHint().height());
        return finish(bar, size, state, settings);
    };
}

std::vector<Row> sidesOf(QTabWidget::TabShape shape)
{
    return {
        {QStringLiteral("North"), tabWidget(QTabWidget::North, shape)},
        {QStringLiteral("South"), tabWidget(QTabWidget::South, shape)},
        {QStringLiteral("West"), tabWidget(QTabWidget::West, shape)},
        {QStringLiteral("East"), tabWidget(QTabWidget::East, shape)},
    };
}

const std::vector<Column> states = {
    {QStringLiteral("Working"), State::Working},
    {QStringLiteral("Disabled"), State::Disabled},
};

const std::vector<Row> otherRows = {
    {QStringLiteral("Document mode, closable"), makeDocuments},
    {QStringLiteral("Corner widgets"), makeCorners},
    {QStringLiteral("QTabBar"), tabBar(QTabBar::RoundedNorth, 3, false)},
    {QStringLiteral("QTabBar, one tab"), tabBar(QTabBar::RoundedNorth, 1, false)},
    {QStringLiteral("QTabBar, closable"), tabBar(QTabBar::RoundedNorth, 3, true)},
    {QStringLiteral("QTabBar, too many tabs"), tabBar(QTabBar::RoundedNorth, manyTabs, false)},
    {QStringLiteral("The same, upright"), tabBar(QTabBar::RoundedWest, manyTabs, false)},
};

} // namespace

PageDescription tabsPage()
{
    return {QStringLiteral("tabs"),
            QStringLiteral("Tabs"),
            {
                {QStringLiteral("Rounded"), QStringLiteral("On all sides of their page. The last tab is disabled."),
                 table(sidesOf(QTabWidget::Rounded), states)},
                {QStringLiteral("Triangular"), QStringLiteral("The same with the other shape."),
                 table(sidesOf(QTabWidget::Triangular), states)},
                {QStringLiteral("Bars and documents"), QStringLiteral("Tabs that close, that move and that scroll."),
                 table(otherRows, states)},
            }};
}

} // namespace gallery
