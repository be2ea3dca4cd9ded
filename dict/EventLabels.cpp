// dict/EventLabels.cpp
#include "dict/EventLabels.h"

#include "db/CurrentUser.h"
#include "db/Preferences.h"

#include <string>

FixedText<19> eventTopPrefix;
FixedText<19> eventBasePrefix;

namespace {

void load(FixedText<19>& prefix, const char* key, const char* missing)
{
    char text[20];
    prefix = prefGet(currentUserId, key, text, sizeof text) ? text : missing;
}

std::string_view prefixOf(char kind)
{
    if (kind == 'F')
        return eventTopPrefix.view();
    return kind == 'L' ? eventBasePrefix.view() : std::string_view();
}

} // namespace

void loadEventPrefixes()
{
    load(eventTopPrefix, "TOPPFX", "Top of ");
    load(eventBasePrefix, "BASEPFX", "Base of ");
}

void eventLabel(char* out, char kind, std::string_view name)
{
    std::string text(prefixOf(kind));
    if (!text.empty() && text.back() != ' ')
        text += ' '; // reading a preference drops its trailing blank
    text += name;
    out[text.copy(out, kEventLabelRoom - 1)] = '\0';
}
