// taxonomy/TaxonQualifiers.cpp
#include "taxonomy/Taxon.h"

#include <cstring>

namespace {

bool holds(const Taxon& taxon, int number, char mark)
{
    return isQualifier(number) && std::strchr(taxon.field(number), mark);
}

/// The accepted words found anywhere in the text, in written order; nothing when two of them
/// exclude each other.
std::optional<std::string> normalised(std::string_view text, const SlotRule& rule)
{
    std::string words;
    int exclusive = 0;
    for (const QualifierWord& word : rule.words) {
        if (text.find(word.text) == std::string_view::npos)
            continue;
        exclusive += word.exclusive;
        if (exclusive == 2)
            return std::nullopt;
        if (!words.empty())
            words += ' ';
        words += word.text;
    }
    return words;
}

/// The slot that breaks the rule of one pair, opened in front of a part and closed behind one.
int faultyQuote(const Taxon& taxon)
{
    enum { Outside, Open, Closed } state = Outside;
    int opened = 0;
    for (int number = 0; number < slot::count; ++number) {
        if (!holds(taxon, number, kQuoteMark))
            continue;
        const bool inFront = slotRule(number).kind == SlotKind::PreQualifier;
        if (state == Closed || inFront != (state == Outside))
            return number;
        state = state == Outside ? Open : Closed;
        opened = number;
    }
    return state == Open ? opened : 0;
}

int faultyQuestionMark(const Taxon& taxon)
{
    constexpr int kTooMany = 4;
    int found = 0;
    int last = 0;
    for (int number = 0; number < slot::count; ++number) {
        if (holds(taxon, number, kQuestionMark)) {
            ++found;
            last = number;
        }
    }
    return found < kTooMany ? 0 : last;
}

} // namespace

int Taxon::normaliseQualifiers()
{
    for (int number = 0; number < slot::count; ++number) {
        if (!isQualifier(number) || !has(number))
            continue;
        const std::optional<std::string> words = normalised(field(number), slotRule(number));
        if (!words)
            return number;
        setField(number, *words);
    }
    return 0;
}

int Taxon::checkQualifiers()
{
    if (const int faulty = normaliseQualifiers())
        return faulty;
    if (const int faulty = faultyQuote(*this))
        return faulty;
    return faultyQuestionMark(*this);
}
