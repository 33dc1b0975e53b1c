#include "LabelEx/SeparateLabel.h"

#include "LabelEx/LabelExAccessible.h"
#include "include/accessible_factory.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QRadioButton>

namespace {

constexpr int indicatorRoom = 40;

// Stays beside the indicator whatever the language of its text: QLabel goes by the text's direction.
class WrappingLabel : public CLabelEx
{
public:
    explicit WrappingLabel(QWidget *button) : CLabelEx(button)
    {
        setWordWrap(true);
        setForegroundRole(QPalette::WindowText); // as the native text, not as a push button's
        alignToIndicator();
    }

protected:
    void changeEvent(QEvent *event) override
    {
        CLabelEx::changeEvent(event);
        if (event->type() == QEvent::LayoutDirectionChange)
            alignToIndicator();
    }

private:
    void alignToIndicator()
    {
        setAlignment((isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute | Qt::AlignVCenter);
    }
};

// As Qt's own for the two buttons, which looks for the name in the button's empty text. The label is no object beside
// the button: it would say the same once more.
class Interface : public QAccessibleWidget
{
public:
    Interface(QAbstractButton *button, QAccessible::Role role) : QAccessibleWidget(button, role) {}

    QString text(QAccessible::Text kind) const override
    {
        const QString own = QAccessibleWidget::text(kind);
        const auto *label = widget()->findChild<CLabelEx *>(QString(), Qt::FindDirectChildrenOnly);
        const bool isNamedByLabel = kind == QAccessible::Name && own.isEmpty() && label != nullptr;
        return isNamedByLabel ? LabelExAccessible::plainText(*label) : own;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = button()->isChecked();
        const auto *box = qobject_cast<const QCheckBox *>(button());
        state.checkStateMixed = box != nullptr && box->checkState() == Qt::PartiallyChecked;
        state.pressed = button()->isDown();
        return state;
    }

    QStringList actionNames() const override
    {
        const QStringList common = QAccessibleWidget::actionNames();
        return button()->isEnabled() ? QStringList(toggleAction()) + common : common;
    }

    void doAction(const QString &name) override
    {
        if (name != toggleAction())
            QAccessibleWidget::doAction(name);
        else if (button()->isEnabled())
            button()->toggle();
    }

    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }

private:
    QAbstractButton *button() const { return static_cast<QAbstractButton *>(widget()); }
};

// Without a separate label Qt's own interface is the right one.
QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    if (className != QLatin1String("CCheckBoxEx") && className != QLatin1String("CRadioButtonEx"))
        return nullptr;
    auto *button = qobject_cast<QAbstractButton *>(object);
    if (button == nullptr || button->findChild<CLabelEx *>(QString(), Qt::FindDirectChildrenOnly) == nullptr)
        return nullptr;
    const bool isRadio = qobject_cast<QRadioButton *>(button) != nullptr;
    return new Interface(button, isRadio ? QAccessible::RadioButton : QAccessible::CheckBox);
}

void copyTextAndGround(const QPalette &from, QWidget *to)
{
    QPalette palette = to->palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (const auto role : {QPalette::WindowText, QPalette::ButtonText})
            palette.setBrush(group, role, from.brush(group, QPalette::WindowText));
        for (const auto role : {QPalette::Window, QPalette::Button})
            palette.setBrush(group, role, from.brush(group, QPalette::Window));
    }
    to->setPalette(palette);
}

} // namespace

SeparateLabel::SeparateLabel(QAbstractButton *button, const QString &text, int width)
    : m_pButton(button), m_pLabel(new WrappingLabel(button)), m_pLayout(new QHBoxLayout(button))
{
    m_pLayout->setContentsMargins(0, 0, 0, 0);
    m_pLayout->setSpacing(0);
    m_pLabel->setText(text);
    setFixedWidth(width);
    zel::installAccessible(makeInterface, button);
}

int SeparateLabel::heightForWidth() const
{
    return m_pLabel != nullptr ? m_pLabel->heightForWidth(m_pLabel->maximumWidth()) : 0;
}

int SeparateLabel::textHeight() const
{
    if (m_pLabel == nullptr)
        return 0;
    const int width = m_pLabel->maximumWidth();
    return m_pLabel->fontMetrics().boundingRect(0, 0, width, width, Qt::TextWordWrap, m_pLabel->text()).height();
}

void SeparateLabel::addToLayout(int spacerHeight)
{
    m_pLayout->addWidget(m_pLabel);
    m_pLayout->addSpacerItem(new QSpacerItem(0, spacerHeight, QSizePolicy::Fixed, QSizePolicy::Fixed));
}

void SeparateLabel::setFixedHeight(int height)
{
    if (m_pLabel != nullptr)
        m_pLabel->setFixedHeight(height);
}

void SeparateLabel::setFixedWidth(int width)
{
    if (m_pLabel == nullptr)
        return;
    const int possibleWidth = qBound(0, width, QWIDGETSIZE_MAX - indicatorRoom);
    m_pLabel->setFixedWidth(possibleWidth);
    m_pButton->setFixedWidth(possibleWidth + indicatorRoom);
}

void SeparateLabel::setPalette(const QPalette &palette)
{
    if (m_pLabel == nullptr)
        return;
    copyTextAndGround(palette, m_pLabel);
    copyTextAndGround(palette, m_pButton);
    m_pButton->update();
}

void SeparateLabel::setFont(const QFont &font)
{
    if (m_pLabel == nullptr)
        return;
    m_pLabel->setFont(font);
    m_pButton->update();
}

void SeparateLabel::remove()
{
    if (m_pLabel != nullptr)
        m_pLabel->disconnect(m_pButton);
    delete m_pLabel;
    delete m_pLayout;
}
