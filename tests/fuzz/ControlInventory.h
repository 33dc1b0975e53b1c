// Every public control: how it is made, and what can be called on it that is neither a property nor a slot.
#pragma once

#include "fuzz/FuzzBytes.h"

#include <QVector>
#include <QWidget>

#include <functional>

struct ControlKind
{
    const char *className;
    std::function<QWidget *(QWidget *parent, FuzzBytes &bytes)> make;
    std::function<void(QWidget *control, FuzzBytes &bytes)> call; // one operation of the family
};

const QVector<ControlKind> &controlInventory();
