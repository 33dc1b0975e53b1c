#pragma once

#include "ControlMaker.h"

namespace gallery {

QWidget *makeTextBoxEx(const Specimen &specimen, const MakerSettings &settings, QWidget *parent);
QWidget *makeLineEdit(const Specimen &specimen, const MakerSettings &settings, QWidget *parent);

} // namespace gallery
