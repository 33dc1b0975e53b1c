#include "qt_globals.h"

namespace zel {

namespace {
constexpr char16_t unknownComponent[] = u"Unknown";

const char16_t *text(const QString &string)
{
    return reinterpret_cast<const char16_t *>(string.utf16());
}
} // namespace

void logMessage(LogLevel level, const QString &message, const char16_t *component, const char16_t *file, int line)
{
    CLogger::LogMessage(level, text(message), component, file, line);
}

void LogScope::write(const LogSite &site, LogLevel level)
{
    CLogger::LogMessage(level, site.function, site.component, site.file, site.line);
}

void logException(const QString &message)
{
    ZEL_LOG(LogException, unknownComponent, message);
}

void logError(const QString &message)
{
    ZEL_LOG(LogError, unknownComponent, message);
}

} // namespace zel
