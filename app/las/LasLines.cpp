// app/las/LasLines.cpp
#include "app/las/LasLines.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace {

using std::string_view;

bool isBlank(char c) { return c == ' ' || c == '\t'; }

string_view stripped(string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

bool hasBlank(string_view text) { return std::any_of(text.begin(), text.end(), isBlank); }

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// What stands in front of `mark`, which it leaves behind together with the mark.
string_view takeBefore(string_view* text, std::size_t mark)
{
    const string_view before = text->substr(0, mark);
    text->remove_prefix(mark + 1);
    return before;
}

std::string readAssociations(string_view text, std::vector<std::string>* names)
{
    while (true) {
        const std::size_t comma = text.find(',');
        const string_view name = stripped(text.substr(0, comma));
        if (name.empty() || hasBlank(name))
            return "an association behind \"|\" is empty or has a blank inside";
        names->emplace_back(name);
        if (comma == string_view::npos)
            return {};
        text.remove_prefix(comma + 1);
    }
}

// Description, "{FORMAT}" and "| ASSOCIATIONS", of which the last two may be missing.
std::string readDescription(string_view text, LasItem* item)
{
    std::string problem;
    if (const std::size_t bar = text.find('|'); bar != string_view::npos) {
        problem = readAssociations(text.substr(bar + 1), &item->associations);
        text = text.substr(0, bar);
    }
    text = stripped(text);
    if (const std::size_t open = text.find('{'); open != string_view::npos) {
        if (text.back() != '}' || text.find('}') != text.size() - 1)
            return "\"{\" without a \"}\" at the end";
        item->format = stripped(text.substr(open + 1, text.size() - open - 2));
        if (!isKnownFormat(item->format))
            return "unknown format {" + item->format + "}";
        text = stripped(text.substr(0, open));
    }
    if (text.find_first_of("{}") != string_view::npos)
        return "a brace that belongs to no format";
    item->description = text;
    return problem;
}

std::string readQuoted(string_view* line, std::string* field)
{
    line->remove_prefix(1);
    const std::size_t end = line->find('"');
    if (end == string_view::npos)
        return "a quote that is never closed";
    *field = takeBefore(line, end);
    return {};
}

std::string readBare(string_view* line, char delimiter, std::string* field)
{
    const std::size_t end = std::min(line->find(delimiter), line->size());
    const string_view text = stripped(line->substr(0, end));
    if (text.find('"') != string_view::npos)
        return "a quote inside a field";
    *field = text;
    line->remove_prefix(end);
    return {};
}

void skipBlanks(string_view* line, char delimiter)
{
    while (!line->empty() && isBlank(line->front()) && line->front() != delimiter)
        line->remove_prefix(1);
}

bool isNumber(string_view text)
{
    double value = 0;
    if (text.starts_with('+'))
        text.remove_prefix(1);
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size()
        && text.find_first_of("nN") == string_view::npos; // neither "nan" nor "inf"
}

bool isWhole(string_view text)
{
    if (text.starts_with('-') || text.starts_with('+'))
        text.remove_prefix(1);
    return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

bool isDatePattern(string_view format)
{
    return format.size() >= 4 && format.find_first_not_of("DMYhms/-: ") == string_view::npos
        && format.find_first_of("DMY") != string_view::npos;
}

// A digit for each letter, and the pattern's own marks.
bool fitsPattern(string_view text, string_view pattern)
{
    return std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(), [](char c, char p) {
        return std::isalpha(static_cast<unsigned char>(p)) ? isDigit(c) : c == p;
    });
}

// "F", "F10", "F10.4".
bool isLetterWithWidth(string_view format, string_view letters)
{
    return !format.empty() && letters.find(format.front()) != string_view::npos
        && format.find_first_not_of("0123456789.", 1) == string_view::npos;
}

} // namespace

std::string readItem(string_view line, LasItem* item)
{
    const std::size_t colon = line.rfind(':', line.find('|'));
    const std::size_t dot = line.find('.');
    if (dot == string_view::npos || colon == string_view::npos || dot > colon)
        return "not of the form MNEM.UNIT VALUE : DESCRIPTION";
    string_view head = line.substr(0, colon);
    item->mnemonic = stripped(takeBefore(&head, dot));
    if (item->mnemonic.empty() || hasBlank(item->mnemonic))
        return "a mnemonic is empty or has a blank inside";
    if (item->mnemonic.find_first_of(":{}|\"~") != std::string::npos)
        return "a mnemonic holds one of : { } | \" ~";
    const auto unitEnd = std::find_if(head.begin(), head.end(), isBlank);
    item->unit = string_view(head.begin(), unitEnd);
    item->value = stripped(string_view(unitEnd, head.end()));
    if ((item->unit + item->value).find_first_of(":{}|") != std::string::npos)
        return "a unit or value holds one of : { } |";
    return readDescription(line.substr(colon + 1), item);
}

std::string readTitle(string_view line, LasSection* section)
{
    string_view title = line.substr(1);
    if (const std::size_t bar = title.find('|'); bar != string_view::npos) {
        section->association = stripped(title.substr(bar + 1));
        title = title.substr(0, bar);
        if (section->association.empty() || hasBlank(section->association))
            return "the association of a section is empty or has a blank inside";
    }
    title = stripped(title);
    section->title = title;
    if (title.empty() || hasBlank(title))
        return "the title of a section is empty or has a blank inside";
    return {};
}

std::string readRow(string_view line, char delimiter, std::vector<std::string>* fields)
{
    if (delimiter == ' ')
        line = stripped(line);
    while (true) {
        skipBlanks(&line, delimiter);
        std::string& field = fields->emplace_back();
        const std::string problem =
            line.starts_with('"') ? readQuoted(&line, &field) : readBare(&line, delimiter, &field);
        if (!problem.empty())
            return problem;
        skipBlanks(&line, delimiter);
        if (line.empty())
            return {};
        if (line.front() != delimiter)
            return "text between a quote and the next delimiter";
        line.remove_prefix(1);
        while (delimiter == ' ' && line.starts_with(' '))
            line.remove_prefix(1);
    }
}

bool isKnownFormat(string_view format)
{
    return format == "S" || isLetterWithWidth(format, "FIE") || isDatePattern(format);
}

std::string formProblem(string_view text, string_view format)
{
    if (text.empty() || format.empty() || format == "S")
        return {};
    const bool fits = isDatePattern(format) ? fitsPattern(text, format)
        : format.front() == 'I'             ? isWhole(text)
                                            : isNumber(text);
    return fits ? ""
                : '"' + std::string(text) + "\" is not of the form {" + std::string(format) + '}';
}
