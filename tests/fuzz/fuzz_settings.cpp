// zelcutil03.ini: any bytes as the user's file and, behind a form feed, as the system's.
#include "Language.h"
#include "LogPlan.h"
#include "Platform.h"
#include "Settings.h"
#include "Utf.h"
#include "fuzz/Require.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

using zelcutil::Settings;

void checkText(const std::string &text)
{
    const std::u16string wide = zelcutil::toUtf16(text);
    const std::string mended = zelcutil::toUtf8(wide);
    FUZZ_REQUIRE(zelcutil::toUtf16(mended) == wide);
    FUZZ_REQUIRE(!zelcutil::languageTag(text).empty());
    zelcutil::platform::expandHome(text);
}

void checkSection(const Settings &settings, const char *section)
{
    for (const auto &[key, value] : settings.section(section)) {
        FUZZ_REQUIRE(settings.value(section, key) == value);
        checkText(value);
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    for (const char *variable : {"ZEL_LOG", "ZEL_LOG_FILE"})
        unsetenv(variable); // they would win over the file
    // Never opened. Without any home there would be a level and no file.
    setenv("XDG_STATE_HOME", "/state", 1);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char *>(data), size);
    const std::size_t end = text.find('\f');
    Settings settings;
    settings.addText(text.substr(0, end), "user.ini");
    if (end != std::string::npos)
        settings.addText(text.substr(end + 1), "system.ini");
    FUZZ_REQUIRE(settings.warnings().size() <= 2);
    checkSection(settings, "Installation");
    checkSection(settings, "Log");
    const zelcutil::LogPlan plan = zelcutil::planLog(settings);
    FUZZ_REQUIRE((plan.fileLevel == spdlog::level::off) == plan.file.empty());
    return 0;
}
