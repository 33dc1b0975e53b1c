#pragma once

#include "ControlMaker.h"

namespace gallery {

QWidget *makeButtonEx(const Specimen &specimen, const MakerSettings &settings, QWidget *parent);
QWidget *makePushButton(const Specimen &specimen, const MakerSettings &settings, QWidget *parent);

/** False until a hovered glowing button glows with full strength. */
bool isButtonExSettled(const Specimen &specimen, const QWidget *control);

} // namespace gallery
