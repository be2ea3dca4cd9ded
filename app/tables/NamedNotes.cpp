// app/tables/NamedNotes.cpp
#include "app/tables/NamedNotes.h"

#include <algorithm>
#include <optional>

namespace {

constexpr std::string_view kBetween = "; ";
constexpr std::string_view kTextField = "note";

bool isNameLetter(char c) { return (c >= 'a' && c <= 'z') || c == '_'; }

// Takes "name=" off the front.
std::optional<std::string> takeName(std::string_view* rest)
{
    const auto end = std::ranges::find_if_not(*rest, isNameLetter);
    const auto length = static_cast<std::size_t>(end - rest->begin());
    if (length == 0 || end == rest->end() || *end != '=')
        return std::nullopt;
    std::string name(rest->substr(0, length));
    rest->remove_prefix(length + 1);
    return name;
}

// From behind the opening quotation mark to behind the closing one.
std::string takeQuoted(std::string_view* rest)
{
    std::string value;
    while (!rest->empty()) {
        const char c = rest->front();
        rest->remove_prefix(1);
        const bool doubled = c == '"' && rest->starts_with('"');
        if (c == '"' && !doubled)
            break;
        value += c;
        if (doubled)
            rest->remove_prefix(1);
    }
    return value;
}

std::string takeValue(std::string_view* rest)
{
    std::string value;
    if (rest->starts_with('"')) {
        rest->remove_prefix(1);
        value = takeQuoted(rest);
    } else {
        value = rest->substr(0, rest->find(kBetween));
        rest->remove_prefix(value.size());
    }
    if (rest->starts_with(kBetween))
        rest->remove_prefix(kBetween.size());
    return value;
}

std::string quoted(std::string_view value)
{
    std::string text = "\"";
    for (const char c : value)
        text.append(c == '"' ? 2 : 1, c);
    return text + '"';
}

std::string written(const std::string& value)
{
    const bool bare = value.find_first_of(";\"") == std::string::npos && value.front() != ' '
        && value.back() != ' ';
    return bare ? value : quoted(value);
}

} // namespace

void NamedNotes::add(std::string_view name, std::string_view value)
{
    if (!value.empty())
        fields.emplace_back(name, value);
}

std::string_view NamedNotes::value(std::string_view name) const
{
    const auto found =
        std::ranges::find_if(fields, [&](const auto& field) { return field.first == name; });
    return found == fields.end() ? std::string_view() : found->second;
}

std::string NamedNotes::compose() const
{
    std::string all;
    const auto append = [&all](const std::string& part) {
        all.append(all.empty() ? "" : kBetween).append(part);
    };
    for (const auto& [name, value] : fields)
        append(name + '=' + written(value));
    std::string_view rest = text;
    if (takeName(&rest))
        append(std::string(kTextField) + '=' + written(text));
    else if (!text.empty())
        append(text);
    return all;
}

NamedNotes namedNotesOf(std::string_view stored)
{
    NamedNotes notes;
    while (auto name = takeName(&stored)) {
        std::string value = takeValue(&stored);
        if (*name == kTextField)
            notes.text = std::move(value);
        else
            notes.fields.emplace_back(std::move(*name), std::move(value));
    }
    if (!stored.empty())
        notes.text = stored;
    return notes;
}
