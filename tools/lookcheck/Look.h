// The look that a graphics directory gives in one language, by the rules of the look registry.
#pragma once

#include "UiGraphicsXml.h"

#include <QColor>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

namespace lookcheck {

/** A value of the look and where it was given; the file is empty for a built-in one. */
template <typename Value>
struct Given
{
    Value value;
    QString file;
    int line = 0;
    bool isFaulty = false; // told elsewhere; the value is the one that stood before
};

/** One UIGraphics.xml as it was read. */
struct OverridesFile
{
    QString path;
    LookOverrides overrides;
};

class Look
{
public:
    /** `language` may be empty: the common files alone. */
    Look(const QString &directory, const QString &language);

    const QString &directory() const { return m_directory; }
    const QString &language() const { return m_language; }

    /** The path of a file, the language's first; empty if there is none. */
    QString find(const QString &fileName) const;

    /** The path that a file of the common look would have. */
    QString commonPath(const QString &fileName) const;

    /** The folder that belongs to this look alone: the language's, or the directory for the common one. */
    QString folder() const;

    /** The directory's, then the language's. */
    const QVector<OverridesFile> &overridesFiles() const { return m_overridesFiles; }

    Given<QColor> color(const QString &key) const { return m_colors.value(key); }
    Given<QString> family(const QString &key) const { return m_families.value(key); }

private:
    void readOverrides();
    void apply(const OverridesFile &file);

    QString m_directory;
    QString m_language;
    QVector<OverridesFile> m_overridesFiles;
    QHash<QString, Given<QColor>> m_colors;
    QHash<QString, Given<QString>> m_families;
};

QStringList colorKeys();
QStringList familyKeys();

/** The built-in colour or family of a key. */
QColor builtInColor(const QString &key);
QString builtInFamily(const QString &key);

/** The folders of a graphics directory that hold files of a look, for a language as a rule. */
QStringList lookFoldersOf(const QString &directory);

} // namespace lookcheck
