#include "CustomIconButton/AccessibleIconButton.h"

#include <QMetaObject>

#include <utility>

AccessibleIconButton::AccessibleIconButton(QWidget *button, std::function<void()> press)
    : QAccessibleWidget(button, QAccessible::Button), m_press(std::move(press))
{}

QString AccessibleIconButton::text(QAccessible::Text kind) const
{
    const QString ownText = QAccessibleWidget::text(kind);
    const bool isTipTheName = widget()->accessibleName().isEmpty();
    if (kind == QAccessible::Name && ownText.isEmpty())
        return widget()->toolTip();
    // The base describes a widget by its tool tip; that would be said twice.
    if (kind == QAccessible::Description && isTipTheName)
        return widget()->accessibleDescription();
    return ownText;
}

QStringList AccessibleIconButton::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (widget()->isEnabled())
        names.prepend(pressAction());
    return names;
}

void AccessibleIconButton::doAction(const QString &name)
{
    if (name != pressAction()) {
        QAccessibleWidget::doAction(name);
        return;
    }
    if (widget()->isEnabled())
        QMetaObject::invokeMethod(widget(), m_press, Qt::QueuedConnection);
}
