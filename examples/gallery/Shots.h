#pragma once

#include "Specimen.h"

#include <QPixmap>
#include <QStringList>

namespace gallery {

/** One specimen alone, on its ground. Waits until the control is in its state. */
QPixmap picture(const Specimen &specimen, const MakerSettings &settings);

/** A whole page. */
QPixmap picture(const PageDescription &page, const MakerSettings &settings);

// Save pictures in a directory, made if need be, and print their paths: <page>.png of whole pages, or
// <page>-<group>-<row>-<column>.png of single specimens, with their captions in pictures.json. Give an exit status,
// after a message on standard error if it is not 0.
int savePages(const std::vector<PageDescription> &pages, const MakerSettings &settings, const QString &directory);
int saveSpecimens(const std::vector<PageDescription> &pages, const MakerSettings &settings, const QString &directory);

} // namespace gallery
