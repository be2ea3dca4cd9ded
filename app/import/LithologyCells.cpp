// app/import/LithologyCells.cpp
#include "app/import/LithologyCells.h"

#include "util/TextUtil.h"

#include <algorithm>
#include <charconv>

namespace {

struct Kind {
    char letter;
    std::string_view word;
};
constexpr Kind kKinds[] = {
    {'N', "main"}, {'A', "accessory"}, {'Q', "qualifier"}, {'S', "stringer"}};

} // namespace

char lithologyKind(std::string_view cell)
{
    const auto kind = std::ranges::find_if(kKinds, [=](const Kind& known) {
        return compareIgnoringCase(cell, known.word) == 0
            || compareIgnoringCase(cell, {&known.letter, 1}) == 0;
    });
    return kind == std::end(kKinds) ? char{0} : kind->letter;
}

long lithologyCode(std::string_view cell)
{
    int code = 0;
    const char* const end = cell.data() + cell.size();
    const auto [stop, failure] = std::from_chars(cell.data(), end, code);
    return failure == std::errc() && stop == end ? code : 0;
}

LithologyEntry* readLithology(CellReader& cells, int code, int name, ImportContext& context)
{
    Interpretation& all = context.interpretation;
    const std::string number(cells.raw(code));
    LithologyEntry* entry = all.numberedLithologies.find(cells.file().set, number);
    std::string text;
    if (entry || cells.key(name, &text) != Cell::Good)
        return entry;
    entry = all.lithologies.find(text);
    if (entry)
        return entry;
    cells.report().noteOnce(
        "", "", "rocks that the lithology dictionary does not have become rocks of it");
    return all.lithologies.add(text, lithologyCode(number));
}
