// taxonomy/TaxonDisplay.cpp
#include "taxonomy/Taxon.h"
#include "util/TextUtil.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace {

constexpr std::size_t kLongestName = 255;
constexpr char kItalicSwitch = '\\';
constexpr std::string_view kSpeciesGroup = "spp.";

bool holdsMark(std::string_view text)
{
    return text.find(kQuoteMark) != std::string_view::npos
        || text.find(kQuestionMark) != std::string_view::npos;
}

std::string_view firstLetter(std::string_view text) { return text.substr(0, utf8Length(text)); }

/// Composes a name slot by slot. What later slots look at is kept here: whether the text so far
/// ends in italics, whether the name part in front of a qualifier is there, and whether the author
/// is to be shown, which qualifiers on the way can demand.
class NameComposer {
public:
    NameComposer(const Taxon& taxon, bool showAuthor, bool italicMarks, bool abbreviateGenus)
        : taxon_(taxon)
        , showAuthor_(showAuthor)
        , italicMarks_(italicMarks)
        , abbreviateGenus_(abbreviateGenus)
    {
    }

    std::string composeBehind(std::string start)
    {
        result_ = std::move(start);
        for (int number = slot::preGenus; number <= slot::author; ++number)
            append(shaped(number));
        if (showAuthor_ && taxon_.year != 0)
            result_ += std::to_string(taxon_.year);
        result_.resize(trimmedRight(result_).size());
        return std::move(result_);
    }

private:
    void append(const std::string& text)
    {
        if (italicMarks_ && switchPending_) {
            result_ += kItalicSwitch;
            switchPending_ = false;
        }
        result_ += text;
    }

    void setItalic(bool italic)
    {
        switchPending_ = switchPending_ || italic != italic_;
        italic_ = italic;
    }

    std::string shaped(int number)
    {
        const std::string text(trimmedRight(taxon_.field(number)));
        switch (slotRule(number).kind) {
        case SlotKind::PreQualifier:
            return preQualifier(lowerCased(text));
        case SlotKind::Genus:
            return genus(text);
        case SlotKind::Subgenus:
            return subgenus(text);
        case SlotKind::Species:
            return species(text);
        case SlotKind::PostQualifier:
            return postQualifier(number, lowerCased(text));
        case SlotKind::Author:
            return author(text);
        case SlotKind::Category:
            break;
        }
        return {};
    }

    std::string preQualifier(std::string text)
    {
        if (text.empty())
            return text;
        showAuthor_ = true; // a doubted name is told apart by whose name is meant
        setItalic(false);
        return holdsMark(text) ? text : text + ' ';
    }

    std::string genus(std::string text)
    {
        partPresent_ = !text.empty();
        if (!partPresent_)
            return text;
        setItalic(true);
        if (abbreviateGenus_ && taxon_.species() != kSpeciesGroup)
            return std::string(firstLetter(text)) + '.';
        return text;
    }

    std::string subgenus(std::string text)
    {
        partPresent_ = !text.empty();
        if (!partPresent_)
            return text;
        setItalic(true);
        return '(' + text + ')';
    }

    std::string species(std::string text)
    {
        partPresent_ = !text.empty();
        if (partPresent_)
            setItalic(!text.starts_with("sp.") && !text.starts_with(kSpeciesGroup));
        return text;
    }

    std::string postQualifier(int number, std::string text)
    {
        const bool ofSpecies = number == slot::postSpecies || number == slot::postSubspecies;
        if (ofSpecies && text.find(qualifier::sensu.text) != std::string::npos)
            showAuthor_ = true; // in whose sense
        if (!text.empty()) {
            setItalic(false);
            if (!holdsMark(text))
                result_ += ' '; // in front of the switch, with the name part's italics
        }
        return partPresent_ ? text + ' ' : text;
    }

    std::string author(std::string text)
    {
        if (!showAuthor_)
            return {};
        setItalic(false);
        result_ += ' ';
        return text + ' ';
    }

    const Taxon& taxon_;
    bool showAuthor_;
    const bool italicMarks_;
    const bool abbreviateGenus_;
    std::string result_;
    bool italic_ = false;
    bool switchPending_ = false;
    bool partPresent_ = false;
};

/// The four digits behind the code system's own prefix of four.
std::string codeText(long code)
{
    char digits[32];
    std::snprintf(digits, sizeof digits, "%08ld", code);
    return std::string(digits + 4) + ' ';
}

std::string placeholder(const Taxon& taxon)
{
    if (taxon.spec_id() != 0)
        return "*** No taxon in database for id: " + std::to_string(taxon.spec_id()) + " ***";
    if (taxon.donor_id != 0)
        return "*** No donor taxon for donor id: " + std::to_string(taxon.donor_id) + " ***";
    return "*** No taxon defined ***";
}

std::string cutName(std::string_view name) { return std::string(utf8Prefix(name, kLongestName)); }

/// `text` with what fits of `more` in `limit` bytes.
std::string filledUp(std::string text, std::string_view more, std::size_t limit)
{
    if (text.size() < limit)
        text += utf8Prefix(more, limit - text.size());
    return text;
}

bool hasPreQualifier(const Taxon& taxon)
{
    for (int number = 0; number < slot::count; ++number) {
        if (slotRule(number).kind == SlotKind::PreQualifier && taxon.has(number))
            return true;
    }
    return false;
}

} // namespace

const char* Taxon::displayName(int showAuthor, int italicMarks, int abbreviateGenus, int withCode)
{
    static ResultText result;
    const std::string start = showTaxonCodes && withCode ? codeText(sipmCode(1)) : "";
    NameComposer composer(*this, showAuthor != 0, italicMarks != 0, abbreviateGenus != 0);
    const std::string name = composer.composeBehind(start);
    return result.keep(name.empty() ? placeholder(*this) : cutName(name));
}

const char* Taxon::shortName(int maxLen)
{
    static ResultText result;
    const std::string whole = displayName(0, 0, 0, 1);
    const auto limit = static_cast<std::size_t>(std::max(maxLen, 0));
    if (whole.size() <= limit)
        return result.keep(whole);
    std::string text = field(slot::preGenus);
    if (species() == kSpeciesGroup)
        return result.keep(cutName(filledUp(std::move(text), genus(), limit)));
    text.append(firstLetter(genus())).append(".").append(field(slot::preSpecies));
    return result.keep(cutName(filledUp(std::move(text), species(), limit)));
}

void Taxon::authorYearText(char* out, int always) const
{
    std::string text;
    if (always || !hasPreQualifier(*this)) {
        if (has(slot::author))
            text.append(" ").append(author()).append(" ");
        char digits[16];
        std::snprintf(digits, sizeof digits, "%4d", year);
        if (year != 0)
            text += digits;
    }
    std::memcpy(out, text.c_str(), text.size() + 1);
}
