#include "MakerTools.h"

#include "StillStyle.h"

#include <QIcon>
#include <QWidget>

namespace gallery {

QStyle::State forcedState(State state)
{
    switch (state) {
    case State::Hovered: return QStyle::State_MouseOver;
    case State::Focused: return QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    case State::Pressed: return QStyle::State_Sunken;
    default: return QStyle::State_None;
    }
}

void applyStyles(QWidget *control, State state, const MakerSettings &settings, QStyle::SubControls subControls)
{
    if (settings.foreignStyle != nullptr)
        control->setStyle(settings.foreignStyle);
    const QStyle::State forced = forcedState(state);
    if (forced == QStyle::State_None)
        return;
    const bool isPointed = state == State::Hovered || state == State::Pressed;
    new StillStyle(control, forced, isPointed ? subControls : QStyle::SC_None); // belongs to the control
}

void applyForeignStyle(QWidget *panel, const MakerSettings &settings)
{
    if (settings.foreignStyle == nullptr)
        return;
    panel->setStyle(settings.foreignStyle);
    const QList<QWidget *> children = panel->findChildren<QWidget *>();
    for (QWidget *child : children)
        child->setStyle(settings.foreignStyle);
}

QIcon sampleIcon(const QString &name)
{
    return QIcon(QStringLiteral(":/gallery/%1.png").arg(name));
}

} // namespace gallery
