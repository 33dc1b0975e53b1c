#include "ButtonEx/MenuPointerWatch.h"

#include "ButtonEx/ButtonEx.h"
#include "include/qt_compat.h"

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QWindow>

void MenuPointerWatch::start(QMenu *menu, CButtonEx *button)
{
    if (!m_menu.isNull())
        m_menu->removeEventFilter(this);
    m_menu = menu;
    m_hovered = button;
    menu->installEventFilter(this);
}

bool MenuPointerWatch::eventFilter(QObject *menu, QEvent *event)
{
    const bool moves = event->type() == QEvent::MouseMove;
    const bool presses = event->type() == QEvent::MouseButtonPress;
    if ((!moves && !presses) || menu != m_menu || !m_menu->isVisible())
        return false;
    const auto *mouse = static_cast<QMouseEvent *>(event);
    const QPoint position = zel::globalPosition(mouse);
    auto *button = qobject_cast<CButtonEx *>(QApplication::widgetAt(position));
    // What the buttons do may close the menu, and take this object along.
    const QPointer<MenuPointerWatch> self(this);
    if (presses && button != nullptr)
        pressOn(button, *mouse);
    else if (moves && button != m_hovered)
        movePointerTo(button, position);
    const bool menuIsGone = self.isNull() || m_menu.isNull() || !m_menu->isVisible();
    return menuIsGone;
}

// One click closes the menu and is the button's. The press goes through the button's window, so that Qt knows the
// button as the one that is down and gives it the release too; Qt's own replay would depend on the platform.
void MenuPointerWatch::pressOn(CButtonEx *button, const QMouseEvent &press)
{
    const QPointer<QWindow> window = button->window()->windowHandle();
    m_menu->setAttribute(Qt::WA_NoMouseReplay);
    m_menu->hide();
    if (window.isNull()) // gone with whatever the closing menu set off
        return;
    const QPoint position = zel::globalPosition(&press);
    const QPoint local = window->mapFromGlobal(position);
    QMouseEvent event(press.type(), local, local, position, press.button(), press.buttons(), press.modifiers());
    QCoreApplication::sendEvent(window, &event);
}

void MenuPointerWatch::movePointerTo(CButtonEx *button, const QPoint &position)
{
    const QPointer<CButtonEx> entered(button);
    const QPointer<CButtonEx> left = m_hovered;
    m_hovered = button;
    // Qt may have told a button already, when the menu opened right under the pointer.
    if (!left.isNull() && left->testAttribute(Qt::WA_UnderMouse)) {
        left->setAttribute(Qt::WA_UnderMouse, false);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(left, &leave);
    }
    if (!entered.isNull() && !entered->testAttribute(Qt::WA_UnderMouse)) {
        entered->setAttribute(Qt::WA_UnderMouse);
        QEnterEvent enter(entered->mapFromGlobal(position), entered->window()->mapFromGlobal(position), position);
        QCoreApplication::sendEvent(entered, &enter);
    }
}
