#include "GalleryOptions.h"

#include "pages/Pages.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace gallery {

namespace {

const QString helpName = QStringLiteral("help");
const QString shotsName = QStringLiteral("shots");
const QString picturesName = QStringLiteral("pictures");
const QString pageName = QStringLiteral("page");
const QString languageName = QStringLiteral("language");
const QString graphicsName = QStringLiteral("graphics");
const QString scaleName = QStringLiteral("scale");
const QString rightToLeftName = QStringLiteral("right-to-left");
const QString disabledName = QStringLiteral("disabled");
const QString foreignName = QStringLiteral("foreign");

QString knownPages()
{
    QStringList names;
    for (const PageDescription &page : pages())
        names.append(page.name);
    return names.join(QStringLiteral(", "));
}

void declareOptions(QCommandLineParser *parser)
{
    const QString dir = QStringLiteral("DIR");
    parser->setApplicationDescription(QStringLiteral("Shows every control of ZelCmnCtrl03 in every look and state."));
    parser->addOptions({
        {{QStringLiteral("h"), helpName}, QStringLiteral("Print this text.")},
        {shotsName, QStringLiteral("Open no window; save each page as DIR/<page>.png. Needs no display."), dir},
        {picturesName, QStringLiteral("The same for each single specimen."), dir},
        {pageName, QStringLiteral("The page to save, or to show first. Pages: %1.").arg(knownPages()),
         QStringLiteral("NAME")},
        {languageName,
         QStringLiteral("Language of texts and fonts, such as de or zh-chs (ZEL_LANGUAGE). Hebrew lays out from right "
                        "to left."),
         QStringLiteral("TAG")},
        {graphicsName, QStringLiteral("Directory of the artwork (ZEL_GRAPHICS_DIR)."), dir},
        {scaleName, QStringLiteral("Screen pixels per pixel, such as 1.5 or 2 (QT_SCALE_FACTOR)."),
         QStringLiteral("N")},
        {rightToLeftName, QStringLiteral("Lay out from right to left.")},
        {disabledName, QStringLiteral("Disable the controls.")},
        {foreignName, QStringLiteral("Give the controls the Fusion style instead of the house style.")},
    });
}

GalleryOptions optionsOf(const QCommandLineParser &parser)
{
    GalleryOptions options;
    options.shotsDirectory = parser.value(shotsName);
    options.picturesDirectory = parser.value(picturesName);
    options.pageName = parser.value(pageName);
    options.language = parser.value(languageName);
    options.graphicsDirectory = parser.value(graphicsName);
    options.scale = parser.value(scaleName);
    options.isRightToLeft = parser.isSet(rightToLeftName);
    options.isDisabled = parser.isSet(disabledName);
    options.isForeign = parser.isSet(foreignName);
    return options;
}

QString errorOf(const QCommandLineParser &parser, const GalleryOptions &options)
{
    if (!parser.positionalArguments().isEmpty())
        return QStringLiteral("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst());
    if (!options.pageName.isEmpty() && findPage(options.pageName) == nullptr)
        return QStringLiteral("There is no page '%1'. Pages: %2.").arg(options.pageName, knownPages());
    if (!options.graphicsDirectory.isEmpty() && !QFileInfo(options.graphicsDirectory).isDir())
        return QStringLiteral("There is no directory '%1'.").arg(options.graphicsDirectory);
    bool isNumber = false;
    const double scale = options.scale.toDouble(&isNumber);
    if (!options.scale.isEmpty() && (!isNumber || scale < 0.5 || scale > 8.0))
        return QStringLiteral("The scale is a number from 0.5 to 8, not '%1'.").arg(options.scale);
    for (const QString &name : {shotsName, picturesName})
        if (parser.isSet(name) && parser.value(name).isEmpty())
            return QStringLiteral("The option --%1 needs a directory.").arg(name);
    return QString();
}

} // namespace

QStringList GalleryOptions::windowArguments() const
{
    QStringList arguments;
    if (!pageName.isEmpty())
        arguments << QStringLiteral("--%1").arg(gallery::pageName) << pageName;
    if (isRightToLeft && !isLanguageRightToLeft) // another language has its own direction
        arguments << QStringLiteral("--%1").arg(rightToLeftName);
    if (isDisabled)
        arguments << QStringLiteral("--%1").arg(disabledName);
    if (isForeign)
        arguments << QStringLiteral("--%1").arg(foreignName);
    return arguments;
}

ParsedOptions parseOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    declareOptions(&parser);
    ParsedOptions parsed;
    if (!parser.parse(arguments)) {
        parsed.error = parser.errorText();
        return parsed;
    }
    parsed.isHelpWanted = parser.isSet(helpName);
    parsed.options = optionsOf(parser);
    parsed.error = errorOf(parser, parsed.options);
    return parsed;
}

QString helpText()
{
    QCommandLineParser parser;
    declareOptions(&parser);
    return parser.helpText();
}

void applyToEnvironment(const GalleryOptions &options)
{
    if (!options.language.isEmpty())
        qputenv("ZEL_LANGUAGE", options.language.toUtf8());
    if (!options.graphicsDirectory.isEmpty())
        qputenv("ZEL_GRAPHICS_DIR", QFile::encodeName(QDir::current().absoluteFilePath(options.graphicsDirectory)));
    if (!options.scale.isEmpty())
        qputenv("QT_SCALE_FACTOR", options.scale.toUtf8());
    if (options.takesPictures())
        qputenv("QT_QPA_PLATFORM", QByteArrayLiteral("offscreen"));
}

} // namespace gallery
