// The keys that move a handle, the same for every slider of the house.
#pragma once

#include <Qt>

namespace SliderKeys {

constexpr int step = 1;
constexpr int pageStep = 10;

struct KeyStep
{
    int key;
    int step;
};

constexpr KeyStep keySteps[] = {
    {Qt::Key_Left, -step}, {Qt::Key_Down, -step},      {Qt::Key_Right, step},
    {Qt::Key_Up, step},    {Qt::Key_PageUp, pageStep}, {Qt::Key_PageDown, -pageStep},
};

/** How far a key takes a handle; 0 for a key that moves nothing. */
constexpr int stepOf(int key)
{
    for (const KeyStep &entry : keySteps)
        if (entry.key == key)
            return entry.step;
    return 0;
}

} // namespace SliderKeys
