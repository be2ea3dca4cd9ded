// app/import/TaxonName.cpp
#include "app/import/TaxonName.h"

#include "app/import/TaxonMarks.h"
#include "app/import/Words.h"
#include "util/TextUtil.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <vector>

namespace {

constexpr std::size_t kLongestPart = slotRule(slot::species).capacity;

/// The slots of a name in full length, before they are cut to their capacities.
using Draft = std::array<std::string, slot::count>;

struct PartSlots {
    int pre, name, post;
};
constexpr PartSlots kGenus{slot::preGenus, slot::genus, slot::postGenus};
constexpr PartSlots kSubgenus{slot::preSubgenus, slot::subgenus, slot::postSubgenus};
constexpr PartSlots kSpecies{slot::preSpecies, slot::species, slot::postSpecies};
constexpr PartSlots kSubspecies{slot::preSubspecies, slot::subspecies, slot::postSubspecies};

bool isOneOf(std::string_view text, std::initializer_list<QualifierWord> words)
{
    return std::ranges::any_of(
        words, [text](const QualifierWord& word) { return word.text == text; });
}

std::size_t count(const Draft& draft, SlotKind kind)
{
    std::size_t quotes = 0;
    for (int number = 0; number < slot::count; ++number)
        quotes += slotRule(number).kind == kind
            && draft[static_cast<std::size_t>(number)].find(kQuoteMark) != std::string::npos;
    return quotes;
}

/// Whether a quotation mark was opened in front of a part and not closed behind one.
bool isQuoting(const Draft& draft)
{
    return count(draft, SlotKind::PreQualifier) > count(draft, SlotKind::PostQualifier);
}

class DraftReader {
public:
    Draft read(const NameParts& parts)
    {
        place(kGenus, marked(kGenus, parts.genusMark, parts.genus));
        place(kSubgenus, parts.subgenus);
        std::string species = parts.species;
        std::string further =
            joined(marked(kSubspecies, parts.subspeciesMark, parts.subspecies), parts.rest);
        if (species.empty() || isUnnamedSpecies(species)) {
            species = joined(species, further);
            further.clear();
        }
        takeMarksOfSpecies(further);
        place(kSpecies, marked(kSpecies, parts.speciesMark, species));
        place(kSubspecies, further);
        for (const std::string& mark : marksOfSpecies_)
            addMark(slot::postSpecies, mark);
        at(slot::author) = parts.author;
        return std::move(draft_);
    }

private:
    std::string& at(int number) { return draft_[static_cast<std::size_t>(number)]; }

    void addMark(int number, std::string_view word) { at(number) = joined(at(number), word); }

    // The part with the mark of its column, behind it if such a mark stands nowhere else.
    static std::string marked(
        const PartSlots& part, const std::string& mark, const std::string& name)
    {
        const std::string_view word = markOf(mark);
        const bool behind = accepts(part.post, word) && !accepts(part.pre, word);
        return behind ? joined(name, mark) : joined(mark, name);
    }

    // "group", "s.l." and their like behind a species are its marks even if a column holds them
    // that others have for the subspecies.
    void takeMarksOfSpecies(std::string& further)
    {
        for (;;) {
            const Mark mark = leadingMark(further);
            const bool label = mark.word == qualifier::grp.text && mark.length < further.size();
            if (mark.length == 0 || label || accepts(slot::preSubspecies, mark.word)
                || mark.word == qualifier::question.text || !accepts(slot::postSpecies, mark.word))
                return;
            marksOfSpecies_.emplace_back(mark.word);
            further = trimmedLeft(std::string_view(further).substr(mark.length));
        }
    }

    void place(const PartSlots& part, const std::string& text)
    {
        const Draft before = draft_;
        std::string_view name = trimmedLeft(trimmedRight(text));
        const std::string quoted = withQuoteMarks(name);
        name = quoted;
        takeLeading(part, name);
        takeTrailing(part, name);
        if (name.empty()) {
            // Marks of nothing: they are the name.
            draft_ = before;
            name = quoted;
        }
        at(part.name) = name;
    }

    void takeLeading(const PartSlots& part, std::string_view& name)
    {
        for (;;) {
            const Mark mark = leadingMark(name);
            // A species has no slot for doubt in front of it; behind it means the same.
            const bool doubt =
                mark.word == qualifier::question.text && part.pre == slot::preSpecies;
            if (mark.length == 0 || !(accepts(part.pre, mark.word) || doubt))
                return;
            addMark(doubt ? part.post : part.pre, mark.word);
            name = trimmedLeft(name.substr(mark.length));
        }
    }

    void takeTrailing(const PartSlots& part, std::string_view& name)
    {
        for (;;) {
            const Mark mark = trailingMark(name);
            const bool ofLabel = part.name == slot::species && isUnnamedSpecies(name)
                && !isOneOf(mark.word, {qualifier::question, qualifier::quote, qualifier::sensu});
            if (mark.length == 0 || ofLabel || !accepts(part.post, mark.word))
                return;
            if (mark.word == qualifier::quote.text && !isQuoting(draft_))
                return;
            addMark(part.post, mark.word);
            name = trimmedRight(name.substr(0, name.size() - mark.length));
        }
    }

    Draft draft_;
    std::vector<std::string> marksOfSpecies_;
};

/// Moves words between species and subspecies, as few as possible, so that both fit. False when no
/// place to part them will do.
bool fit(std::string& species, std::string& subspecies)
{
    const std::vector<std::string> words = wordsOf(joined(species, subspecies));
    const std::size_t natural = wordsOf(species).size();
    for (std::size_t distance = 0; distance <= words.size(); ++distance) {
        for (const std::size_t end : {natural + distance, natural - distance}) {
            if (end > words.size()) // below 0 as well
                continue;
            const std::string first = joinedWords(words, 0, end);
            const std::string second = joinedWords(words, end, words.size());
            if (first.size() > kLongestPart || second.size() > kLongestPart)
                continue;
            species = first;
            subspecies = second;
            return true;
        }
    }
    return false;
}

Taxon taxonOf(const Draft& draft, short year)
{
    Taxon taxon;
    for (int number = 0; number < slot::count; ++number)
        taxon.setField(number, std::string_view(draft[static_cast<std::size_t>(number)]));
    taxon.year = year;
    return taxon;
}

/// The names alone, with whatever marks are in them.
Draft verbatim(std::string_view written)
{
    const std::vector<std::string> words = wordsOf(written);
    Draft draft;
    draft[slot::genus] = joinedWords(words, 0, std::min<std::size_t>(words.size(), 1));
    draft[slot::species] = joinedWords(words, 1, std::max<std::size_t>(words.size(), 1));
    fit(draft[slot::species], draft[slot::subspecies]);
    return draft;
}

bool isExact(const Taxon& taxon, std::string_view written)
{
    const std::string wanted = withoutBlanks(written);
    Taxon nameAlone = taxon;
    nameAlone.setField(slot::author, "");
    nameAlone.year = 0;
    return withoutBlanks(composedName(nameAlone)) == wanted
        || withoutBlanks(composedName(taxon, true)) == wanted;
}

/// Parts species and subspecies anew where one of them is too long. False when that cannot help.
bool makeFit(Draft& draft)
{
    std::string& species = draft[slot::species];
    std::string& subspecies = draft[slot::subspecies];
    if (species.size() <= kLongestPart && subspecies.size() <= kLongestPart)
        return true;
    const bool apart = !draft[slot::postSpecies].empty() || !draft[slot::preSubspecies].empty();
    return !apart && fit(species, subspecies);
}

NameReading reading(const NameParts& parts, std::string_view written)
{
    NameReading result;
    Draft draft = DraftReader().read(parts);
    const bool fits = makeFit(draft);
    // The sentence reader lets what has no room in the name run on into the author.
    result.taxon = fits ? taxonOf(draft, parts.year) : Taxon(std::string(written).c_str(), 0);
    result.fault = result.taxon.checkQualifiers();
    result.exact = isExact(result.taxon, written) && (fits || !result.taxon.has(slot::author));
    return result;
}

bool isGood(const NameReading& reading) { return reading.exact && reading.fault == 0; }

} // namespace

NameReading readName(std::string_view written) { return reading(partsOfName(written), written); }

NameReading storedName(std::string_view written, const NameParts& parts)
{
    const std::string name = written.empty() ? nameOfParts(parts) : std::string(written);
    NameReading first = reading(parts, name);
    if (isGood(first))
        return first;
    NameReading whole = written.empty() ? first : readName(written);
    // Pieces without a species have left it to the rest of the name.
    if (isGood(whole) || (whole.fault == 0 && parts.species.empty()))
        return whole;
    if (first.fault != 0) {
        first.taxon = taxonOf(verbatim(name), parts.year);
        first.taxon.setField(slot::author, std::string_view(parts.author));
        first.exact = isExact(first.taxon, name);
    }
    return first;
}

std::string composedName(const Taxon& taxon, bool withAuthor)
{
    // The composer is not const, as it may read a code.
    return withSingleBlanks(Taxon(taxon).displayName(withAuthor, 0, 0, 0));
}
