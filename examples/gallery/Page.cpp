#include "Page.h"

#include "Panels.h"

#include <QApplication>
#include <QFontInfo>
#include <QGridLayout>
#include <QLabel>
#include <QResizeEvent>
#include <QStringList>
#include <QVBoxLayout>

#include <algorithm>

namespace gallery {

namespace {

constexpr int pageMargin = 32;
constexpr int groupGap = 28;
constexpr int headingGap = 4;
constexpr int tableGap = 12;
constexpr int captionGap = 16;
constexpr QMargins cellMargins(8, 6, 8, 6);

// Labels are aligned by the layout: a label itself goes by the direction of its text, and English stays on the left in
// a page from right to left.
QLabel *makeHeading(const QString &text, double scale)
{
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setPixelSize(qRound(QFontInfo(font).pixelSize() * scale));
    label->setFont(font);
    label->setForegroundRole(QPalette::Highlight);
    return label;
}

QStringList captions(const std::vector<Specimen> &specimens, QString Specimen::*caption)
{
    QStringList list;
    for (const Specimen &specimen : specimens)
        list.append(specimen.*caption);
    list.removeDuplicates();
    return list;
}

void addCaptions(QGridLayout *grid, const QStringList &rows, const QStringList &columns)
{
    const bool isRightToLeft = QApplication::isRightToLeft();
    for (int row = 0; row < rows.size(); ++row) {
        if (rows.at(row).isEmpty())
            continue;
        auto *label = new QLabel(rows.at(row));
        label->setContentsMargins(isRightToLeft ? captionGap : 0, 0, isRightToLeft ? 0 : captionGap, 0);
        grid->addWidget(label, row + 1, 0, Qt::AlignLeft | Qt::AlignVCenter);
    }
    for (int column = 0; column < columns.size(); ++column) {
        if (columns.at(column).isEmpty())
            continue;
        auto *label = new QLabel(columns.at(column));
        label->setContentsMargins(cellMargins.left(), 0, cellMargins.right(), 2);
        grid->addWidget(label, 0, column + 1, Qt::AlignHCenter);
    }
}

// One panel behind all rows on the tray, so that the gradient runs through. It must be the page's child before the
// cells are: of siblings the later one lies above.
void addTray(QGridLayout *grid, const std::vector<Specimen> &specimens, const QStringList &rows, int columnCount,
             QWidget *page)
{
    int first = static_cast<int>(rows.size());
    int last = -1;
    for (const Specimen &specimen : specimens) {
        if (specimen.ground != Ground::Tray)
            continue;
        const int row = static_cast<int>(rows.indexOf(specimen.row));
        first = std::min(first, row);
        last = std::max(last, row);
    }
    if (last >= 0)
        grid->addWidget(new TrayPanel(page), first + 1, 1, last - first + 1, columnCount);
}

QWidget *makeControl(const Specimen &specimen, MakerSettings settings, QWidget *parent)
{
    if (!specimen.column.isEmpty())
        settings.report = [caption = specimen.column, report = settings.report](const QString &what) {
            report(QStringLiteral("%1: %2").arg(caption, what));
        };
    QWidget *control = specimen.make(specimen.state, settings, parent);
    if (!isStill(specimen.state))
        return control;
    control->setFocusPolicy(Qt::NoFocus);
    const QList<QWidget *> parts = control->findChildren<QWidget *>();
    for (QWidget *part : parts)
        part->setFocusPolicy(Qt::NoFocus);
    return control;
}

} // namespace

SpecimenCell::SpecimenCell(const Specimen &specimen, const MakerSettings &settings, QWidget *parent)
    : QWidget(parent), m_specimen(specimen), m_control(makeControl(specimen, settings, this))
{
    setAttribute(Qt::WA_TransparentForMouseEvents, isStill(specimen.state));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

bool SpecimenCell::isSettled() const
{
    return !m_specimen.isSettled || m_specimen.isSettled(m_specimen.state, m_control);
}

QSize SpecimenCell::sizeHint() const
{
    // What stands alone begins where the headings do.
    return m_specimen.column.isEmpty() ? m_control->size() : m_control->size().grownBy(cellMargins);
}

void SpecimenCell::resizeEvent(QResizeEvent *event)
{
    const QSize rest = event->size() - m_control->size();
    m_control->move(rest.width() / 2, rest.height() / 2);
}

Page::Page(const PageDescription &description, const MakerSettings &settings, QWidget *parent) : QWidget(parent)
{
    setEnabled(settings.isEnabled);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(pageMargin, pageMargin, pageMargin, pageMargin);
    column->setSpacing(0);
    column->addWidget(makeHeading(description.title, 2.0), 0, Qt::AlignLeft);
    for (const SpecimenGroup &group : description.groups)
        addGroup(group, settings);
    column->addStretch();
}

void Page::addGroup(const SpecimenGroup &group, const MakerSettings &settings)
{
    auto *column = static_cast<QVBoxLayout *>(layout());
    column->addSpacing(groupGap);
    column->addWidget(makeHeading(group.heading, 1.4), 0, Qt::AlignLeft);
    column->addSpacing(headingGap);
    column->addWidget(new QLabel(group.note), 0, Qt::AlignLeft);
    column->addSpacing(tableGap);
    auto *line = new QHBoxLayout;
    line->addLayout(makeTable(group, settings));
    line->addStretch();
    column->addLayout(line);
}

QGridLayout *Page::makeTable(const SpecimenGroup &group, const MakerSettings &settings)
{
    auto *grid = new QGridLayout;
    grid->setSpacing(0);
    const QStringList rows = captions(group.specimens, &Specimen::row);
    const QStringList columns = captions(group.specimens, &Specimen::column);
    addCaptions(grid, rows, columns);
    addTray(grid, group.specimens, rows, static_cast<int>(columns.size()), this);
    for (const Specimen &specimen : group.specimens) {
        // A child of the page from the start: a control that is made in a disabled page must know it.
        auto *cell = new SpecimenCell(specimen, settings, this);
        grid->addWidget(cell, static_cast<int>(rows.indexOf(specimen.row)) + 1,
                        static_cast<int>(columns.indexOf(specimen.column)) + 1);
        m_cells.push_back(cell);
    }
    return grid;
}

bool Page::isSettled() const
{
    return std::all_of(
        m_cells.begin(), m_cells.end(), [](const SpecimenCell *cell) { return cell->isSettled(); });
}

} // namespace gallery
