// app/import/TaxonMarks.cpp
#include "app/import/TaxonMarks.h"

#include "taxonomy/TaxonSlots.h"

#include <algorithm>

namespace {

struct Spelling {
    std::string_view written;
    std::string_view word;
};
// A spelling that another one begins with stands behind it.
constexpr Spelling kWords[] = {
    {"cf.", qualifier::cf.text},
    {"cf", qualifier::cf.text},
    {"aff.", qualifier::aff.text},
    {"aff", qualifier::aff.text},
    {"var.", qualifier::var.text},
    {"var", qualifier::var.text},
    {"(?)", qualifier::question.text},
    {"grp.", qualifier::grp.text},
    {"grp", qualifier::grp.text},
    {"gr.", qualifier::grp.text},
    {"gr", qualifier::grp.text},
    {"group", qualifier::grp.text},
    {"s.l.", qualifier::sl.text},
    {"s.l", qualifier::sl.text},
    {"sl.", qualifier::sl.text},
    {"sl", qualifier::sl.text},
    {"sensu lato", qualifier::sl.text},
    {"s.s.", qualifier::ss.text},
    {"s.s", qualifier::ss.text},
    {"s.str.", qualifier::ss.text},
    {"ss.", qualifier::ss.text},
    {"ss", qualifier::ss.text},
    {"sensu stricto", qualifier::ss.text},
    {"sensu", qualifier::sensu.text},
};

Mark singleMark(char c)
{
    if (c == kQuestionMark)
        return {qualifier::question.text, 1};
    if (c == kQuoteMark)
        return {qualifier::quote.text, 1};
    return {};
}

} // namespace

Mark leadingMark(std::string_view text)
{
    if (text.empty())
        return {};
    for (const auto& [written, word] : kWords)
        if (text.starts_with(written)
            && (text.size() == written.size() || text[written.size()] == ' '))
            return {word, written.size()};
    return singleMark(text.front());
}

Mark trailingMark(std::string_view text)
{
    if (text.empty())
        return {};
    for (const auto& [written, word] : kWords)
        if (text.ends_with(written)
            && (text.size() == written.size() || text[text.size() - written.size() - 1] == ' '))
            return {word, written.size()};
    return singleMark(text.back());
}

std::string_view markOf(std::string_view text)
{
    const Mark mark = leadingMark(text);
    return mark.length == text.size() ? mark.word : std::string_view();
}

bool accepts(int slotNumber, std::string_view word)
{
    return std::ranges::any_of(slotRule(slotNumber).words,
        [word](const QualifierWord& known) { return known.text == word; });
}

std::string withQuoteMarks(std::string_view name)
{
    std::string text(name);
    if (text.size() > 2 && text.front() == '\'' && text.back() == '\'')
        text.front() = text.back() = kQuoteMark;
    return text;
}

bool isUnnamedSpecies(std::string_view species)
{
    return species == "sp" || species.starts_with("sp.") || species.starts_with("sp ");
}
