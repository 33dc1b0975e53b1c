#include "MenuBarWindow.h"

#include "MakerTools.h"

#include <QAction>
#include <QActionGroup>
#include <QKeySequence>
#include <QListWidget>
#include <QMenuBar>
#include <QVBoxLayout>

namespace gallery {

namespace {

constexpr QSize windowSize(360, 140);
constexpr int manyEntries = 60; // more than fit on most screens

void fillLongMenu(QMenu *menu, const SampleTexts &texts)
{
    for (int i = 1; i <= manyEntries; ++i)
        menu->addAction(QStringLiteral("%1 %2").arg(texts.folder).arg(i));
}

QAction *addCheck(QMenu *menu, const QString &text, bool isChecked)
{
    QAction *action = menu->addAction(text);
    action->setCheckable(true);
    action->setChecked(isChecked);
    return action;
}

QMenuBar *makeBar(const SampleTexts &texts)
{
    auto *bar = new QMenuBar;
    bar->setNativeMenuBar(false);
    fillFileMenu(bar->addMenu(QLatin1Char('&') + texts.photos), texts);
    fillViewMenu(bar->addMenu(QLatin1Char('&') + texts.order.options), texts);
    fillLongMenu(bar->addMenu(QLatin1Char('&') + texts.folder), texts);
    bar->addMenu(texts.share)->setEnabled(false);
    return bar;
}

} // namespace

void fillFileMenu(QMenu *menu, const SampleTexts &texts)
{
    menu->addSection(texts.photos);
    menu->addAction(sampleIcon(QStringLiteral("photo")), texts.open)->setShortcut(QKeySequence::Open);
    menu->addAction(sampleIcon(QStringLiteral("print")), texts.print)->setShortcut(QKeySequence::Print);
    QAction *printAll = menu->addAction(sampleIcon(QStringLiteral("print")), texts.printAll);
    printAll->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_P);
    printAll->setEnabled(false);
    menu->addSection(texts.share);
    QMenu *share = menu->addMenu(sampleIcon(QStringLiteral("photo")), texts.share);
    share->addAction(texts.email);
    share->addAction(texts.folder);
    menu->addSeparator();
    menu->addAction(texts.remove)->setShortcut(QKeySequence::Delete);
}

void fillViewMenu(QMenu *menu, const SampleTexts &texts)
{
    addCheck(menu, texts.showDetails, true);
    addCheck(menu, texts.order.border, false);
    addCheck(menu, texts.order.note, true)->setEnabled(false);
    menu->addSection(texts.order.size);
    auto *sizes = new QActionGroup(menu);
    for (const QString &size :
         {QStringLiteral("9 × 13 cm"), QStringLiteral("10 × 15 cm"), QStringLiteral("13 × 18 cm")})
        sizes->addAction(addCheck(menu, size, false));
    sizes->actions().constFirst()->setChecked(true);
}

MenuBarWindow::MenuBarWindow(const MakerSettings &settings, QWidget *parent) : QWidget(parent)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    auto *bar = makeBar(settings.texts);
    auto *list = new QListWidget;
    list->addItems({settings.texts.photos, settings.texts.folder});
    column->setMenuBar(bar);
    column->addWidget(list);
    applyForeignStyle(this, settings);
    resize(windowSize);
    connect(bar, &QMenuBar::triggered, this, [report = settings.report](const QAction *action) {
        report(QStringLiteral("chose %1").arg(action->text()));
    });
}

} // namespace gallery
