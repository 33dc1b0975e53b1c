#pragma once

#include "SampleTexts.h"

#include <QString>

#include <functional>
#include <vector>

class QStyle;
class QWidget;

namespace gallery {

/** Everything but a working control stands still: it shows its state for good and knows nothing of pointer and keys. */
enum class State
{
    Working,
    Normal,
    Hovered,
    Focused,
    Pressed,
    Disabled,
    Default,
    Flat,
    ReadOnly
};

inline bool isStill(State state)
{
    return state != State::Working;
}

/** What is behind a control. */
enum class Ground
{
    Page,
    Tray
};

/** What the controls of a page have in common. */
struct MakerSettings
{
    SampleTexts texts;
    QStyle *foreignStyle = nullptr; // not owned, outlives the controls; null for each control's own style
    bool isEnabled = true;
    bool isAnimated = true; // pictures want a default button that does not pulse
    std::function<void(const QString &)> report = [](const QString &) {
    }; // told what the user did; puts the column's caption before it
};

/** Makes a control in the given state and in its final size. The parent owns it. */
using Maker = std::function<QWidget *(State state, const MakerSettings &settings, QWidget *parent)>;

/** False while the control that the maker gave is on its way into the state. */
using SettledTest = std::function<bool(State state, const QWidget *control)>;

/** One control of the gallery. Specimens of one group with the same row or column caption stand in line. */
struct Specimen
{
    QString row;
    QString column;
    Ground ground;
    State state;
    Maker make;
    SettledTest isSettled = {}; // none where nothing takes time
};

struct SpecimenGroup
{
    QString heading;
    QString note;
    std::vector<Specimen> specimens;
};

struct PageDescription
{
    QString name; // on the command line and in file names
    QString title;
    std::vector<SpecimenGroup> groups;
};

// For the pages.

struct Row
{
    QString caption;
    Maker make;
    Ground ground = Ground::Page;
    SettledTest isSettled = {};
};

struct Column
{
    QString caption;
    State state;
};

/** Every row in every column. */
std::vector<Specimen> table(const std::vector<Row> &rows, const std::vector<Column> &columns);

/** The rows beside each other as working controls, told apart by captions above them. */
std::vector<Specimen> workingControls(const std::vector<Row> &rows);

/** Several tables as one, for rows that are not the same in all columns. */
std::vector<Specimen> joined(const std::vector<std::vector<Specimen>> &tables);

} // namespace gallery
