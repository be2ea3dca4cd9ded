// app/batch/Italics.cpp
#include "app/batch/Italics.h"

namespace {

constexpr std::string_view kItalicOn = "\x1B[3m";
constexpr std::string_view kItalicOff = "\x1B[23m";

} // namespace

std::string withItalics(std::string_view marked, bool terminal)
{
    const std::string_view on = terminal ? kItalicOn : "_";
    const std::string_view off = terminal ? kItalicOff : "_";
    std::string text;
    bool italic = false;
    const auto change = [&] {
        const std::size_t end = text.find_last_not_of(' ') + 1;
        italic ? text.insert(end, off) : text.append(on);
        italic = !italic;
    };
    for (const char c : marked) {
        if (c == '\\')
            change();
        else
            text += c;
    }
    if (italic)
        change();
    text.resize(text.find_last_not_of(' ') + 1);
    return text;
}
