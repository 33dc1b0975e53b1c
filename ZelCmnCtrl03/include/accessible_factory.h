// How a control tells assistive technology what it is.
#pragma once

#include <QAccessible>
#include <QWidget>

namespace zel {

/**
 * For the constructor of a control with an accessible interface of its own: makes the factory known, once, and has the
 * control asked again.
 *
 * Qt asks for the interface, and keeps what it gets, with the first thing that there is to tell. In a disabled parent
 * that is in the midst of QWidget's constructor, where the control is a plain widget yet.
 */
inline void installAccessible(QAccessible::InterfaceFactory factory, QWidget *control)
{
    QAccessible::installFactory(factory); // knows a factory that it has already
    if (control->isEnabled())
        return;
    if (QAccessibleInterface *early = QAccessible::queryAccessibleInterface(control))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(early));
}

} // namespace zel
