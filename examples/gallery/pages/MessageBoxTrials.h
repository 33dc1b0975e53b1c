#pragma once

#include "MessageBoxForms.h"
#include "Specimen.h"

#include <QPointer>
#include <QWidget>

class QGridLayout;
class QLabel;

namespace gallery {

/** A button for each form of message box, and beside it the signals of its last box in order, and the result. */
class MessageBoxTrials : public QWidget
{
    Q_OBJECT

public:
    MessageBoxTrials(const MakerSettings &settings, QWidget *parent);

private:
    /** A form of box as the user chooses it. */
    struct Choice
    {
        QString caption;
        BoxForm form;
        BoxEdge edge = BoxEdge::Soft;
        bool hasParent = true;
    };
    static std::vector<Choice> choices();

    void addLine(QGridLayout *grid, const Choice &choice);
    void showBox(const Choice &choice, const QPointer<QLabel> &answer);

    MakerSettings m_settings;
};

} // namespace gallery
