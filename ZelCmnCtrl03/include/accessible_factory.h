// How a control tells assistive technology what it is.
#pragma once

#include "include/qt_compat.h"

#include <QAccessible>
#include <QWidget>

namespace zel {

/**
 * For the constructor of a control with an accessible interface of its own: makes the factory known, once, and has the
 * control asked again.
 *
 * Qt asks for the interface, and keeps what it gets, with the first thing that there is to tell. In a disabled parent
 * that is in the midst of QWidget's constructor, where the control is a plain widget yet. Qt 6 asks again by itself
 * when the class has become another one, and loses the early interface when somebody else deletes one of the two.
 */
inline void installAccessible(QAccessible::InterfaceFactory factory, QWidget *control)
{
    QAccessible::installFactory(factory); // knows a factory that it has already
    if (control->isEnabled() || !keepsEarlyAccessible)
        return;
    if (QAccessibleInterface *early = QAccessible::queryAccessibleInterface(control))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(early));
}

} // namespace zel
