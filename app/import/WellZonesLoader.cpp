// app/import/WellZonesLoader.cpp
#include "app/import/InterpretationShapes.h"
#include "app/import/IntervalCells.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"
#include "app/import/SchemeCells.h"
#include "util/FixedText.h"
#include "util/TextUtil.h"

#include <set>

namespace {

namespace cell = well_zones;

/// What makes formation tops and ages of intervals differ.
struct ZoneFiles {
    long type;
    long rank;              ///< of names that nothing gives a rank; 0: they are refused
    const char* schemeName; ///< behind that of the folder
};
constexpr ZoneFiles kFormations{2, 0, ""};
constexpr ZoneFiles kAges{3, 7, " ages"};

constexpr IntervalColumns kInterval{cell::Top, cell::Base, cell::Units};

class WellZonesLoader : public RowLoader {
public:
    WellZonesLoader(ImportContext& context, const ZoneFiles& files)
        : context_(context)
        , all_(context.interpretation)
        , files_(files)
    {
    }

    bool check(CellReader& cells) override
    {
        upper_ = lower_ = parent_ = nullptr;
        std::string code;
        if (!all_.schemes.load() || !readWell(cells, cell::WellCode, context_, &code, &well_)) {
            error_ = all_.schemes.error() + context_.error();
            return false;
        }
        const bool hasInterval = readInterval(cells, kInterval, well_, &interval_);
        NamedEntry* scheme = readScheme(cells);
        if (scheme && !all_.terms.load(*scheme)) {
            error_ = all_.terms.error();
            return false;
        }
        if (scheme && !cells.report().refused())
            readTerms(cells, *scheme);
        if (hasInterval && !cells.report().refused())
            judge(cells, code);
        return true;
    }

    Outcome store() override
    {
        for (TermEntry* term : {upper_, lower_, parent_})
            if (term && !ensure(*term))
                return Outcome::Failed;
        const auto top = all_.samples.at(*well_, interval_.top);
        const auto base = top ? all_.samples.at(*well_, interval_.base) : std::nullopt;
        if (!base) {
            error_ = all_.samples.error();
            return Outcome::Failed;
        }
        ZoneRecord record{well_->id, files_.type, upper_->hier, upper_->scheme->id, *top, *base,
            upper_->id, upper_->name, 0, {}};
        if (lower_) {
            record.lowerId = lower_->id;
            record.lowerName = lower_->name;
        }
        const Outcome outcome = all_.zones.put(record);
        if (outcome == Outcome::Failed)
            error_ = all_.zones.error();
        return outcome;
    }

private:
    NamedEntry* readScheme(CellReader& cells)
    {
        std::string name;
        if (cells.text(cell::Scheme, &name) == Cell::Good)
            return schemeNamed(cells, cell::Scheme, name, files_.type, context_);
        const std::string number(cells.raw(cell::Number));
        const TermEntry* known = all_.numberedTerms.find(cells.file().set, number);
        if (known && known->scheme->kind == files_.type)
            return known->scheme;
        name = utf8Prefix(folderOf(cells.file()) + files_.schemeName, 80);
        cells.report().noteOnce("", "", "the scheme is called " + name);
        return schemeNamed(cells, cell::Scheme, name, files_.type, context_);
    }

    void readTerms(CellReader& cells, NamedEntry& scheme)
    {
        std::string name;
        std::string lower;
        if (cells.key(cell::Name, &name) != Cell::Good)
            return;
        cells.text(cell::LowerName, &lower);
        const auto rank = readRank(cells, cell::Rank, cell::RankName, files_.type);
        const std::string number(cells.raw(cell::Number));
        upper_ = all_.numberedTerms.find(cells.file().set, number);
        if (!upper_ || upper_->scheme != &scheme)
            upper_ = term(cells, cell::Name, scheme, name, rank);
        if (!lower.empty() && upperCased(lower) != upperCased(name))
            lower_ = term(cells, cell::LowerName, scheme, lower, rank);
        if (upper_ && context_.phase == ImportPhase::Checking)
            date(cells);
        if (cells.text(cell::ParentName, &name) == Cell::Good && upper_)
            parent_ = term(cells, cell::ParentName, scheme, name, std::max(1L, upper_->hier - 1));
    }

    // The term of the rank, else of any; one that the scheme does not have is announced.
    TermEntry* term(CellReader& cells, int column, NamedEntry& scheme, const std::string& name,
        std::optional<long> rank)
    {
        TermEntry* known = rank ? all_.terms.find(scheme, name, *rank) : nullptr;
        if (!known)
            known = all_.terms.find(scheme, name);
        const long newRank = rank.value_or(files_.rank);
        if (known)
            return known;
        if (name.find('%') != std::string::npos)
            cells.refuse(
                column, "a percent sign cannot stand here: searches take it for a wildcard");
        else if (newRank == 0)
            cells.refuse(column, "not in the scheme, and without a rank");
        if (cells.report().refused())
            return nullptr;
        cells.report().noteOnce(
            "", "", "names that the scheme " + scheme.name + " does not have become terms of it");
        return all_.terms.add(scheme, name, newRank);
    }

    // A new term has the ages of the row that names it alone, else those of a row that names it
    // together with another.
    void date(CellReader& cells)
    {
        double top = 0;
        double base = 0;
        if (cells.number(cell::TopAge, &top) != Cell::Good
            || cells.number(cell::BaseAge, &base) != Cell::Good || top > base)
            return;
        for (TermEntry* term : {upper_, lower_}) {
            if (!term || term->isStored || dated_.count(term) != 0 || (lower_ && term->hasAge()))
                continue;
            term->set(TermColumn::UpperAge, Value(top));
            term->set(TermColumn::LowerAge, Value(base));
            if (!lower_)
                dated_.insert(term);
        }
    }

    void judge(CellReader& cells, const std::string& code)
    {
        const std::string key = code + '\n' + std::to_string(interval_.top) + '\n'
            + std::to_string(upper_->hier) + '\n' + upperCased(upper_->name);
        if (const RowPlace* first = rows_.before(key, {&cells.file(), cells.line()}))
            cells.refuse(cell::Name,
                "this name at this top is in " + first->seenFrom(cells.file()) + " already");
        cells.report().noteOnce("", "",
            "zones lie between the samples at their depths; where there is none, one of type LOG "
            "is "
            "made, OC in an outcrop");
    }

    bool ensure(TermEntry& term)
    {
        if (all_.schemes.put(*term.scheme) == Outcome::Failed)
            error_ = all_.schemes.error();
        else if (all_.terms.ensure(term) == Outcome::Failed)
            error_ = all_.terms.error();
        return error_.empty();
    }

    ImportContext& context_;
    Interpretation& all_;
    const ZoneFiles& files_;
    FirstRows rows_;
    std::set<const TermEntry*> dated_;

    // The row at hand.
    const KnownWell* well_ = nullptr;
    DepthInterval interval_;
    TermEntry* upper_ = nullptr;
    TermEntry* lower_ = nullptr;
    TermEntry* parent_ = nullptr;
};

} // namespace

std::unique_ptr<RowLoader> makeFormationTopsLoader(ImportContext& context)
{
    return std::make_unique<WellZonesLoader>(context, kFormations);
}

std::unique_ptr<RowLoader> makeAgeIntervalsLoader(ImportContext& context)
{
    return std::make_unique<WellZonesLoader>(context, kAges);
}
