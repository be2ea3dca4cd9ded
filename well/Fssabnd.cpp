// well/Fssabnd.cpp
#include "well/Fssabnd.h"

#include "dict/AbundanceSchemes.h"

#include <span>

namespace {

bool meansCaved(char c) { return c == 'Y' || c == 'y' || c == 'C' || c == 'c'; }

/// An unset split factor is 0 in the database and must not wipe the count out.
double usedFactor(float factor)
{
    constexpr float kLeastFactor = 0.0001f;
    return factor > kLeastFactor ? double(factor) : 1.0;
}

struct Word {
    char code;
    const char* text;
};

/// The first word is the one for unknown codes.
const char* wordFor(std::span<const Word> words, char code)
{
    for (const Word& word : words) {
        if (word.code == code)
            return word.text;
    }
    return words.front().text;
}

} // namespace

Fssabnd::Fssabnd(long sampId, long specId, char statusCode, char identType, const char* abundCode,
    long mediumCount, char cavedCode, long markerFlag, char conditionCode, char maturityCode)
    : samp_id(sampId)
    , spec_id(specId)
    , status(statusCode == 'R' ? 'R' : 'I')
    , ident_type(identType == '?' ? '?' : 'P')
    , abund(abundCode)
    , medium(mediumCount)
    , caved(meansCaved(cavedCode) ? 'C' : ' ')
    , marker(markerFlag)
    , condition(conditionCode)
    , maturity(maturityCode)
{
}

void Fssabnd::SetCounts(long coarseCount, long fineCount)
{
    coarse = coarseCount;
    fine = fineCount;
    saved = 0;
}

void Fssabnd::SetMedium(long count)
{
    medium = count;
    saved = 0;
}

void Fssabnd::SetCoarse(long count) { SetCounts(count, fine); }

void Fssabnd::SetFine(long count) { SetCounts(coarse, count); }

void Fssabnd::SetAbund(const char* code)
{
    abund = code;
    saved = 0;
}

void Fssabnd::SetMarker(long flag)
{
    marker = flag;
    saved = 0;
}

void Fssabnd::SetTexts(const char* preservText, const char* colourText, const char* commentsText)
{
    const auto take = [](RareText& field, const char* text) {
        if (text && *text)
            field = text;
    };
    take(preserv, preservText);
    take(colour, colourText);
    take(comments, commentsText);
    saved = 0;
}

const char* Fssabnd::Text() const
{
    static ResultText result;
    return result.keep(std::string("Status: ") + status + ",Type " + ident_type + ", " + abund.str()
        + ", Counts: " + std::to_string(medium) + ", SIPM: " + std::to_string(sipm));
}

const char* Fssabnd::AbundanceText(long scheme, int useScheme) const
{
    static ResultText result;
    const bool byCount = abund.empty() && medium != 0 && useScheme;
    return result.keep(byCount ? cachedAbrForCount(medium, scheme) : abund.str());
}

long Fssabnd::CountValue(long scheme) const
{
    if (medium != 0 || coarse != 0 || fine != 0)
        return medium + coarse + fine;
    return abund.empty() ? 0 : cachedValueForAbr(abund, scheme);
}

long Fssabnd::Count(long scheme, float fCoarse, float fMedium, float fFine) const
{
    const bool counted = medium != 0 || coarse != 0 || fine != 0;
    return counted ? WeightedCount(fCoarse, fMedium, fFine) : CountValue(scheme);
}

long Fssabnd::WeightedCount(float fCoarse, float fMedium, float fFine) const
{
    return static_cast<long>(double(coarse) * usedFactor(fCoarse)
        + double(medium) * usedFactor(fMedium) + double(fine) * usedFactor(fFine));
}

int Fssabnd::SameRecord(const Fssabnd& o) const
{
    return spec_id == o.spec_id && samp_id == o.samp_id && status == o.status
        && ident_type == o.ident_type && condition == o.condition && maturity == o.maturity;
}

void Fssabnd::Merge(const Fssabnd& o)
{
    medium += o.medium;
    coarse += o.coarse;
    fine += o.fine;
    if (o.isCaved())
        caved = o.caved;
    if (o.marker != 0)
        marker = 1;
    if (abund.empty())
        abund = o.abund;
}

const char* Fssabnd::ConditionText() const
{
    static constexpr Word kWords[] = {
        {'C', "Component"}, {'E', "Entire"}, {'B', "Broken"}, {'F', "Fragment"}};
    return wordFor(kWords, condition);
}

const char* Fssabnd::MaturityText() const
{
    static constexpr Word kWords[] = {{'A', "Adult"}, {'J', "Juvenile"}};
    return wordFor(kWords, maturity);
}

bool countsForRange(const Fssabnd& o, int mode, int exclude)
{
    switch (mode) {
    case 1:
        return !(exclude && o.isReworked());
    case 2:
        return !(exclude && o.isCaved());
    default:
        return mode > 2;
    }
}
