#include "MainWindow.h"

#include "Page.h"
#include "pages/Pages.h"

#include <ZelCUtil03/ZelCUtil.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QStyleFactory>

#include <utility>

namespace gallery {

namespace {

constexpr QSize windowSize(1280, 900);
constexpr int listWidth = 170;
constexpr int listMargin = 12;
constexpr int switchGap = 20;

const QString languageVariable = QStringLiteral("ZEL_LANGUAGE");
const QString graphicsVariable = QStringLiteral("ZEL_GRAPHICS_DIR");

QFrame *makeRule(QFrame::Shape shape)
{
    auto *rule = new QFrame;
    rule->setFrameStyle(shape | QFrame::Plain);
    rule->setForegroundRole(QPalette::Mid);
    return rule;
}

} // namespace

MainWindow::MainWindow(const GalleryOptions &options)
    : m_options(options),
      m_foreignStyle(QStyleFactory::create(QStringLiteral("Fusion"))),
      m_list(new QListWidget),
      m_scrollArea(new QScrollArea),
      m_languages(new QComboBox)
{
    setWindowTitle(QStringLiteral("ZelCmnCtrl03 Gallery"));
    resize(windowSize);
    statusBar()->setSizeGripEnabled(false);

    m_scrollArea->setFrameShape(QFrame::NoFrame);
    m_scrollArea->setWidgetResizable(true);

    auto *content = new QWidget;
    auto *grid = new QGridLayout(content);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->addWidget(makeSwitches(), 0, 0, 1, 3);
    grid->addWidget(makeRule(QFrame::HLine), 1, 0, 1, 3);
    grid->addWidget(makePageList(), 2, 0);
    grid->addWidget(makeRule(QFrame::VLine), 2, 1);
    grid->addWidget(m_scrollArea, 2, 2);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(2, 1);
    setCentralWidget(content);
    m_list->setFocus();
    showPage();
}

// The page first: its controls hold the foreign style.
MainWindow::~MainWindow()
{
    delete m_scrollArea->takeWidget();
}

void MainWindow::lockRestarts()
{
    for (QWidget *restarter : std::as_const(m_restarters))
        restarter->setEnabled(false);
}

QWidget *MainWindow::makePageList()
{
    for (const PageDescription &page : pages()) {
        auto *item = new QListWidgetItem(page.title, m_list);
        item->setData(Qt::UserRole, page.name);
        item->setSizeHint(QSize(listWidth, 2 * m_list->fontMetrics().height()));
        if (page.name == m_options.pageName)
            m_list->setCurrentItem(item);
    }
    if (m_list->currentItem() == nullptr)
        m_list->setCurrentRow(0);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setFixedWidth(listWidth);
    connect(m_list, &QListWidget::currentItemChanged, this, &MainWindow::showPage);
    auto *panel = new QWidget;
    auto *column = new QVBoxLayout(panel);
    column->setContentsMargins(listMargin, listMargin, listMargin, listMargin);
    column->addWidget(m_list);
    return panel;
}

QWidget *MainWindow::makeSwitches()
{
    auto *panel = new QWidget;
    panel->setAutoFillBackground(true);
    panel->setBackgroundRole(QPalette::Light);
    auto *line = new QHBoxLayout(panel);
    line->setContentsMargins(switchGap, switchGap / 2, switchGap, switchGap / 2);
    addSwitch(line, QStringLiteral("Right to left"), m_options.isRightToLeft, &MainWindow::setRightToLeft);
    addSwitch(line, QStringLiteral("Enabled"), !m_options.isDisabled, &MainWindow::setPageEnabled);
    addSwitch(line, QStringLiteral("Foreign style"), m_options.isForeign, &MainWindow::setForeign);
    addLanguages(line);
    addGraphics(line);
    line->addStretch();
    return panel;
}

void MainWindow::addSwitch(QHBoxLayout *line, const QString &text, bool isOn, void (MainWindow::*setter)(bool))
{
    auto *box = new QCheckBox(text);
    box->setChecked(isOn);
    connect(box, &QCheckBox::toggled, this, setter);
    line->addWidget(box);
    line->addSpacing(switchGap);
}

void MainWindow::addLanguages(QHBoxLayout *line)
{
    m_languages->addItem(QStringLiteral("as the system says"), QString());
    for (const SampleTexts &texts : allSampleTexts())
        m_languages->addItem(QStringLiteral("%1 (%2)").arg(texts.languageName, texts.tag), texts.tag);
    const QString told = qEnvironmentVariable("ZEL_LANGUAGE");
    if (m_languages->findData(told) < 0)
        m_languages->addItem(told, told);
    m_languages->setCurrentIndex(m_languages->findData(told));
    connect(m_languages, QOverload<int>::of(&QComboBox::activated), this, &MainWindow::chooseLanguage);
    line->addWidget(new QLabel(QStringLiteral("Language:")));
    line->addWidget(m_languages);
    m_restarters.append(m_languages);
    line->addSpacing(switchGap);
}

void MainWindow::addGraphics(QHBoxLayout *line)
{
    const QString directory = qEnvironmentVariable("ZEL_GRAPHICS_DIR");
    auto *choose = new QPushButton(directory.isEmpty() ? QStringLiteral("Choose…") : QFileInfo(directory).fileName());
    choose->setToolTip(QDir::toNativeSeparators(directory));
    connect(choose, &QPushButton::clicked, this, &MainWindow::chooseGraphics);
    auto *builtIn = new QPushButton(QStringLiteral("Built-in"));
    builtIn->setEnabled(!directory.isEmpty());
    connect(builtIn, &QPushButton::clicked, this, [this] {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(graphicsVariable);
        startAnew(environment);
    });
    line->addWidget(new QLabel(QStringLiteral("Graphics:")));
    line->addWidget(choose);
    line->addWidget(builtIn);
    m_restarters += {choose, builtIn};
}

void MainWindow::setRightToLeft(bool on)
{
    m_options.isRightToLeft = on;
    QApplication::setLayoutDirection(on ? Qt::RightToLeft : Qt::LeftToRight);
    showPage();
}

void MainWindow::setPageEnabled(bool on)
{
    m_options.isDisabled = !on;
    showPage();
}

void MainWindow::setForeign(bool on)
{
    m_options.isForeign = on;
    showPage();
}

// The library reads language and graphics once, at its start.
void MainWindow::chooseLanguage(int index)
{
    const QString tag = m_languages->itemData(index).toString();
    if (tag == qEnvironmentVariable("ZEL_LANGUAGE"))
        return;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (tag.isEmpty())
        environment.remove(languageVariable);
    else
        environment.insert(languageVariable, tag);
    startAnew(environment);
}

void MainWindow::chooseGraphics()
{
    const QString directory = QFileDialog::getExistingDirectory(this, QStringLiteral("Graphics Directory"),
                                                                qEnvironmentVariable("ZEL_GRAPHICS_DIR"));
    if (directory.isEmpty())
        return;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(graphicsVariable, directory);
    startAnew(environment);
}

void MainWindow::startAnew(const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProgram(QApplication::applicationFilePath());
    process.setArguments(m_options.windowArguments());
    process.setProcessEnvironment(environment);
    if (process.startDetached()) {
        QApplication::quit();
        return;
    }
    statusBar()->showMessage(QStringLiteral("The gallery could not be started anew: %1").arg(process.errorString()));
}

// Every switch makes the page anew. That is less to get wrong than telling each control, and it also shows that the
// controls come and go without leaving a trace in the next ones.
void MainWindow::showPage()
{
    const QString name = m_list->currentItem()->data(Qt::UserRole).toString();
    const int place = name == m_options.pageName ? m_scrollArea->verticalScrollBar()->value() : 0;
    m_options.pageName = name;
    statusBar()->clearMessage();

    MakerSettings settings;
    settings.texts = sampleTexts(QString::fromUtf16(GetLanguage()));
    settings.foreignStyle = m_options.isForeign ? m_foreignStyle.get() : nullptr;
    settings.isEnabled = !m_options.isDisabled;
    settings.report = [this](const QString &text) {
        statusBar()->showMessage(text);
    };
    m_scrollArea->setWidget(new Page(*findPage(name), settings));
    m_scrollArea->verticalScrollBar()->setValue(place);
}

} // namespace gallery
