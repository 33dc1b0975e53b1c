// The gallery as the maker of pictures.
#pragma once

#include <QString>

namespace lookcheck {

/** Where the gallery is to look for the artwork, and where to put its pictures. */
struct GalleryRun
{
    QString graphicsDirectory;
    QString language; // empty: English
    int scale;        // screen pixels per pixel
    QString picturesDirectory;
};

/** The gallery beside this program. */
QString galleryBesideProgram();

/** The artwork that is installed with this program. */
QString installedArtwork();

/**
 * Has the gallery save its specimens as pictures. Gives what went wrong; empty for success.
 *
 * `scratch` is an empty directory: the gallery finds no settings there, so that both looks are shown alike on any
 * machine.
 */
QString runGallery(const QString &program, const GalleryRun &run, const QString &scratch);

} // namespace lookcheck
