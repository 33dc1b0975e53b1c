#pragma once

#include "Specimen.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

class CProgressBarDialogEx;

namespace gallery {

/** Buttons that put the progress dialogs to work. */
class ProgressTrials : public QWidget
{
    Q_OBJECT

public:
    ProgressTrials(const MakerSettings &settings, QWidget *parent);
    ~ProgressTrials() override;

private:
    void addLine(const QString &caption, const QString &note, void (ProgressTrials::*action)());
    void copyFiles();
    void countFiles();
    void growPanel();
    void closePanelByItself();
    void showPanel();
    void growLabel();

    MakerSettings m_settings;
    QPointer<CProgressBarDialogEx> m_panel; // a child of the window, which outlives the page
    QTimer m_growth;
    int m_words = 0;
};

} // namespace gallery
