#include "UiGraphics.h"

#include "UiGraphicsColors.h"
#include "UiGraphicsXml.h"
#include "include/qt_globals.h"

#include <QFile>
#include <QLibrary>
#include <QScopedValueRollback>

bool CUIGraphics::m_bInitialized = false;
bool CUIGraphics::m_bStarting = false;
CUIGraphics::GetLanguageFunction CUIGraphics::m_pGetLanguage = nullptr;
CUIGraphics::RetrievePathFunction CUIGraphics::m_pRetrievePath = nullptr;
QString CUIGraphics::m_sLanguage;
QString CUIGraphics::m_sGraphicsDir;
QMap<QString, quint32> CUIGraphics::m_colorMap;
QMap<QString, QString> CUIGraphics::m_fontMap;

bool CUIGraphics::initializeUIG()
{
    if (m_bInitialized)
        return true;
    if (m_bStarting)
        return false;
    const QScopedValueRollback<bool> starting(m_bStarting, true);
    ZEL_LOG_SCOPE_OF(zel::UiGraphics);
    if (!loadUtilityLibrary())
        return false;
    m_sLanguage.clear();
    m_sGraphicsDir.clear();
    GetCULValues(QStringLiteral("CommonGraphicsDir"));
    ZEL_UIG_DETAIL(QStringLiteral("CUIGraphics::initializeUIG :: After GetCULValues"));
    initializeColorMap();
    ZEL_UIG_DETAIL(QStringLiteral("CUIGraphics::initializeUIG :: After initializeColorMap"));
    initializeFontMap();
    ZEL_UIG_DETAIL(QStringLiteral("CUIGraphics::initializeUIG :: After initializeFontMap"));
    readXmlFiles();
    // After the files, so that the family names they give take effect.
    initializeFont();
    ZEL_UIG_DETAIL(QStringLiteral("CUIGraphics::initializeUIG :: After initializeFont"));
    m_bInitialized = true;
    return true;
}

bool CUIGraphics::loadUtilityLibrary()
{
    m_pGetLanguage = nullptr;
    m_pRetrievePath = nullptr;
    QLibrary library(QStringLiteral("ZelCUtil03"));
    // The entry points are used for the life of the process, the QLibrary object ends here.
    library.setLoadHints(QLibrary::PreventUnloadHint);
    if (!library.load()) {
        ZEL_UIG_DETAIL(QStringLiteral("library load of zelcutil failed"));
        return false;
    }
    m_pRetrievePath = reinterpret_cast<RetrievePathFunction>(library.resolve("RetrievePath"));
    m_pGetLanguage = reinterpret_cast<GetLanguageFunction>(library.resolve("GetLanguage"));
    return true;
}

// A utility library that lacks an entry point counts as one that has nothing to say there: the look is the default one.
void CUIGraphics::GetCULValues(const QString &key)
{
    ZEL_LOG_SCOPE_OF(zel::UiGraphics);
    if (m_pGetLanguage == nullptr)
        ZEL_LOG(zel::LogError, zel::UiGraphics,
                QStringLiteral("CUIGraphics::GetCULValues : no GetLanguage in zelcutil"));
    else
        m_sLanguage = QString::fromUtf16(m_pGetLanguage());
    ZEL_UIG_DETAIL(m_sLanguage);

    if (m_pRetrievePath == nullptr) {
        ZEL_LOG(zel::LogError, zel::UiGraphics,
                QStringLiteral("CUIGraphics::GetCULValues : no RetrievePath in zelcutil"));
        return;
    }
    const char16_t *value = nullptr;
    m_pRetrievePath(reinterpret_cast<const char16_t *>(key.utf16()), &value, 0);
    if (value == nullptr || *value == u'\0')
        return;
    ZEL_UIG_DETAIL(QStringLiteral("CUIGraphics::RetrieveFilePath : BaseValue found"));
    m_sGraphicsDir = QString::fromUtf16(value);
    ZEL_UIG_DETAIL(QStringLiteral("CUIGraphics::GetCULValues : graphics directory: ") + m_sGraphicsDir);
}

void CUIGraphics::initializeColorMap()
{
    ZEL_LOG_SCOPE_OF(zel::UiGraphics);
    for (const ColorDefault &color : colorDefaults)
        m_colorMap.insert(QString::fromUtf16(color.key), color.argb);
}

void CUIGraphics::readXmlFiles()
{
    if (m_sGraphicsDir.isEmpty())
        return;
    // The language's file comes second, so that its values win.
    const QString common = m_sGraphicsDir + QLatin1Char('/');
    for (const QString &path :
         {common + lookOverridesFile, common + m_sLanguage + QLatin1Char('/') + lookOverridesFile})
        if (QFile::exists(path))
            ReadUIGraphicsXml(path);
}

void CUIGraphics::ReadUIGraphicsXml(const QString &path)
{
    ZEL_LOG_SCOPE_OF(zel::UiGraphics);
    ZEL_UIG_DETAIL(QStringLiteral("CUIGraphics::ReadUIGraphicsXml : ") + path);
    const LookOverrides overrides = readLookOverrides(path);
    for (const LookOverride &color : overrides.colors) {
        const auto held = m_colorMap.find(color.name);
        if (held != m_colorMap.end())
            *held = colorValue(color.text);
    }
    for (const LookOverride &font : overrides.fonts) {
        const auto held = m_fontMap.find(font.name);
        if (held != m_fontMap.end())
            *held = font.text;
    }
}

QColor UIGGetColor(const QString &name)
{
    CUIGraphics::initializeUIG();
    return QColor::fromRgb(CUIGraphics::m_colorMap.value(name, 0));
}
