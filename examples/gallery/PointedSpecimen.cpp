#include "PointedSpecimen.h"

#include <QCoreApplication>
#include <QEnterEvent>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QWidget>

namespace gallery {

namespace {

constexpr int barMargin = 6;
constexpr int barGap = 2;

void sendPointer(QWidget *control, State state)
{
    const QPointF middle = control->rect().center();
    QEnterEvent enter(middle, middle, middle);
    QMouseEvent press(QEvent::MouseButtonPress, middle, middle, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(control, &enter);
    if (state == State::Pressed)
        QCoreApplication::sendEvent(control, &press);
}

/** Controls forget the pointer when they are hidden. */
class PointerKeeper : public QObject
{
public:
    PointerKeeper(QWidget *control, State state) : QObject(control), m_control(control), m_state(state)
    {
        control->installEventFilter(this);
        sendPointer(control, state);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show) // first the control itself
            QMetaObject::invokeMethod(
                this, [this] { sendPointer(m_control, m_state); }, Qt::QueuedConnection);
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget *m_control;
    State m_state;
};

} // namespace

void showState(QWidget *control, State state)
{
    if (state == State::Hovered || state == State::Pressed)
        new PointerKeeper(control, state); // belongs to the control
    if (state == State::Disabled)
        control->setEnabled(false);
}

const std::vector<Column> &pointedStates()
{
    static const std::vector<Column> states = {
        {QStringLiteral("Normal"), State::Normal},
        {QStringLiteral("Hovered"), State::Hovered},
        {QStringLiteral("Pressed"), State::Pressed},
        {QStringLiteral("Disabled"), State::Disabled},
    };
    return states;
}

QWidget *onBar(const std::vector<QWidget *> &controls, QWidget *parent)
{
    auto *bar = new QWidget(parent);
    bar->setBackgroundRole(QPalette::Button);
    bar->setAutoFillBackground(true);
    auto *line = new QHBoxLayout(bar);
    line->setContentsMargins(barMargin, barMargin, barMargin, barMargin);
    line->setSpacing(barGap);
    for (QWidget *control : controls)
        line->addWidget(control);
    bar->resize(bar->sizeHint());
    return bar;
}

} // namespace gallery
