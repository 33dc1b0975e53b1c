// What the look registry has come upon in this process: kept for whoever has to find out why something looks wrong.
#pragma once

#include <QFont>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

/** One UIGraphics.xml that was there. */
struct ReadXml
{
    QString path;
    int colors = 0;      // that it has replaced
    int families = 0;    // likewise
    QStringList notAKey; // names that the registry does not know, as they were met
    QString problem;     // why the file has no effect at all; empty for one that was read
};

/** One font that the registry hands out. */
struct HeldFont
{
    QString purpose;
    QFont font;
};

/** See CUIGraphics::use(). */
struct LookUse
{
    bool isStarted = false;
    QString utilityLibrary; // its file; empty while it has not been loaded
    QString utilityProblem; // why it has not, or what it lacks
    QString language;
    QString graphicsDir;
    QStringList xmlSought; // all files that would have been read, in their order
    QVector<ReadXml> xmlRead;
    QString privateFont; // its file, if there is one
    bool isPrivateFontRegistered = false;
    QVector<HeldFont> fonts;
    QSet<QString> missingBitmaps;    // names as they were asked for
    QSet<QString> unreadableBitmaps; // paths of files that are no pictures
};
