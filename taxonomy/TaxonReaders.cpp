// taxonomy/TaxonReaders.cpp
#include "db/ErrorReporter.h"
#include "taxonomy/Categories.h"
#include "taxonomy/SpeciesCase.h"
#include "taxonomy/Taxon.h"
#include "taxonomy/TextArgument.h"
#include "util/TextUtil.h"

#include <cstdint>
#include <limits>
#include <span>

namespace {

// --- Free texts ---

/// How people write a qualifier, and how the slot holds it.
struct Spelling {
    std::string_view typed;
    std::string_view stored;
};

constexpr Spelling kLeading[] = {
    {"cf ", "cf."},
    {"cf.", "cf."},
    {"aff ", "aff."},
    {"aff.", "aff."},
    {"'", "\""},
    {"\"", "\""},
    {"?", "?"},
    {"var ", "var."},
    {"var.", "var."},
};

constexpr Spelling kTrailing[] = {
    {"'", "\""},
    {"\"", "\""},
    {"?", "?"},
    {" grp", " grp."},
    {" grp.", " grp."},
    {" ss", " ss."},
    {" ss.", " ss."},
    {" sl", " sl."},
    {" sl.", " sl."},
};

/// A name part with its neighbours: where the pieces of one free text go.
struct PartSlots {
    int pre, name, post, overflow;
};
constexpr PartSlots kGenusPart{slot::preGenus, slot::genus, slot::postGenus, slot::subgenus};
constexpr PartSlots kSpeciesPart{
    slot::preSpecies, slot::species, slot::postSpecies, slot::subspecies};

std::string_view takeLeading(std::string_view& text)
{
    for (const Spelling& spelling : kLeading) {
        if (text.starts_with(spelling.typed)) {
            text.remove_prefix(spelling.typed.size());
            return spelling.stored;
        }
    }
    return {};
}

std::string_view takeTrailing(std::string_view& text)
{
    for (const Spelling& spelling : kTrailing) {
        if (text.ends_with(spelling.typed)) {
            text.remove_suffix(spelling.typed.size());
            return spelling.stored;
        }
    }
    return {};
}

/// A name too long for its slot was written together with its subname; without a blank nobody can
/// tell the two apart.
void storeName(Taxon& taxon, const PartSlots& part, std::string_view name)
{
    if (name.size() <= slotRule(part.name).capacity) {
        taxon.setField(part.name, name);
        return;
    }
    const std::size_t blank = name.find(' ');
    if (blank == std::string_view::npos)
        return;
    taxon.setField(part.name, name.substr(0, blank));
    taxon.setField(part.overflow, name.substr(blank));
}

void readPart(Taxon& taxon, const PartSlots& part, const char* text)
{
    const std::string lower = lowerCased(trimmedLeft(trimmedRight(orEmpty(text))));
    std::string_view name = lower;
    taxon.setField(part.pre, takeLeading(name));
    taxon.setField(part.post, takeTrailing(name));
    storeName(taxon, part, name);
}

// --- Lines, sentences and fields ---

/// Qualifiers are compared in lower case everywhere, so no reader leaves them otherwise.
void storeField(Taxon& taxon, int number, std::string_view text)
{
    if (isQualifier(number))
        taxon.setField(number, lowerCased(text));
    else
        taxon.setField(number, text);
}

/// A year that the column could not hold is no year.
short yearOf(std::string_view text)
{
    const std::string digits(text);
    const long year = longOf(digits.c_str(), static_cast<int>(digits.size()));
    using Limits = std::numeric_limits<short>;
    return year < Limits::min() || year > Limits::max() ? short{0} : static_cast<short>(year);
}

long codeOf(std::string_view text)
{
    const std::string digits(text);
    const long code = longOf(digits.c_str(), static_cast<int>(digits.size()));
    return static_cast<std::int32_t>(code);
}

bool isKnownCategory(std::string_view category)
{
    for (const char* const* entry = categoryList(0); *entry; ++entry) {
        if (std::string_view(*entry).starts_with(category))
            return true;
    }
    return false;
}

void dropUnknownCategory(Taxon& taxon)
{
    if (!isKnownCategory(taxon.category()))
        taxon.setField(slot::category, "");
}

/// The words of a sentence one after the other; runs of blanks are one separator.
class Words {
public:
    explicit Words(std::string_view sentence)
        : rest_(sentence)
    {
    }
    /// The next word, empty at the end.
    std::string_view next()
    {
        rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size()));
        const std::string_view word = rest_.substr(0, rest_.find(' '));
        rest_.remove_prefix(word.size());
        return word;
    }

private:
    std::string_view rest_;
};

void readGenusWords(Taxon& taxon, Words& words)
{
    const std::string_view first = words.next();
    if (first == "cf." || first == "aff." || first == "?") {
        taxon.setField(slot::preGenus, first);
        taxon.setField(slot::genus, words.next());
    } else {
        taxon.setField(slot::genus, first);
    }
}

void readSpeciesWord(Taxon& taxon, Words& words)
{
    const std::string_view word = words.next();
    if (word.empty())
        taxon.setField(slot::species, ".");
    else if (word == "cf." || word == "aff.")
        taxon.setField(slot::preSpecies, word);
    else
        taxon.setField(slot::species, word);
}

/// Fills species, subspecies and author one after the other, each as far as its words fit.
void readFurtherWords(Taxon& taxon, Words& words)
{
    constexpr std::size_t kLongestPart = 30;
    int target = slot::species;
    for (std::string_view word = words.next(); !word.empty(); word = words.next()) {
        std::string text = taxon.field(target);
        if (!text.empty())
            text += ' ';
        taxon.setField(target, text);
        if (text.size() + word.size() > kLongestPart) {
            target = target == slot::species ? slot::subspecies : slot::author;
            text = taxon.field(target);
        }
        taxon.setField(target, text.append(word));
    }
}

void storeNamed(Taxon& taxon, std::string_view name, std::string_view value)
{
    const auto isCalled = [name](std::string_view known) {
        return compareIgnoringCase(name, known) == 0;
    };
    for (int number = 0; number < slot::count; ++number) {
        if (isCalled(slotRule(number).fieldName))
            storeField(taxon, number, value);
    }
    if (isCalled("Year"))
        taxon.year = yearOf(value);
    if (isCalled("Code"))
        taxon.sipm_code = codeOf(value);
}

} // namespace

Taxon::Taxon(long spec_id)
    : spec_id_(spec_id)
{
    loadById();
}

Taxon::Taxon(const char* category, const char* genus, const char* species, const char* subspecies)
{
    setField(slot::category, category);
    setField(slot::genus, genus);
    setField(slot::species, species);
    setField(slot::subspecies, subspecies);
    getAddGenus(1, 1);
    getAddSpecies(1, 1); // without a genus it asks for nothing
}

Taxon::Taxon(const char* genusText, const char* speciesText, const char* category)
{
    readPart(*this, kGenusPart, genusText);
    setField(slot::genus, titleCased(genus()));
    readPart(*this, kSpeciesPart, speciesText);
    std::string cased = species();
    fixSpeciesCase(cased);
    setField(slot::species, cased);
    setField(slot::category, trimmedRight(orEmpty(category)));
    getAddGenus(1, 1);
    getAddSpecies(1, 1);
}

Taxon::Taxon(const char* line)
{
    std::string_view rest = orEmpty(line);
    int number = 0;
    for (; number < slot::count; ++number) {
        const std::size_t tab = rest.find('\t');
        if (tab == std::string_view::npos) {
            setField(number, rest);
            break;
        }
        storeField(*this, number, trimmedRight(rest.substr(0, tab)));
        rest.remove_prefix(tab + 1);
    }
    if (number == slot::count)
        year = yearOf(rest);
    givenCategory = field(slot::category);
    dropUnknownCategory(*this);
}

Taxon::Taxon(const char* sentence, int lookup)
{
    Words words(orEmpty(sentence));
    readGenusWords(*this, words);
    readSpeciesWord(*this, words);
    readFurtherWords(*this, words);
    setField(slot::species, trimmedRight(species()));
    if (lookup)
        reportError("Warning: Attempt to lookuop Taxon::Taxon");
}

Taxon::Taxon(const char* const* fieldNames, const char* const* values, int count)
{
    for (int i = 0; i < count; ++i)
        storeNamed(*this, orEmpty(fieldNames[i]), orEmpty(values[i]));
    dropUnknownCategory(*this);
}
