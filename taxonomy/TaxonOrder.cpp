// taxonomy/TaxonOrder.cpp
#include "taxonomy/TaxonOrder.h"

#include "taxonomy/Taxon.h"
#include "util/TextUtil.h"

#include <cstring>
#include <initializer_list>
#include <string_view>

namespace {

/// The first difference between two taxa in the given slots, letter case ignored.
int compareSlots(const Taxon& a, const Taxon& b, std::initializer_list<int> slots)
{
    for (const int number : slots) {
        if (const int difference = compareIgnoringCase(a.field(number), b.field(number)))
            return difference;
    }
    return 0;
}

int compareByGenus(const Taxon& a, const Taxon& b)
{
    return compareSlots(a, b, {slot::genus, slot::species, slot::subspecies});
}

int compareBySpecies(const Taxon& a, const Taxon& b)
{
    return compareSlots(a, b, {slot::species, slot::genus});
}

int compareCategoryBytes(const Taxon& a, const Taxon& b)
{
    return std::strcmp(a.category(), b.category());
}

} // namespace

bool taxonOrder::standsBehind(int mode, const Taxon& listed, const Taxon& inserted)
{
    if (mode == byGenus)
        return compareByGenus(listed, inserted) > 0;
    if (mode == bySpecies)
        return compareBySpecies(listed, inserted) > 0;
    if (compareCategoryBytes(listed, inserted) > 0)
        return true;
    return compareSlots(listed, inserted, {slot::category}) == 0
        && compareByGenus(listed, inserted) > 0;
}

bool taxonOrder::isPlainCategory(const Taxon& taxon)
{
    const std::string_view category = taxon.category();
    return std::none_of(
        category.begin(), category.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

bool taxonOrder::isMisordered(int mode, const Entry& earlier, const Entry& later)
{
    const Taxon& a = *earlier.shown;
    const Taxon& b = *later.shown;
    if (mode == byGenus)
        return compareByGenus(a, b) > 0;
    if (mode == bySpecies)
        return compareBySpecies(a, b) > 0;
    if (mode == byCode)
        return earlier.code > later.code;
    const int category = compareCategoryBytes(a, b);
    return category > 0 || (category == 0 && compareByGenus(a, b) > 0);
}
