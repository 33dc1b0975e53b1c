#pragma once

#include "GalleryOptions.h"

#include <QMainWindow>

#include <memory>

class QComboBox;
class QHBoxLayout;
class QListWidget;
class QProcessEnvironment;
class QScrollArea;
class QStyle;

namespace gallery {

/** The list of pages, the page, and the switches that all pages obey. */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(const GalleryOptions &options);
    ~MainWindow() override;

    /** The list of pages, the first of which is shown at first. */
    QListWidget *pageList() const { return m_list; }

    /** Takes away what would start the gallery anew, in another process. */
    void lockRestarts();

private:
    QWidget *makePageList();
    QWidget *makeSwitches();
    void addSwitch(QHBoxLayout *line, const QString &text, bool isOn, void (MainWindow::*setter)(bool));
    void addLanguages(QHBoxLayout *line);
    void addGraphics(QHBoxLayout *line);

    void setRightToLeft(bool on);
    void setPageEnabled(bool on);
    void setForeign(bool on);
    void chooseLanguage(int index);
    void chooseGraphics();

    void showPage();
    void startAnew(const QProcessEnvironment &environment);

    GalleryOptions m_options;
    std::unique_ptr<QStyle> m_foreignStyle;
    QListWidget *m_list;
    QScrollArea *m_scrollArea;
    QComboBox *m_languages;
    QList<QWidget *> m_restarters;
};

} // namespace gallery
