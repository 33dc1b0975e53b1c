#include "Languages.h"

#include "Findings.h"
#include "Look.h"
#include "UiGraphicsFonts.h"

#include "Language.h"

#include <QLocale>
#include <QRegularExpression>

namespace lookcheck {

namespace {

bool looksLikeTag(const QString &name)
{
    static const QRegularExpression tag(QStringLiteral("^[A-Za-z]{2,3}(-[A-Za-z]+)*$"));
    return tag.match(name).hasMatch();
}

void tellFolder(const QString &directory, const QString &name, Findings *findings)
{
    const QString path = directory + QLatin1Char('/') + harmless(name);
    if (tagOf(name) != name)
        findings->add({Severity::Warning, path, 0, QStringLiteral("The library reads no folder of this name."),
                       QStringLiteral("Is it meant to be %1?").arg(quoted(tagOf(name)))});
    else if (!isKnownLanguage(name))
        findings->add(
            {looksLikeTag(name) ? Severity::Warning : Severity::Note, path, 0,
             QStringLiteral("No language is called %1. The folder is read if ZEL_LANGUAGE says so.").arg(quoted(name)),
             QStringLiteral("Languages go by their own codes, not their countries': ja, zh-chs, ko, cs.")});
}

} // namespace

QString tagOf(const QString &setting)
{
    return QString::fromStdString(zelcutil::tagOfSetting(setting.toStdString()));
}

bool isKnownLanguage(const QString &tag)
{
    return languageFontOf(tag) != nullptr || QLocale(tag).language() != QLocale::C;
}

QStringList languagesOf(const QString &directory, Findings *findings)
{
    QStringList languages;
    for (const QString &name : lookFoldersOf(directory)) {
        tellFolder(directory, name, findings);
        if (tagOf(name) == name)
            languages.append(name);
    }
    return languages;
}

} // namespace lookcheck
