#include "Utility.h"

#include "Platform.h"

#include <string>
#include <vector>

namespace zelcutil {
namespace {

std::vector<std::filesystem::path> settingsFiles()
{
    std::vector<std::filesystem::path> directories = platform::systemSettingsDirectories();
    directories.insert(directories.begin(), platform::userSettingsDirectory());
    std::vector<std::filesystem::path> files;
    for (const std::filesystem::path &directory : directories)
        if (!directory.empty())
            files.push_back(directory / "zelcutil03.ini");
    return files;
}

} // namespace

Utility &Utility::instance()
{
    // Leaked on purpose: destructors of other static objects may still log after ours would have run. The pointer
    // keeps the object reachable, so leak checkers do not report it.
    static Utility *const utility = new Utility;
    return *utility;
}

Utility::Utility() : m_settings(settingsFiles()), m_plan(planLog(m_settings)), m_log(m_plan)
{
    if (!m_plan.warning.empty())
        m_log.warn(m_plan.warning);
    for (const std::string &warning : m_settings.warnings())
        m_log.warn(warning);
}

} // namespace zelcutil
