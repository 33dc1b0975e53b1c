#include "Language.h"

#include "Text.h"

#include <algorithm>

namespace zelcutil {
namespace {

bool isAsciiLetter(char character)
{
    return character >= 'a' && character <= 'z';
}

// The script decides before the country: zh_Hans_HK is read by someone who wants simplified characters.
std::string chineseTag(std::string_view rest)
{
    if (startsWith(rest, "hans"))
        return "zh-chs";
    const bool traditional = startsWith(rest, "hant") || rest == "tw" || rest == "hk" || rest == "mo";
    return traditional ? "zh-cht" : "zh-chs";
}

} // namespace

std::string languageTag(std::string_view localeName)
{
    std::string name = asciiLower(localeName.substr(0, localeName.find_first_of(".@")));
    std::replace(name.begin(), name.end(), '-', '_');
    const std::size_t separator = name.find('_');
    const std::string language = name.substr(0, separator);
    const std::string rest = separator == std::string::npos ? std::string() : name.substr(separator + 1);

    // A locale may also be a path (glibc takes one); such a name tells no language.
    const bool letters = std::all_of(language.begin(), language.end(), isAsciiLetter);
    if (language.empty() || !letters || language == "c" || language == "posix")
        return "en";
    if (language == "zh")
        return chineseTag(rest);
    if (language == "iw")
        return "he"; // the code that ISO 639 withdrew in 1989 and old locales still carry
    return language == "pt" && rest == "br" ? "pt-br" : language;
}

std::string tagOfSetting(std::string_view given)
{
    const bool isLocale = given.find_first_of("_.@") != std::string_view::npos;
    return isLocale ? languageTag(given) : std::string(given);
}

} // namespace zelcutil
