// app/tables/SplitComments.cpp
#include "app/tables/SplitComments.h"

#include "app/tables/NamedNotes.h"
#include "app/tables/TableFile.h"

namespace {

std::optional<std::string> field(const NamedNotes& notes, std::string_view name)
{
    const std::string_view value = notes.value(name);
    return value.empty() ? std::nullopt : std::optional<std::string>(value);
}

} // namespace

SplitComments splitComments(const std::optional<std::string>& comments)
{
    if (comments) {
        const NamedNotes notes = namedNotesOf(*comments);
        SplitComments parts{field(notes, kSplitNames[0]), field(notes, kSplitNames[1]), {}};
        if (!notes.text.empty())
            parts.text = notes.text;
        if (joinedComments(parts) == comments)
            return parts;
    }
    return {{}, {}, comments};
}

std::optional<std::string> joinedComments(const SplitComments& parts)
{
    if (!parts.abundance && !parts.percent)
        return parts.text;
    NamedNotes notes;
    notes.add(kSplitNames[0], parts.abundance.value_or(""));
    notes.add(kSplitNames[1], parts.percent.value_or(""));
    notes.text = parts.text.value_or("");
    return notes.compose();
}
