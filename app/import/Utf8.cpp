// app/import/Utf8.cpp
#include "app/import/Utf8.h"

#include "util/FixedText.h"

std::size_t firstInvalidUtf8(std::string_view text)
{
    for (std::size_t i = 0; i < text.size();) {
        const bool ascii = static_cast<unsigned char>(text[i]) < 0x80;
        const std::size_t length = ascii ? 1 : utf8Length(text.substr(i));
        if (!ascii && length == 1)
            return i;
        i += length;
    }
    return std::string_view::npos;
}

std::string hexByte(char byte)
{
    constexpr char kDigits[] = "0123456789ABCDEF";
    const auto bits = static_cast<unsigned char>(byte);
    return std::string("0x") + kDigits[bits >> 4] + kDigits[bits & 15];
}
