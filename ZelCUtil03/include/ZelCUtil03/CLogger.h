#pragma once

#include "ZelCUtilExport.h"

#include <atomic>
#include <cstdint>

/**
 * The log that the libraries of the house share in one process.
 *
 * Out of the box it is quiet: errors and warnings go to standard error and no file is made. ZEL_LOG, ZEL_LOG_FILE or
 * section [Log] of zelcutil03.ini turn a rotating file on. Both functions may be called from any thread and at any
 * time, in static constructors and during exit included.
 *
 * Levels: 1 entry of a function, 2 exit, 4 exception caught, 5 error caught and passed over, 6 detail. Every other
 * number counts as 6.
 */
class ZELCUTIL03_EXPORT CLogger
{
public:
    /**
     * Writes one record, as one line: control characters of the texts become spaces.
     *
     * Nothing that the caller can see changes, errno included; a record that cannot be written is dropped.
     *
     * @param level     See the class.
     * @param message   Zero-terminated, like the two below. A null text is written as "-". Copied.
     * @param component Library or module that speaks.
     * @param file      Source file, as the caller likes to name it.
     * @param line      Line in @p file, counted from 1.
     */
    static void LogMessage(int level, const char16_t *message, const char16_t *component, const char16_t *file,
                           int line) noexcept;

    /**
     * Whether a record of @p level would be written. Ask before composing a costly message.
     *
     * True for every level until the log has configured itself, which the first record does.
     */
    static bool isLevelWanted(int level) noexcept
    {
        const unsigned bit = static_cast<unsigned>(level) < 32U ? static_cast<unsigned>(level) : 6U;
        return ((s_wantedLevels.load(std::memory_order_relaxed) >> bit) & 1U) != 0U;
    }

private:
    // One bit per level. Constant-initialised, hence valid before any constructor runs; relaxed, because a reader
    // that sees the old mask only takes the slow way into LogMessage, which synchronises by itself.
    static std::atomic<std::uint32_t> s_wantedLevels;
};
