#include "fuzz/PropertiesAndSlots.h"

#include "fuzz/FuzzApplication.h"
#include "fuzz/FuzzBytes.h"

#include <QMetaEnum>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QPointer>
#include <QWidget>

namespace {

// What these set off is no matter of a control: a browser, a window of the size of the world, a drag that waits for the
// window system.
bool isLeftOut(const QByteArray &name)
{
    static const QByteArray names[] = {"openExternalLinks", "openLinks",     "dragEnabled", "dragDropMode",
                                       "geometry",          "windowOpacity", "print"};
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

bool isOfTheLibrary(const QMetaObject *meta)
{
    return meta->className()[0] == 'C';
}

QVariant enumValue(const QMetaProperty &property, FuzzBytes &bytes)
{
    const QMetaEnum values = property.enumerator();
    return values.value(bytes.below(values.keyCount()));
}

// Numbers of Qt's own classes are pixels in the main; the ends of their range would measure the memory and no control.
QVariant propertyValue(const QMetaProperty &property, FuzzBytes &bytes)
{
    static const QByteArray ranges[] = {"minimum",    "maximum",         "value",        "sliderPosition",
                                        "singleStep", "pageStep",        "tickInterval", "currentIndex",
                                        "maxLength",  "maxVisibleItems", "currentRow",   "cursorPosition"};
    if (property.isEnumType())
        return enumValue(property, bytes);
    const bool isRange = std::find(std::begin(ranges), std::end(ranges), property.name()) != std::end(ranges);
    if (property.userType() != QMetaType::Int || isRange || isOfTheLibrary(property.enclosingMetaObject()))
        return bytes.valueOf(property.userType());
    return bytes.length();
}

bool canBeCalled(const QMetaMethod &method)
{
    return method.methodType() == QMetaMethod::Slot && method.access() == QMetaMethod::Public &&
           method.parameterCount() <= 3 && !isLeftOut(method.name());
}

// After these Qt itself goes on with the widget: they come from the midst of its code. A text box loses the focus also
// while Qt hides or disables it.
bool mayDestroy(const QMetaMethod &signal)
{
    static const QByteArray without[] = {"focusIn", "focusOut", "MessageBox_Moved", "tempSliderReleased",
                                         "temperatureSliderReleased"};
    return signal.methodType() == QMetaMethod::Signal &&
           std::find(std::begin(without), std::end(without), signal.name()) == std::end(without);
}

/** Destroys what it is told of, once. */
class Destroyer : public QObject
{
    Q_OBJECT

public:
    explicit Destroyer(QWidget *victim) : QObject(victim), m_victim(victim) {}

public Q_SLOTS:
    void destroyVictim() { delete m_victim; }

private:
    QPointer<QWidget> m_victim;
};

} // namespace

void PropertiesAndSlots::setProperty(QWidget &control, FuzzBytes &bytes)
{
    const QMetaObject *meta = control.metaObject();
    // From the end: what the class itself has comes before what QWidget has.
    const int index = meta->propertyCount() - 1 - bytes.below(meta->propertyCount());
    const QMetaProperty property = meta->property(index);
    if (!property.isWritable() || isLeftOut(property.name()))
        return;
    const QVariant value = propertyValue(property, bytes);
    FuzzApplication::tell("    writes", property.name());
    if (value.isValid())
        property.write(&control, value);
}

void PropertiesAndSlots::callSlot(QWidget &control, FuzzBytes &bytes)
{
    const QMetaObject *meta = control.metaObject();
    const QMetaMethod method = meta->method(meta->methodCount() - 1 - bytes.below(meta->methodCount()));
    if (!canBeCalled(method))
        return;
    QVariant values[3];
    QGenericArgument arguments[3];
    for (int i = 0; i < method.parameterCount(); ++i) {
        values[i] = bytes.valueOf(method.parameterType(i));
        if (!values[i].isValid())
            return;
        arguments[i] = QGenericArgument(values[i].typeName(), values[i].constData());
    }
    FuzzApplication::tell("    calls", method.name().constData());
    method.invoke(&control, Qt::DirectConnection, arguments[0], arguments[1], arguments[2]);
}

void PropertiesAndSlots::destroyOnSignal(QWidget &control, FuzzBytes &bytes)
{
    const QMetaObject *meta = control.metaObject();
    const int own = meta->methodCount() - meta->methodOffset();
    const QMetaMethod method = meta->method(meta->methodOffset() + bytes.below(own));
    if (own == 0 || !isOfTheLibrary(meta) || !mayDestroy(method))
        return;
    FuzzApplication::tell("    by", method.name().constData());
    auto *destroyer = new Destroyer(&control);
    const QMetaObject *receiver = destroyer->metaObject();
    QObject::connect(&control, method, destroyer, receiver->method(receiver->indexOfSlot("destroyVictim()")));
}

#include "PropertiesAndSlots.moc"
