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
    // The parameters are in the last pair of brackets; what stands in other pairs belongs to types.
    std::size_t end = N - 1;
    while (end > 0 && signature[end] != ')')
        --end;
    for (int depth = 1; end > 0 && depth > 0;) {
        --end;
        depth += signature[end] == ')' ? 1 : signature[end] == '(' ? -1 : 0;
    }
    std::size_t begin = end;
    for (int depth = 0; begin > 0; --begin) {
        const char before = signature[begin - 1];
        depth += before == ')' || before == '>' ? 1 : before == '(' || before == '<' ? -1 : 0;
        if (depth == 0 && (before == ' ' || before == '*' || before == '&'))
            break;
    }
    FixedText<N> name;
    for (std::size_t i = begin; i < end; ++i)
        name.text[i - begin] = static_cast<char16_t>(signature[i]);
    return name;
}

/** "/any/where/ZelCmnCtrl03/ButtonEx/ButtonEx.cpp" gives ".\ButtonEx\ButtonEx": the path that log records carry. */
template <std::size_t N>
constexpr FixedText<N + 1> sourceName(const char (&path)[N])
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
    std::size_t end = N - 1;
    for (std::size_t i = begin; i < N - 1; ++i)
        if (path[i] == '.')
            end = i;
    FixedText<N + 1> name;
    name.text[0] = u'.';
    for (std::size_t i = begin; i < end; ++i)
        name.text[i - begin + 1] = path[i] == '/' ? u'\\' : static_cast<char16_t>(path[i]);
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

/** The pair of records around one operation. Switched off it costs the test of one flag. */
class LogScope
{
public:
    explicit LogScope(const LogSite &site) : m_pSite(CLogger::isLevelWanted(LogEnter) ? &site : nullptr)
    {
        if (Q_UNLIKELY(m_pSite != nullptr))
            write(*m_pSite, LogEnter);
    }
    ~LogScope()
    {
        if (Q_UNLIKELY(m_pSite != nullptr))
            write(*m_pSite, LogExit);
    }
    Q_DISABLE_COPY(LogScope)

    /** No exit record: another one has told how the operation ended. */
    void leaveOutExit() { m_pSite = nullptr; }

private:
    // Static, so that the scope's address never leaves the function and the scope can live in a register.
    static void write(const LogSite &site, LogLevel level);

    const LogSite *m_pSite;
};

/** Records an exception that was caught; never throws itself. */
void logException(const QString &text);

/** Records an error that was caught and passed over. */
void logError(const QString &text);

} // namespace zel

/** First line of an operation: brackets it with an entry and an exit record of the message. */
#define ZEL_LOG_SCOPE_SAYING(message, component)                                                                       \
    static constexpr auto zelSourceName = zel::sourceName(__FILE__);                                                   \
    static constexpr zel::LogSite zelLogSite{message, component, zelSourceName.text, __LINE__};                        \
    zel::LogScope zelLogScope(zelLogSite)

/** The same with the name of the function as the message. */
#define ZEL_LOG_SCOPE_OF(component)                                                                                    \
    static constexpr auto zelFunctionName = zel::functionName(Q_FUNC_INFO);                                            \
    ZEL_LOG_SCOPE_SAYING(zelFunctionName.text, component)

#define ZEL_LOG_SCOPE ZEL_LOG_SCOPE_OF(zel::CommonControls)

/** Where an operation refuses: one detail record in place of the exit record of its scope. */
#define ZEL_LOG_REFUSAL(message)                                                                                       \
    do {                                                                                                               \
        ZEL_LOG(zel::LogDetail, zel::CommonControls, message);                                                         \
        zelLogScope.leaveOutExit();                                                                                    \
    } while (false)

/** One record; the message is built only when its level is wanted. */
#define ZEL_LOG(level, component, message)                                                                             \
    do {                                                                                                               \
        if (Q_UNLIKELY(CLogger::isLevelWanted(level))) {                                                               \
            static constexpr auto zelRecordSource = zel::sourceName(__FILE__);                                         \
            zel::logMessage(level, message, component, zelRecordSource.text, __LINE__);                                \
        }                                                                                                              \
    } while (false)

#define ZEL_UIG_DETAIL(message) ZEL_LOG(zel::LogDetail, zel::UiGraphics, message)
