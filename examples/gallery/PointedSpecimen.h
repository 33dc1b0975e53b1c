#pragma once

#include "Specimen.h"

class QWidget;

// For makers of controls that paint themselves without a style, so that no style can hold them in a state.

namespace gallery {

/** Brings a control into the state by the events that a pointer brings, whenever it is shown, or disables it. */
void showState(QWidget *control, State state);

/** The states that showState() knows. */
const std::vector<Column> &pointedStates();

/** A grey bar with the controls side by side; they become its children. White lines would be lost on the page. */
QWidget *onBar(const std::vector<QWidget *> &controls, QWidget *parent);

} // namespace gallery
