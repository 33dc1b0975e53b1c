#pragma once

#include <QSlider>
#include <QStyle>

/**
 * What a CDSliderEx keeps of its handles, and where the user may take them. Itself a slider that is never shown and
 * never gets an event; its fields hide operations of that base.
 */
class CSliderPrivate : public QSlider
{
public:
    ~CSliderPrivate() override;

    static constexpr int handleCount = 2;
    static constexpr int noHandle = -1;

    /** The handle that was taken last, or none. */
    int takenHandle() const;
    /** The handle that keys act on: the one taken last, else the lower one. */
    int activeHandle() const { return active[1] ? 1 : 0; }
    void take(int handle);

    // The ends of what a handle may reach, in a type that no position overflows. The nearest place to the other handle
    // can be outside the range.
    qint64 lowest(int handle) const;
    qint64 highest(int handle) const;

    /** True for a drag that would bring the handle too near to the other one. */
    bool refusesDrag(int handle, int newValue) const;
    /** Where a key takes the handle; its own position where it may not move. */
    int keyTarget(int handle, int step) const;

    int minimum = 0;
    int maximum = 100;
    int value[handleCount] = {0, 100};
    int position[handleCount] = {0, 100};
    bool active[handleCount] = {false, false};
    Qt::Orientation orientation = Qt::Horizontal;
    QStyle::SubControl pressedControl[handleCount] = {QStyle::SC_None, QStyle::SC_None};
    int clickOffset = 0; // from the left edge of the handle to where it was pressed
};
