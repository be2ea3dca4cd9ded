// interp/EnvSchemeList.cpp
#include "interp/EnvSchemeList.h"

#include "db/Literals.h"
#include "interp/FillInOrder.h"

namespace {

bool hasGreaterName(const env_scheme& at, const env_scheme& added)
{
    return at.name.view() > added.name.view();
}

} // namespace

EnvSchemeList::EnvSchemeList()
{
    const std::string sql = "SELECT envsch_id FROM " + sql::table("ENV_SCH") + " ORDER BY name";
    Cursor keys(sql);
    if (!keys) {
        reportDbFailure(sql, Fatal::No);
        return;
    }
    std::vector<std::unique_ptr<env_scheme>> schemes;
    while (keys.next())
        schemes.push_back(std::make_unique<env_scheme>(keys.integer(1)));
    fillInOrder(*this, std::move(schemes), hasGreaterName);
}

env_scheme* EnvSchemeList::findScheme(long envsch_id) const
{
    const auto found = std::find_if(begin(), end(), [envsch_id](const env_scheme* scheme) {
        return envsch_id < 1 || scheme->envsch_id == envsch_id;
    });
    return found == end() ? nullptr : *found;
}
