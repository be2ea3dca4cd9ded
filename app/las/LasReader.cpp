// app/las/LasReader.cpp
#include "app/las/LasFile.h"

#include "app/las/LasLines.h"
#include "util/FixedText.h"
#include "util/TextUtil.h"

#include <algorithm>
#include <istream>

namespace {

constexpr const char* kVersionItems[] = {"VERS", "WRAP", "DLM"};
// UWI or API beside them.
constexpr const char* kWellItems[] = {
    "STRT", "STOP", "STEP", "NULL", "COMP", "WELL", "FLD", "LOC", "SRVC", "CTRY", "DATE"};
constexpr const char* kIndexItems[] = {"STRT", "STOP", "STEP"};

bool isText(const std::string& line)
{
    for (std::string_view rest = line; !rest.empty();) {
        const std::size_t length = utf8Length(rest);
        const auto byte = static_cast<unsigned char>(rest.front());
        if (length == 1 && ((byte < ' ' && byte != '\t') || byte > '~'))
            return false;
        rest.remove_prefix(length);
    }
    return true;
}

class Reader {
public:
    Reader(std::istream& in, std::vector<std::string>* problems)
        : in_(in)
        , problems_(*problems)
    {
    }

    LasFile read()
    {
        for (std::string line; std::getline(in_, line);)
            take(line);
        checkOrder();
        for (const LasSection& section : file_.sections)
            checkAssociation(section);
        checkPairs();
        return std::move(file_);
    }

private:
    void problem(long line, const std::string& why)
    {
        if (!why.empty())
            problems_.push_back("line " + std::to_string(line) + ": " + why);
    }
    void problem(const std::string& why) { problem(number_, why); }

    void take(std::string& line)
    {
        ++number_;
        if (line.ends_with('\r'))
            line.pop_back();
        if (!isText(line))
            problem("a character that no text has");
        const std::size_t start = line.find_first_not_of(" \t");
        if (line.starts_with('~'))
            return takeTitle(line);
        if (start == std::string::npos || line[start] == '#')
            return;
        if (file_.sections.empty())
            return problem("text in front of the first section");
        LasSection& section = file_.sections.back();
        section.isData() ? takeRow(section, line) : takeItem(section, line);
    }

    void takeTitle(const std::string& line)
    {
        if (file_.sections.size() == 1)
            checkVersion(file_.sections.front());
        if (file_.sections.size() == 2)
            checkWell(file_.sections.back());
        LasSection section;
        section.line = number_;
        problem(readTitle(line, &section));
        if (file_.section(section.title))
            problem("a second section ~" + section.title);
        file_.sections.push_back(std::move(section));
    }

    void takeItem(LasSection& section, const std::string& line)
    {
        LasItem item;
        item.line = number_;
        const std::string why = readItem(line, &item);
        problem(why);
        if (!why.empty())
            return;
        problem(formProblem(item.value, item.format));
        if (section.item(item.mnemonic))
            problem("a second " + item.mnemonic + " in ~" + section.title);
        section.items.push_back(std::move(item));
    }

    void takeRow(LasSection& section, const std::string& line)
    {
        LasRow row;
        row.line = number_;
        problem(readRow(line, delimiter_, &row.fields));
        if (const LasSection* definition = file_.section(section.association))
            checkRow(*definition, row);
        section.rows.push_back(std::move(row));
    }

    void checkRow(const LasSection& definition, const LasRow& row)
    {
        const auto& items = definition.items;
        if (row.fields.size() != items.size())
            return problem(std::to_string(row.fields.size()) + " fields where ~" + definition.title
                + " has " + std::to_string(items.size()));
        for (std::size_t i = 0; i < items.size(); ++i)
            problem(formProblem(row.fields[i], items[i].format));
    }

    void checkVersion(const LasSection& version)
    {
        if (upperCased(version.title) != "VERSION" && upperCased(version.title) != "V")
            problem(version.line, "the first section is not ~Version");
        const auto& items = version.items;
        if (!std::equal(items.begin(), items.end(), std::begin(kVersionItems),
                std::end(kVersionItems),
                [](const LasItem& item, const char* name) { return item.mnemonic == name; }))
            return problem(version.line, "~Version does not hold VERS, WRAP and DLM in this order");
        if (items[0].value != "3.0")
            problem(items[0].line, "not version 3.0");
        if (items[1].value != "NO")
            problem(items[1].line, "lines of this version are never wrapped");
        setDelimiter(items[2]);
    }

    void setDelimiter(const LasItem& item)
    {
        constexpr std::pair<std::string_view, char> kDelimiters[] = {
            {"SPACE", ' '}, {"TAB", '\t'}, {"COMMA", ','}};
        for (const auto& [name, delimiter] : kDelimiters) {
            if (item.value == name) {
                delimiter_ = delimiter;
                return;
            }
        }
        problem(item.line, "the delimiter is none of SPACE, TAB, COMMA");
    }

    void checkWell(const LasSection& well)
    {
        if (upperCased(well.title) != "WELL" && upperCased(well.title) != "W")
            problem(well.line, "the second section is not ~Well");
        for (const char* name : kWellItems)
            if (!well.item(name))
                problem(well.line, std::string("~Well has no ") + name);
        if (!well.item("UWI") && !well.item("API"))
            problem(well.line, "~Well has neither UWI nor API");
        checkIndex(well);
    }

    // The three of the index are numbers of one unit; the null value is a number.
    void checkIndex(const LasSection& well)
    {
        const LasItem* first = well.item("STRT");
        for (const char* name : kIndexItems) {
            const LasItem* item = well.item(name);
            if (item && first && item->unit != first->unit)
                problem(item->line, std::string(name) + " has another unit than STRT");
        }
        for (const char* name : {"STRT", "STOP", "STEP", "NULL"}) {
            const LasItem* item = well.item(name);
            if (item && (item->value.empty() || !formProblem(item->value, "F").empty()))
                problem(item->line, std::string(name) + " is no number");
        }
    }

    void checkOrder()
    {
        number_ = std::max(number_, 1L);
        if (file_.sections.size() < 2)
            problem("a file has at least ~Version and ~Well");
        if (file_.sections.size() == 1)
            checkVersion(file_.sections.front());
        if (file_.sections.size() == 2)
            checkWell(file_.sections.back());
    }

    void checkAssociation(const LasSection& section)
    {
        if (section.association.empty()) {
            if (section.isData())
                problem(section.line, "~" + section.title + " names no definition");
            return;
        }
        const LasSection* named = file_.section(section.association);
        if (!named || named->isData() || named->line > section.line)
            problem(section.line, "no definition ~" + section.association + " stands above");
    }

    void checkPairs()
    {
        for (const LasSection& section : file_.sections) {
            if (!upperCased(section.title).ends_with("_DEFINITION"))
                continue;
            const bool used = std::any_of(file_.sections.begin(), file_.sections.end(),
                [&](const LasSection& data) { return data.association == section.title; });
            if (!used)
                problem(section.line, "no data for ~" + section.title);
        }
    }

    std::istream& in_;
    std::vector<std::string>& problems_;
    LasFile file_;
    long number_ = 0;
    char delimiter_ = ' ';
};

} // namespace

LasFile readLas(std::istream& in, std::vector<std::string>* problems)
{
    return Reader(in, problems).read();
}
