#include "Options.h"

#include "Languages.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

namespace lookcheck {

namespace {

const QString languageName = QStringLiteral("language");
const QString jsonName = QStringLiteral("json");
const QString notesName = QStringLiteral("notes");
const QString partialName = QStringLiteral("partial");
const QString sheetName = QStringLiteral("sheet");
const QString galleryName = QStringLiteral("gallery");
const QString keysName = QStringLiteral("keys");
const QString helpName = QStringLiteral("help");
const QString versionName = QStringLiteral("version");

void declareOptions(QCommandLineParser *parser)
{
    parser->setApplicationDescription(
        QStringLiteral("Tells what is wrong with a graphics directory for ZelCmnCtrl03 that the library itself says "
                       "nothing about.\n\nExit status: 0 nothing found, 1 errors or warnings found, 2 cannot check."));
    parser->addPositionalArgument(QStringLiteral("DIR"),
                                  QStringLiteral("The directory, as named in ZEL_GRAPHICS_DIR."));
    parser->addOptions({
        {languageName,
         QStringLiteral("Check the look of one language, such as ja. Without this: the common look and that of each "
                        "language that has a directory."),
         QStringLiteral("TAG")},
        {jsonName, QStringLiteral("Print JSON for programs.")},
        {notesName, QStringLiteral("Print notes too: what may well be meant so. They do not count as findings.")},
        {partialName, QStringLiteral("DIR is a part of a look, which is copied over the installed artwork before it "
                                     "is used: do not ask for the bitmaps that it lacks.")},
        {sheetName,
         QStringLiteral("Check nothing; write a page that shows each control in the built-in look and in "
                        "that of DIR."),
         QStringLiteral("OUT.html")},
        {galleryName, QStringLiteral("The gallery that makes the pictures for --sheet (the one beside this program)."),
         QStringLiteral("PROGRAM")},
        {keysName, QStringLiteral("Print the keys of UIGraphics.xml with their built-in values.")},
        {{QStringLiteral("h"), helpName}, QStringLiteral("Print this text.")},
        {versionName, QStringLiteral("Print the version.")},
    });
}

Options optionsOf(const QCommandLineParser &parser)
{
    Options options;
    options.directory = parser.positionalArguments().value(0);
    options.language = tagOf(parser.value(languageName));
    options.hasLanguage = parser.isSet(languageName);
    options.sheetFile = parser.value(sheetName);
    options.gallery = parser.value(galleryName);
    options.isJson = parser.isSet(jsonName);
    options.wantsNotes = parser.isSet(notesName);
    options.isPartial = parser.isSet(partialName);
    options.areKeysWanted = parser.isSet(keysName);
    options.isHelpWanted = parser.isSet(helpName);
    options.isVersionWanted = parser.isSet(versionName);
    return options;
}

bool isTag(const QString &language)
{
    return !language.contains(QLatin1Char('/')) && !language.contains(QLatin1Char('\\')) &&
           !language.startsWith(QLatin1Char('.'));
}

bool isOfLook(const Options &options)
{
    return options.language.isEmpty() || isKnownLanguage(options.language) ||
           QDir(options.directory).exists(options.language);
}

QString errorOf(const QCommandLineParser &parser, const Options &options)
{
    if (parser.positionalArguments().size() != 1)
        return QStringLiteral("Give one directory. --help tells more.");
    const QFileInfo directory(options.directory);
    if (!directory.exists())
        return QStringLiteral("There is no directory '%1'.").arg(options.directory);
    if (!directory.isDir())
        return QStringLiteral("'%1' is no directory.").arg(options.directory);
    if (!directory.isReadable() || !directory.isExecutable())
        return QStringLiteral("The directory '%1' cannot be read.").arg(options.directory);
    if (!isTag(parser.value(languageName)))
        return QStringLiteral("'%1' is no language tag.").arg(parser.value(languageName));
    if (!isOfLook(options))
        return QStringLiteral("There is no language '%1', and no folder for it. Tags are such as ja, zh-chs, ko.")
            .arg(options.language);
    if (parser.isSet(sheetName) && options.sheetFile.isEmpty())
        return QStringLiteral("The option --sheet needs the name of a file.");
    return QString();
}

} // namespace

ParsedOptions parseOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    declareOptions(&parser);
    ParsedOptions parsed;
    if (!parser.parse(arguments)) {
        parsed.error = parser.errorText();
        return parsed;
    }
    parsed.options = optionsOf(parser);
    const Options &options = parsed.options;
    if (!options.isHelpWanted && !options.isVersionWanted && !options.areKeysWanted)
        parsed.error = errorOf(parser, parsed.options);
    return parsed;
}

QString helpText()
{
    QCommandLineParser parser;
    declareOptions(&parser);
    return parser.helpText();
}

} // namespace lookcheck
