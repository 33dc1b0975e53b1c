#pragma once

#include "LogPlan.h"

#include <spdlog/logger.h>

#include <cstdint>
#include <mutex>
#include <string>

namespace zelcutil {

/**
 * Writes records to standard error and, when planned, to a rotating file. For use by all threads.
 *
 * Its logger is a private object and not in spdlog's registry, which belongs to the application.
 */
class Log
{
public:
    /** A file that cannot be written leaves one warning; the log then goes on without it. */
    explicit Log(const LogPlan &plan);
    Log(const Log &) = delete;
    Log &operator=(const Log &) = delete;

    /** One record; control characters of @p text become spaces so that it stays one line. */
    void write(spdlog::level::level_enum level, std::u16string text);

    /** A record of this library itself. */
    void warn(const std::string &text);

    /** One bit per level of the library's callers, see CLogger. Shrinks when the file has to be given up. */
    std::uint32_t wantedLevels() const;

    /** Level of spdlog for a level of the library's callers. */
    static spdlog::level::level_enum levelOf(int callersLevel);

private:
    void openFile(const LogPlan &plan);
    void giveUpFile(const std::string &failure);

    std::mutex m_writing;
    spdlog::logger m_logger;
    spdlog::sink_ptr m_fileSink; // null without a file
    std::string m_fileName;
};

} // namespace zelcutil
