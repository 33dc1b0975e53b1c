// Logging for every file of this library: the log scope, single records, and the two helpers for caught trouble.
#pragma once

#include <ZelCUtil03/CLogger.h>

#include <QString>

#include <cstddef>

namespace zel {

enum LogLevel
{
    LogEnter = 1,
    LogExit = 2,
    LogException = 4,
    LogError = 5,
    LogDetail = 6
};

// Component names of the records.
inline constexpr char16_t CommonControls[] = u"CommonControls";
inline constexpr char16_t UiGraphics[] = u"uigraphics";

/** A text made at compile time, zero-terminated. */
template <std::size_t N>
struct FixedText
{
    char16_t text[N]{};
};

/** "virtual void CButtonEx::setDefault(bool)" gives "CButtonEx::setDefault". */
template <std::size_t N>
constexpr FixedText<N> functionName(const char (&signature)[N])
{
    std::size_t end = 0;
    while (end < N - 1 && signature[end] != '(')
        ++end;
    std::size_t begin = end;
    while (begin > 0 && signature[begin - 1] != ' ' && signature[begin - 1] != '*' && signature[begin - 1] != '&')
        --begin;
    FixedText<N> name;
    for (std::size_t i = begin; i < end; ++i)
        name.text[i - begin] = static_cast<char16_t>(signature[i]);
    return name;
}

/** "/any/where/ZelCmnCtrl03/ButtonEx/ButtonEx.cpp" gives ".\ButtonEx\ButtonEx": the path that log records carry. */
template <std::size_t N>
constexpr FixedText<N> sourceName(const char (&path)[N])
{
    constexpr char root[] = "ZelCmnCtrl03";
    constexpr std::size_t rootLength = sizeof(root) - 1;
    std::size_t begin = 0;
    for (std::size_t i = 0; i + rootLength < N; ++i) {
        std::size_t same = 0;
        while (same < rootLength && path[i + same] == root[same])
            ++same;
        const char next = path[i + rootLength];
        if (same == rootLength && (next == '/' || next == '\\'))
            begin = i + rootLength;
    }
    FixedText<N> name;
    std::size_t length = 0;
    name.text[length++] = u'.';
    for (std::size_t i = begin; i < N - 1 && path[i] != '.'; ++i)
        name.text[length++] = path[i] == '/' ? u'\\' : static_cast<char16_t>(path[i]);
    return name;
}

/** Where a record comes from. Lives as long as the program. */
struct LogSite
{
    const char16_t *function;
    const char16_t *component;
    const char16_t *file;
    int line;
};

void logMessage(LogLevel level, const QString &message, const char16_t *component, const char16_t *file, int line);

/** The pair of records around one operation. Switched off it costs the test in its constructor. */
class LogScope
{
public:
    explicit LogScope(const LogSite &site) : m_pSite(CLogger::isLevelWanted(LogEnter) ? &site : nullptr)
    {
        if (Q_UNLIKELY(m_pSite != nullptr))
            write(LogEnter);
    }
    ~LogScope()
    {
        if (Q_UNLIKELY(m_pSite != nullptr))
            write(LogExit);
    }
    Q_DISABLE_COPY(LogScope)

private:
    void write(LogLevel level) const;

    const LogSite *m_pSite;
};

/** Records an exception that was caught; never throws itself. */
void logException(const QString &text);

/** Records an error that was caught and passed over. */
void logError(const QString &text);

} // namespace zel

/** First line of an operation: brackets it with an entry and an exit record of the component. */
#define ZEL_LOG_SCOPE_OF(component)                                                                                    \
    static constexpr auto zelFunctionName = zel::functionName(Q_FUNC_INFO);                                            \
    static constexpr auto zelSourceName = zel::sourceName(__FILE__);                                                   \
    static constexpr zel::LogSite zelLogSite{zelFunctionName.text, component, zelSourceName.text, __LINE__};           \
    const zel::LogScope zelLogScope(zelLogSite)

#define ZEL_LOG_SCOPE ZEL_LOG_SCOPE_OF(zel::CommonControls)

/** One record; the message is built only when its level is wanted. */
#define ZEL_LOG(level, component, message)                                                                             \
    do {                                                                                                               \
        if (Q_UNLIKELY(CLogger::isLevelWanted(level))) {                                                               \
            static constexpr auto zelRecordSource = zel::sourceName(__FILE__);                                         \
            zel::logMessage(level, message, component, zelRecordSource.text, __LINE__);                                \
        }                                                                                                              \
    } while (false)

#define ZEL_UIG_DETAIL(message) ZEL_LOG(zel::LogDetail, zel::UiGraphics, message)
