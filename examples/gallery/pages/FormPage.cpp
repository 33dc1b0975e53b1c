#include "Pages.h"

#include "MakerTools.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTextEdit>
#include <QVBoxLayout>

namespace gallery {

namespace {

constexpr int formWidth = 560;
constexpr int mostCopies = 20;
constexpr int someCopies = 3;
constexpr int photoCount = 20;
const QDate someDay(2026, 3, 14);

/** An order of prints, filled in. What is chosen is told; with every copy ordered the bar grows. */
class OrderForm : public QWidget
{
public:
    OrderForm(const MakerSettings &settings, QWidget *parent);

private:
    QWidget *makeTabs();
    QWidget *makeOrderSheet();
    QWidget *makeCustomer();
    QWidget *makePaper();
    QWidget *makePrints();
    QWidget *makeDelivery();
    QWidget *makePhotosSheet();
    QWidget *makeOptionsSheet();
    QLayout *makeButtons();
    void showCopies(int copies);

    SampleTexts m_texts;
    std::function<void(const QString &)> m_report;
    QProgressBar *m_progress;
};

OrderForm::OrderForm(const MakerSettings &settings, QWidget *parent)
    : QWidget(parent), m_texts(settings.texts), m_report(settings.report), m_progress(new QProgressBar)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(makeTabs());
    column->addLayout(makeButtons());
    applyForeignStyle(this, settings);
    resize(sizeHint().expandedTo(QSize(formWidth, 0)));
}

QWidget *OrderForm::makeTabs()
{
    auto *tabs = new QTabWidget;
    tabs->addTab(makeOrderSheet(), sampleIcon(QStringLiteral("print")), m_texts.print);
    tabs->addTab(makePhotosSheet(), m_texts.photos);
    tabs->addTab(makeOptionsSheet(), m_texts.order.options);
    tabs->setIconSize(QSize(16, 16));
    return tabs;
}

QWidget *OrderForm::makeOrderSheet()
{
    auto *sheet = new QWidget;
    auto *grid = new QGridLayout(sheet);
    grid->addWidget(makeCustomer(), 0, 0, 1, 2);
    grid->addWidget(makePrints(), 1, 0);
    grid->addWidget(makePaper(), 1, 1);
    grid->addWidget(makeDelivery(), 2, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(3, 1);
    return sheet;
}

QWidget *OrderForm::makeCustomer()
{
    auto *group = new QGroupBox(m_texts.order.customer);
    auto *form = new QFormLayout(group);
    auto *name = new QLineEdit(m_texts.order.somebody);
    auto *email = new QLineEdit(QStringLiteral("prints@example.com"));
    name->setToolTip(m_texts.order.name);
    form->addRow(m_texts.order.name + QLatin1Char(':'), name);
    form->addRow(m_texts.email + QLatin1Char(':'), email);
    return group;
}

QWidget *OrderForm::makePrints()
{
    auto *group = new QGroupBox(m_texts.photos);
    auto *form = new QFormLayout(group);
    auto *size = new QComboBox;
    size->addItems({QStringLiteral("9 × 13 cm"), QStringLiteral("10 × 15 cm"), QStringLiteral("13 × 18 cm")});
    size->setCurrentIndex(1);
    connect(size, &QComboBox::currentTextChanged, this, [this](const QString &text) { m_report(text); });
    auto *copies = new QSpinBox;
    copies->setRange(1, mostCopies);
    copies->setValue(someCopies);
    connect(copies, qOverload<int>(&QSpinBox::valueChanged), this, &OrderForm::showCopies);
    form->addRow(m_texts.order.size + QLatin1Char(':'), size);
    form->addRow(m_texts.order.copies + QLatin1Char(':'), copies);
    return group;
}

QWidget *OrderForm::makePaper()
{
    auto *group = new QGroupBox(m_texts.order.paper);
    auto *column = new QVBoxLayout(group);
    auto *glossy = new QRadioButton(m_texts.order.glossy);
    glossy->setChecked(true);
    auto *border = new QCheckBox(m_texts.order.border);
    border->setChecked(true);
    column->addWidget(glossy);
    column->addWidget(new QRadioButton(m_texts.order.matte));
    column->addWidget(border);
    group->setToolTip(QStringLiteral("<b>%1</b><br>%2").arg(m_texts.order.paper, m_texts.order.tip));
    return group;
}

QWidget *OrderForm::makeDelivery()
{
    auto *group = new QGroupBox(m_texts.order.delivery);
    auto *grid = new QGridLayout(group);
    auto *byPost = new QRadioButton(m_texts.order.byPost);
    auto *inShop = new QRadioButton(m_texts.order.inShop);
    auto *date = new QDateEdit(someDay);
    date->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    date->setEnabled(false);
    connect(inShop, &QRadioButton::toggled, date, &QWidget::setEnabled);
    byPost->setChecked(true);
    grid->addWidget(byPost, 0, 0, 1, 3);
    grid->addWidget(inShop, 1, 0);
    grid->addWidget(new QLabel(m_texts.order.date + QLatin1Char(':')), 1, 1);
    grid->addWidget(date, 1, 2);
    grid->setColumnStretch(2, 1);
    return group;
}

QWidget *OrderForm::makePhotosSheet()
{
    auto *list = new QListWidget;
    list->setViewMode(QListView::IconMode);
    list->setIconSize(QSize(48, 48));
    list->setSpacing(8);
    list->setResizeMode(QListView::Adjust);
    for (int i = 1; i <= photoCount; ++i)
        new QListWidgetItem(sampleIcon(QStringLiteral("photos-48")), QStringLiteral("%1 %2").arg(m_texts.photos).arg(i),
                            list);
    return list;
}

QWidget *OrderForm::makeOptionsSheet()
{
    auto *sheet = new QWidget;
    auto *form = new QFormLayout(sheet);
    auto *border = new QSlider(Qt::Horizontal);
    border->setTickPosition(QSlider::TicksBelow);
    border->setTickInterval(10);
    auto *note = new QTextEdit;
    note->setPlainText(m_texts.order.tip);
    form->addRow(m_texts.order.border + QLatin1Char(':'), border);
    form->addRow(m_texts.order.note + QLatin1Char(':'), note);
    return sheet;
}

QLayout *OrderForm::makeButtons()
{
    auto *line = new QHBoxLayout;
    m_progress->setRange(0, mostCopies);
    m_progress->setValue(someCopies);
    auto *print = new QPushButton(m_texts.print);
    print->setDefault(true);
    print->setToolTip(m_texts.order.tip);
    auto *cancel = new QPushButton(m_texts.order.cancel);
    cancel->setToolTip(m_texts.order.cancel);
    connect(
        print, &QPushButton::clicked, this, [this] { m_report(m_texts.printAll); });
    connect(cancel, &QPushButton::clicked, this, [this] { m_report(m_texts.order.cancel); });
    line->addWidget(m_progress, 1);
    line->addSpacing(16);
    line->addWidget(print);
    line->addWidget(cancel);
    return line;
}

void OrderForm::showCopies(int copies)
{
    m_progress->setValue(copies);
    m_report(QStringLiteral("%1: %2").arg(m_texts.order.copies).arg(copies));
}

QWidget *makeForm(State state, const MakerSettings &settings, QWidget *parent)
{
    auto *form = new OrderForm(settings, parent);
    if (state == State::Disabled)
        form->setEnabled(false);
    return form;
}

} // namespace

PageDescription formPage()
{
    return {QStringLiteral("form"),
            QStringLiteral("Form"),
            {
                {QStringLiteral("An order of prints"),
                 QStringLiteral("Standard widgets as an application has them: filled in, and working."),
                 workingControls({{QString(), makeForm}})},
                {QStringLiteral("Disabled"), QStringLiteral("The same form while nothing can be ordered."),
                 table({{QString(), makeForm}}, {{QString(), State::Disabled}})},
            }};
}

} // namespace gallery
