#include "XmlCheck.h"

#include "Findings.h"
#include "Look.h"
#include "Nearest.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace lookcheck {

namespace {

constexpr int mostFaultsOfFile = 100; // who has more has the wrong file
constexpr int digitsWithoutAlpha = 6;
constexpr int digitsWithAlpha = 8;
constexpr quint32 opaque = 0xFF;

/** The kind of element that a list of overrides holds. */
struct Kind
{
    QString element;
    QStringList keys;
    bool isColor;
};

class FileCheck
{
public:
    FileCheck(const OverridesFile &file, Findings *findings) : m_file(file), m_findings(findings) {}

    void run()
    {
        if (m_file.overrides.fault != LookFileFault::None) {
            tell(Severity::Error, m_file.overrides.errorLine,
                 QStringLiteral("The file has no effect at all: %1").arg(withoutControls(m_file.overrides.error)),
                 remedyOf(m_file.overrides.fault));
            return;
        }
        for (const OtherElement &other : m_file.overrides.others)
            checkOther(other);
        for (const int line : m_file.overrides.namelessLines)
            tell(Severity::Warning, line, QStringLiteral("An element without a Name has no effect."),
                 QStringLiteral("Give it the attribute Name, in this spelling, with a key."));
        check(m_file.overrides.colors, {QStringLiteral("Color"), colorKeys(), true});
        check(m_file.overrides.fonts, {QStringLiteral("Font"), familyKeys(), false});
        if (m_faults > mostFaultsOfFile)
            m_findings->add({Severity::Warning, m_file.path, 0,
                             QStringLiteral("%1 more like these.").arg(m_faults - mostFaultsOfFile), QString()});
    }

private:
    static QString remedyOf(LookFileFault fault)
    {
        switch (fault) {
        case LookFileFault::Unreadable:
            return QStringLiteral("Put a file there that all users of the application may read.");
        case LookFileFault::TooLarge:
            return QStringLiteral("Is it the right one? A file of all keys has some 20 kilobytes.");
        case LookFileFault::Encoding:
            return QStringLiteral("Save it as UTF-8, or say its encoding in the first line: "
                                  "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>");
        case LookFileFault::NotWellFormed: return QStringLiteral("Make it well-formed XML.");
        case LookFileFault::None: break;
        }
        return QString();
    }

    void check(const QVector<LookOverride> &overrides, const Kind &kind)
    {
        QHash<QString, const LookOverride *> last; // by name: the one that counts
        for (const LookOverride &override : overrides)
            last.insert(override.name, &override);
        QHash<QString, int> lines;
        for (const LookOverride &override : overrides) {
            if (!kind.keys.contains(override.name)) {
                tellUnknown(override, kind);
                continue;
            }
            if (lines.contains(override.name))
                tellAgain(override, lines.value(override.name));
            lines.insert(override.name, override.line);
            const bool isOverridden = last.value(override.name) != &override;
            if (kind.isColor)
                checkColor(override, isOverridden);
            else if (!isOverridden)
                checkFamily(override);
        }
    }

    // Elements of other names may stand for order, or for another program. These are meant for the library: one that is
    // called nearly like ours and has a name, one that names a key, one that is called like a key.
    void checkOther(const OtherElement &other)
    {
        const QString near = nearest(other.element, {QStringLiteral("Color"), QStringLiteral("Font")});
        const auto isLikeKey = [](const QString &text) {
            return text.startsWith(QLatin1String("UIGCLR"), Qt::CaseInsensitive) ||
                   text.startsWith(QLatin1String("UIGFONT"), Qt::CaseInsensitive);
        };
        const bool isMisspelt = !near.isEmpty() && !other.name.isEmpty() && other.isLeaf;
        if (!isLikeKey(other.name) && !isLikeKey(other.element) && !isMisspelt)
            return;
        const QString meant =
            isLikeKey(other.element)
                ? QStringLiteral("Write <Color Name=\"%1\">RRGGBB</Color>.").arg(harmless(other.element))
                : QStringLiteral("Name the element Color or Font, in this spelling.");
        tell(Severity::Warning, other.line,
             QStringLiteral("The library reads no element %1.").arg(quoted(other.element)), meant);
    }

    void tellUnknown(const LookOverride &override, const Kind &kind)
    {
        if (m_faults >= mostFaultsOfFile) { // without looking for the nearest
            ++m_faults;
            return;
        }
        const QString near = nearest(override.name, kind.keys);
        tell(Severity::Warning, override.line,
             QStringLiteral("%1 is no key of a %2 and has no effect.").arg(quoted(override.name), kind.element),
             near.isEmpty() ? QStringLiteral("Take it out. All keys: lookcheck --keys")
                            : QStringLiteral("The nearest key is %1.").arg(near));
    }

    void tellAgain(const LookOverride &override, int line)
    {
        tell(Severity::Warning, override.line,
             QStringLiteral("%1 is given a second time; that in line %2 has no effect.").arg(override.name).arg(line),
             QStringLiteral("Take one of the two out."));
    }

    void checkColor(const LookOverride &override, bool isOverridden)
    {
        bool isNumber = false;
        const quint32 value = colorValue(override.text, &isNumber);
        const auto digits = override.text.size();
        if (!isNumber)
            tell(Severity::Error, override.line,
                 whyNoColor(override) + (isOverridden ? QStringLiteral(".") : QStringLiteral(" and gives black.")),
                 QStringLiteral("Write RRGGBB in hexadecimal digits, without a #."));
        else if (digits == digitsWithAlpha && value >> 24 != opaque)
            tellAlpha(override, value);
        else if (digits != digitsWithoutAlpha && digits != digitsWithAlpha)
            tell(Severity::Warning, override.line,
                 QStringLiteral("%1 has %2 characters and gives the colour %3.")
                     .arg(quoted(override.text), QString::number(digits), nameOf(value)),
                 QStringLiteral("Write all six digits, RRGGBB."));
    }

    // The first two of eight digits are an alpha that has no effect. Who ends in FF has meant the last two.
    void tellAlpha(const LookOverride &override, quint32 value)
    {
        const bool isAlphaLast = (value & 0xFF) == opaque;
        tell(isAlphaLast ? Severity::Warning : Severity::Note, override.line,
             QStringLiteral("Of %1 the first two digits have no effect: the colour is %2.")
                 .arg(quoted(override.text), nameOf(value)),
             isAlphaLast
                 ? QStringLiteral("If it is meant as RRGGBBAA, write %1.").arg(override.text.left(digitsWithoutAlpha))
                 : QStringLiteral("Colours of the look are opaque. Write RRGGBB."));
    }

    static QString nameOf(quint32 value) { return QColor::fromRgb(value).name().toUpper(); }

    static QString whyNoColor(const LookOverride &override)
    {
        if (override.text.isEmpty())
            return QStringLiteral("%1 has no text").arg(override.name);
        const QString text = quoted(override.text);
        if (override.text.startsWith(QLatin1Char('#')))
            return QStringLiteral("%1 of %2 begins with a #").arg(text, override.name);
        const auto isHexadecimal = [](QChar character) {
            return QStringLiteral("0123456789abcdef").contains(character.toLower());
        };
        if (std::all_of(override.text.cbegin(), override.text.cend(), isHexadecimal))
            return QStringLiteral("%1 of %2 is too long").arg(text, override.name);
        return QStringLiteral("%1 of %2 is no hexadecimal number").arg(text, override.name);
    }

    void checkFamily(const LookOverride &override)
    {
        if (override.text.isEmpty())
            tell(Severity::Warning, override.line,
                 QStringLiteral("%1 has no text and gives the system's own font.").arg(override.name),
                 QStringLiteral("Write the name of a family, or take the element out."));
        else if (override.hasMore)
            tell(Severity::Warning, override.line,
                 QStringLiteral("The text of %1 is longer than %2 characters, and the rest does not count.")
                     .arg(override.name)
                     .arg(longestOverrideText),
                 QStringLiteral("Write the name of one family."));
    }

    void tell(Severity severity, int line, const QString &what, const QString &remedy)
    {
        if (m_faults++ < mostFaultsOfFile)
            m_findings->add({severity, m_file.path, line, what, remedy});
    }

    const OverridesFile &m_file;
    Findings *m_findings;
    int m_faults = 0;
};

// A file system that tells upper from lower case does not find "UiGraphics.xml", and editors add ".txt".
void checkFileName(const Look &look, Findings *findings)
{
    const QDir folder(look.folder());
    const QString wanted = folder.filePath(lookOverridesFile);
    if (QFileInfo::exists(wanted))
        return;
    if (QFileInfo(wanted).isSymLink()) {
        findings->add({Severity::Error, wanted, 0, QStringLiteral("This is a link to a file that is not there."),
                       QStringLiteral("Let it lead to a file, or take it away.")});
        return;
    }
    const QStringList names = {QStringLiteral("*.xml"), QStringLiteral("UIGraphics*")};
    for (const QString &name : folder.entryList(names, QDir::Files, QDir::Name).mid(0, mostFaultsOfFile))
        if (!nearest(name, {lookOverridesFile}).isEmpty())
            findings->add(
                {Severity::Warning, look.folder() + QLatin1Char('/') + harmless(name), 0,
                 QStringLiteral("The library reads no file of this name."),
                 QStringLiteral("Is it meant to be %1? Names count letter for letter.").arg(lookOverridesFile)});
}

} // namespace

void checkXml(const Look &look, Findings *findings)
{
    for (const OverridesFile &file : look.overridesFiles())
        FileCheck(file, findings).run();
    checkFileName(look, findings);
}

} // namespace lookcheck
