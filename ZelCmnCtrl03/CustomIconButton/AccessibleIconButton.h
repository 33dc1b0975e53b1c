// What assistive technology is told of the small self-painting buttons.
#pragma once

#include <QAccessibleWidget>
#include <QWidget>

#include <functional>

/**
 * A push button for assistive technology. Its name is the widget's accessible name or, for want of one, the tool tip;
 * its press action calls `press` from the event loop, so that a slot may open a dialog while the asker waits for
 * nothing.
 */
class AccessibleIconButton : public QAccessibleWidget
{
public:
    AccessibleIconButton(QWidget *button, std::function<void()> press);

    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

    /** For QAccessible::installFactory: serves `Button` and what derives from it, a class with customClicked(). */
    template <class Button>
    static QAccessibleInterface *makeFor(const QString &className, QObject *object);

private:
    std::function<void()> m_press;
};

template <class Button>
QAccessibleInterface *AccessibleIconButton::makeFor(const QString &className, QObject *object)
{
    Q_UNUSED(className)
    auto *button = qobject_cast<Button *>(object);
    if (button == nullptr)
        return nullptr;
    return new AccessibleIconButton(button, [button] { Q_EMIT button->customClicked(); });
}
