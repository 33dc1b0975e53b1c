// The built-in font families of the house look and which language takes which, as data.
#pragma once

#include <QString>

/** One family of the house look: its key, and its default. */
struct FamilyDefault
{
    const char16_t *key;
    const char16_t *family;
};

inline constexpr FamilyDefault familyDefaults[] = {
    {u"UIGFONT_KORSANS_MEDIUM", u"KorSans Medium"},
    {u"UIGFONT_SANS_SERIF", u"SansSerif"},
    {u"UIGFONT_TAHOMA", u"Tahoma"},
    {u"UIGFONT_VERDANA", u"Verdana"},
    {u"UIGFONT_SHELLDLG", u"MS Shell Dlg"},
    {u"UIGFONT_ARIAL", u"Arial"},
    {u"UIGFONT_JA", u"MS Gothic"},
    {u"UIGFONT_ZH-CHS", u"SimSun"},
    {u"UIGFONT_ZH-CHT", u"Mingliu"},
    {u"UIGFONT_KO", u"Batang"},
    {u"UIGFONT_RU", u"Tahoma Cyr"},
    {u"UIGFONT_EL", u"Tahoma Cyr"},
    {u"UIGFONT_TR", u"Tahoma Cyr"},
};

/** A language with a font of its own. */
struct LanguageFont
{
    const char16_t *tag;
    const char16_t *familyKey;
    const char16_t *record;
};

inline constexpr LanguageFont languageFonts[] = {
    {u"ja", u"UIGFONT_JA", u"Font is Japanese - MS Gothic"},
    {u"zh-chs", u"UIGFONT_ZH-CHS", u"Font is Chinese (Simplified)  - SimSun"},
    {u"zh-cn", u"UIGFONT_ZH-CHS", u"Font is Chinese (Simplified)  - SimSun"},
    {u"zh-cht", u"UIGFONT_ZH-CHT", u"Font is Chinese (Traditional)  - Mingliu"},
    {u"zh-tw", u"UIGFONT_ZH-CHT", u"Font is Chinese (Traditional)  - Mingliu"},
    {u"ko", u"UIGFONT_KO", u"Font is Korean - Batang"},
    {u"ru", u"UIGFONT_RU", u"Font is Russian - Tahoma Cyr"},
    {u"el", u"UIGFONT_EL", u"Font is Greek - Tahoma Cyr"},
    {u"tr", u"UIGFONT_TR", u"Font is Turkish - Tahoma Cyr"},
    {u"he", u"UIGFONT_TAHOMA", u"Font is Hebrew - Tahoma"},
};

/** The row of a language tag, in whatever case it is written; null for a language that takes the private font. */
inline const LanguageFont *languageFontOf(const QString &tag)
{
    const QString lowerTag = tag.toLower();
    for (const LanguageFont &language : languageFonts)
        if (lowerTag == QString::fromUtf16(language.tag))
            return &language;
    return nullptr;
}

/** The font of all languages that have none of their own, in the graphics directory or the language's. */
inline const QString privateFontFile = QStringLiteral("Fonts/KORZEMED.otf");
inline const QString privateFontKey = QStringLiteral("UIGFONT_KORSANS_MEDIUM");
