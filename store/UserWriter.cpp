// store/UserWriter.cpp
#include "store/UserWriter.h"

#include "db/Literals.h"
#include "store/Rows.h"

namespace {

using Type = ColumnType;

constexpr Column kKey[] = {{"user_id", Type::Integer}};
constexpr Column kUser[] = {{"abr", Type::Text}};

} // namespace

UserWriter::UserWriter(Writing writing)
    : writing_(writing)
    , table_("USERDEF", kKey, kUser)
    , ids_("user_id", "USERDEF")
{
}

Outcome UserWriter::failed(const std::string& error)
{
    error_ = error;
    return Outcome::Failed;
}

bool UserWriter::load()
{
    if (loaded_)
        return true;
    Statement select("SELECT user_id,abr FROM " + sql::table("USERDEF") + " ORDER BY user_id");
    loaded_ = readAll(select, {Type::Integer, Type::Text}, [this](const auto& values) {
        const std::string abr = textOf(values[1]);
        users_.try_emplace(abr, User{integerOf(values[0]), abr, true});
    });
    if (!loaded_)
        error_ = select.sql() + ": " + select.error();
    return loaded_;
}

User* UserWriter::find(const std::string& abr)
{
    const auto found = users_.find(shownText(storedText(abr)));
    return found == users_.end() ? nullptr : &found->second;
}

User* UserWriter::withId(long id)
{
    for (auto& [abr, user] : users_)
        if (user.isStored && user.id == id)
            return &user;
    return nullptr;
}

User* UserWriter::add(const std::string& abr)
{
    const std::string known = shownText(storedText(abr));
    return &users_.try_emplace(known, User{0, known, false}).first->second;
}

Outcome UserWriter::put(User& user)
{
    if (user.isStored)
        return Outcome::Same;
    const std::optional<long> id = ids_.next();
    if (!id)
        return failed(ids_.error());
    if (writing_ == Writing::Write && !table_.insert({Value(*id)}, {textValue(user.abr)}))
        return failed(table_.error());
    user.id = *id;
    user.isStored = true;
    return Outcome::New;
}
