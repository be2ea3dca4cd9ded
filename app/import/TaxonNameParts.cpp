// app/import/TaxonNameParts.cpp
#include "app/import/TaxonMarks.h"
#include "app/import/TaxonName.h"
#include "app/import/Words.h"

#include <algorithm>
#include <charconv>

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isCapital(char c) { return c >= 'A' && c <= 'Z'; }
bool isSmall(char c) { return c >= 'a' && c <= 'z'; }

/// The year of a description that a word ends with, punctuation apart; 0 without one.
short yearIn(std::string_view word)
{
    constexpr int kFirst = 1735, kLast = 2099; // names begin with Linnaeus
    constexpr std::size_t kDigits = 4;
    const std::size_t begin = word.find_first_of("0123456789");
    int year = 0;
    if (begin == std::string_view::npos || word.size() < begin + kDigits)
        return 0;
    const auto [end, failure] =
        std::from_chars(word.data() + begin, word.data() + begin + kDigits, year);
    const bool more = end != word.data() + word.size() && isDigit(*end);
    return failure != std::errc() || more || year < kFirst || year > kLast
        ? short{0}
        : static_cast<short>(year);
}

bool isSubgenus(std::string_view word)
{
    return word.size() > 3 && word.front() == '(' && word.back() == ')' && isCapital(word[1])
        && std::all_of(word.begin() + 2, word.end() - 1, isSmall);
}

/// A genus that the species brings along: "Alphina cf. A. betana".
bool isGenusLetter(std::string_view word)
{
    return word.size() == 2 && isCapital(word[0]) && word[1] == '.';
}

/// Takes a name apart word by word.
class Splitter {
public:
    explicit Splitter(std::string_view written)
        : words_(wordsOf(written))
    {
        // A point that stands alone belongs to what it shortens: "cf . A".
        for (std::size_t i = 1; i < words_.size(); ++i)
            if (words_[i] == ".") {
                words_[i - 1] += '.';
                words_.erase(words_.begin() + static_cast<std::ptrdiff_t>(i--));
            }
    }

    NameParts split()
    {
        takeMarks(parts_.genus);
        take(parts_.genus);
        takeMarksBehind(parts_.genus);
        if (next_ + 1 < words_.size() && isSubgenus(words_[next_])) {
            parts_.subgenus = words_[next_].substr(1, words_[next_].size() - 2);
            ++next_;
        }
        end_ = endOfName();
        takeSpecies();
        takeRest();
        return std::move(parts_);
    }

private:
    bool atEnd() const { return next_ >= std::min(end_, words_.size()); }

    void take(std::string& part)
    {
        if (!atEnd())
            part = joined(part, words_[next_++]);
    }

    void takeMarks(std::string& part)
    {
        while (!atEnd() && !markOf(words_[next_]).empty())
            take(part);
    }

    // Marks that can only belong to what stands in front of them.
    void takeMarksBehind(std::string& part)
    {
        while (!atEnd()) {
            const std::string_view word = markOf(words_[next_]);
            const bool two = words_[next_] == "sensu" && next_ + 1 < words_.size()
                && !markOf("sensu " + words_[next_ + 1]).empty();
            const bool behind = word == qualifier::question.text || word == qualifier::sl.text
                || word == qualifier::ss.text
                || (word == qualifier::grp.text && next_ + 1 == words_.size());
            if (!behind && !two)
                return;
            take(part);
            if (two)
                take(part);
        }
    }

    // Whether a word begins with a person's name: "Bolli", "(Subbotina", "d'Orbigny", "de Man".
    bool isPerson(std::size_t i) const
    {
        constexpr std::string_view kParticles[] = {"de", "del", "der", "di", "du", "van", "von"};
        std::string_view word = words_[i];
        if (word.starts_with('('))
            word.remove_prefix(1);
        if (std::ranges::find(kParticles, word) != std::end(kParticles))
            return i + 1 < words_.size() && isPerson(i + 1);
        const std::size_t apostrophe = word.find('\'');
        const bool elided = apostrophe == 1 && word.size() > 2 && isCapital(word[2]);
        return elided || (word.size() > 2 && isCapital(word[0]));
    }

    // Where the author begins, who is told by a year, or in whose sense the name is meant.
    std::size_t endOfName() const
    {
        std::size_t year = words_.size();
        while (year > next_ && yearIn(words_[year - 1]) == 0)
            --year;
        for (std::size_t i = std::max<std::size_t>(next_, 1); i < words_.size(); ++i) {
            const bool sense = words_[i - 1] == "sensu" && markOf("sensu " + words_[i]).empty();
            if (sense || (i < year && isPerson(i)))
                return i;
        }
        return words_.size();
    }

    void takeSpecies()
    {
        takeMarks(parts_.species);
        if (atEnd())
            return;
        if (isGenusLetter(words_[next_]))
            take(parts_.species);
        if (atEnd())
            return;
        const bool unnamed = isUnnamedSpecies(words_[next_]);
        if (words_[next_][0] != '(')
            take(parts_.species);
        while (unnamed && !atEnd())
            take(parts_.species);
        takeMarksBehind(parts_.species);
        if (!atEnd() && words_[next_] == "sensu" && next_ + 1 == end_)
            take(parts_.species);
    }

    void takeRest()
    {
        while (!atEnd())
            take(parts_.subspecies);
        parts_.author = joinedWords(words_, std::min(end_, words_.size()), words_.size());
        const std::size_t last = parts_.author.find_last_of(' ');
        const std::string_view word = std::string_view(parts_.author).substr(last + 1);
        const short year = yearIn(word);
        if (year == 0 || last == std::string::npos || !std::ranges::all_of(word, isDigit))
            return;
        parts_.year = year;
        parts_.author.resize(last);
    }

    std::vector<std::string> words_;
    std::size_t next_ = 0;
    std::size_t end_ = std::string::npos;
    NameParts parts_;
};

} // namespace

NameParts partsOfName(std::string_view written) { return Splitter(written).split(); }

NameParts partsAboveGenus(std::string_view written)
{
    NameParts parts;
    std::vector<std::string> words = wordsOf(written);
    if (words.size() > 1
        && (words.back() == "indet." || words.back() == "sp." || words.back() == "spp.")) {
        parts.species = words.back();
        words.pop_back();
    }
    parts.genus = joinedWords(words, 0, words.size());
    return parts;
}

std::string nameOfParts(const NameParts& parts)
{
    const bool behind = accepts(slot::postSpecies, markOf(parts.speciesMark))
        && markOf(parts.speciesMark) != qualifier::question.text;
    std::string name = joined(parts.genusMark, parts.genus);
    if (!parts.subgenus.empty())
        name += " (" + parts.subgenus + ')';
    name = joined(name,
        behind ? joined(parts.species, parts.speciesMark)
               : joined(parts.speciesMark, parts.species));
    name = joined(name, joined(parts.subspeciesMark, parts.subspecies));
    return joined(name, parts.rest);
}
