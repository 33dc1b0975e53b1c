#include "FontCheck.h"

#include "Findings.h"
#include "Look.h"
#include "Nearest.h"
#include "UiGraphicsFonts.h"

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
    if (families.isEmpty())
        findings->add({Severity::Error, path, 0, QStringLiteral("The private font cannot be read, or is no font."),
                       QStringLiteral("Put an OpenType or TrueType font in its place.")});
    else if (!isAmong(family.value, families) && !family.isFaulty)
        findings->add({Severity::Error, family.file.isEmpty() ? path : family.file, family.line,
                       QStringLiteral("The family of the private font is %1, and %2 says %3.")
                           .arg(quoted(families.constFirst()), privateFontKey, quoted(family.value)),
                       QStringLiteral("Write <Font Name=\"%1\">%2</Font> in UIGraphics.xml.")
                           .arg(privateFontKey, harmless(families.constFirst()))});
}

void checkFamily(const Look &look, const QString &key, Findings *findings)
{
    const Given<QString> family = look.family(key);
    if (family.isFaulty || isInstalled(family.value))
        return;
    const bool isGiven = !family.file.isEmpty();
    findings->add({isGiven ? Severity::Warning : Severity::Note,
                   isGiven ? family.file : look.commonPath(lookOverridesFile), family.line,
                   QStringLiteral("This machine has no font family %1 (%2); it shows %3.")
                       .arg(quoted(family.value), key, quoted(shownFor(family.value))),
                   QStringLiteral("Name a family that the machines of your users have, or install it there.")});
}

} // namespace

void checkFonts(const Look &look, Findings *findings)
{
    const bool isForLanguage = !look.language().isEmpty();
    if (languageFontOf(look.language()) == nullptr)
        checkPrivateFont(look, findings);
    QStringList keys = isForLanguage ? keysOf(look) : familyKeys();
    keys.removeAll(privateFontKey);
    for (const QString &key : keys)
        checkFamily(look, key, findings);
}

} // namespace lookcheck
