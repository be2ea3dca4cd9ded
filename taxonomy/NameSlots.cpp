// taxonomy/NameSlots.cpp
#include "taxonomy/NameSlots.h"

#include "util/FixedText.h"

#include <string>

void NameSlots::set(int number, std::string_view text)
{
    const std::string_view ended = text.substr(0, text.find('\0'));
    const std::string_view kept = utf8Prefix(ended, slotRule(number).capacity);
    char* to = bytes_.data() + begin(number);
    std::char_traits<char>::move(to, kept.data(), kept.size()); // may overlap, may be null
    to[kept.size()] = '\0';
}
