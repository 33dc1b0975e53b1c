// What the tag of the user interface language means to Qt.
#pragma once

#include <QFont>
#include <QLocale>
#include <QString>
#include <QStringList>

/** The locale of a language tag; the C locale for a tag that is no language of the world. */
QLocale localeOfLanguage(const QString &tag);

/**
 * The families that a text of the language is really shown in where this font is asked for, in the order of their first
 * letters. Another family than the font's stands in for it where it is not installed, or lacks a letter.
 *
 * Needs a GUI application object.
 */
QStringList shownFamilies(const QFont &font, const QString &tag);
