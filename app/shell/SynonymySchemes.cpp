// app/shell/SynonymySchemes.cpp
#include "app/shell/SynonymySchemes.h"

#include "db/Cursor.h"
#include "db/Literals.h"
#include "db/Session.h"
#include "store/Value.h"

std::optional<std::vector<SynonymyScheme>> synonymySchemes(std::string* error)
{
    const std::string select =
        "SELECT sch_id, name FROM " + sql::table("SYNSCH") + " ORDER BY name";
    Cursor rows(select);
    if (!rows) {
        *error = "The synonymy schemes could not be read: " + select + "\n" + dbErrorText();
        return std::nullopt;
    }
    std::vector<SynonymyScheme> schemes;
    while (rows.next()) {
        const long id = rows.integer(1); // columns are read in their order
        schemes.push_back({id, shownText(rows.text(2))});
    }
    return schemes;
}
