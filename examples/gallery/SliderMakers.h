#pragma once

#include "ControlMaker.h"

namespace gallery {

// A working slider has its value beside it.

QWidget *makeSliderEx(const Specimen &specimen, const MakerSettings &settings, QWidget *parent);
QWidget *makeSlider(const Specimen &specimen, const MakerSettings &settings, QWidget *parent);
QWidget *makeVerticalSlider(const Specimen &specimen, const MakerSettings &settings, QWidget *parent);

} // namespace gallery
