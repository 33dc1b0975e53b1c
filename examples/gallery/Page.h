#pragma once

#include "Specimen.h"

#include <QWidget>

#include <vector>

class QGridLayout;

namespace gallery {

/** One specimen's control in the middle of its place, in the size that the control has decided for itself. */
class SpecimenCell : public QWidget
{
    Q_OBJECT

public:
    SpecimenCell(const Specimen &specimen, const MakerSettings &settings, QWidget *parent = nullptr);

    /** False while the control is on its way into its state. */
    bool isSettled() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    Specimen m_specimen;
    QWidget *m_control;
};

/** A family of controls: its groups below each other, in each a table of cells with captions. */
class Page : public QWidget
{
    Q_OBJECT

public:
    Page(const PageDescription &description, const MakerSettings &settings, QWidget *parent = nullptr);

    /** False while a control is still on its way into the state that it is to show. */
    bool isSettled() const;

private:
    void addGroup(const SpecimenGroup &group, const MakerSettings &settings);
    QGridLayout *makeTable(const SpecimenGroup &group, const MakerSettings &settings);

    std::vector<SpecimenCell *> m_cells;
};

} // namespace gallery
