// app/import/Words.cpp
#include "app/import/Words.h"

#include <algorithm>

std::vector<std::string> wordsOf(std::string_view text)
{
    std::vector<std::string> words;
    for (;;) {
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
        if (text.empty())
            return words;
        words.emplace_back(text.substr(0, text.find(' ')));
        text.remove_prefix(words.back().size());
    }
}

std::string joinedWords(const std::vector<std::string>& words, std::size_t first, std::size_t end)
{
    std::string text;
    for (std::size_t i = first; i < end; ++i)
        text.append(i == first ? "" : " ").append(words[i]);
    return text;
}

std::string joined(std::string_view first, std::string_view second)
{
    std::string text(first);
    if (!first.empty() && !second.empty())
        text += ' ';
    return text += second;
}

std::string withSingleBlanks(std::string_view text)
{
    const std::vector<std::string> words = wordsOf(text);
    return joinedWords(words, 0, words.size());
}

std::string withoutBlanks(std::string_view text)
{
    std::string bare(text);
    std::erase(bare, ' ');
    return bare;
}
