// app/las/LasText.cpp
#include "app/las/LasText.h"

#include "store/Value.h"
#include "util/FixedText.h"
#include "util/TextUtil.h"

namespace {

/// A character that a place cannot hold, what it becomes, and what people are told.
struct Exchange {
    char from;
    char to;
    const char* why;
};
constexpr Exchange kInValues[] = {
    {':', ';', "a colon became a semicolon"},
    {'|', '/', "a bar became a slash"},
    {'{', '(', "braces became brackets"},
    {'}', ')', "braces became brackets"},
};
constexpr Exchange kInFields[] = {
    {'"', '\'', "a quotation mark became an apostrophe"},
};
constexpr const char* kBreak = "a line break or tab became a blank";
constexpr const char* kNoText = "a byte that is no text became a question mark";

class Writing {
public:
    void add(std::string_view character, const auto& exchanges)
    {
        if (character.size() > 1) {
            text += character;
            return;
        }
        const char c = character.front();
        for (const Exchange& exchange : exchanges) {
            if (c == exchange.from)
                return put(exchange.to, exchange.why);
        }
        const auto byte = static_cast<unsigned char>(c);
        if (byte < ' ')
            return put(' ', kBreak);
        byte > '~' ? put('?', kNoText) : text.push_back(c);
    }

    std::string text;
    std::string whys; ///< each once, with "; " between

private:
    void put(char c, const char* why)
    {
        text += c;
        if (whys.find(why) == std::string::npos)
            whys += (whys.empty() ? "" : "; ") + std::string(why);
    }
};

// A line that begins with "~" or "#" is no row, whatever it holds.
bool needsQuotes(std::string_view field)
{
    return field.find(',') != std::string_view::npos || field.starts_with('~')
        || field.starts_with('#');
}

} // namespace

std::string LasText::written(std::string_view mnemonic, std::string_view stored, Place place)
{
    const std::string shown = shownText(stored);
    Writing writing;
    for (std::string_view rest = trimmedRight(trimmedLeft(shown)); !rest.empty();) {
        const std::string_view character = rest.substr(0, utf8Length(rest));
        place == Place::Value ? writing.add(character, kInValues)
                              : writing.add(character, kInFields);
        rest.remove_prefix(character.size());
    }
    if (!writing.whys.empty())
        changes_.push_back(std::string(mnemonic) + " \"" + writing.text + "\": " + writing.whys);
    return writing.text;
}

std::string LasText::value(std::string_view mnemonic, std::string_view stored)
{
    return written(mnemonic, stored, Place::Value);
}

std::string LasText::field(std::string_view mnemonic, std::string_view stored)
{
    const std::string text = written(mnemonic, stored, Place::Field);
    return needsQuotes(text) ? '"' + text + '"' : text;
}
