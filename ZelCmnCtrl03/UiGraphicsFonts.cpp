#include "UiGraphics.h"

#include "Platform/Platform.h"
#include "UiGraphicsFonts.h"
#include "include/qt_compat.h"
#include "include/qt_globals.h"

namespace {

constexpr int systemFontPoints = 10;
constexpr int privateFontPoints = 14;
constexpr int smallestPrivateFontPixels = 14;
constexpr int normalWeight = 50;
constexpr int asHeld = -1;

QFont withAttributes(QFont font, int pixelSize, int weight, bool italic)
{
    if (pixelSize != asHeld)
        font.setPixelSize(pixelSize);
    if (weight != asHeld)
        zel::setFontWeight(font, weight);
    font.setItalic(italic);
    font.setStyleStrategy(QFont::PreferAntialias);
    return font;
}

} // namespace

void CUIGraphics::initializeFontMap()
{
    ZEL_LOG_SCOPE_OF(zel::UiGraphics);
    for (const FamilyDefault &family : familyDefaults)
        m_fontMap.insert(QString::fromUtf16(family.key), QString::fromUtf16(family.family));
}

void CUIGraphics::initializeFont()
{
    ZEL_LOG_SCOPE_OF(zel::UiGraphics);
    HeldFonts &fonts = heldFonts();
    chooseLanguageFonts(fonts);
    fonts.m_sansSerifFont = fontOfFamily(QStringLiteral("UIGFONT_SANS_SERIF"), systemFontPoints);
    fonts.m_verdanaFont = fontOfFamily(QStringLiteral("UIGFONT_VERDANA"), systemFontPoints);
    fonts.m_shellDlgFont = fontOfFamily(QStringLiteral("UIGFONT_SHELLDLG"), systemFontPoints);
    fonts.m_smallFont = fontOfFamily(QStringLiteral("UIGFONT_ARIAL"), systemFontPoints);
    ZEL_UIG_DETAIL(QStringLiteral("Small Font is Arial"));
    // Compared as fonts: QFont may keep another spelling of a family name than the map does.
    const QFont privateFont = fontOfFamily(privateFontKey, privateFontPoints);
    fonts.m_bSmallReplacesStandard = fonts.m_standardFont.family() == privateFont.family();
}

void CUIGraphics::chooseLanguageFonts(HeldFonts &fonts)
{
    if (const LanguageFont *language = languageFontOf(m_sLanguage)) {
        fonts.m_standardFont = fontOfFamily(QString::fromUtf16(language->familyKey), systemFontPoints);
        fonts.m_tooltipFont = fonts.m_standardFont;
        ZEL_UIG_DETAIL(QString::fromUtf16(language->record));
        return;
    }

    fonts.m_tooltipFont = fontOfFamily(QStringLiteral("UIGFONT_TAHOMA"), systemFontPoints);
    const QString privateFont = RetrieveFilePath(privateFontFile);
    if (privateFont.isEmpty()) {
        fonts.m_standardFont = fonts.m_tooltipFont;
        ZEL_UIG_DETAIL(QStringLiteral("Standard Font is Tahoma"));
    } else {
        // One that is no font leaves the family to the platform's font matching.
        m_use.privateFont = privateFont;
        m_use.isPrivateFontRegistered = Platform::registerPrivateFont(privateFont);
        if (!m_use.isPrivateFontRegistered)
            ZEL_UIG_DETAIL(QStringLiteral("CUIGraphics::initializeFont : not registered: %1").arg(privateFont));
        fonts.m_standardFont = fontOfFamily(privateFontKey, privateFontPoints);
        ZEL_UIG_DETAIL(QStringLiteral("Standard Font is Kor Sans Medium"));
    }
    ZEL_UIG_DETAIL(QStringLiteral("Tooltip Font is Tahoma"));
}

QFont CUIGraphics::fontOfFamily(const QString &familyKey, int pointSize)
{
    QFont font(m_fontMap.value(familyKey), pointSize);
    zel::setFontWeight(font, normalWeight);
    font.setItalic(false);
    return font;
}

// Never destroyed: fonts that outlive the application object would touch its font engines on the way out.
CUIGraphics::HeldFonts &CUIGraphics::heldFonts()
{
    static HeldFonts *const fonts = new HeldFonts;
    if (!m_bInitialized && !m_bStarting)
        *fonts = HeldFonts(); // the application's font may be another one by now
    return *fonts;
}

QVector<HeldFont> CUIGraphics::fontsInUse()
{
    const HeldFonts &fonts = heldFonts();
    return {
        {QStringLiteral("standard"), fonts.m_standardFont}, {QStringLiteral("tool tips"), fonts.m_tooltipFont},
        {QStringLiteral("small"), fonts.m_smallFont},       {QStringLiteral("sans serif"), fonts.m_sansSerifFont},
        {QStringLiteral("Verdana"), fonts.m_verdanaFont},   {QStringLiteral("shell dialogs"), fonts.m_shellDlgFont}};
}

const QFont &CUIGraphics::standardFontForSize(int pixelSize)
{
    initializeUIG();
    const HeldFonts &fonts = heldFonts();
    // "As held" counts as small too.
    const bool small = pixelSize < smallestPrivateFontPixels;
    return small && fonts.m_bSmallReplacesStandard ? fonts.m_smallFont : fonts.m_standardFont;
}

QFont UIGGetFont(int pixelSize, int weight, bool italic)
{
    return withAttributes(CUIGraphics::standardFontForSize(pixelSize), pixelSize, weight, italic);
}

QFont UIGGetUnderlinedFont(int pixelSize, int weight, bool italic)
{
    QFont font = UIGGetFont(pixelSize, weight, italic);
    font.setUnderline(true);
    return font;
}

QFont UIGGetTooltipFont(int pixelSize, int weight, bool italic)
{
    CUIGraphics::initializeUIG();
    return withAttributes(CUIGraphics::heldFonts().m_tooltipFont, pixelSize, weight, italic);
}

QFont UIGGetFont(const QString &name)
{
    CUIGraphics::initializeUIG();
    const CUIGraphics::HeldFonts &fonts = CUIGraphics::heldFonts();
    if (name == QLatin1String("UIGFONT_SANS_SERIF"))
        return fonts.m_sansSerifFont;
    if (name == QLatin1String("UIGFONT_VERDANA"))
        return fonts.m_verdanaFont;
    if (name == QLatin1String("UIGFONT_SHELLDLG"))
        return fonts.m_shellDlgFont;
    if (name == QLatin1String("UIGFONT_TAHOMA"))
        return fonts.m_tooltipFont;
    return fonts.m_standardFont;
}
