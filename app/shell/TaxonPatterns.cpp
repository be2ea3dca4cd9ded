// app/shell/TaxonPatterns.cpp
#include "app/shell/TaxonPatterns.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr const char* kAny = "%";

// Both wildcards that people know; every kind of database takes this one from the core.
std::string patternOf(std::string text)
{
    std::ranges::replace(text, '*', '%');
    return text.empty() ? kAny : text;
}

bool isInBrackets(const std::string& word)
{
    return word.size() > 1 && word.front() == '(' && word.back() == ')';
}

} // namespace

std::optional<TaxonPatterns> taxonPatterns(
    const std::vector<std::string>& words, const std::string& category)
{
    TaxonPatterns patterns{patternOf(category), kAny, kAny, kAny, kAny};
    std::string* const parts[] = {&patterns.genus, &patterns.species, &patterns.subspecies};
    std::size_t next = 0;
    for (const std::string& word : words) {
        if (isInBrackets(word))
            patterns.subgenus = patternOf(word.substr(1, word.size() - 2));
        else if (next < std::size(parts))
            *parts[next++] = patternOf(word);
        else
            return std::nullopt;
    }
    return patterns;
}
