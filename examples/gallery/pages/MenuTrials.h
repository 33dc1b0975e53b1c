#pragma once

#include "Specimen.h"

#include <QTimer>
#include <QWidget>

class CMenuEx;
class QAction;
class QLabel;
class QMenu;

namespace gallery {

/** A house menu and a plain one to open, with what was chosen and whether the pointer is on the house menu. */
class MenuTrials : public QWidget
{
    Q_OBJECT

public:
    MenuTrials(const MakerSettings &settings, QWidget *parent);

private:
    void addHouseMenu(const MakerSettings &settings);
    void addPlainMenu(const MakerSettings &settings);
    void showChoice(const QMenu *menu, const QAction *action);
    void showPointer();

    CMenuEx *m_houseMenu;
    QMenu *m_plainMenu;
    QLabel *m_choice;
    QLabel *m_pointer;
    QTimer m_pointerTimer;
};

} // namespace gallery
