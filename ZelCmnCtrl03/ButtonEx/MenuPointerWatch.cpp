#include "ButtonEx/MenuPointerWatch.h"

#include "ButtonEx/ButtonEx.h"
#include "include/qt_compat.h"

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>

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
    if (event->type() != QEvent::MouseMove || menu != m_menu || !m_menu->isVisible())
        return false;
    const QPoint position = zel::globalPosition(static_cast<QMouseEvent *>(event));
    auto *button = qobject_cast<CButtonEx *>(QApplication::widgetAt(position));
    if (button != m_hovered) {
        const QPointer<MenuPointerWatch> self(this);
        movePointerTo(button);
        // What the buttons did may have closed the menu, and taken this object along.
        return self.isNull() || m_menu.isNull() || !m_menu->isVisible();
    }
    return false;
}

void MenuPointerWatch::movePointerTo(CButtonEx *button)
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
        const QPointF global = QCursor::pos();
        const QPointF local = entered->mapFromGlobal(global.toPoint());
        QEnterEvent enter(local, local, global);
        QCoreApplication::sendEvent(entered, &enter);
    }
}
