// Tells a deployer what the library, by its rules, keeps silent about.
#include "BitmapCheck.h"
#include "ContrastCheck.h"
#include "Findings.h"
#include "FontCheck.h"
#include "Languages.h"
#include "Look.h"
#include "Options.h"
#include "Report.h"
#include "Sheet.h"
#include "XmlCheck.h"

#include <QGuiApplication>
#include <QTextStream>

#include <cstdio>

namespace {

enum ExitStatus
{
    Clean = 0,
    Found = 1,
    CannotRun = 2
};

int cannotRun(const QString &error)
{
    QTextStream(stderr) << QStringLiteral("lookcheck: %1\n").arg(error);
    return CannotRun;
}

// JSON is UTF-8, whatever the terminal's encoding.
void writeBytes(const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
}

void check(const lookcheck::Look &look, bool mayLackBitmaps, lookcheck::Findings *findings)
{
    checkXml(look, findings);
    checkBitmaps(look, mayLackBitmaps, findings);
    checkFonts(look, findings);
    checkContrast(look, findings);
}

int checkDirectory(const lookcheck::Options &options)
{
    lookcheck::Findings findings;
    QStringList languages{options.language};
    if (!options.hasLanguage)
        languages += lookcheck::languagesOf(options.directory, &findings);
    for (const QString &language : languages)
        check(lookcheck::Look(options.directory, language), options.isPartial, &findings);
    if (options.isJson)
        writeBytes(jsonReport(options.directory, findings));
    else
        QTextStream(stdout) << textReport(findings, options.wantsNotes);
    return findings.hasFaults() ? Found : Clean;
}

int writeSheet(const lookcheck::Options &options)
{
    const lookcheck::Look look(options.directory, options.language);
    const QString oversized = oversizedFile(look);
    if (!oversized.isEmpty())
        return cannotRun(QStringLiteral("'%1' is too large to be shown.").arg(oversized));
    const QString error = lookcheck::writeSheet(look, options.sheetFile, options.gallery);
    if (!error.isEmpty())
        return cannotRun(error);
    const QStringList faults = lookcheck::faultsOfFiles(look);
    for (const QString &fault : faults)
        QTextStream(stderr) << QStringLiteral("lookcheck: %1\n").arg(fault);
    return faults.isEmpty() ? Clean : Found;
}

int showText(const QString &text)
{
    QTextStream(stdout) << text;
    return Clean;
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", QByteArrayLiteral("offscreen")); // a deployer's build machine has no display
    const QGuiApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("lookcheck"));
    const lookcheck::ParsedOptions parsed = lookcheck::parseOptions(QCoreApplication::arguments());
    if (!parsed.error.isEmpty())
        return cannotRun(parsed.error);
    if (parsed.options.isHelpWanted)
        return showText(lookcheck::helpText());
    if (parsed.options.areKeysWanted)
        return showText(lookcheck::keysText());
    if (parsed.options.isVersionWanted)
        return showText(QStringLiteral("lookcheck " LOOKCHECK_VERSION "\n"));
    return parsed.options.sheetFile.isEmpty() ? checkDirectory(parsed.options) : writeSheet(parsed.options);
}
