#include "Pages.h"

#include "MakerTools.h"
#include "PointedSpecimen.h"

#include <ZelCmnCtrl03/CTitleButton>

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLinearGradient>

namespace gallery {

namespace {

constexpr int iconPixels = 10;
constexpr QSize barSize(420, 30);
constexpr int barMargin = 9;

/** A title button with the pixmap that it points at. */
class TitleButton : public CTitleButton
{
public:
    TitleButton(const QString &icon, const QString &name)
        : m_icon(sampleIcon(icon).pixmap(QSize(iconPixels, iconPixels)))
    {
        AddIcons(&m_icon);
        setAccessibleName(name);
    }

private:
    QPixmap m_icon;
};

struct Entry
{
    QString icon;
    QString name;
};

const std::vector<Entry> entries = {
    {QStringLiteral("title-help"), QStringLiteral("Help")},   {QStringLiteral("Minimize"), QStringLiteral("Minimize")},
    {QStringLiteral("Maximize"), QStringLiteral("Maximize")}, {QStringLiteral("restore"), QStringLiteral("Restore")},
    {QStringLiteral("Close"), QStringLiteral("Close")},
};

QWidget *makeButton(const Entry &entry, State state, const MakerSettings &settings)
{
    auto *button = new TitleButton(entry.icon, entry.name);
    showState(button, state);
    QObject::connect(button, &CTitleButton::customClicked, button,
                     [report = settings.report, name = entry.name] { report(name); });
    return button;
}

std::vector<Row> stateRows()
{
    std::vector<Row> rows;
    rows.reserve(entries.size());
    for (const Entry &entry : entries)
        rows.push_back({entry.name, [entry](State state, const MakerSettings &settings, QWidget *parent) {
                            return onBar({makeButton(entry, state, settings)}, parent);
                        }});
    return rows;
}

void fillWithGradient(QWidget *bar)
{
    QLinearGradient gradient(0, 0, 0, barSize.height());
    gradient.setColorAt(0.0, bar->palette().color(QPalette::Button));
    gradient.setColorAt(1.0, bar->palette().color(QPalette::Base));
    QPalette palette = bar->palette();
    palette.setBrush(QPalette::Window, gradient);
    bar->setPalette(palette);
    bar->setAutoFillBackground(true);
}

// As an application makes one of its own.
QWidget *titleBar(State state, const MakerSettings &settings, QWidget *parent)
{
    auto *bar = new QWidget(parent);
    bar->setFixedSize(barSize);
    fillWithGradient(bar);
    auto *line = new QHBoxLayout(bar);
    line->setContentsMargins(barMargin, 0, barMargin, 0);
    line->addWidget(new QLabel(settings.texts.printAll));
    line->addStretch();
    for (const Entry &entry : entries)
        line->addWidget(makeButton(entry, state, settings));
    return bar;
}

} // namespace

PageDescription titleBarPage()
{
    return {QStringLiteral("title-bar"),
            QStringLiteral("Title bar"),
            {
                {QStringLiteral("States"), QStringLiteral("The icons of title buttons are never grey."),
                 table(stateRows(), pointedStates())},
                {QStringLiteral("Working controls"),
                 QStringLiteral("The title bar of an application's own window. A click counts wherever it ends."),
                 workingControls({{QStringLiteral("Buttons"), titleBar}})},
            }};
}

} // namespace gallery
