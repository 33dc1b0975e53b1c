#include "MenuTrials.h"

#include "MenuEntries.h"

#include <ZelCmnCtrl03/CButtonEx>
#include <ZelCmnCtrl03/CMenuEx>

#include <QAction>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace gallery {

namespace {

constexpr int pointerInterval = 100; // milliseconds
constexpr int menuGap = 4;
constexpr int narrowestAnswer = 220; // the answers change their length and nothing else shall move

QPoint below(const QWidget *button)
{
    return button->mapToGlobal(QPoint(0, button->height() + menuGap));
}

void addLine(QGridLayout *grid, const QString &caption, QLabel *answer)
{
    const int row = grid->rowCount();
    grid->addWidget(new QLabel(caption), row, 0, Qt::AlignLeft);
    grid->addWidget(answer, row, 1, Qt::AlignLeft);
    grid->setColumnMinimumWidth(1, narrowestAnswer);
}

} // namespace

MenuTrials::MenuTrials(const MakerSettings &settings, QWidget *parent)
    : QWidget(parent),
      m_houseMenu(new CMenuEx(this)),
      m_plainMenu(new QMenu(this)),
      m_choice(new QLabel),
      m_pointer(new QLabel)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(16);
    addHouseMenu(settings);
    addPlainMenu(settings);
    addLine(grid, QStringLiteral("Chosen:"), m_choice);
    addLine(grid, QStringLiteral("Pointer on the CMenuEx:"), m_pointer);
    m_choice->setText(QStringLiteral("nothing yet"));
    showPointer();
    connect(&m_pointerTimer, &QTimer::timeout, this, &MenuTrials::showPointer);
    m_pointerTimer.start(pointerInterval);
    resize(sizeHint());
}

void MenuTrials::addHouseMenu(const MakerSettings &settings)
{
    fillMenu(m_houseMenu, settings.texts);
    auto *button = new CButtonEx;
    button->setText(QStringLiteral("Open menu"));
    static_cast<QGridLayout *>(layout())->addWidget(button, 0, 0, Qt::AlignLeft);
    connect(
        button, &CButtonEx::clicked2, this, [this](CButtonEx *sender) { m_houseMenu->popup(below(sender)); });
    connect(m_houseMenu, &QMenu::triggered, this, [this](QAction *action) { showChoice(m_houseMenu, action); });
    if (settings.foreignStyle == nullptr)
        return;
    button->setStyle(settings.foreignStyle);
    m_houseMenu->setStyle(settings.foreignStyle);
}

void MenuTrials::addPlainMenu(const MakerSettings &settings)
{
    fillMenu(m_plainMenu, settings.texts);
    auto *button = new QPushButton(QStringLiteral("Open plain menu"));
    static_cast<QGridLayout *>(layout())->addWidget(button, 0, 1, Qt::AlignLeft);
    connect(
        button, &QPushButton::clicked, this, [this, button] { m_plainMenu->popup(below(button)); });
    connect(m_plainMenu, &QMenu::triggered, this, [this](QAction *action) { showChoice(m_plainMenu, action); });
    if (settings.foreignStyle == nullptr)
        return;
    button->setStyle(settings.foreignStyle);
    m_plainMenu->setStyle(settings.foreignStyle);
}

void MenuTrials::showChoice(const QMenu *menu, const QAction *action)
{
    const QString kind = menu == m_houseMenu ? QStringLiteral("CMenuEx") : QStringLiteral("QMenu");
    const QString checked = action->isChecked() ? QStringLiteral(" (checked)") : QString();
    m_choice->setText(QStringLiteral("%1, from the %2%3").arg(action->text(), kind, checked));
}

// The menu has no signal for it.
void MenuTrials::showPointer()
{
    m_pointer->setText(m_houseMenu->cursorOnMenu() ? QStringLiteral("yes") : QStringLiteral("no"));
}

} // namespace gallery
