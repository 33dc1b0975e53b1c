#include "XmlCheck.h"

#include "Findings.h"
#include "Look.h"
#include "Nearest.h"

#include <QDir>
#include <QHash>

namespace lookcheck {

namespace {

constexpr int mostFaultsOfFile = 100; // who has more has the wrong file
constexpr int digitsWithoutAlpha = 6;
constexpr int digitsWithAlpha = 8;

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
        if (!m_file.overrides.error.isEmpty()) {
            tell(Severity::Error, m_file.overrides.errorLine,
                 QStringLiteral("The file has no effect at all: %1").arg(harmless(m_file.overrides.error)),
                 QStringLiteral("Make it a well-formed XML file."));
            return;
        }
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
    void check(const QVector<LookOverride> &overrides, const Kind &kind)
    {
        QHash<QString, int> lines; // by name
        for (const LookOverride &override : overrides) {
            if (!kind.keys.contains(override.name)) {
                tellUnknown(override, kind);
                continue;
            }
            if (lines.contains(override.name))
                tellAgain(override, lines.value(override.name));
            lines.insert(override.name, override.line);
            if (kind.isColor)
                checkColor(override);
            else
                checkFamily(override);
        }
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
             near.isEmpty() ? QStringLiteral("Take it out, or see the list of keys.")
                            : QStringLiteral("The nearest key is %1.").arg(near));
    }

    void tellAgain(const LookOverride &override, int line)
    {
        tell(Severity::Warning, override.line,
             QStringLiteral("%1 is given a second time; that in line %2 has no effect.").arg(override.name).arg(line),
             QStringLiteral("Take one of the two out."));
    }

    void checkColor(const LookOverride &override)
    {
        bool isNumber = false;
        colorValue(override.text, &isNumber);
        const auto digits = override.text.size();
        if (!isNumber)
            tell(Severity::Error, override.line, whyNoColor(override),
                 QStringLiteral("Write RRGGBB in hexadecimal digits, without a #."));
        else if (digits != digitsWithoutAlpha && digits != digitsWithAlpha)
            tell(Severity::Warning, override.line,
                 QStringLiteral("%1 has %2 characters and gives the colour #%3.")
                     .arg(quoted(override.text), QString::number(digits),
                          QString::number(colorValue(override.text) & 0xFFFFFF, 16)
                              .rightJustified(digitsWithoutAlpha, QLatin1Char('0'))),
                 QStringLiteral("Write all six digits, RRGGBB."));
    }

    static QString whyNoColor(const LookOverride &override)
    {
        if (override.text.isEmpty())
            return QStringLiteral("%1 has no text and gives black.").arg(override.name);
        const QString text = quoted(override.text);
        if (override.text.startsWith(QLatin1Char('#')))
            return QStringLiteral("%1 of %2 begins with a # and gives black.").arg(text, override.name);
        if (override.text.size() > digitsWithAlpha)
            return QStringLiteral("%1 of %2 is too long and gives black.").arg(text, override.name);
        return QStringLiteral("%1 of %2 is no hexadecimal number and gives black.").arg(text, override.name);
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

// A file system that tells upper from lower case does not find "UiGraphics.xml".
void checkFileName(const Look &look, Findings *findings)
{
    const QDir folder(look.folder());
    if (folder.exists(lookOverridesFile))
        return;
    for (const QString &name :
         folder.entryList({QStringLiteral("*.xml")}, QDir::Files, QDir::Name).mid(0, mostFaultsOfFile))
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
