#pragma once

#include "Specimen.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

class CProgressBarDialogEx;

namespace gallery {

/** Buttons that put the progress dialogs to work. */
class ProgressBench : public QWidget
{
    Q_OBJECT

public:
    ProgressBench(const MakerSettings &settings, QWidget *parent);
    ~ProgressBench() override;

private:
    void addLine(const QString &caption, const QString &note, void (ProgressBench::*action)());
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
