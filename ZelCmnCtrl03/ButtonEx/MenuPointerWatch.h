#pragma once

#include <QObject>
#include <QPointer>

class CButtonEx;
class QMenu;
class QMouseEvent;

/**
 * Tells buttons that the pointer enters, leaves or presses them while a menu is open.
 *
 * An open menu has all pointer events to itself, so the window system's enter and leave stay away from the buttons
 * until it closes: the button that opened it would never learn that the mouse has gone. The menu's own mouse events say
 * where the pointer is.
 */
class MenuPointerWatch : public QObject
{
public:
    /** Watches until the menu or this object goes. `button` is the one under the pointer. */
    void start(QMenu *menu, CButtonEx *button);

    bool eventFilter(QObject *menu, QEvent *event) override;

private:
    void pressOn(CButtonEx *button, const QMouseEvent &press);
    void movePointerTo(CButtonEx *button, const QPoint &position);

    QPointer<QMenu> m_menu;
    QPointer<CButtonEx> m_hovered;
};
