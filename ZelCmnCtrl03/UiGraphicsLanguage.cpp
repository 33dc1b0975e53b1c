#include "UiGraphicsLanguage.h"

#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>

QLocale localeOfLanguage(const QString &tag)
{
    const QString lowerTag = tag.toLower();
    if (lowerTag == QLatin1String("zh-chs"))
        return QLocale(QLocale::Chinese, QLocale::SimplifiedHanScript, QLocale::China);
    if (lowerTag == QLatin1String("zh-cht"))
        return QLocale(QLocale::Chinese, QLocale::TraditionalHanScript, QLocale::Taiwan);
    return QLocale(lowerTag);
}

QStringList shownFamilies(const QFont &font, const QString &tag)
{
    const QString ownName = localeOfLanguage(tag).nativeLanguageName(); // a text that needs the language's letters
    QTextLayout layout(ownName.isEmpty() ? QStringLiteral("Abc") : ownName, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    QStringList families;
    for (const QGlyphRun &run : layout.glyphRuns())
        families.append(run.rawFont().familyName());
    families.removeDuplicates();
    return families;
}
