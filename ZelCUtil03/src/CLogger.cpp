#include "ZelCUtil03/CLogger.h"

#include "Platform.h"
#include "Utf.h"
#include "Utility.h"

#include <string>

namespace {

std::u16string textOf(const char16_t *text)
{
    return text != nullptr ? text : u"-";
}

std::u16string number(int value)
{
    return zelcutil::toUtf16(std::to_string(value));
}

// The level by its number: the log's own level names do not tell an entry from an exit.
std::u16string recordOf(int level, const char16_t *message, const char16_t *component, const char16_t *file, int line)
{
    return number(level) + u' ' + textOf(component) + u' ' + textOf(file) + u'(' + number(line) + u"): " +
           textOf(message);
}

} // namespace

std::atomic<std::uint32_t> CLogger::s_wantedLevels{0xFFFFFFFFU};

void CLogger::LogMessage(int level, const char16_t *message, const char16_t *component, const char16_t *file,
                         int line) noexcept
{
    if (!isLevelWanted(level))
        return;
    const zelcutil::platform::ErrorCodeKeeper keeper;
    const zelcutil::platform::WriteSignalBlocker blocker;
    try {
        zelcutil::Log &log = zelcutil::Utility::instance().log();
        log.write(zelcutil::Log::levelOf(level), recordOf(level, message, component, file, line));
        // Each time, not once: the log may have given up its file while writing.
        s_wantedLevels.store(log.wantedLevels(), std::memory_order_relaxed);
    } catch (...) {
        // Out of memory, at most. The record is lost; the caller must not be.
    }
}
