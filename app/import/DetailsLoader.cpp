// app/import/DetailsLoader.cpp
#include "app/import/AnalysisCells.h"
#include "app/import/AnalysisShapes.h"
#include "app/import/DetailZones.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"
#include "app/tables/NamedNotes.h"
#include "store/DetailWriter.h"
#include "util/TextUtil.h"

namespace {

namespace cell = sample_details;

constexpr std::size_t kNotesCapacity = 240; // bytes

struct NumberCell {
    int cell;
    DetailColumn column;
};
constexpr NumberCell kNumbers[] = {{cell::Weight, DetailColumn::Weight},
    {cell::Coarse, DetailColumn::Coarse}, {cell::Medium, DetailColumn::Medium},
    {cell::Fine, DetailColumn::Fine}};
constexpr NumberCell kWholes[] = {
    {cell::Proximal, DetailColumn::Proximal}, {cell::Distal, DetailColumn::Distal}};
constexpr NumberCell kTexts[] = {
    {cell::Picker, DetailColumn::Picker}, {cell::Source, DetailColumn::Source}};

struct NotedCell {
    int cell;
    const char* name;
};
constexpr NotedCell kNoted[] = {{cell::GroupAbundance, "group_abundance"},
    {cell::Preservation, "preservation"}, {cell::Overgrowth, "overgrowth"},
    {cell::Dissolution, "dissolution"}, {cell::Age, "age"}, {cell::OldestAge, "oldest_age"},
    {cell::YoungestAge, "youngest_age"}, {cell::OldestZone, "oldest_zone"},
    {cell::YoungestZone, "youngest_zone"}};

// Of all that a row says, to tell a repeated row from a second look at the sample.
std::size_t contentHash(const CellReader& cells)
{
    std::string content;
    for (int column = 0; column < cell::Count; ++column)
        content.append(cells.raw(column)).append("\n");
    return std::hash<std::string>()(content);
}

class DetailsLoader : public RowLoader {
public:
    explicit DetailsLoader(ImportContext& context)
        : context_(context)
        , writer_(context.writing)
        , zones_(context)
    {
    }

    bool check(CellReader& cells) override
    {
        if (!loadNames(context_, &error_))
            return false;
        record_ = DetailRecord();
        std::string category;
        cells.text(cell::Category, &category);
        category = upperCased(category);
        sample_ = readSample(cells, cell::Sample, context_);
        const AnalystCell analyst = readAnalyst(cells, cell::Analyst, context_);
        const char discipline = readDisciplineOf(
            cells, cell::Discipline, context_.dictionary.categories.find(category));
        const auto number = readAnalysisNumber(cells, cell::Number, analyst);
        readColumns(cells);
        if (cells.report().refused())
            return true;
        const RowPlace place{&cells.file(), cells.line()};
        const Asked asked{discipline, analyst.user, number, category};
        decision_ = &decisions_.of(place, [&] { return decide(cells, asked); });
        if (decision_->failed) {
            error_ = context_.analyses.error();
            return false;
        }
        place_ = place;
        if (!decision_->refusal.empty()) {
            cells.report().refuse("", "", decision_->refusal);
            return true;
        }
        readNotes(cells);
        if (context_.phase == ImportPhase::Storing
            || zones_.note(cells, {sample_, discipline, category, analyst.user->abr}))
            return true;
        error_ = zones_.error();
        return false;
    }

    Outcome store() override
    {
        Analysis& analysis = *decision_->analysis;
        const Outcome header = context_.analyses.put(*sample_->well, analysis, scheme_);
        if (header == Outcome::Failed) {
            error_ = context_.analyses.error();
            return header;
        }
        record_.sampleId = sample_->databaseId;
        record_.analysisId = analysis.id;
        record_.set(DetailColumn::WellId, Value(sample_->well->id));
        record_.set(DetailColumn::Discipline, textValue(std::string(1, analysis.discipline)));
        const Outcome outcome = writer_.put(record_);
        const Outcome zone = outcome == Outcome::Failed ? outcome : zones_.store(place_);
        if (zone == Outcome::Failed) {
            error_ = outcome == Outcome::Failed ? writer_.error() : zones_.error();
            return zone;
        }
        const bool isSame = outcome == Outcome::Same && header == outcome && zone == outcome;
        return outcome == Outcome::Same && !isSame ? Outcome::Changed : outcome;
    }

private:
    struct Asked {
        char discipline;
        User* user;
        std::optional<long> number;
        std::string category;
    };
    struct Decision {
        Analysis* analysis = nullptr;
        bool failed = false;
        std::string refusal;
    };

    // A second row for the same sample, analyst and category is a second look at it, and so a
    // further analysis; the numbers of the file's own are kept.
    Decision decide(const CellReader& cells, const Asked& asked)
    {
        Decision decision;
        Analyses& analyses = context_.analyses;
        const RowPlace place{&cells.file(), cells.line()};
        const std::string key = std::to_string(sample_->ordinal) + asked.discipline
            + asked.user->abr + '\n' + asked.category + '\n'
            + std::to_string(asked.number.value_or(0));
        auto& looks = looks_[key];
        const std::size_t content = contentHash(cells);
        for (const auto& [other, otherPlace] : looks)
            if (other == content)
                decision.refusal =
                    "the same row is in " + otherPlace.seenFrom(cells.file()) + " already";
        if (!decision.refusal.empty())
            return decision;
        looks.emplace_back(content, place);
        const std::string label = looks.size() == 1
            ? asked.category
            : asked.category + '/' + std::to_string(looks.size());
        decision.analysis = asked.number
            ? analyses.numbered(
                *sample_->well, asked.discipline, *asked.user, *asked.number, asked.category)
            : analyses.labelled(*sample_->well, asked.discipline, *asked.user, label);
        decision.failed = !decision.analysis;
        if (decision.failed)
            return decision;
        if (analyses.hasDetails(sample_->ordinal, *decision.analysis))
            decision.refusal = "another row has the details of this sample and analysis already";
        else
            analyses.announceDetails(sample_->ordinal, *decision.analysis);
        return decision;
    }

    void readColumns(CellReader& cells)
    {
        std::string text;
        for (const auto& [column, target] : kTexts) {
            const Cell state = cells.text(column, &text);
            record_.set(target, givenValue(state, textValue(text)));
        }
        double number = 0;
        for (const auto& [column, target] : kNumbers) {
            const Cell state = cells.number(column, &number);
            record_.set(target, givenValue(state, number));
        }
        long whole = 0;
        for (const auto& [column, target] : kWholes) {
            const Cell state = cells.whole(column, &whole);
            record_.set(target, givenValue(state, whole));
        }
        readBarren(cells);
        const AbundanceScheme* scheme = context_.abundancesOf(cells.file().set).scheme;
        scheme_ = scheme ? std::optional(scheme->id) : std::nullopt;
    }

    // Range tables write the barren sample as an abundance of the group.
    void readBarren(CellReader& cells)
    {
        std::optional<bool> barren = readYesNo(cells, cell::Barren);
        const std::string group = upperCased(cells.raw(cell::GroupAbundance));
        if (!barren && !group.empty())
            barren = group == "B" || group == "BARREN";
        if (barren)
            record_.set(DetailColumn::Barren, textValue(*barren ? "Y" : "N"));
    }

    void readNotes(CellReader& cells)
    {
        NamedNotes notes;
        const Cell state = cells.text(cell::Notes, &notes.text);
        bool given = state != Cell::Missing;
        notes.add("category", decision_->analysis->label);
        std::string text;
        for (const auto& [column, name] : kNoted) {
            given = cells.text(column, &text) != Cell::Missing || given;
            notes.add(name, text);
        }
        fit(cells, &notes);
        if (given || !notes.fields.empty())
            record_.set(DetailColumn::Notes, textValue(notes.compose()));
    }

    void fit(CellReader& cells, NamedNotes* notes) const
    {
        // The category is what later imports need.
        const std::size_t kept = decision_->analysis->label.empty() ? 0 : 1;
        while (notes->compose().size() > kNotesCapacity) {
            const bool dropsField = notes->fields.size() > kept;
            const std::string lost = dropsField ? notes->fields.back().second : notes->text;
            cells.report().adjust(dropsField ? notes->fields.back().first : "notes", lost,
                "the notes have no room for it; left out");
            if (dropsField)
                notes->fields.pop_back();
            else
                notes->text.clear();
        }
    }

    ImportContext& context_;
    DetailWriter writer_;
    DetailZones zones_;
    Decisions<Decision> decisions_;
    std::unordered_map<std::string, std::vector<std::pair<std::size_t, RowPlace>>> looks_;

    // The row at hand.
    DetailRecord record_;
    RowPlace place_;
    const FileId* sample_ = nullptr;
    const Decision* decision_ = nullptr;
    std::optional<long> scheme_;
};

} // namespace

std::unique_ptr<RowLoader> makeDetailsLoader(ImportContext& context)
{
    return std::make_unique<DetailsLoader>(context);
}
