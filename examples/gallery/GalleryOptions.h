#pragma once

#include <QString>
#include <QStringList>

namespace gallery {

/** What the gallery was told on its command line. */
struct GalleryOptions
{
    QString shotsDirectory;    // empty: no pictures of pages
    QString picturesDirectory; // empty: no pictures of single specimens
    QString pageName;          // empty: all pages, or the first one in the window
    QString language;          // empty: what the environment and the system say
    QString graphicsDirectory; // empty: likewise
    QString scale;
    bool isRightToLeft = false;
    bool isLanguageRightToLeft = false; // known when the library has started
    bool isDisabled = false;
    bool isForeign = false;

    bool takesPictures() const { return !shotsDirectory.isEmpty() || !picturesDirectory.isEmpty(); }

    /** The arguments for another gallery in the same state. Language and graphics go by the environment instead. */
    QStringList windowArguments() const;
};

struct ParsedOptions
{
    GalleryOptions options;
    QString error; // empty when the arguments are good
    bool isHelpWanted = false;
};

/** Needs no application object: the environment has to be ready before there is one. */
ParsedOptions parseOptions(const QStringList &arguments);

/** Needs an application object. */
QString helpText();

/** Sets the variables that Qt and the library read once, at their start. */
void applyToEnvironment(const GalleryOptions &options);

} // namespace gallery
