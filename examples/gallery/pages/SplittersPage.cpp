#include "Pages.h"

#include "MakerTools.h"

#include <QDockWidget>
#include <QListWidget>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QSplitter>
#include <QTextEdit>

namespace gallery {

namespace {

constexpr QSize splitterSize(240, 160);
constexpr QSize nestedSize(420, 240);
constexpr QPoint cascadeStep(120, 60);

QWidget *makeList(const SampleTexts &texts)
{
    auto *list = new QListWidget;
    list->addItems({texts.photos, texts.folder, texts.email, texts.share});
    return list;
}

QWidget *makeText(const SampleTexts &texts)
{
    auto *text = new QTextEdit;
    text->setPlainText(texts.order.tip);
    return text;
}

QSplitter *makeSplitter(Qt::Orientation orientation, const SampleTexts &texts)
{
    auto *splitter = new QSplitter(orientation);
    splitter->addWidget(makeList(texts));
    splitter->addWidget(makeText(texts));
    splitter->setSizes({1, 1});
    return splitter;
}

QWidget *finish(QWidget *panel, const QSize &size, State state, const MakerSettings &settings)
{
    if (state == State::Disabled)
        panel->setEnabled(false);
    applyForeignStyle(panel, settings);
    panel->resize(size.expandedTo(panel->minimumSizeHint()));
    return panel;
}

Maker splitter(Qt::Orientation orientation)
{
    return [orientation](State state, const MakerSettings &settings, QWidget *parent) {
        QSplitter *splitter = makeSplitter(orientation, settings.texts);
        splitter->setParent(parent);
        if (isStill(state) && state != State::Disabled)
            applyStyles(splitter->handle(1), state, settings);
        return finish(splitter, splitterSize, state, settings);
    };
}

QWidget *makeNested(State state, const MakerSettings &settings, QWidget *parent)
{
    auto *outer = new QSplitter(Qt::Horizontal, parent);
    outer->addWidget(makeList(settings.texts));
    outer->addWidget(makeSplitter(Qt::Vertical, settings.texts));
    outer->addWidget(makeText(settings.texts));
    outer->setSizes({1, 2, 1});
    return finish(outer, nestedSize, state, settings);
}

QWidget *makeSubWindows(State state, const MakerSettings &settings, QWidget *parent)
{
    auto *area = new QMdiArea(parent);
    QPoint place;
    for (const QString &title : {settings.texts.photos, settings.texts.order.options}) {
        QMdiSubWindow *window = area->addSubWindow(makeText(settings.texts));
        window->setWindowTitle(title);
        window->setGeometry(QRect(place, splitterSize));
        place += cascadeStep;
    }
    return finish(area, nestedSize, state, settings);
}

QWidget *makeDocks(State state, const MakerSettings &settings, QWidget *parent)
{
    auto *window = new QMainWindow(parent);
    window->setWindowFlags(Qt::Widget); // a part of the page, in spite of its constructor
    window->setCentralWidget(makeText(settings.texts));
    for (const Qt::DockWidgetArea area : {Qt::LeftDockWidgetArea, Qt::BottomDockWidgetArea}) {
        auto *dock = new QDockWidget(settings.texts.order.options);
        dock->setWidget(makeList(settings.texts));
        window->addDockWidget(area, dock);
    }
    return finish(window, nestedSize, state, settings);
}

const std::vector<Row> splitterRows = {
    {QStringLiteral("Horizontal"), splitter(Qt::Horizontal)},
    {QStringLiteral("Vertical"), splitter(Qt::Vertical)},
};

const std::vector<Column> splitterStates = {
    {QStringLiteral("Working"), State::Working},
    {QStringLiteral("Handle hovered"), State::Hovered},
    {QStringLiteral("Disabled"), State::Disabled},
};

const std::vector<Row> windowRows = {
    {QStringLiteral("Nested splitters"), makeNested},
    {QStringLiteral("QMdiArea"), makeSubWindows},
    {QStringLiteral("QDockWidget"), makeDocks},
};

} // namespace

PageDescription splittersPage()
{
    return {QStringLiteral("splitters"),
            QStringLiteral("Splitters"),
            {
                {QStringLiteral("States"), QStringLiteral("A handle is brighter under the pointer."),
                 table(splitterRows, splitterStates)},
                {QStringLiteral("Working controls"), QStringLiteral("Splitters in splitters, and windows in windows."),
                 table(windowRows, {{QStringLiteral("Working"), State::Working}})},
            }};
}

} // namespace gallery
