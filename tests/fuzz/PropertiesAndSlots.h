// What the meta-object of a control offers: every property, every public slot, every signal.
#pragma once

class FuzzBytes;
class QWidget;

namespace PropertiesAndSlots {

/** Writes one of the properties, the base classes' included. */
void setProperty(QWidget &control, FuzzBytes &bytes);

/** Calls one of the public slots whose arguments bytes can give. */
void callSlot(QWidget &control, FuzzBytes &bytes);

/** Has the control destroyed by the receiver of one of the signals of its own class. */
void destroyOnSignal(QWidget &control, FuzzBytes &bytes);

} // namespace PropertiesAndSlots
