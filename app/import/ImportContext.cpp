// app/import/ImportContext.cpp
#include "app/import/ImportContext.h"

std::string RowPlace::seenFrom(const InputFile& other) const
{
    const std::string number = std::to_string(line);
    return file == &other ? "line " + number : file->name + ':' + number;
}

bool ImportContext::storedWell(const std::string& code, StoredWell* out)
{
    return stored_.find(code, out);
}

void ImportContext::announceWell(const std::string& code, const KnownWell& well)
{
    wells_[storedText(code)] = well;
}

bool ImportContext::findWell(const std::string& code, const KnownWell** out)
{
    *out = nullptr;
    auto known = wells_.find(storedText(code));
    if (known == wells_.end()) {
        StoredWell stored;
        if (!storedWell(code, &stored))
            return false;
        // Without an identifier there is nothing that a row could refer to.
        const auto well = stored.id == 0
            ? std::nullopt
            : std::optional(KnownWell{stored.id, stored.type(), stored.units()});
        known = wells_.emplace(storedText(code), well).first;
    }
    if (known->second)
        *out = &*known->second;
    return true;
}

FileIds& ImportContext::ids(std::string_view shape, const std::string& set)
{
    return ids_[{std::string(shape), set}];
}
