// app/batch/TaxaCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/Failure.h"
#include "app/batch/NumberRange.h"
#include "app/batch/TextTable.h"
#include "app/import/TaxonName.h"
#include "app/import/Words.h"
#include "app/shell/SynonymySchemes.h"
#include "app/shell/TaxonPatterns.h"
#include "store/Value.h"
#include "taxonomy/TaxonList.h"
#include "util/TextUtil.h"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <memory>
#include <optional>

namespace {

using enum TextTable::Align;

struct TaxaQuery {
    std::vector<std::string> patterns; ///< genus, species, subspecies; a subgenus in brackets
    std::string category;              ///< a pattern
    std::string codes;                 ///< "A-B" or one code; empty: any or none
    std::string scheme;                ///< whose names to use are shown; empty: none
    bool synonyms = false;             ///< names that have a name to use as well
};

// None when there are more words than a name has parts.
std::optional<TaxonPatterns> patternsOf(const TaxaQuery& query)
{
    std::vector<std::string> words;
    for (const std::string& argument : query.patterns)
        std::ranges::move(wordsOf(argument), std::back_inserter(words));
    return taxonPatterns(words, query.category);
}

// The scheme by its name or number; false with a text for the user.
bool findScheme(const std::string& text, SynonymyScheme* out, std::string* error)
{
    const auto schemes = synonymySchemes(error);
    if (!schemes)
        return false;
    std::string known;
    for (const SynonymyScheme& scheme : *schemes) {
        if (compareIgnoringCase(scheme.name, text) == 0 || std::to_string(scheme.id) == text) {
            *out = scheme;
            return true;
        }
        known += (known.empty() ? "" : ", ") + scheme.name;
    }
    *error = "No synonymy scheme is called " + text + '.'
        + (known.empty() ? " There are none." : " There are: " + known + '.');
    return false;
}

std::string shownName(const Taxon& taxon) { return shownText(composedName(taxon, true)); }

void write(TaxonList& taxa, bool withCode, const SynonymyScheme& scheme)
{
    std::vector<TextTable::Column> columns{{"number", Right}, {"category"}, {"name"}};
    if (withCode)
        columns.push_back({"code", Right});
    if (scheme.id != 0)
        columns.push_back({"name to use (" + scheme.name + ')'});
    TextTable table(columns);
    for (Taxon* taxon : taxa) {
        std::vector<std::string> cells{
            std::to_string(taxon->spec_id()), shownText(taxon->category()), shownName(*taxon)};
        if (withCode)
            cells.push_back(std::to_string(taxon->sipmCode(1)));
        if (scheme.id != 0)
            cells.push_back(taxon->preferred() ? shownName(*taxon->preferred()) : "");
        table.add(std::move(cells));
    }
    table.write(std::cout);
}

int listTaxa(const TaxaQuery& query)
{
    auto patterns = patternsOf(query);
    if (!patterns)
        return failed("A name has a genus, a species and a subspecies; quote what belongs together "
                      "with * in it.");
    const auto codes = query.codes.empty() ? NumberRange{} : numberRange(query.codes);
    if (!codes)
        return failed("--codes " + query.codes + ": a range such as 100-200 is meant.");
    SynonymyScheme scheme;
    std::string error;
    if (!query.scheme.empty() && !findScheme(query.scheme, &scheme, &error))
        return failed(error);
    const std::unique_ptr<TaxonList> taxa(Taxon::searchTaxa(patterns->category.data(),
        patterns->genus.data(), patterns->subgenus.data(), patterns->species.data(),
        patterns->subspecies.data(), query.synonyms || scheme.id != 0, codes->from, codes->to));
    if (scheme.id != 0)
        taxa->loadPreferred(scheme.id, 0);
    write(*taxa, !query.codes.empty(), scheme);
    return kDone;
}

} // namespace

void addTaxa(CLI::App& app, BatchOptions* options)
{
    const auto query = std::make_shared<TaxaQuery>();
    CLI::App* taxa = addCommand(
        app, options, "taxa", "List the names of the dictionary", [=] { return listTaxa(*query); });
    taxa->add_option("PATTERN", query->patterns,
        "Genus, species and subspecies, a subgenus in brackets; * stands for any letters, and what "
        "is left out for any name");
    taxa->add_option("--category", query->category, "Only of this category")->type_name("PATTERN");
    taxa->add_option("--codes", query->codes, "Only with codes in this range, such as 100-200")
        ->type_name("A-B");
    taxa->add_flag(
        "--synonyms", query->synonyms, "Names that another one is to be used for as well");
    taxa->add_option("--scheme", query->scheme,
            "Show the names to use of this synonymy scheme, synonyms included")
        ->type_name("NAME");
}
