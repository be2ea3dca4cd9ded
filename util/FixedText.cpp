// util/FixedText.cpp
#include "util/FixedText.h"

namespace {

// The well-formed byte sequences of RFC 3629: the second byte's range depends on the first, which
// keeps out overlong forms, surrogates and what lies beyond U+10FFFF.
struct Utf8Form {
    unsigned char firstLow, firstHigh, secondLow, secondHigh;
    std::size_t length;
};
constexpr Utf8Form kForms[] = {
    {0xC2, 0xDF, 0x80, 0xBF, 2},
    {0xE0, 0xE0, 0xA0, 0xBF, 3},
    {0xE1, 0xEC, 0x80, 0xBF, 3},
    {0xED, 0xED, 0x80, 0x9F, 3},
    {0xEE, 0xEF, 0x80, 0xBF, 3},
    {0xF0, 0xF0, 0x90, 0xBF, 4},
    {0xF1, 0xF3, 0x80, 0xBF, 4},
    {0xF4, 0xF4, 0x80, 0x8F, 4},
};

bool within(char c, unsigned char low, unsigned char high)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte >= low && byte <= high;
}

bool startsWith(std::string_view text, const Utf8Form& form)
{
    if (text.size() < form.length || !within(text[0], form.firstLow, form.firstHigh)
        || !within(text[1], form.secondLow, form.secondHigh))
        return false;
    for (std::size_t i = 2; i < form.length; ++i) {
        if (!within(text[i], 0x80, 0xBF))
            return false;
    }
    return true;
}

} // namespace

std::size_t utf8Length(std::string_view text)
{
    if (text.empty())
        return 0;
    if (within(text[0], 0x00, 0x7F))
        return 1;
    for (const Utf8Form& form : kForms) {
        if (startsWith(text, form))
            return form.length;
    }
    return 1;
}

std::string_view utf8Prefix(std::string_view text, std::size_t limit)
{
    if (text.size() <= limit)
        return text;
    // A first byte never occurs inside a character, so looking back needs no start of the text.
    for (std::size_t back = 1; back <= 3 && back <= limit; ++back) {
        if (utf8Length(text.substr(limit - back)) > back)
            return text.substr(0, limit - back);
    }
    return text.substr(0, limit);
}
