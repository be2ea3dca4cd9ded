// app/shell/DoctorTables.cpp
#include "app/shell/Doctor.h"
#include "app/shell/SideConnection.h"
#include "db/Literals.h"
#include "db/SchemaInspection.h"
#include "schema/SchemaObjects.h"
#include "util/TextUtil.h"

#include <set>

namespace {

constexpr const char* kObjects = "SELECT type || ' ' || name FROM sqlite_master";
constexpr const char* kColumns = "SELECT m.name || '.' || c.name"
                                 " FROM sqlite_master m, pragma_table_info(m.name) c"
                                 " WHERE m.type IN ('table', 'view')";
// Sites may have a view of their own in its place.
constexpr const char* kReplaceable = "WELLS_MASTER";

std::set<std::string> answers(SideConnection& side, const char* question, Diagnosis* diagnosis)
{
    std::vector<std::string> texts;
    if (!side.run(question, &texts))
        diagnosis->problems.push_back({"The tables could not be listed: " + side.error(),
            "See what is said about the integrity of the file."});
    std::set<std::string> names;
    for (const std::string& text : texts)
        names.insert(upperCased(text));
    return names;
}

std::string lowerKind(const SchemaObject& object) { return lowerCased(object.kind); }

std::string makeAgain(const SchemaObject& object)
{
    return "Run this on the file with any ODBC or SQLite client:\n" + std::string(object.statement)
        + ';';
}

void examineColumns(
    const SchemaObject& table, const std::set<std::string>& columns, Diagnosis* diagnosis)
{
    for (const std::string& column : table.columns)
        if (!columns.contains(upperCased(table.name + '.' + column)))
            diagnosis->problems.push_back(
                {"The table " + table.name + " lacks the column " + column + '.',
                    "Use the last backup, or add the column with any ODBC or SQLite client."});
}

void examineEmbedded(SideConnection& side, Diagnosis* diagnosis)
{
    const std::set<std::string> objects = answers(side, kObjects, diagnosis);
    const std::set<std::string> columns = answers(side, kColumns, diagnosis);
    if (objects.empty())
        return;
    for (const SchemaObject& object : schemaObjects()) {
        const bool own = object.name == kReplaceable;
        if (own && objects.contains(std::string("VIEW ") + kReplaceable))
            continue;
        if (!objects.contains(upperCased(std::string(object.kind) + ' ' + object.name)))
            diagnosis->problems.push_back(
                {"The " + lowerKind(object) + ' ' + object.name + " is missing.",
                    makeAgain(object)});
        else
            examineColumns(object, columns, diagnosis);
    }
}

// What only embedded databases have: the version, and the keys of analyses as a view.
bool isOnServers(const SchemaObject& object)
{
    return object.kind == "TABLE" && object.name != "SCHEMA_INFO" && object.name != kReplaceable;
}

std::vector<std::string> columnsIn(std::string list)
{
    std::vector<std::string> columns;
    for (std::size_t comma; (comma = list.find(", ")) != std::string::npos;
         list.erase(0, comma + 2))
        columns.push_back(list.substr(0, comma));
    columns.push_back(list);
    return columns;
}

bool isNumber(const Relation& relation)
{
    return std::string_view(relation.columns).ends_with("_id")
        ? std::string_view(relation.columns) != "disc_id"
        : std::string_view(relation.targetColumns).ends_with("_id");
}

// Composed for servers too, so without pairs in parentheses.
std::string countOrphans(const Relation& relation)
{
    const auto columns = columnsIn(relation.columns);
    const auto targets = columnsIn(relation.targetColumns);
    std::string given;
    std::string same;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const std::string column = "c." + columns[i];
        given += (i ? " AND " : "") + column + " IS NOT NULL";
        same += (i ? " AND p." : "p.") + targets[i] + " = " + column;
    }
    if (isNumber(relation))
        given += " AND c." + columns.back() + " <> 0";
    return "SELECT count(*) FROM " + sql::table(relation.table) + " c WHERE " + given
        + " AND NOT EXISTS (SELECT 1 FROM " + sql::table(relation.target) + " p WHERE " + same
        + ')';
}

} // namespace

void examineTables(SideConnection& side, bool embedded, Diagnosis* diagnosis)
{
    if (embedded)
        return examineEmbedded(side, diagnosis);
    for (const SchemaObject& object : schemaObjects())
        if (isOnServers(object) && !tableExists(object.name.c_str()))
            diagnosis->problems.push_back(
                {"The table " + sql::table(object.name.c_str()) + " is missing or may not be read.",
                    "Ask who keeps the server; check --owner."});
}

void examineRelations(SideConnection& side, Diagnosis* diagnosis)
{
    std::size_t asked = 0;
    for (const Relation& relation : relations()) {
        std::vector<std::string> count;
        if (!side.run(countOrphans(relation), &count) || count.empty())
            continue; // a table that is missing is told already
        ++asked;
        if (count.front() != "0")
            diagnosis->problems.push_back(
                {count.front() + " rows of " + relation.table + " name in " + relation.columns
                        + " a row of " + relation.target + " that is not there.",
                    std::string("Import what is missing into ") + relation.target
                        + " again, or delete these rows."});
    }
    diagnosis->facts.push_back({"relations",
        std::to_string(asked) + " of " + std::to_string(relations().size()) + " examined"});
}
