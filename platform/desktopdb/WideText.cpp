// platform/desktopdb/WideText.cpp
#include "platform/desktopdb/WideText.h"

namespace desktopdb {

namespace {
constexpr char32_t kReplacement = 0xfffd;

bool isHigh(char16_t c) { return (c & 0xfc00) == 0xd800; }
bool isLow(char16_t c) { return (c & 0xfc00) == 0xdc00; }

// Takes one character off the front; a byte that starts none is taken alone.
char32_t takeCharacter(std::string_view& text)
{
    const auto byteAt = [&](size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0u;
    };
    const unsigned first = byteAt(0);
    const size_t length = first < 0x80 ? 1
        : (first & 0xe0) == 0xc0       ? 2
        : (first & 0xf0) == 0xe0       ? 3
        : (first & 0xf8) == 0xf0       ? 4
                                       : 0;
    static constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
    char32_t c = length <= 1 ? first : first & (0x7fu >> length);
    bool good = length > 0;
    for (size_t i = 1; good && i < length; ++i) {
        good = (byteAt(i) & 0xc0) == 0x80;
        c = c << 6 | (byteAt(i) & 0x3f);
    }
    good = good && c >= kLeast[length] && c <= 0x10ffff && (c & 0xfffff800) != 0xd800;
    text.remove_prefix(good ? length : 1);
    return good ? c : kReplacement;
}

void append(std::string& out, char32_t c)
{
    if (c < 0x80) {
        out += static_cast<char>(c);
        return;
    }
    const int tail = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    static constexpr unsigned kLead[] = {0, 0xc0, 0xe0, 0xf0};
    out += static_cast<char>(kLead[tail] | c >> (6 * tail));
    for (int i = tail - 1; i >= 0; --i)
        out += static_cast<char>(0x80 | ((c >> (6 * i)) & 0x3f));
}
} // namespace

std::u16string utf16Of(std::string_view text)
{
    std::u16string wide;
    wide.reserve(text.size());
    while (!text.empty()) {
        const char32_t c = takeCharacter(text);
        if (c < 0x10000) {
            wide += static_cast<char16_t>(c);
        } else {
            wide += static_cast<char16_t>(0xd800 + ((c - 0x10000) >> 10));
            wide += static_cast<char16_t>(0xdc00 + ((c - 0x10000) & 0x3ff));
        }
    }
    return wide;
}

std::string utf8Of(std::u16string_view text)
{
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (isHigh(text[i]) && i + 1 < text.size() && isLow(text[i + 1])) {
            append(out, 0x10000 + ((text[i] & 0x3ffu) << 10 | (text[i + 1] & 0x3ffu)));
            ++i;
        } else {
            append(out, isHigh(text[i]) || isLow(text[i]) ? kReplacement : text[i]);
        }
    }
    return out;
}

} // namespace desktopdb
