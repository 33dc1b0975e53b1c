#include "FontCheck.h"

#include "Findings.h"
#include "Look.h"
#include "Nearest.h"
#include "UiGraphicsFonts.h"
#include "UiGraphicsLanguage.h"

#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontInfo>

#include <algorithm>

namespace lookcheck {

namespace {

constexpr qint64 largestFont =
    qint64(64) * 1024 * 1024; // bytes; the largest fonts of today, for all of CJK, have some 20

// The families of a file, as the library makes them known; empty when it is no font.
QStringList familiesOfFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isFile() || !info.isReadable() || info.size() > largestFont)
        return QStringList();
    const int id = QFontDatabase::addApplicationFont(path);
    if (id < 0)
        return QStringList();
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    QFontDatabase::removeApplicationFont(id);
    return families;
}

bool isSameFamily(const QString &left, const QString &right)
{
    // Qt tells makers apart in square brackets.
    return left.section(QStringLiteral(" ["), 0, 0).compare(right, Qt::CaseInsensitive) == 0;
}

QString shownFor(const QString &family)
{
    return QFontInfo(QFont(family)).family();
}

// Qt takes the first family of a list that is there.
bool isInstalled(const QString &family)
{
    const QStringList names = family.split(QLatin1Char(','));
    return std::any_of(names.cbegin(), names.cend(),
                       [](const QString &name) { return isSameFamily(shownFor(name.trimmed()), name.trimmed()); });
}

bool isAmong(const QString &family, const QStringList &families)
{
    return std::any_of(
        families.cbegin(), families.cend(),
        [&family](const QString &candidate) { return isSameFamily(candidate, family.trimmed()); });
}

// The keys that a language's texts come from.
QStringList keysOf(const Look &look)
{
    QStringList keys;
    if (const LanguageFont *language = languageFontOf(look.language()))
        keys.append(QString::fromUtf16(language->familyKey));
    for (const char *key :
         {"UIGFONT_TAHOMA", "UIGFONT_SANS_SERIF", "UIGFONT_VERDANA", "UIGFONT_SHELLDLG", "UIGFONT_ARIAL"})
        keys.append(QLatin1String(key));
    keys.removeDuplicates();
    return keys;
}

// "fonts" beside a missing "Fonts", on a file system that tells upper from lower case.
QString misspeltFolder(const QString &folder)
{
    const QFileInfo wanted(folder);
    for (const QString &name : QDir(wanted.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        if (name != wanted.fileName() && name.compare(wanted.fileName(), Qt::CaseInsensitive) == 0)
            return wanted.isDir() ? QString() : QDir(wanted.path()).filePath(name);
    return QString();
}

// Told once for the directory and once for the language's.
void checkFolders(const Look &look, Findings *findings)
{
    const QString folder = QFileInfo(look.folder() + QLatin1Char('/') + privateFontFile).path();
    const QString misspelt = misspeltFolder(folder);
    if (!misspelt.isEmpty())
        findings->add(
            {Severity::Warning, misspelt, 0, QStringLiteral("The library reads no folder of this name."),
             QStringLiteral("Is it meant to be %1? Names count letter for letter.").arg(QFileInfo(folder).fileName())});
    const LanguageFont *language = languageFontOf(look.language());
    const QString font = look.folder() + QLatin1Char('/') + privateFontFile;
    if (language != nullptr && QFileInfo::exists(font))
        findings->add({Severity::Warning, font, 0,
                       QStringLiteral("This font is never used: texts in %1 have that of %2.")
                           .arg(look.language(), QString::fromUtf16(language->familyKey)),
                       QStringLiteral("Take it away, and name an installed family in UIGraphics.xml.")});
}

// Without the file nothing asks for its family. That is the look of an installation as it comes.
void tellPrivateFontMissing(const Look &look, const Given<QString> &family, Findings *findings)
{
    const QString path = look.commonPath(privateFontFile);
    const QFileInfo folder(QFileInfo(path).path());
    const bool isMeant = folder.isDir() || !family.file.isEmpty();
    const QString near =
        nearest(QFileInfo(path).fileName(), QDir(folder.filePath()).entryList(QDir::Files).mid(0, 100));
    const QString remedy = near.isEmpty()
                               ? QStringLiteral("Put the font there if texts shall have a font of their own.")
                               : QStringLiteral("Is it %1? The name counts letter for letter.").arg(quoted(near));
    if (!family.file.isEmpty() && !folder.isDir())
        findings->add({Severity::Warning, family.file, family.line,
                       QStringLiteral("%1 has no effect without the file %2.").arg(privateFontKey, privateFontFile),
                       remedy});
    else
        findings->add({isMeant ? Severity::Warning : Severity::Note, path, 0,
                       QStringLiteral("There is no private font: texts have the family of UIGFONT_TAHOMA."), remedy});
}

void checkPrivateFont(const Look &look, Findings *findings)
{
    const Given<QString> family = look.family(privateFontKey);
    const QString path = look.find(privateFontFile);
    if (path.isEmpty()) {
        tellPrivateFontMissing(look, family, findings);
        return;
    }
    const QStringList families = familiesOfFile(path);
    const QFileInfo info(path);
    if (info.isFile() && info.size() > largestFont)
        findings->add({Severity::Warning, path, 0,
                       QStringLiteral("The private font is larger than 64 megabytes and was not checked."),
                       QStringLiteral("Is it the right one?")});
    else if (info.isFile() && !info.isReadable())
        findings->add({Severity::Error, path, 0, QStringLiteral("This user may not read the private font."),
                       QStringLiteral("Let all users of the application read it.")});
    else if (families.isEmpty())
        findings->add({Severity::Error, path, 0, QStringLiteral("The private font is no font, or is damaged."),
                       QStringLiteral("Put an OpenType or TrueType font in its place.")});
    else if (!isAmong(family.value, families) && !family.isFaulty)
        findings->add({Severity::Error, family.file.isEmpty() ? path : family.file, family.line,
                       QStringLiteral("The family of the private font is %1, and %2 says %3.")
                           .arg(quoted(families.constFirst()), privateFontKey, quoted(family.value)),
                       QStringLiteral("Write <Font Name=\"%1\">%2</Font> in UIGraphics.xml.")
                           .arg(privateFontKey, harmless(families.constFirst()))});
}

// The language whose texts a family is for.
QString languageOf(const QString &key, const Look &look)
{
    if (languageFontOf(look.language()) == nullptr)
        for (const LanguageFont &language : languageFonts)
            if (key == QString::fromUtf16(language.familyKey) && key != QLatin1String("UIGFONT_TAHOMA"))
                return QString::fromUtf16(language.tag);
    return look.language().isEmpty() ? QStringLiteral("en") : look.language();
}

void checkFamily(const Look &look, const QString &key, Findings *findings)
{
    const Given<QString> family = look.family(key);
    if (family.isFaulty || isInstalled(family.value))
        return;
    const bool isGiven = !family.file.isEmpty();
    findings->add(
        {isGiven ? Severity::Warning : Severity::Note, isGiven ? family.file : look.commonPath(lookOverridesFile),
         family.line,
         QStringLiteral("This machine has no font family %1 (%2); the texts are shown in %3.")
             .arg(quoted(family.value), key,
                  quoted(shownFamilies(QFont(family.value), languageOf(key, look)).join(QStringLiteral(", ")))),
         QStringLiteral("Name a family that the machines of your users have, or install it there.")});
}

} // namespace

void checkFonts(const Look &look, Findings *findings)
{
    const bool isForLanguage = !look.language().isEmpty();
    checkFolders(look, findings);
    if (languageFontOf(look.language()) == nullptr)
        checkPrivateFont(look, findings);
    QStringList keys = isForLanguage ? keysOf(look) : familyKeys();
    keys.removeAll(privateFontKey);
    for (const QString &key : keys)
        checkFamily(look, key, findings);
}

} // namespace lookcheck
