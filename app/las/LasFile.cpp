// app/las/LasFile.cpp
#include "app/las/LasFile.h"

#include "util/TextUtil.h"

#include <algorithm>

bool LasSection::isData() const
{
    constexpr std::string_view kEnd = "_DATA";
    const std::string upper = upperCased(title);
    return upper == "ASCII" || upper == "A"
        || (upper.size() > kEnd.size() && upper.ends_with(kEnd));
}

const LasItem* LasSection::item(std::string_view mnemonic) const
{
    const auto found = std::find_if(items.begin(), items.end(),
        [=](const LasItem& item) { return compareIgnoringCase(item.mnemonic, mnemonic) == 0; });
    return found == items.end() ? nullptr : &*found;
}

const LasSection* LasFile::section(std::string_view title) const
{
    const auto found = std::find_if(sections.begin(), sections.end(),
        [=](const LasSection& one) { return compareIgnoringCase(one.title, title) == 0; });
    return found == sections.end() ? nullptr : &*found;
}
