// app/import/AnalysisCells.cpp
#include "app/import/AnalysisCells.h"

#include "app/import/DictionaryCells.h"
#include "db/CurrentUser.h"
#include "util/TextUtil.h"

#include <charconv>

namespace {

// The analyst key of a second or later analysis is "ABC/2".
std::optional<long> takeKeyNumber(std::string* key)
{
    const std::size_t slash = key->find('/');
    if (slash == std::string::npos)
        return std::nullopt;
    const char* const end = key->data() + key->size();
    long number = 0;
    const auto [stop, failure] = std::from_chars(key->data() + slash + 1, end, number);
    if (failure != std::errc() || stop != end || number < 1)
        return std::nullopt;
    key->resize(slash);
    return number;
}

User* knownUser(CellReader& cells, int column, const std::string& abr, ImportContext& context)
{
    User* user = context.analyses.users.find(abr);
    if (!user) {
        user = context.analyses.users.add(abr);
        cells.report().note(cells.header(column), abr,
            "no such user in the database or in analysts files; becomes one");
    }
    return user;
}

} // namespace

bool loadNames(ImportContext& context, std::string* error)
{
    if (!context.dictionary.load())
        *error = context.dictionary.error();
    else if (!context.analyses.users.load())
        *error = context.analyses.users.error();
    return error->empty();
}

const FileId* readSample(CellReader& cells, int column, ImportContext& context)
{
    const FileIds& ids = context.ids("samples", cells.file().set);
    const auto known = ids.find(std::string(cells.raw(column)));
    if (known != ids.end() && known->second.well)
        return &known->second;
    cells.refuse(column, "no such sample among the accepted rows of the samples files beside it");
    return nullptr;
}

AnalystCell readAnalyst(CellReader& cells, int column, ImportContext& context)
{
    AnalystCell analyst;
    std::string key;
    if (cells.text(column, &key) != Cell::Good) {
        key = currentUserAbr.view();
        cells.report().noteOnce("", "", "rows without an analyst are taken to be those of " + key);
    }
    analyst.number = takeKeyNumber(&key);
    if (key.empty() || key.find('/') != std::string::npos)
        cells.refuse(column, "no abbreviation of an analyst");
    else if (key.size() > kLongestUser)
        cells.refuse(column,
            "longer than " + std::to_string(kLongestUser)
                + " bytes; cut it would be another analyst's");
    else
        analyst.user = knownUser(cells, column, key, context);
    return analyst;
}

char readDisciplineOf(CellReader& cells, int column, const Category* category)
{
    char letter = 0;
    if (readDiscipline(cells, column, &letter) != Cell::Good && category)
        letter = category->discipline;
    if (!letter)
        cells.refuse(column, "neither the row nor a category tells the discipline (M, N, P or A)");
    return letter;
}

std::optional<long> readAnalysisNumber(CellReader& cells, int column, const AnalystCell& analyst)
{
    long number = 0;
    if (cells.whole(column, &number) != Cell::Good)
        return analyst.number;
    if (number < 1)
        cells.refuse(column, "analyses are numbered from 1");
    return number;
}

std::optional<bool> readYesNo(CellReader& cells, int column)
{
    const std::string word = lowerCased(cells.raw(column));
    for (const std::string_view yes : {"y", "yes", "true", "1"})
        if (word == yes)
            return true;
    for (const std::string_view no : {"n", "no", "false", "0", ""})
        if (word == no)
            return word.empty() ? std::nullopt : std::optional(false);
    cells.adjust(column, "neither yes nor no; not taken");
    return std::nullopt;
}
