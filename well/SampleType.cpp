// well/SampleType.cpp
#include "well/SampleType.h"

#include "util/TextUtil.h"

#include <algorithm>
#include <array>
#include <string>

namespace {

// A type bit follows from the place here.
constexpr std::array<std::string_view, 5> kCodes = {"CU", "SC", "CO", "OC", "LOG"};

struct Alias {
    std::string_view entered;
    std::string_view code;
};
constexpr Alias kAliases[] = {{"WDC", "CU"}, {"DDC", "CU"}, {"SWC", "SC"}};

} // namespace

long sampleTypeBit(std::string_view code)
{
    const auto found = std::find(kCodes.begin(), kCodes.end(), code);
    return found == kCodes.end() ? 0 : 1L << (found - kCodes.begin());
}

std::string_view knownSampleType(std::string_view code)
{
    const auto found = std::find(kCodes.begin(), kCodes.end(), code);
    return found == kCodes.end() ? kDefaultSampleType : *found;
}

std::string_view storedSampleType(std::string_view text)
{
    const std::string code = upperCased(text);
    return knownSampleType(trimmedRight(code));
}

std::string_view enteredSampleType(std::string_view text)
{
    const std::string code = upperCased(text);
    if (code.starts_with("CO"))
        return "CO";
    const auto alias = std::find_if(std::begin(kAliases), std::end(kAliases),
        [&code](const Alias& a) { return a.entered == code; });
    return alias == std::end(kAliases) ? knownSampleType(code) : alias->code;
}
