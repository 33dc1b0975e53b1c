// The house style for the controls on a form, in an application that keeps its own look: Qt Designer.
#pragma once

class QStyle;
class QWidget;

namespace HouseStyle {

/**
 * The factory's main style, which the application owns but does not wear.
 *
 * The first control that asks the factory makes the house style the application's. In Designer that would be the first
 * button on a form, and all of its windows would change. So this asks first, and gives the application its style back.
 *
 * Null, with nothing changed, where the application has a style sheet: Qt then destroys the style below it.
 */
QStyle *besideTheApplications();

/** Puts the style on the widget and on those of its parts that have none of their own. */
void dress(QWidget *widget, QStyle *style);

} // namespace HouseStyle
