#include "LogPlan.h"

#include "Platform.h"
#include "Settings.h"
#include "Text.h"

#include <optional>
#include <system_error>
#include <utility>

namespace zelcutil {
namespace {

struct Choice
{
    std::string value;
    std::string origin;
};

Choice choose(const char *variable, const Settings &settings, const char *key)
{
    const std::string fromEnvironment = platform::environmentValue(variable);
    if (!fromEnvironment.empty())
        return {fromEnvironment, variable};
    return {settings.value("Log", key), std::string(key) + " in section [Log]"};
}

// Not spdlog's from_str: it turns every unknown name into "off", and a typing mistake must not silence the log.
std::optional<spdlog::level::level_enum> levelNamed(const std::string &name)
{
    constexpr std::pair<const char *, spdlog::level::level_enum> levels[] = {
        {"off", spdlog::level::off},   {"error", spdlog::level::err},   {"warning", spdlog::level::warn},
        {"info", spdlog::level::info}, {"debug", spdlog::level::debug}, {"trace", spdlog::level::trace}};
    for (const auto &[levelName, level] : levels)
        if (asciiLower(name) == levelName)
            return level;
    return std::nullopt;
}

std::filesystem::path logFile(const std::string &configured)
{
    if (configured.empty()) {
        const std::filesystem::path directory = platform::userStateDirectory();
        return directory.empty() ? directory : directory / "zelcutil03" / "zelcutil03.log";
    }
    // Absolute at once: the file is opened again at each rotation, when the working folder may be another one.
    std::error_code error;
    return std::filesystem::absolute(std::filesystem::u8path(platform::expandHome(configured)), error);
}

} // namespace

LogPlan planLog(const Settings &settings)
{
    const Choice levelName = choose("ZEL_LOG", settings, "Level");
    const Choice file = choose("ZEL_LOG_FILE", settings, "File");
    const std::optional<spdlog::level::level_enum> level = levelNamed(levelName.value);
    LogPlan plan;
    if (!level && !levelName.value.empty()) {
        plan.warning = "'" + levelName.value + "' is no log level (" + levelName.origin +
                       "); use off, error, warning, info, debug or trace";
    }
    if (level == spdlog::level::off) {
        plan.consoleLevel = spdlog::level::off;
        return plan;
    }
    if (!level && file.value.empty())
        return plan;
    plan.fileLevel = level.value_or(spdlog::level::debug); // who names a file wants to read more than warnings in it
    plan.file = logFile(file.value);
    return plan;
}

} // namespace zelcutil
