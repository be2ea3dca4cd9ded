// app/shell/FindWell.cpp
#include "app/shell/FindWell.h"

#include "db/Cursor.h"
#include "db/Literals.h"
#include "db/Session.h"
#include "store/Value.h"

#include <charconv>
#include <vector>

namespace {

struct Match {
    long id;
    std::string code;
    std::string name;
};

bool matches(const std::string& condition, std::vector<Match>* out, std::string* error)
{
    const std::string select = "SELECT v.well_id, w.well_code, w.well_name FROM "
        + sql::table("WELLS") + " w, " + sql::table("WELL_IDENT")
        + " v WHERE v.well_code=w.well_code AND " + condition + " ORDER BY w.well_code";
    Cursor rows(select);
    if (!rows) {
        *error = "The wells could not be searched: " + select + "\n" + dbErrorText();
        return false;
    }
    while (rows.next()) {
        const long id = rows.integer(1);
        std::string code = rows.text(2);
        out->push_back({id, std::move(code), rows.text(3)});
    }
    return true;
}

std::string listOf(const std::vector<Match>& found)
{
    std::string text;
    for (const Match& match : found)
        text += "\n  " + shownText(match.code) + "  " + shownText(match.name) + "  (number "
            + std::to_string(match.id) + ")";
    return text;
}

bool isNumber(const std::string& text)
{
    int number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    return failure == std::errc() && end == text.data() + text.size();
}

} // namespace

long findWell(const std::string& text, std::string* error)
{
    std::vector<std::string> conditions{
        "w.well_code=" + sql::quote(text), "w.well_name=" + sql::quote(text)};
    if (isNumber(text))
        conditions.push_back("v.well_id=" + text);
    for (const std::string& condition : conditions) {
        std::vector<Match> found;
        if (text.empty() || !matches(condition, &found, error))
            break;
        if (found.size() == 1)
            return found.front().id;
        if (found.empty())
            continue;
        *error = "Several wells answer to \"" + text
            + "\"; name one by its code or number:" + listOf(found);
        return 0;
    }
    if (error->empty())
        *error = "No well has the code, name or number \"" + text + "\".";
    return 0;
}
