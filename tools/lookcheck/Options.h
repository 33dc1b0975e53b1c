// The command line of lookcheck.
#pragma once

#include <QString>
#include <QStringList>

namespace lookcheck {

struct Options
{
    QString directory;
    QString language;  // its tag; meaningful with hasLanguage; may be empty: the common files alone
    QString sheetFile; // empty: check
    QString gallery;   // empty: the one beside this program
    bool hasLanguage = false;
    bool isJson = false;
    bool wantsNotes = false;
    bool isPartial = false;
    bool areKeysWanted = false;
    bool isHelpWanted = false;
    bool isVersionWanted = false;
};

struct ParsedOptions
{
    Options options;
    QString error; // empty when the arguments are good
};

/** Needs no application object. */
ParsedOptions parseOptions(const QStringList &arguments);

/** Needs an application object. */
QString helpText();

} // namespace lookcheck
