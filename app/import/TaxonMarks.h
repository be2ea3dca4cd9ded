// app/import/TaxonMarks.h
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// The marks of open nomenclature as publications write them: "s.l.", "group", "(?)", "cf".

/// A mark at an end of a text: the word that the qualifier slots know for it and the bytes that it
/// takes up. No bytes: there is none.
struct Mark {
    std::string_view word;
    std::size_t length = 0;
};
/// Question and quotation marks also stand against their word, the others are words of their own.
Mark leadingMark(std::string_view text);
Mark trailingMark(std::string_view text);

/// The word for a text that is nothing but a mark; empty for any other text.
std::string_view markOf(std::string_view text);

/// Whether a qualifier slot takes the word.
bool accepts(int slotNumber, std::string_view word);

/// A name in single quotation marks in double ones, which are the marks that slots know. The
/// apostrophe of "d'orbignyi" is none.
std::string withQuoteMarks(std::string_view name);

/// Whether a species text is that of a species without a name ("sp. A"): what follows is its label.
bool isUnnamedSpecies(std::string_view species);
