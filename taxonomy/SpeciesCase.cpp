// taxonomy/SpeciesCase.cpp
#include "taxonomy/SpeciesCase.h"

#include "util/TextUtil.h"

#include <string_view>

namespace {

void replaceFirst(std::string& text, std::string_view from, std::string_view to)
{
    const std::size_t at = text.find(from);
    if (at != std::string::npos)
        text.replace(at, from.size(), to);
}

} // namespace

void fixSpeciesCase(std::string& text)
{
    text = lowerCased(text);
    constexpr std::string_view kUndetermined = "sp.";
    if (text.starts_with(kUndetermined)) {
        const std::size_t behind = kUndetermined.size();
        text.replace(behind, std::string::npos, upperCased(text.substr(behind)));
    }
    replaceFirst(text, " spt ", " SPT ");
    replaceFirst(text, " ssi ", " SSI ");
    replaceFirst(text, " rri ", " RRI ");
    replaceFirst(text, " ms ", " MS ");
}
