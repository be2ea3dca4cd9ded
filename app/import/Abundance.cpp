// app/import/Abundance.cpp
#include "app/import/Abundance.h"

#include "app/import/Cells.h"
#include "app/import/Words.h"
#include "util/TextUtil.h"

#include <algorithm>

namespace {

struct Mark {
    std::string_view word;
    bool AbundanceReading::*flag;
};
constexpr Mark kWholeMarks[] = {{"rw", &AbundanceReading::reworked},
    {"reworked", &AbundanceReading::reworked}, {"cv", &AbundanceReading::caved},
    {"caved", &AbundanceReading::caved}};
constexpr Mark kFrontMarks[] = {
    {"r", &AbundanceReading::reworked}, {"c", &AbundanceReading::caved}};

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::optional<double> numberWithEitherMark(std::string_view text)
{
    const auto number = numberOf(isDecimalWith(',', text) ? withPoint(text) : text);
    return number && *number >= 0 ? number : std::nullopt;
}

// "R?", "?R", "?": the question marks off.
std::string withoutDoubt(std::string_view text, bool* doubted)
{
    std::string bare = withoutBlanks(text);
    *doubted = bare.starts_with('?') || bare.ends_with('?');
    while (bare.ends_with('?'))
        bare.pop_back();
    bare.erase(0, std::min(bare.find_first_not_of('?'), bare.size()));
    return bare;
}

// A small letter in front of something that is no small letter, for "rare" is a word.
void takeFrontMark(std::string& text, AbundanceReading* reading)
{
    for (const auto& [letter, flag] : kFrontMarks)
        if (text.size() > 1 && text.starts_with(letter) && !(text[1] >= 'a' && text[1] <= 'z')) {
            reading->*flag = true;
            text.erase(0, 1);
            return;
        }
}

bool takeWord(std::string_view text, const AbundanceWords& words, AbundanceReading* reading)
{
    const auto word = words.find(upperCased(text));
    if (word != words.end())
        reading->code = word->second;
    return word != words.end();
}

bool takeMarkAlone(std::string_view text, AbundanceReading* reading)
{
    const std::string small = lowerCased(text);
    const auto mark = std::ranges::find(kWholeMarks, small, &Mark::word);
    if (mark == std::end(kWholeMarks))
        return false;
    reading->*(mark->flag) = true;
    return true;
}

bool takeNumber(std::string_view text, AbundanceReading* reading)
{
    const bool isPercent = text.ends_with('%');
    if (isPercent)
        text.remove_suffix(1);
    const auto number = numberWithEitherMark(text);
    if (!number)
        return false;
    if (*number == 0)
        reading->absent = true;
    else
        (isPercent ? reading->percent : reading->count) = number;
    return true;
}

bool takeCode(const std::string& text, AbundanceReading* reading)
{
    constexpr std::string_view kNoCode = "<>()[]=~-";
    if (text.size() > kLongestAbundanceCode || isDigit(text[0])
        || text.find_first_of(kNoCode) != std::string::npos)
        return false;
    reading->code = text;
    return true;
}

} // namespace

AbundanceReading readAbundance(std::string_view written, const AbundanceWords& words)
{
    AbundanceReading reading;
    if (takeWord(written, words, &reading))
        return reading;
    std::string text = withoutDoubt(written, &reading.questionable);
    if (text.empty() || takeWord(text, words, &reading) || takeMarkAlone(text, &reading))
        return reading;
    takeFrontMark(text, &reading);
    if (text == "-")
        reading.absent = true;
    else
        reading.understood = takeNumber(text, &reading) || takeWord(text, words, &reading)
            || takeCode(text, &reading);
    return reading;
}
