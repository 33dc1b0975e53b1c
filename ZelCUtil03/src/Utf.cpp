#include "Utf.h"

namespace zelcutil {
namespace {

constexpr char32_t replacement = 0xFFFD;

struct Decoded
{
    char32_t point;
    std::size_t length; // code units taken from the source, at least 1
};

bool isHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

Decoded decodeUtf16(std::u16string_view text)
{
    const char32_t first = text[0];
    if (isLowSurrogate(first))
        return {replacement, 1};
    if (!isHighSurrogate(first))
        return {first, 1};
    if (text.size() < 2 || !isLowSurrogate(text[1]))
        return {replacement, 1};
    return {0x10000 + ((first - 0xD800) << 10) + (text[1] - 0xDC00), 2};
}

void appendUtf8(std::string &out, char32_t point)
{
    const auto tail = [&out, point](unsigned shift) {
        out += static_cast<char>(0x80 | ((point >> shift) & 0x3F));
    };
    if (point < 0x80) {
        out += static_cast<char>(point);
        return;
    }
    if (point < 0x800) {
        out += static_cast<char>(0xC0 | (point >> 6));
        tail(0);
        return;
    }
    if (point < 0x10000) {
        out += static_cast<char>(0xE0 | (point >> 12));
        tail(6);
        tail(0);
        return;
    }
    out += static_cast<char>(0xF0 | (point >> 18));
    tail(12);
    tail(6);
    tail(0);
}

struct Lead
{
    std::size_t length; // 0: no sequence starts with this byte
    char32_t bits;
    unsigned char secondLow;
    unsigned char secondHigh;
};

// The narrowed second bytes keep out overlong forms (E0, F0), surrogates (ED) and all beyond U+10FFFF (F4).
Lead leadOf(unsigned char byte)
{
    if (byte < 0x80)
        return {1, byte, 0, 0};
    if (byte < 0xC2 || byte > 0xF4)
        return {0, 0, 0, 0};
    if (byte < 0xE0)
        return {2, byte & 0x1FU, 0x80, 0xBF};
    const unsigned char low = byte == 0xE0 ? 0xA0 : byte == 0xF0 ? 0x90 : 0x80;
    const unsigned char high = byte == 0xED ? 0x9F : byte == 0xF4 ? 0x8F : 0xBF;
    if (byte < 0xF0)
        return {3, byte & 0x0FU, low, high};
    return {4, byte & 0x07U, low, high};
}

Decoded decodeUtf8(std::string_view text)
{
    const Lead lead = leadOf(static_cast<unsigned char>(text[0]));
    if (lead.length == 0)
        return {replacement, 1};
    char32_t point = lead.bits;
    for (std::size_t at = 1; at < lead.length; ++at) {
        const auto byte = at < text.size() ? static_cast<unsigned char>(text[at]) : 0U;
        const unsigned low = at == 1 ? lead.secondLow : 0x80U;
        const unsigned high = at == 1 ? lead.secondHigh : 0xBFU;
        if (byte < low || byte > high)
            return {replacement, at};
        point = (point << 6) | (byte & 0x3FU);
    }
    return {point, lead.length};
}

} // namespace

std::string toUtf8(std::u16string_view text)
{
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const Decoded decoded = decodeUtf16(text);
        appendUtf8(out, decoded.point);
        text.remove_prefix(decoded.length);
    }
    return out;
}

std::u16string toUtf16(std::string_view text)
{
    std::u16string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const Decoded decoded = decodeUtf8(text);
        text.remove_prefix(decoded.length);
        if (decoded.point < 0x10000) {
            out += static_cast<char16_t>(decoded.point);
            continue;
        }
        out += static_cast<char16_t>(0xD800 + ((decoded.point - 0x10000) >> 10));
        out += static_cast<char16_t>(0xDC00 + ((decoded.point - 0x10000) & 0x3FF));
    }
    return out;
}

} // namespace zelcutil
