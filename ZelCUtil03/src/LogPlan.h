#pragma once

#include <spdlog/common.h>

#include <filesystem>
#include <string>

namespace zelcutil {

class Settings;

/** What the log is to do, decided from environment and settings before anything is opened. */
struct LogPlan
{
    spdlog::level::level_enum consoleLevel = spdlog::level::warn;
    spdlog::level::level_enum fileLevel = spdlog::level::off;
    std::filesystem::path file; // empty although fileLevel asks for one: there is no home to put it in
    std::string warning;        // about a level name that does not exist; usually empty
};

/** Quiet when neither level nor file is configured: warnings and errors on standard error, no file. */
LogPlan planLog(const Settings &settings);

} // namespace zelcutil
