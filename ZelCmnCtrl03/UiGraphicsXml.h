// Reading of UIGraphics.xml: what a deployer's file says, before anything is made of it.
#pragma once

#include <QString>
#include <QVector>

/** One Color or Font element: its Name attribute and its text, without white space around it. */
struct LookOverride
{
    QString name;
    QString text;
};

/** The elements of one file, each kind in document order. */
struct LookOverrides
{
    QVector<LookOverride> colors;
    QVector<LookOverride> fonts;
};

/**
 * Reads the elements named Color and Font, at whatever depth they stand. Elements without a Name are left out.
 *
 * A file that cannot be read, or is not well-formed to its end, gives nothing at all.
 */
LookOverrides readLookOverrides(const QString &path);
