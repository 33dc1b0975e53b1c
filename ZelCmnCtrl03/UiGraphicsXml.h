// Reading of UIGraphics.xml: what a deployer's file says, before anything is made of it.
#pragma once

#include <QString>
#include <QVector>

class QIODevice;

/** The file's name, in the graphics directory and in that of a language. */
inline const QString lookOverridesFile = QStringLiteral("UIGraphics.xml");

/** The longest text that counts: no colour and no family is longer. */
constexpr int longestOverrideText = 256;

/** What is larger is not read, in bytes: the file of all keys has some 20 kilobytes. */
constexpr qint64 largestOverridesFile = qint64(1024) * 1024;

/** One Color or Font element: its Name attribute and its text, without white space around it. */
struct LookOverride
{
    QString name;
    QString text;
    int line = 0;         // of the end of its start tag, from 1
    bool hasMore = false; // the text was longer than counts
};

/** An element of another kind, which means nothing to the look. It may be a Color that somebody wrote wrongly. */
struct OtherElement
{
    QString element;
    QString name; // what its attribute says that is called Name, in whatever case
    int line = 0;
    bool isLeaf = true; // without elements below it
};

/** Why a file gives nothing. */
enum class LookFileFault
{
    None,
    Unreadable, // no file, or not for this user
    TooLarge,   // for what it has to say
    Encoding,   // letters beyond ASCII that are not UTF-8, and no encoding declared
    NotWellFormed
};

/** The elements of one file, each kind in document order. */
struct LookOverrides
{
    QVector<LookOverride> colors;
    QVector<LookOverride> fonts;
    QVector<OtherElement> others; // the first thousand
    QVector<int> namelessLines;   // of the Color and Font elements that are left out
    LookFileFault fault = LookFileFault::None;
    QString error;     // the fault in words, for people; empty for a good file
    int errorLine = 0; // 0 when it is no matter of a line
};

/**
 * Reads the elements named Color and Font, at whatever depth they stand. Elements without a Name are left out.
 *
 * A file that cannot be read, is too large, or is not well-formed to its end, gives nothing but its error.
 */
LookOverrides readLookOverrides(const QString &path);

/** The same of a document that is open already. */
LookOverrides readLookOverrides(QIODevice *document);

/** The value of a Color's text, as 0xAARRGGBB; 0, which is black, for one that is no hexadecimal number. */
inline quint32 colorValue(const QString &text, bool *isNumber = nullptr)
{
    return text.toUInt(isNumber, 16);
}
