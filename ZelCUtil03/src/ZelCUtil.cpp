#include "ZelCUtil03/ZelCUtil.h"

#include "Language.h"
#include "Platform.h"
#include "Settings.h"
#include "Text.h"
#include "Utf.h"
#include "Utility.h"

#include <filesystem>
#include <map>
#include <string>
#include <system_error>

namespace {

using zelcutil::Settings;
namespace platform = zelcutil::platform;

std::string decideLanguage(const Settings &settings)
{
    const std::string fromEnvironment = platform::environmentValue("ZEL_LANGUAGE");
    if (!fromEnvironment.empty())
        return zelcutil::tagOfSetting(fromEnvironment);
    const std::string configured = settings.value("Installation", "Language");
    return configured.empty() ? zelcutil::languageTag(platform::messageLocale()) : zelcutil::tagOfSetting(configured);
}

std::string installedArtwork()
{
    const std::filesystem::path library = platform::libraryDirectory();
    if (library.empty())
        return std::string();
    // Links count: where /lib is one to /usr/lib, the loader may have come that way, and there is no /share.
    std::error_code error;
    const std::filesystem::path artwork = std::filesystem::canonical(library / ZELCUTIL03_ARTWORK_FROM_LIBRARY, error);
    return std::filesystem::is_directory(artwork, error) ? artwork.u8string() : std::string();
}

std::string decideGraphicsDirectory(const Settings &settings)
{
    const std::string fromEnvironment = platform::environmentValue("ZEL_GRAPHICS_DIR");
    if (!fromEnvironment.empty())
        return platform::expandHome(fromEnvironment);
    const std::string *configured = settings.find("Installation", "CommonGraphicsDir");
    return configured != nullptr ? platform::expandHome(*configured) : installedArtwork();
}

using Paths = std::map<std::string, std::u16string>;

Paths collectPaths(const Settings &settings)
{
    Paths paths;
    for (const auto &[key, value] : settings.section("Installation"))
        paths[key] = zelcutil::toUtf16(platform::expandHome(value));
    paths["commongraphicsdir"] = zelcutil::toUtf16(decideGraphicsDirectory(settings));
    return paths;
}

// The statics below are leaked, reachable, on purpose: callers keep the texts and may use them during exit.

const char16_t *language()
{
    static const auto *const decided =
        new std::u16string(zelcutil::toUtf16(decideLanguage(zelcutil::Utility::instance().settings())));
    return decided->c_str();
}

const char16_t *path(const char16_t *key)
{
    static const auto *const paths = new Paths(collectPaths(zelcutil::Utility::instance().settings()));
    const auto found = key != nullptr ? paths->find(zelcutil::asciiLower(zelcutil::toUtf8(key))) : paths->end();
    return found != paths->end() ? found->second.c_str() : u"";
}

} // namespace

const char16_t *GetLanguage() noexcept
{
    const platform::ErrorCodeKeeper keeper;
    try {
        return language();
    } catch (...) {
        return u"en"; // out of memory, at most
    }
}

void RetrievePath(const char16_t *key, const char16_t **value, int /*reserved*/) noexcept
{
    if (value == nullptr)
        return;
    const platform::ErrorCodeKeeper keeper;
    try {
        *value = path(key);
    } catch (...) {
        *value = u"";
    }
}
