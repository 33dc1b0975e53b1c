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

void applyStyles(QWidget *control, State state, const MakerSettings &settings)
{
    if (settings.foreignStyle != nullptr)
        control->setStyle(settings.foreignStyle);
    const QStyle::State forced = forcedState(state);
    if (forced != QStyle::State_None)
        new StillStyle(control, forced); // belongs to the control
}

QIcon sampleIcon(const QString &name)
{
    return QIcon(QStringLiteral(":/gallery/%1.png").arg(name));
}

} // namespace gallery
