// taxonomy/Taxon.cpp
#include "taxonomy/Taxon.h"

#include "taxonomy/TaxonIndex.h"
#include "taxonomy/TextArgument.h"
#include "util/TextUtil.h"

#include <initializer_list>

namespace {

constexpr std::size_t kLongTextCapacity = 240; // the longest that the dictionary keeps

std::string cutLongText(std::string_view text)
{
    return std::string(utf8Prefix(text, kLongTextCapacity));
}

std::string extended(const std::optional<std::string>& text, const char* more)
{
    return cutLongText(text.value_or("").append(orEmpty(more)));
}

int carriesAnyOf(const Taxon& taxon, std::initializer_list<std::string_view> marks)
{
    for (const std::string_view mark : marks) {
        if (containsIgnoringCase(taxon.species(), mark)
            || containsIgnoringCase(taxon.subspecies(), mark))
            return 1;
    }
    return 0;
}

} // namespace

int showTaxonCodes = 0;
int altColumnNames = 0;

void clearShowTaxonCodes() { showTaxonCodes = 0; }

Taxon& Taxon::operator=(const Taxon& other)
{
    if (this == &other)
        return *this;
    slots_ = other.slots_;
    year = other.year;
    sipm_code = other.sipm_code;
    ccode = other.ccode;
    alphaCode = other.alphaCode;
    references_ = other.references_;
    notes_ = other.notes_;
    gen_id = other.gen_id;
    spec_id_ = other.spec_id_;
    donor_id = other.donor_id;
    preferred_ = other.preferred_;
    changed();
    return *this;
}

void Taxon::changed()
{
    if (listed_)
        TaxonIndex::noteChange();
}

void Taxon::setField(int number, std::string_view text)
{
    slots_.set(number, text);
    changed();
}

void Taxon::setField(int number, const char* text) { setField(number, orEmpty(text)); }

void Taxon::setSpecId(long spec_id)
{
    spec_id_ = spec_id;
    changed();
}

void Taxon::setAlphaCode(const char* text) { alphaCode = orEmpty(text); }

std::string Taxon::alphaCodeText(int afterColon) const
{
    const std::size_t colon = alphaCode.find(':');
    if (!afterColon || colon == std::string::npos)
        return alphaCode;
    return alphaCode.substr(colon + 1);
}

void Taxon::setReferences(const char* text) { references_ = cutLongText(orEmpty(text)); }
void Taxon::addReferences(const char* text) { references_ = extended(references_, text); }
void Taxon::setNotes(const char* text) { notes_ = cutLongText(orEmpty(text)); }
void Taxon::addNotes(const char* text) { notes_ = extended(notes_, text); }

int Taxon::makeSpp()
{
    const std::string_view word = species();
    if (word != "sp." && word != "SP." && word != "sp" && word != "SP")
        return 0;
    setField(slot::species, "spp.");
    return 1;
}

void Taxon::setSpeciesPart(const char* text)
{
    if (orEmpty(text) == "spp.") {
        setField(slot::preSpecies, "");
        setField(slot::species, "spp.");
        setField(slot::subspecies, "");
    } else {
        setField(slot::preSpecies, text);
    }
    for (const int behind :
        {slot::postSpecies, slot::preSubspecies, slot::postSubspecies, slot::author})
        setField(behind, "");
    year = 0;
    setSpecId(0);
}

int Taxon::hasCoilingMark() const { return carriesAnyOf(*this, {"SIN", "DEX", "(S)", "(D)"}); }
int Taxon::isSinistral() const { return carriesAnyOf(*this, {"SIN", "(S)"}); }
int Taxon::isDextral() const { return carriesAnyOf(*this, {"DEX", "(D)"}); }
