#pragma once

#include <string>
#include <string_view>

namespace zelcutil {

/** UTF-16 as UTF-8; each lone surrogate becomes U+FFFD. */
std::string toUtf8(std::u16string_view text);

/** UTF-8 as UTF-16; each ill-formed sequence becomes one U+FFFD, divided as the Unicode standard recommends. */
std::u16string toUtf16(std::string_view text);

} // namespace zelcutil
