// taxonomy/TaxonTexts.cpp
#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "taxonomy/Identifiers.h"
#include "taxonomy/Taxon.h"
#include "taxonomy/TextArgument.h"

#include <cstdint>

namespace {

/// Column 1 of the first row by `read`, or nothing without a row. A failed statement ends the
/// process, unless a lost connection was restored.
template <typename Read> auto firstValue(const std::string& sql, Read read)
{
    Cursor row(sql);
    if (!row)
        reportDbFailureAs("Error in: " + sql, Fatal::Yes);
    using Value = decltype(read(row));
    return row && row.next() ? std::optional<Value>(read(row)) : std::nullopt;
}

std::optional<std::string> storedText(const char* column, const char* table, long spec_id)
{
    return firstValue(std::string("SELECT ") + column + " FROM " + sql::table(table)
            + " WHERE spec_id=" + sql::integer(spec_id),
        [](const Cursor& row) { return row.text(1); });
}

} // namespace

long Taxon::sipmCode(int codeSystem)
{
    if (codeSystem == ccode)
        return sipm_code;
    ccode = codeSystem;
    const std::optional<long> code = firstValue("SELECT sipm_code FROM " + sql::table("sipmcode")
            + " WHERE spec_id=" + sql::integer(spec_id_) + " AND ccode=" + sql::integer(ccode),
        [](const Cursor& row) { return row.integer(1); });
    sipm_code = code.value_or(0);
    return sipm_code;
}

int Taxon::sipmDictCode(const char* text)
{
    const char* column = altColumnNames ? "txt=" : "text=";
    return static_cast<std::int32_t>(firstIdentifier("SELECT ccode FROM " + sql::table("SIPMDICT")
        + " WHERE " + column + sql::quote(orEmpty(text))));
}

const char* Taxon::loadReferences()
{
    if (!references_ || references_->empty()) {
        if (const auto text = storedText("references", "TXREFS", spec_id_))
            setReferences(text->c_str());
    }
    return references();
}

const char* Taxon::loadNotes()
{
    if (!notes_ || notes_->empty()) {
        if (const auto text = storedText("notes", "TXNOTES", spec_id_))
            setNotes(text->c_str());
    }
    return notes();
}
