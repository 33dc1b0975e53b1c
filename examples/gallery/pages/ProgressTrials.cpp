#include "ProgressTrials.h"

#include "FileCopy.h"
#include "FileCount.h"
#include "MakerTools.h"

#include <ZelCmnCtrl03/CButtonEx>
#include <ZelCmnCtrl03/CProgressBarDialogEx>
#include <ZelCmnCtrl03/CProgressDialogEx>
#include <ZelCmnCtrl03/CRainbowProgressDialog>

#include <QGridLayout>
#include <QLabel>

namespace gallery {

namespace {

constexpr int fileCount = 240;
constexpr int growthInterval = 500;     // milliseconds
constexpr int closeInterval = 3000;     // milliseconds
constexpr int rainbowHeightGuess = 160; // it settles its height only while it is shown
constexpr int captionGap = 16;
constexpr int buttonColumn = 120; // a button decides its width only when it is shown

// A popup looks for no place by itself.
void moveToMiddle(QWidget *popup, const QSize &size, const QWidget *of)
{
    const QWidget *window = of->window();
    popup->move(window->mapToGlobal(window->rect().center()) - QPoint(size.width() / 2, size.height() / 2));
}

} // namespace

ProgressTrials::ProgressTrials(const MakerSettings &settings, QWidget *parent) : QWidget(parent), m_settings(settings)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(captionGap);
    grid->setColumnMinimumWidth(0, buttonColumn);
    addLine(
        QStringLiteral("Copy files"),
        QStringLiteral("CProgressDialogEx over %1 files that are really copied. Escape or a click beside it cancels.")
            .arg(fileCount),
        &ProgressTrials::copyFiles);
    addLine(QStringLiteral("Count files"),
            QStringLiteral("CRainbowProgressDialog over work of unknown length. Escape or a click beside it cancels."),
            &ProgressTrials::countFiles);
    addLine(QStringLiteral("Growing label"),
            QStringLiteral("CProgressBarDialogEx, wider with every word until the application closes it."),
            &ProgressTrials::growPanel);
    addLine(QStringLiteral("Close by itself"),
            QStringLiteral("CProgressBarDialogEx, closed by its own timer after %1 seconds.").arg(closeInterval / 1000),
            &ProgressTrials::closePanelByItself);
    connect(&m_growth, &QTimer::timeout, this, &ProgressTrials::growLabel);
    applyForeignStyle(this, settings);
    resize(sizeHint());
}

ProgressTrials::~ProgressTrials()
{
    delete m_panel;
}

void ProgressTrials::addLine(const QString &caption, const QString &note, void (ProgressTrials::*action)())
{
    auto *grid = static_cast<QGridLayout *>(layout());
    const int row = grid->rowCount();
    auto *button = new CButtonEx;
    button->setText(caption);
    connect(button, &CButtonEx::clicked, this, action);
    grid->addWidget(button, row, 0, Qt::AlignLeft);
    grid->addWidget(new QLabel(note), row, 1, Qt::AlignLeft);
}

void ProgressTrials::copyFiles()
{
    auto *dialog = new CProgressDialogEx(this);
    auto *work = new FileCopy(fileCount, dialog);
    dialog->setWindowTitle(QStringLiteral("Copying"));
    dialog->setRange(0, fileCount);
    dialog->setValue(0);
    dialog->setText(QStringLiteral("Making the files…"));
    applyForeignStyle(dialog, m_settings);
    connect(work, &FileCopy::copied, dialog, [dialog](const QString &name, int count) {
        dialog->setText(QStringLiteral("Copying %1").arg(name));
        dialog->setValue(count);
    });
    connect(dialog, &QDialog::rejected, work, &FileCopy::cancel);
    connect(work, &FileCopy::ended, dialog, [this, dialog, work] {
        m_settings.report(QStringLiteral("copied %1 of %2 files").arg(work->copiedCount()).arg(work->fileCount()));
        dialog->hide();
        dialog->deleteLater();
    });
    moveToMiddle(dialog, dialog->size(), this);
    dialog->show();
    if (work->start())
        return;
    m_settings.report(QStringLiteral("there is no room for temporary files"));
    delete dialog;
}

void ProgressTrials::countFiles()
{
    auto *dialog = new CRainbowProgressDialog(this);
    auto *work = new FileCount(dialog);
    dialog->setText(QStringLiteral("Counting the files of this computer"), 0);
    dialog->setText(QStringLiteral("Nobody knows how long it takes."), 1);
    dialog->setText(QStringLiteral("…"), 2); // a row that is empty now would stay hidden
    connect(work, &FileCount::counted, dialog, [dialog](int count, const QString &directory) {
        dialog->setText(QStringLiteral("%1 files so far").arg(count), 1);
        dialog->setText(directory, 2);
    });
    connect(dialog, &QDialog::rejected, work, &FileCount::cancel);
    connect(work, &FileCount::ended, dialog, [this, dialog, work] {
        m_settings.report(QStringLiteral("counted %1 files").arg(work->count()));
        dialog->hide();
        dialog->deleteLater();
    });
    moveToMiddle(dialog, QSize(dialog->minimumWidth(), rainbowHeightGuess), this);
    dialog->show();
    work->start();
}

void ProgressTrials::showPanel()
{
    m_growth.stop();
    delete m_panel;
    m_panel = new CProgressBarDialogEx(QStringLiteral("Printing"), this);
    connect(m_panel.data(), &CProgressBarDialogEx::closed, this,
            [report = m_settings.report] { report(QStringLiteral("the panel has closed")); });
    m_panel->showDialog(true);
    // It has gone to the middle of the screen, counted from the window; this window may be smaller.
    m_panel->move(window()->rect().center() - m_panel->rect().center());
}

void ProgressTrials::growPanel()
{
    showPanel();
    m_words = 0;
    m_growth.start(growthInterval);
}

void ProgressTrials::growLabel()
{
    const QStringList words = m_settings.texts.order.tip.split(QLatin1Char(' ')).mid(0, 12);
    if (m_panel.isNull() || m_words == words.size()) {
        m_growth.stop();
        if (!m_panel.isNull())
            m_panel->closeDialog();
        return;
    }
    ++m_words;
    m_panel->setLabel(QStringList(words.mid(0, m_words)).join(QLatin1Char(' ')));
    m_panel->move(window()->rect().center() - m_panel->rect().center());
}

void ProgressTrials::closePanelByItself()
{
    showPanel();
    m_panel->setAutoClose(closeInterval);
}

} // namespace gallery
