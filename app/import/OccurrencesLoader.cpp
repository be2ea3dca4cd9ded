// app/import/OccurrencesLoader.cpp
#include "app/import/AbundanceCells.h"
#include "app/import/AnalysisCells.h"
#include "app/import/AnalysisShapes.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"
#include "app/import/TaxonName.h"
#include "store/DetailWriter.h"
#include "store/OccurrenceWriter.h"
#include "util/TextUtil.h"

#include <cstdint>

namespace {

namespace cell = occurrences;

struct TextCell {
    int cell;
    OccurrenceColumn column;
};
constexpr TextCell kTexts[] = {
    {cell::Preservation, OccurrenceColumn::Preservation}, {cell::Colour, OccurrenceColumn::Colour}};
constexpr TextCell kCounts[] = {
    {cell::Coarse, OccurrenceColumn::Coarse}, {cell::Fine, OccurrenceColumn::Fine}};

/// What two rows of one record have in common, as `OccurrenceWriter` finds it.
struct OccurrenceKey {
    long sample;
    const DictionaryTaxon* taxon;
    const Analysis* analysis;
    bool reworked;
    bool questionable;
};

// Every bit of `value` changes half of the result's bits.
std::uint64_t mixed(std::uint64_t value)
{
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9U;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EBU;
    return value ^ (value >> 31);
}

std::uint64_t hashOf(const OccurrenceKey& key)
{
    const auto marks = static_cast<std::uint64_t>(key.sample) * 4 + (key.reworked ? 2U : 0U)
        + (key.questionable ? 1U : 0U);
    const std::uint64_t hash = mixed(marks) + reinterpret_cast<std::uintptr_t>(key.taxon);
    return mixed(mixed(hash) + reinterpret_cast<std::uintptr_t>(key.analysis));
}

class OccurrencesLoader : public RowLoader {
public:
    explicit OccurrencesLoader(ImportContext& context)
        : context_(context)
        , writer_(context.writing)
        , details_(context.writing)
    {
    }

    std::string columnProblem(const InputFile& file) const override
    {
        const bool named = file.has(cell::SpecId) || file.has(cell::Taxon);
        return named ? "" : "has no column spec_id or taxon_name";
    }

    bool check(CellReader& cells) override
    {
        if (!loadNames(context_, &error_))
            return false;
        record_ = OccurrenceRecord();
        sample_ = readSample(cells, cell::Sample, context_);
        taxon_ = readTaxon(cells);
        const AnalystCell analyst = readAnalyst(cells, cell::Analyst, context_);
        const std::string category = taxon_ ? taxon_->taxon.category() : "";
        const char discipline = taxon_ ? readDisciplineOf(cells, cell::Discipline,
                                    context_.dictionary.categories.find(category))
                                       : '\0';
        const auto number = readAnalysisNumber(cells, cell::Number, analyst);
        readColumns(cells);
        if (cells.report().refused())
            return true;
        analysis_ = number
            ? context_.analyses.numbered(*sample_->well, discipline, *analyst.user, *number, "")
            : context_.analyses.forCategory(*sample_->well, discipline, *analyst.user, category);
        if (!analysis_) {
            error_ = context_.analyses.error();
            return false;
        }
        judge(cells);
        return true;
    }

    Outcome store() override
    {
        record_.wellId = sample_->well->id;
        record_.sampleId = sample_->databaseId;
        record_.specId = taxon_->taxon.spec_id();
        const Outcome header = ensureAnalysis();
        if (header == Outcome::Failed)
            return header;
        record_.set(OccurrenceColumn::Discipline, textValue(std::string(1, analysis_->discipline)));
        const Outcome outcome = writer_.put(record_);
        if (outcome == Outcome::Failed)
            error_ = writer_.error();
        return outcome == Outcome::Same && header != outcome ? Outcome::Changed : outcome;
    }

private:
    // By the number in the set, else by category and full name.
    const DictionaryTaxon* readTaxon(CellReader& cells)
    {
        const std::string number(cells.raw(cell::SpecId));
        if (!number.empty()) {
            const DictionaryTaxon* taxon =
                context_.dictionary.numbered.find(cells.file().set, number);
            if (!taxon)
                cells.refuse(cell::SpecId,
                    "no such taxon among the accepted rows of the taxa files beside it");
            return taxon;
        }
        std::string name;
        if (cells.text(cell::Taxon, &name) != Cell::Good) {
            cells.report().refuse("", "", "has no taxon");
            return nullptr;
        }
        Taxon taxon = storedName(name, partsOfName(name)).taxon;
        std::string category;
        cells.text(cell::Category, &category);
        taxon.setField(slot::category, upperCased(category));
        const DictionaryTaxon* known = context_.dictionary.taxa.find(taxon);
        if (!known)
            cells.refuse(cell::Taxon, "no such taxon in the category; the dictionary comes first");
        return known;
    }

    void readColumns(CellReader& cells)
    {
        const auto& abundances = context_.abundancesOf(cells.file().set);
        scheme_ = abundances.scheme;
        const OccurrenceCells row = readOccurrenceCells(cells, abundances.words);
        record_.reworked = row.reworked;
        record_.questionable = row.questionable;
        record_.set(OccurrenceColumn::Abundance, textValue(row.code));
        record_.set(OccurrenceColumn::Medium, Value(row.count));
        record_.set(OccurrenceColumn::Caved, row.caved ? textValue("C") : Value());
        if (row.hasComments)
            record_.set(OccurrenceColumn::Comments, textValue(row.comments));
        std::string text;
        for (const auto& [column, target] : kTexts) {
            const Cell state = cells.text(column, &text);
            record_.set(target, givenValue(state, textValue(text)));
        }
        long count = 0;
        for (const auto& [column, target] : kCounts) {
            const Cell state = cells.whole(column, &count);
            record_.set(target, givenValue(state, count));
        }
        if (const auto marker = readYesNo(cells, cell::Marker))
            record_.set(OccurrenceColumn::Marker, *marker ? textValue("Y") : Value());
    }

    void judge(CellReader& cells)
    {
        const OccurrenceKey key{
            sample_->ordinal, taxon_, analysis_, record_.reworked, record_.questionable};
        if (const auto* first = rows_.before(hashOf(key), {&cells.file(), cells.line()}))
            cells.report().refuse("", "",
                "the same sample, taxon, analyst, status and identification are in "
                    + first->seenFrom(cells.file()) + " already, which is kept");
        else if (!context_.analyses.hasDetails(sample_->ordinal, *analysis_))
            cells.report().noteOnce("", "",
                "samples without details of their analyst get them, not barren, unless the "
                "database has them");
    }

    // An occurrence without details of its sample cannot be loaded.
    Outcome ensureAnalysis()
    {
        const Outcome header = context_.analyses.put(
            *sample_->well, *analysis_, scheme_ ? std::optional(scheme_->id) : std::nullopt);
        if (header == Outcome::Failed) {
            error_ = context_.analyses.error();
            return header;
        }
        record_.analysisId = analysis_->id;
        return ensureDetails() ? header : Outcome::Failed;
    }

    bool ensureDetails()
    {
        if (context_.analyses.hasDetails(sample_->ordinal, *analysis_))
            return true;
        const auto found = details_.find(record_.sampleId, record_.analysisId);
        DetailRecord detail;
        detail.sampleId = record_.sampleId;
        detail.analysisId = record_.analysisId;
        detail.set(DetailColumn::WellId, Value(record_.wellId));
        detail.set(DetailColumn::Discipline, textValue(std::string(1, analysis_->discipline)));
        if (found == TableWriter::Found::Failed
            || (found == TableWriter::Found::No && details_.put(detail) == Outcome::Failed)) {
            error_ = details_.error();
            return false;
        }
        context_.analyses.announceDetails(sample_->ordinal, *analysis_);
        return true;
    }

    ImportContext& context_;
    OccurrenceWriter writer_;
    DetailWriter details_;
    FirstRows rows_;

    // The row at hand.
    OccurrenceRecord record_;
    const FileId* sample_ = nullptr;
    const DictionaryTaxon* taxon_ = nullptr;
    Analysis* analysis_ = nullptr;
    const AbundanceScheme* scheme_ = nullptr;
};

} // namespace

std::unique_ptr<RowLoader> makeOccurrencesLoader(ImportContext& context)
{
    return std::make_unique<OccurrencesLoader>(context);
}
