// What a screen reader is told of the progress widgets.
#pragma once

#include <QAccessibleWidget>
#include <QWidget>

/** A progress widget: its role, busy or not, and for a dialog the message that it shows. */
class AccessibleProgress : public QAccessibleWidget
{
public:
    using MessageOf = QString (*)(const QWidget *widget);
    enum class Kind
    {
        Busy,
        Counting // has a child that tells the value
    };

    /** A dialog. The message stands in for a title, and is the description; an application's own texts win. */
    AccessibleProgress(QWidget *dialog, Kind kind, MessageOf messageOf);
    /** A bar without a value. */
    explicit AccessibleProgress(QWidget *bar);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

    /** Tells a screen reader, if there is one, that the message has changed. */
    static void announceMessage(QWidget *dialog);

private:
    Kind m_kind = Kind::Busy;
    MessageOf m_messageOf = nullptr;
};
