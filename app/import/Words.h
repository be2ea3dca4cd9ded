// app/import/Words.h
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// The words of a text; runs of blanks part them.
std::vector<std::string> wordsOf(std::string_view text);
/// The words [first, end) with one blank between two.
std::string joinedWords(const std::vector<std::string>& words, std::size_t first, std::size_t end);
/// Both texts with a blank between them, or the one that is not empty.
std::string joined(std::string_view first, std::string_view second);
/// Every run of blanks made one, none at the ends.
std::string withSingleBlanks(std::string_view text);
std::string withoutBlanks(std::string_view text);
