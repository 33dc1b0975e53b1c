#include "SliderEx/DSliderExAccessible.h"

#include "SliderEx/DSliderEx.h"
#include "SliderEx/DSliderEx_p.h"
#include "SliderEx/SliderKeys.h"
#include "include/accessible_factory.h"

#include <algorithm>

namespace {

QAccessibleInterface *interfaceOf(const QString &className, QObject *object)
{
    if (className != QLatin1String(CDSliderEx::staticMetaObject.className()))
        return nullptr;
    auto *slider = qobject_cast<CDSliderEx *>(object);
    return slider != nullptr ? new DSliderExAccessible(slider) : nullptr;
}

} // namespace

void DSliderExAccessible::install(CDSliderEx *slider)
{
    zel::installAccessible(interfaceOf, slider);
}

DSliderExAccessible::DSliderExAccessible(CDSliderEx *slider) : QAccessibleWidget(slider, QAccessible::Slider) {}

DSliderExAccessible::~DSliderExAccessible()
{
    for (const QAccessible::Id handle : m_handles)
        if (handle != 0)
            QAccessible::deleteAccessibleInterface(handle);
}

CDSliderEx *DSliderExAccessible::slider() const
{
    return static_cast<CDSliderEx *>(object());
}

void *DSliderExAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString DSliderExAccessible::text(QAccessible::Text text) const
{
    const int *position = slider()->d->position;
    if (text == QAccessible::Value)
        return CDSliderEx::tr("%1 to %2").arg(position[0]).arg(position[1]);
    const QString own = QAccessibleWidget::text(text);
    if (text != QAccessible::Description)
        return own;
    const QString range = CDSliderEx::tr("From %1 to %2").arg(position[0]).arg(position[1]);
    return own.isEmpty() ? range : CDSliderEx::tr("%1. %2", "description, values").arg(own, range);
}

int DSliderExAccessible::childCount() const
{
    return CSliderPrivate::handleCount;
}

QAccessibleInterface *DSliderExAccessible::child(int index) const
{
    if (index < 0 || index >= CSliderPrivate::handleCount)
        return nullptr;
    if (m_handles[index] == 0)
        m_handles[index] = QAccessible::registerAccessibleInterface(new DSliderExHandleAccessible(slider(), index));
    return QAccessible::accessibleInterface(m_handles[index]);
}

// The upper handle lies over the lower one.
QAccessibleInterface *DSliderExAccessible::childAt(int x, int y) const
{
    for (int index = CSliderPrivate::handleCount - 1; index >= 0; --index)
        if (child(index)->rect().contains(x, y))
            return child(index);
    return nullptr;
}

int DSliderExAccessible::indexOfChild(const QAccessibleInterface *wanted) const
{
    for (int index = 0; index < CSliderPrivate::handleCount; ++index)
        if (child(index) == wanted)
            return index;
    return -1;
}

QVariant DSliderExAccessible::currentValue() const
{
    return slider()->d->position[slider()->d->activeHandle()];
}

void DSliderExAccessible::setCurrentValue(const QVariant &value)
{
    child(slider()->d->activeHandle())->valueInterface()->setCurrentValue(value);
}

QVariant DSliderExAccessible::maximumValue() const
{
    return slider()->d->maximum;
}

QVariant DSliderExAccessible::minimumValue() const
{
    return slider()->d->minimum;
}

QVariant DSliderExAccessible::minimumStepSize() const
{
    return SliderKeys::step;
}

DSliderExHandleAccessible::DSliderExHandleAccessible(CDSliderEx *slider, int handlenumber)
    : m_slider(slider), m_handle(handlenumber)
{}

bool DSliderExHandleAccessible::isValid() const
{
    return !m_slider.isNull();
}

void *DSliderExHandleAccessible::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this) : nullptr;
}

QAccessibleInterface *DSliderExHandleAccessible::parent() const
{
    return QAccessible::queryAccessibleInterface(m_slider);
}

QString DSliderExHandleAccessible::text(QAccessible::Text text) const
{
    if (text == QAccessible::Value)
        return currentValue().toString();
    if (text != QAccessible::Name)
        return QString();
    return m_handle == 0 ? CDSliderEx::tr("Lower value") : CDSliderEx::tr("Upper value");
}

QRect DSliderExHandleAccessible::rect() const
{
    return m_slider->handleRect(m_handle).translated(m_slider->mapToGlobal(QPoint(0, 0)));
}

QAccessible::State DSliderExHandleAccessible::state() const
{
    QAccessible::State state = parent()->state();
    state.active = state.focused = state.focused != 0 && m_slider->d->activeHandle() == m_handle;
    return state;
}

QVariant DSliderExHandleAccessible::currentValue() const
{
    return m_slider->d->position[m_handle];
}

void DSliderExHandleAccessible::setCurrentValue(const QVariant &value)
{
    const CSliderPrivate *d = m_slider->d;
    const qint64 lowest = std::max<qint64>(d->lowest(m_handle), d->minimum);
    const qint64 highest = std::min<qint64>(d->highest(m_handle), d->maximum);
    if (!m_slider->isEnabled() || lowest > highest)
        return;
    const int target = int(std::clamp(value.toLongLong(), lowest, highest));
    if (target == d->position[m_handle])
        return;
    const QPointer<CDSliderEx> slider = m_slider; // who is told of the value may destroy the slider, and this with it
    const int handle = m_handle;
    slider->setSliderPosition(handle, target);
    if (!slider.isNull())
        Q_EMIT slider->sliderReleased(target, handle);
}

// On the track, wherever the application has put the other handle.
int DSliderExHandleAccessible::boundToTrack(qint64 value) const
{
    const CSliderPrivate *d = m_slider->d;
    return int(std::clamp<qint64>(value, d->minimum, std::max(d->minimum, d->maximum)));
}

QVariant DSliderExHandleAccessible::maximumValue() const
{
    return boundToTrack(m_slider->d->highest(m_handle));
}

QVariant DSliderExHandleAccessible::minimumValue() const
{
    return boundToTrack(m_slider->d->lowest(m_handle));
}

QVariant DSliderExHandleAccessible::minimumStepSize() const
{
    return SliderKeys::step;
}
