// app/import/Utf8.h
#pragma once

#include <string>
#include <string_view>

/// Where the first byte stands that is part of no well-formed UTF-8 character; npos when all are.
std::size_t firstInvalidUtf8(std::string_view text);

/// "0xE9".
std::string hexByte(char byte);
