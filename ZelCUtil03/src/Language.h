#pragma once

#include <string>
#include <string_view>

namespace zelcutil {

/**
 * The registry's language tag for a locale name, written ll_CC.encoding@modifier or with hyphens.
 *
 * "en" for C, POSIX, an empty name and what is no language at all.
 */
std::string languageTag(std::string_view localeName);

/** What a setting means: a tag as it stands; who copied the name of a locale, ja_JP.UTF-8, means the tag for it. */
std::string tagOfSetting(std::string_view given);

} // namespace zelcutil
