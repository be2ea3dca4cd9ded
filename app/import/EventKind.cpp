// app/import/EventKind.cpp
#include "app/import/EventKind.h"

#include "util/TextUtil.h"

#include <algorithm>

namespace {

struct KindWord {
    std::string_view word;
    EventKind kind;
};
constexpr KindWord kWords[] = {{"f", {'F', false, false}}, {"top", {'F', false, false}},
    {"fdo", {'F', false, false}}, {"l", {'L', false, false}}, {"base", {'L', false, false}},
    {"ldo", {'L', false, false}}, {"lo", {'F', false, true}}, {"lad", {'F', false, true}},
    {"ho", {'F', false, true}}, {"fo", {'L', false, true}}, {"fad", {'L', false, true}},
    {"lco", {'F', true, true}}, {"lcad", {'F', true, true}}, {"fco", {'L', true, true}},
    {"fcad", {'L', true, true}}};

} // namespace

std::optional<EventKind> eventKindOf(std::string_view written)
{
    const auto word = std::ranges::find(kWords, lowerCased(written), &KindWord::word);
    return word == std::end(kWords) ? std::nullopt : std::optional(word->kind);
}
