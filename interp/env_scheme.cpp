// interp/env_scheme.cpp
#include "interp/env_scheme.h"

#include "db/Literals.h"
#include "dict/FirstRow.h"
#include "taxonomy/TextArgument.h"
#include "util/TextUtil.h"

#include <algorithm>

namespace {

constexpr Colour kBlue{0, 0, 255};

std::string whereScheme(long envsch_id) { return " WHERE envsch_id=" + sql::integer(envsch_id); }

} // namespace

env_scheme::env_scheme(long id)
    : envsch_id(id)
{
    for (Term& unread : terms_)
        unread.colour = kBlue;
    const FirstRow header =
        takeFirstRow("SELECT name FROM " + sql::table("ENV_SCH") + whereScheme(id), Fatal::No,
            [this](const Cursor& row) { name = row.text(1); });
    if (header != FirstRow::Failed)
        readTerms();
}

env_scheme::env_scheme(long id, const char* schemeName)
    : name(schemeName)
    , envsch_id(id)
{
}

env_scheme::env_scheme(
    long id, const char* schemeName, int n, const char* const* names, const Colour* colours)
    : env_scheme(id, schemeName)
{
    setTerms(n, names, colours);
}

void env_scheme::readTerms()
{
    const std::string sql = "SELECT term_no, term, red, green, blue FROM " + sql::table("ENVSCHMBR")
        + whereScheme(envsch_id) + " ORDER BY term_no";
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::No);
        return;
    }
    for (; nTerms_ < kMostTerms && rows.next(); ++nTerms_) {
        Term& read = terms_[static_cast<std::size_t>(nTerms_)];
        read.name = trimmedLeft(rows.text(2));
        read.colour = colourFrom(rows, 3);
    }
}

env_scheme::Term* env_scheme::slot(int index)
{
    return index < 0 || index >= kMostTerms ? nullptr : &terms_[static_cast<std::size_t>(index)];
}

const env_scheme::Term* env_scheme::term(int index) const
{
    return index < 0 || index >= nTerms_ ? nullptr : &terms_[static_cast<std::size_t>(index)];
}

const char* env_scheme::termName(int index) const
{
    static ResultText error;
    const Term* named = term(index);
    if (named && named->name)
        return named->name->c_str();
    return error.keep(
        "ERROR term: " + std::to_string(index + 1) + " is not in Palaeoenvironment scheme");
}

Colour env_scheme::termColour(int index) const
{
    const Term* coloured = term(index);
    return coloured ? coloured->colour : kWhite;
}

int env_scheme::termNumber(const char* termName) const
{
    const auto last = terms_.begin() + nTerms_;
    const auto found =
        std::find_if(terms_.begin(), last, [text = orEmpty(termName)](const Term& at) {
            return at.name && compareIgnoringCase(at.name->view(), text) == 0;
        });
    return found == last ? 0 : 1 + static_cast<int>(found - terms_.begin());
}

void env_scheme::setTermColour(int index, Colour colour)
{
    if (Term* at = slot(index))
        at->colour = colour;
}

void env_scheme::setTermName(int index, const char* text)
{
    if (Term* at = slot(index))
        at->name = orEmpty(text);
}

void env_scheme::setTerms(int n, const char* const* names, const Colour* colours)
{
    setTermCount(n);
    for (int i = 0; i < nTerms_; ++i) {
        setTermName(i, names[i]);
        setTermColour(i, colours[i]);
    }
}

void env_scheme::setTermCount(int n) { nTerms_ = std::clamp(n, 0, kMostTerms); }
