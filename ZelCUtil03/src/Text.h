#pragma once

#include <string>
#include <string_view>

namespace zelcutil {

inline bool startsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

/** Lower case of the ASCII letters alone. std::tolower follows the locale and would turn I into a Turkish dotless i. */
inline std::string asciiLower(std::string_view text)
{
    std::string lower(text);
    for (char &character : lower)
        if (character >= 'A' && character <= 'Z')
            character = static_cast<char>(character - 'A' + 'a');
    return lower;
}

/** Without the blanks and line ends around it. */
inline std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n\v\f";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

} // namespace zelcutil
