// util/TextUtil.cpp
#include "util/TextUtil.h"

#include "util/FixedText.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <limits>

namespace {

constexpr std::size_t kCaseLimit = 1025; // bytes that upperCase and lowerCase change
constexpr std::size_t kSplitLimit = 500; // bytes of splitText's buffer, terminator included
constexpr std::size_t kLongAtWidth = 10; // bytes that longAt reads

// The classes of the C locale. <cctype> asks the locale that a window toolkit has set.
bool isSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isControl(char c) { return (c >= '\0' && c < ' ') || c == '\x7F'; }
bool isBeyondAscii(char c) { return static_cast<unsigned char>(c) >= 0x80; }
char upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }
char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
unsigned char folded(char c) { return static_cast<unsigned char>(upper(c)); }

bool isSeparator(char c)
{
    return isBeyondAscii(c) || c <= '0' || (c >= ':' && c <= '?') || (c >= '[' && c <= '`');
}

std::size_t sizeFrom(int n) { return n > 0 ? static_cast<std::size_t>(n) : 0; }

/// At most the first `n` bytes of a text, which may lack a terminator behind them.
std::string_view slice(const char* text, std::size_t n)
{
    return std::string_view(text, strnlen(text, n));
}

char* newText(std::string_view text)
{
    char* copy = new char[text.size() + 1];
    copy[text.copy(copy, text.size())] = '\0';
    return copy;
}

void changeCase(char* text, char (*change)(char))
{
    std::transform(text, text + slice(text, kCaseLimit).size(), text, change);
}

void changeToTitle(char* text, std::size_t size)
{
    bool capital = true;
    for (std::size_t i = 0, length = 0; i < size; i += length) {
        length = utf8Length(std::string_view(text + i, size - i));
        text[i] = capital ? upper(text[i]) : lower(text[i]);
        capital = length == 1 && isSeparator(text[i]);
    }
}

/// Moves the sign at the start of `text` out of it; whether it was a minus.
bool takeSign(std::string_view& text)
{
    const bool minus = text.starts_with('-');
    if (minus || text.starts_with('+'))
        text.remove_prefix(1);
    return minus;
}

std::string_view withoutSpace(std::string_view text)
{
    const auto* const start = std::find_if_not(text.begin(), text.end(), isSpace);
    return text.substr(static_cast<std::size_t>(start - text.begin()));
}

/// The whole number at the start; beyond the 64-bit range its nearest end.
long longIn(std::string_view text)
{
    text = withoutSpace(text);
    const bool minus = takeSign(text);
    std::uint64_t size = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), size);
    constexpr std::uint64_t kMost = std::numeric_limits<long>::max();
    if (end.ec == std::errc::result_out_of_range || size > kMost)
        return minus ? std::numeric_limits<long>::min() : std::numeric_limits<long>::max();
    return minus ? -static_cast<long>(size) : static_cast<long>(size);
}

/// The value of a number that double cannot hold: it is either too large or too near to 0.
double beyondRange(std::string_view number)
{
    const std::size_t exponent = number.find_first_of("eEpP");
    const bool tiny =
        exponent != std::string_view::npos && number.substr(exponent + 1).starts_with('-');
    return tiny ? 0 : std::numeric_limits<double>::infinity();
}

/// The number at the start in any form that atof reads: decimal, hexadecimal, inf, nan.
double doubleIn(std::string_view text)
{
    text = withoutSpace(text);
    const bool minus = takeSign(text);
    if (text.starts_with('-'))
        return 0;
    auto format = std::chars_format::general;
    if (text.starts_with("0x") || text.starts_with("0X")) {
        text.remove_prefix(2);
        format = std::chars_format::hex;
    }
    double size = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), size, format);
    if (end.ec == std::errc::result_out_of_range)
        size = beyondRange(std::string_view(text.data(), end.ptr));
    return minus ? -size : size;
}

std::string_view takeField(const char** cursor)
{
    const std::string_view field(*cursor, std::strcspn(*cursor, "\t"));
    *cursor += field.size() + 1;
    return field;
}

/// The length of `text` without trailing zeros behind its point, and without the point itself
/// when nothing is left behind it and `dropPoint` is set.
std::size_t sizeWithoutZeros(std::string_view text, bool dropPoint)
{
    if (text.find('.') == std::string_view::npos)
        return text.size();
    while (text.ends_with('0'))
        text.remove_suffix(1);
    if (dropPoint && text.ends_with('.'))
        text.remove_suffix(1);
    return text.size();
}

} // namespace

int trimRight(char* text)
{
    const std::size_t size = trimmedRight(text).size();
    text[size] = '\0';
    return static_cast<int>(size);
}

std::string_view trimmedRight(std::string_view text)
{
    while (!text.empty() && (isSpace(text.back()) || isControl(text.back())))
        text.remove_suffix(1);
    return text;
}

void trimLeft(char* text)
{
    const std::string_view kept = trimmedLeft(text);
    std::memmove(text, kept.data(), kept.size() + 1);
}

std::string_view trimmedLeft(std::string_view text)
{
    while (utf8Length(text) == 1 && (isBeyondAscii(text[0]) || text[0] < '!'))
        text.remove_prefix(1);
    return text;
}

void upperCase(char* text) { changeCase(text, upper); }

void lowerCase(char* text) { changeCase(text, lower); }

std::string upperCased(std::string_view text)
{
    std::string result(text);
    upperCase(result.data());
    return result;
}

std::string lowerCased(std::string_view text)
{
    std::string result(text);
    lowerCase(result.data());
    return result;
}

void titleCase(char* text) { changeToTitle(text, std::strlen(text)); }

std::string titleCased(std::string_view text)
{
    std::string result(text);
    changeToTitle(result.data(), result.size());
    return result;
}

void cutAt(char* text, int n)
{
    text[utf8Prefix(text, sizeFrom(n)).size()] = '\0';
    trimRight(text);
}

int compareIgnoringCase(std::string_view a, std::string_view b)
{
    const auto [inA, inB] = std::mismatch(a.begin(), a.end(), b.begin(), b.end(),
        [](char x, char y) { return folded(x) == folded(y); });
    if (inA == a.end() || inB == b.end())
        return static_cast<int>(inA != a.end()) - static_cast<int>(inB != b.end());
    return folded(*inA) < folded(*inB) ? -1 : 1;
}

bool containsIgnoringCase(std::string_view text, std::string_view part)
{
    const auto sameLetter = [](char x, char y) { return upper(x) == upper(y); };
    return part.empty()
        || std::search(text.begin(), text.end(), part.begin(), part.end(), sameLetter)
        != text.end();
}

const char* intText(int n)
{
    static ResultText result;
    return result.keep(std::to_string(n));
}

const char* fixedText(double x, int decimals)
{
    static ResultText result;
    return result.keep(fixedString(x, decimals));
}

void fixedTextTrim(char* out, double x, int decimals)
{
    std::strcpy(out, fixedString(x, decimals).c_str());
    stripZeros(out, 1);
}

std::string fixedString(double x, int decimals)
{
    const int places = std::max(decimals, 0);
    // Sign, digits before the point, point.
    constexpr std::size_t kBeforeDecimals = std::numeric_limits<double>::max_exponent10 + 3;
    std::string text(kBeforeDecimals + static_cast<std::size_t>(places), '\0');
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), x, std::chars_format::fixed, places);
    text.resize(static_cast<std::size_t>(end.ptr - text.data()));
    return text;
}

int pow2(int n) { return n < 0 || n > 30 ? 0 : 1 << n; }

float floatOf(const char* text, int n)
{
    return static_cast<float>(doubleIn(slice(text, sizeFrom(n))));
}

int intOf(const char* text, int n) { return static_cast<int>(longOf(text, n)); }

long longOf(const char* text, int n) { return longIn(slice(text, sizeFrom(n))); }

short shortOf(const char* text, int n) { return static_cast<short>(longOf(text, n)); }

char* textOf(const char* text, int n)
{
    // Far enough to see whether a character of up to 4 bytes crosses the end of the slice.
    const std::string_view reach = slice(text, sizeFrom(n) + 3);
    return newText(trimmedRight(utf8Prefix(reach, sizeFrom(n))));
}

long longAt(const char* text, int offset)
{
    const std::size_t from = sizeFrom(offset);
    const std::string_view reach = slice(text, from + kLongAtWidth);
    return from < reach.size() ? longIn(reach.substr(from)) : 0;
}

float readFloatField(const char** cursor)
{
    return static_cast<float>(doubleIn(takeField(cursor)));
}

long readLongField(const char** cursor) { return longIn(takeField(cursor)); }

int readIntField(const char** cursor) { return static_cast<int>(readLongField(cursor)); }

short readShortField(const char** cursor) { return static_cast<short>(readLongField(cursor)); }

char* readTextField(const char** cursor) { return newText(trimmedRight(takeField(cursor))); }

void padTo(char* text, int n)
{
    const std::size_t width = sizeFrom(n);
    const std::size_t kept = utf8Prefix(text, width).size();
    std::memset(text + kept, ' ', width - kept);
    text[width] = '\0';
}

int removeChar(char* text, char c)
{
    const std::string_view all = text;
    char* out = text;
    for (std::size_t i = 0, length = 0; i < all.size(); i += length) {
        length = utf8Length(all.substr(i));
        if (length > 1 || all[i] != c)
            out = std::copy_n(text + i, length, out);
    }
    *out = '\0';
    return static_cast<int>(text + all.size() - out);
}

void sortIndex(const char** texts, int* index, int lo, int hi, int descending)
{
    if (lo >= hi)
        return;
    std::stable_sort(index + lo, index + hi + 1, [=](int a, int b) {
        const int order = std::strcmp(texts[a], texts[b]);
        return descending ? order > 0 : order < 0;
    });
}

void splitText(const char* text, char** parts, const char* delimiters, int* count)
{
    static char buffer[kSplitLimit];
    *count = 0;
    const std::string_view source = slice(text, kSplitLimit);
    if (source.size() == kSplitLimit)
        return;
    // The text may be a part that the call before gave.
    std::memmove(buffer, source.data(), source.size());
    buffer[source.size()] = '\0';
    const std::string_view all(buffer, source.size());
    const std::string_view separators = delimiters;
    parts[(*count)++] = buffer;
    for (std::size_t i = 0, length = 0; i < all.size(); i += length) {
        length = utf8Length(all.substr(i));
        if (separators.find(all.substr(i, length)) == std::string_view::npos)
            continue;
        buffer[i] = '\0';
        if (i + length < all.size())
            parts[(*count)++] = buffer + i + length;
    }
}

void stripZeros(char* text, int dropPoint) { text[sizeWithoutZeros(text, dropPoint != 0)] = '\0'; }

const char* cutDecimals(const char* text, int n)
{
    static ResultText result;
    const std::string_view all = text;
    const std::size_t point = all.find('.');
    if (point == std::string_view::npos)
        return result.keep(std::string(all));
    if (n < 0)
        return result.keep(std::string(all.substr(0, point)));
    const std::string_view behind = all.substr(point + 1);
    const auto* const end = std::find_if_not(behind.begin(), behind.end(), isDigit);
    const bool enough = end - behind.begin() >= n;
    return result.keep(std::string(enough ? all.substr(0, point + 1 + sizeFrom(n)) : all));
}
