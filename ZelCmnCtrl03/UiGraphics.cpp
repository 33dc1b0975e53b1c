#include "UiGraphics.h"

#include "Platform/Platform.h"
#include "UiGraphicsColors.h"
#include "UiGraphicsXml.h"
#include "include/qt_globals.h"

#include <QFile>
#include <QLibrary>
#include <QScopedValueRollback>

#include <utility>

bool CUIGraphics::m_bInitialized = false;
bool CUIGraphics::m_bStarting = false;
CUIGraphics::GetLanguageFunction CUIGraphics::m_pGetLanguage = nullptr;
CUIGraphics::RetrievePathFunction CUIGraphics::m_pRetrievePath = nullptr;
QString CUIGraphics::m_sLanguage;
QString CUIGraphics::m_sGraphicsDir;
QMap<QString, quint32> CUIGraphics::m_colorMap;
QMap<QString, QString> CUIGraphics::m_fontMap;
QHash<QString, bool> CUIGraphics::m_mayLoad;
LookUse CUIGraphics::m_use;

namespace {

QString missingEntryPoints(bool hasGetLanguage, bool hasRetrievePath)
{
    QStringList missing;
    if (!hasGetLanguage)
        missing.append(QStringLiteral("it has no GetLanguage"));
    if (!hasRetrievePath)
        missing.append(QStringLiteral("it has no RetrievePath"));
    return missing.join(QStringLiteral(", "));
}

} // namespace

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
        m_use.utilityProblem = library.errorString();
        return false;
    }
    m_use.utilityProblem.clear();
    m_pRetrievePath = reinterpret_cast<RetrievePathFunction>(library.resolve("RetrievePath"));
    m_pGetLanguage = reinterpret_cast<GetLanguageFunction>(library.resolve("GetLanguage"));
    const auto *entryPoint = m_pGetLanguage != nullptr ? reinterpret_cast<void *>(m_pGetLanguage)
                                                       : reinterpret_cast<void *>(m_pRetrievePath);
    m_use.utilityLibrary = entryPoint != nullptr ? Platform::fileOfAddress(entryPoint) : QString();
    if (m_use.utilityLibrary.isEmpty())
        m_use.utilityLibrary = library.fileName();
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
    m_use.xmlSought =
        QStringList{common + lookOverridesFile, common + m_sLanguage + QLatin1Char('/') + lookOverridesFile};
    for (const QString &path : std::as_const(m_use.xmlSought))
        if (QFile::exists(path))
            ReadUIGraphicsXml(path);
}

void CUIGraphics::ReadUIGraphicsXml(const QString &path)
{
    ZEL_LOG_SCOPE_OF(zel::UiGraphics);
    ZEL_UIG_DETAIL(QStringLiteral("CUIGraphics::ReadUIGraphicsXml : ") + path);
    const LookOverrides overrides = readLookOverrides(path);
    m_use.xmlRead.append(ReadXml{path, 0, 0, {}, overrides.error});
    m_use.xmlRead.last().colors = apply(
        overrides.colors, m_colorMap, [](const QString &text) { return colorValue(text); });
    m_use.xmlRead.last().families = apply(overrides.fonts, m_fontMap, [](const QString &text) { return text; });
}

// Gives the number of overrides that found their key.
template <typename Held, typename Convert>
int CUIGraphics::apply(const QVector<LookOverride> &overrides, QMap<QString, Held> &held, Convert convert)
{
    int applied = 0;
    for (const LookOverride &override : overrides) {
        const auto entry = held.find(override.name);
        if (entry == held.end()) {
            m_use.xmlRead.last().notAKey.append(override.name);
            continue;
        }
        *entry = convert(override.text);
        ++applied;
    }
    return applied;
}

LookUse CUIGraphics::use()
{
    LookUse use = m_use;
    use.isStarted = m_bInitialized;
    use.language = m_sLanguage;
    use.graphicsDir = m_sGraphicsDir;
    if (m_bInitialized)
        use.utilityProblem = missingEntryPoints(m_pGetLanguage != nullptr, m_pRetrievePath != nullptr);
    if (m_bInitialized)
        use.fonts = fontsInUse();
    return use;
}

QColor UIGGetColor(const QString &name)
{
    CUIGraphics::initializeUIG();
    return QColor::fromRgb(CUIGraphics::m_colorMap.value(name, 0));
}
