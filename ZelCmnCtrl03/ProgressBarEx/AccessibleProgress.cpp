#include "ProgressBarEx/AccessibleProgress.h"

AccessibleProgress::AccessibleProgress(QWidget *dialog, Kind kind, MessageOf messageOf)
    : QAccessibleWidget(dialog, QAccessible::Dialog), m_kind(kind), m_messageOf(messageOf)
{}

AccessibleProgress::AccessibleProgress(QWidget *bar) : QAccessibleWidget(bar, QAccessible::ProgressBar) {}

QString AccessibleProgress::text(QAccessible::Text kind) const
{
    const QString own = QAccessibleWidget::text(kind);
    const bool isMessage = kind == QAccessible::Name || kind == QAccessible::Description;
    if (!own.isEmpty() || !isMessage || m_messageOf == nullptr)
        return own;
    return m_messageOf(widget());
}

QAccessible::State AccessibleProgress::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.busy = m_kind == Kind::Busy;
    return state;
}

void AccessibleProgress::announceMessage(QWidget *dialog)
{
    for (const auto change : {QAccessible::NameChanged, QAccessible::DescriptionChanged}) {
        QAccessibleEvent event(dialog, change);
        QAccessible::updateAccessibility(&event);
    }
}
