#pragma once

#include "Specimen.h"

#include <QStyle>

class QIcon;
class QWidget;

// For the makers.

namespace gallery {

/** What a style must add to an option, so that it shows the state. */
QStyle::State forcedState(State state);

/**
 * The foreign style where there is one; on top of it the flags of a still specimen's state.
 *
 * The sub-controls are those of a complex control that it shows hovered or pressed, such as one arrow of a spin box.
 */
void applyStyles(QWidget *control, State state, const MakerSettings &settings,
                 QStyle::SubControls subControls = QStyle::SC_None);

/** The foreign style where there is one, for a panel and everything that is in it by now. */
void applyForeignStyle(QWidget *panel, const MakerSettings &settings);

/** A sample image by its name, such as "print-white", for any density of screen. */
QIcon sampleIcon(const QString &name);

} // namespace gallery
