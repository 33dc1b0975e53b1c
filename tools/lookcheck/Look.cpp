#include "Look.h"

#include "UiGraphicsColors.h"
#include "UiGraphicsFonts.h"

#include <QDir>
#include <QFileInfo>

namespace lookcheck {

namespace {

OverridesFile readFile(const QString &path)
{
    OverridesFile file;
    file.path = path;
    file.overrides = readLookOverrides(path);
    return file;
}

bool holdsLookFiles(const QDir &folder)
{
    return folder.exists(lookOverridesFile) || folder.exists(privateFontFile) ||
           !folder.entryList({QStringLiteral("*.png"), QStringLiteral("*.xml")}, QDir::Files).isEmpty();
}

} // namespace

Look::Look(const QString &directory, const QString &language) : m_directory(directory), m_language(language)
{
    while (m_directory.size() > 1 && m_directory.endsWith(QLatin1Char('/')))
        m_directory.chop(1);
    for (const ColorDefault &color : colorDefaults)
        m_colors.insert(QString::fromUtf16(color.key), {QColor::fromRgb(color.argb), QString(), 0, false});
    for (const FamilyDefault &family : familyDefaults)
        m_families.insert(QString::fromUtf16(family.key), {QString::fromUtf16(family.family), QString(), 0, false});
    readOverrides();
}

QString Look::commonPath(const QString &fileName) const
{
    return m_directory + QLatin1Char('/') + fileName;
}

QString Look::folder() const
{
    return m_language.isEmpty() ? m_directory : commonPath(m_language);
}

QString Look::find(const QString &fileName) const
{
    if (!m_language.isEmpty()) {
        const QString path = commonPath(m_language + QLatin1Char('/') + fileName);
        if (QFileInfo::exists(path))
            return path;
    }
    const QString path = commonPath(fileName);
    return QFileInfo::exists(path) ? path : QString();
}

void Look::readOverrides()
{
    QStringList names{lookOverridesFile};
    if (!m_language.isEmpty())
        names.append(m_language + QLatin1Char('/') + lookOverridesFile);
    for (const QString &name : names) {
        const QString path = commonPath(name);
        if (!QFileInfo::exists(path))
            continue;
        m_overridesFiles.append(readFile(path));
        apply(m_overridesFiles.constLast());
    }
}

void Look::apply(const OverridesFile &file)
{
    for (const LookOverride &color : file.overrides.colors) {
        const auto held = m_colors.find(color.name);
        if (held == m_colors.end())
            continue;
        bool isNumber = false;
        const quint32 value = colorValue(color.text, &isNumber);
        // What a bad text makes unreadable is told with the text, not once more for each place.
        *held = {isNumber ? QColor::fromRgb(value) : held->value, file.path, color.line, !isNumber};
    }
    for (const LookOverride &font : file.overrides.fonts) {
        const auto held = m_families.find(font.name);
        if (held != m_families.end())
            *held = {font.text, file.path, font.line, font.text.isEmpty()};
    }
}

QStringList colorKeys()
{
    QStringList keys;
    for (const ColorDefault &color : colorDefaults)
        keys.append(QString::fromUtf16(color.key));
    return keys;
}

QStringList familyKeys()
{
    QStringList keys;
    for (const FamilyDefault &family : familyDefaults)
        keys.append(QString::fromUtf16(family.key));
    return keys;
}

QColor builtInColor(const QString &key)
{
    for (const ColorDefault &color : colorDefaults)
        if (key == QString::fromUtf16(color.key))
            return QColor::fromRgb(color.argb);
    return QColor();
}

QString builtInFamily(const QString &key)
{
    for (const FamilyDefault &family : familyDefaults)
        if (key == QString::fromUtf16(family.key))
            return QString::fromUtf16(family.family);
    return QString();
}

// Any tag is a language, so what is in a folder tells.
QStringList lookFoldersOf(const QString &directory)
{
    QStringList folders;
    const QDir root(directory);
    for (const QString &name : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        if (holdsLookFiles(QDir(root.filePath(name))))
            folders.append(name);
    return folders;
}

} // namespace lookcheck
