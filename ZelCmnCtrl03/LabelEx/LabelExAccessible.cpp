#include "LabelEx/LabelExAccessible.h"

#include "LabelEx/LabelEx.h"
#include "include/accessible_factory.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace {

class Interface : public QAccessibleWidget
{
public:
    explicit Interface(CLabelEx *label) : QAccessibleWidget(label, QAccessible::StaticText) {}

    QAccessible::Role role() const override
    {
        if (label().isClickable())
            return QAccessible::Link;
        return label().pixmap(Qt::ReturnByValue).isNull() ? QAccessible::StaticText : QAccessible::Graphic;
    }

    QString text(QAccessible::Text kind) const override
    {
        const QString own = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && own.isEmpty() ? LabelExAccessible::plainText(label()) : own;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        state.linked = label().isClickable();
        return state;
    }

    QStringList actionNames() const override
    {
        const QStringList common = QAccessibleWidget::actionNames();
        return label().isClickable() && label().isEnabled() ? QStringList(pressAction()) + common : common;
    }

    void doAction(const QString &name) override
    {
        if (name == pressAction() && label().isClickable())
            label().click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    CLabelEx &label() const { return *static_cast<CLabelEx *>(widget()); }
};

QAccessibleInterface *make(const QString &className, QObject *object)
{
    auto *label = className == QLatin1String("CLabelEx") ? qobject_cast<CLabelEx *>(object) : nullptr;
    return label != nullptr ? new Interface(label) : nullptr;
}

} // namespace

void LabelExAccessible::install(CLabelEx *label)
{
    zel::installAccessible(make, label);
}

QString LabelExAccessible::plainText(const QLabel &label)
{
    QString text = label.text();
    const Qt::TextFormat format = label.textFormat();
    if (format == Qt::RichText || (format == Qt::AutoText && Qt::mightBeRichText(text)))
        text = QTextDocumentFragment::fromHtml(text).toPlainText();
    if (label.buddy() != nullptr)
        text.remove(QLatin1Char('&'));
    return text;
}
