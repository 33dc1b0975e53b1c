// The page of --sheet.
#pragma once

#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

class QIODevice;

namespace lookcheck {

/** Where two pictures of one specimen differ. */
enum class Difference
{
    None,
    Anywhere,
    HighDensity // only on screens that take the @2x files
};

/** One specimen in both looks; a path is empty where that look has no such picture. */
struct PicturePair
{
    QString page;
    QString group;
    QString caption; // within the group
    QString before;
    QString after;
    QSize size; // of the larger one, as it is shown
    Difference difference = Difference::Anywhere;
};

/** What the page is about. */
struct SheetContent
{
    QString directory;
    QStringList warnings;
    QVector<PicturePair> pairs; // those of a page, and of a group in it, follow each other
};

/** Writes the whole page, pictures included: it needs no other file. False when the device refuses. */
bool writeSheetHtml(QIODevice *device, const SheetContent &content);

} // namespace lookcheck
