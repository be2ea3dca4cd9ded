// taxonomy/NameSlots.cpp
#include "taxonomy/NameSlots.h"

#include "util/FixedText.h"

#include <cstring>

void NameSlots::set(int number, std::string_view text)
{
    const std::string_view ended = text.substr(0, text.find('\0'));
    const std::string_view kept = utf8Prefix(ended, slotRule(number).capacity);
    char* to = bytes_.data() + begin(number);
    std::memmove(to, kept.data(), kept.size());
    to[kept.size()] = '\0';
}
