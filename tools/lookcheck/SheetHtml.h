// The page of --sheet.
#pragma once

#include <QString>
#include <QVector>

class QIODevice;

namespace lookcheck {

/** One specimen in both looks; a path is empty where that look has no such picture. */
struct PicturePair
{
    QString name;
    QString before;
    QString after;
    bool differs;
};

/** Writes the whole page, pictures included: it needs no other file. False when the device refuses. */
bool writeSheetHtml(QIODevice *device, const QString &directory, const QVector<PicturePair> &pairs);

} // namespace lookcheck
