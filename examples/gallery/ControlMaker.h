#pragma once

#include "SampleTexts.h"
#include "Specimens.h"

#include <QStyle>

#include <functional>

class QIcon;
class QWidget;

namespace gallery {

/** What the controls of a page have in common. */
struct MakerSettings
{
    SampleTexts texts;
    QStyle *foreignStyle = nullptr; // not owned, outlives the controls; null for each control's own style
    bool isEnabled = true;
    bool isAnimated = true; // pictures want a default button that does not pulse
    std::function<void(const QString &)> report = [](const QString &) {
    }; // told what the user did
};

/** Makes a specimen's control in its final size. The parent owns it. */
QWidget *makeControl(const Specimen &specimen, const MakerSettings &settings, QWidget *parent);

/** False while a control is on its way into the state of its specimen. */
bool isSettled(const Specimen &specimen, const QWidget *control);

// For the makers.

/** What a style must add to an option, so that it shows the state. */
QStyle::State forcedState(State state);

/** The foreign style where there is one; on top of it the flags of a still specimen's state. */
void applyStyles(QWidget *control, const Specimen &specimen, const MakerSettings &settings);

/** A sample image by its name, such as "print-white", for any density of screen. */
QIcon sampleIcon(const QString &name);

} // namespace gallery
