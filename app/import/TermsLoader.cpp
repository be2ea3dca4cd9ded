// app/import/TermsLoader.cpp
#include "app/import/InterpretationShapes.h"
#include "app/import/Loader.h"
#include "app/import/Overlaps.h"
#include "app/import/RowPlaces.h"
#include "app/import/SchemeCells.h"
#include "util/FixedText.h"
#include "util/TextUtil.h"

namespace {

namespace cell = terms;

constexpr std::size_t kLongestName = 80; // bytes
constexpr long kLithostratigraphy = 2;
constexpr long kChronostratigraphy = 3;

/// What makes time scales, zonations and lithostratigraphic units differ.
struct TermFiles {
    long type; ///< 0: that of the scheme
    const char* numbers;
};
constexpr TermFiles kTimeScales{kChronostratigraphy, "chronostrat"};
constexpr TermFiles kZonations{0, "zones"};
constexpr TermFiles kUnits{kLithostratigraphy, "lithostrat_units"};

class TermsLoader : public RowLoader {
public:
    TermsLoader(ImportContext& context, const TermFiles& files)
        : context_(context)
        , all_(context.interpretation)
        , files_(files)
    {
    }

    bool check(CellReader& cells) override
    {
        if (!all_.schemes.load()) {
            error_ = all_.schemes.error();
            return false;
        }
        NamedEntry* scheme = readScheme(cells);
        if (scheme && !all_.terms.load(*scheme)) {
            error_ = all_.terms.error();
            return false;
        }
        row_.assign(static_cast<std::size_t>(TermColumn::Count), std::nullopt);
        std::string name;
        const bool hasName = cells.key(cell::Name, &name) == Cell::Good;
        const Ages ages = readAges(cells);
        readRest(cells);
        if (!scheme || !hasName || cells.report().refused())
            return true;
        const auto rank = readRank(cells, cell::Rank, cell::RankName, scheme->kind);
        if (!rank)
            cells.refuse(cell::Rank, "neither a rank nor the name of one");
        FileIds& numbers = context_.ids(files_.numbers, cells.file().set);
        FileId* number = nullptr;
        if (!cells.report().refused() && takeFileNumber(cells, cell::Number, numbers, &number))
            judge(cells, *scheme, name, *rank, ages);
        return true;
    }

    Outcome store() override
    {
        if (all_.schemes.put(*term_->scheme) == Outcome::Failed) {
            error_ = all_.schemes.error();
            return Outcome::Failed;
        }
        const Outcome outcome = all_.terms.put(*term_, row_);
        if (outcome == Outcome::Failed)
            error_ = all_.terms.error();
        return outcome;
    }

private:
    using Ages = std::optional<std::pair<double, double>>; // Ma, younger and older

    struct Named {
        std::string name;
        std::string adjustment;
        std::string refusal;
    };

    // By the file's own number, else by name; time scales and units without one take the name of
    // their file and folder.
    NamedEntry* readScheme(CellReader& cells)
    {
        const std::string number(cells.raw(cell::SchemeNumber));
        NamedEntry* scheme = all_.numberedSchemes.find(cells.file().set, number);
        std::string name;
        if (scheme)
            return scheme;
        if (cells.text(cell::Scheme, &name) == Cell::Good) {
            scheme = all_.schemes.find(name);
            if (scheme || files_.type != 0)
                return schemeNamed(cells, cell::Scheme, name,
                    scheme && files_.type == 0 ? scheme->kind : files_.type, context_);
        }
        if (files_.type == 0 || !number.empty()) {
            cells.refuse(number.empty() ? cell::Scheme : cell::SchemeNumber,
                "no such scheme in the database or among the accepted rows of schemes files");
            return nullptr;
        }
        name = files_.type == kChronostratigraphy ? cells.file().path.stem().string()
                                                  : folderOf(cells.file());
        name = utf8Prefix(name, kLongestName);
        cells.report().noteOnce("", "", "the scheme is called " + name);
        return schemeNamed(cells, cell::Scheme, name, files_.type, context_);
    }

    Ages readAges(CellReader& cells)
    {
        double top = 0;
        double base = 0;
        const Cell topState = cells.number(cell::Top, &top);
        const Cell baseState = cells.number(cell::Base, &base);
        set(TermColumn::UpperAge, givenValue(topState, top));
        set(TermColumn::LowerAge, givenValue(baseState, base));
        if (topState != Cell::Good || baseState != Cell::Good)
            return std::nullopt;
        if (top > base)
            cells.refuse(cell::Top, "the top is older than the base");
        return std::pair(top, base);
    }

    void readRest(CellReader& cells)
    {
        std::string abr;
        const Cell state = cells.text(cell::Abr, &abr);
        set(TermColumn::Abr, givenValue(state, textValue(abr)));
        const ColourValues colour = readColour(cells, {cell::Red, cell::Green, cell::Blue});
        set(TermColumn::Red, colour[0]);
        set(TermColumn::Green, colour[1]);
        set(TermColumn::Blue, colour[2]);
    }

    void judge(
        CellReader& cells, NamedEntry& scheme, const std::string& name, long rank, const Ages& ages)
    {
        const RowPlace place{&cells.file(), cells.line()};
        const std::string group = scheme.name + '\n' + std::to_string(rank) + '\n';
        const Named& named = names_.of(place, [&] { return named_(cells, group, name); });
        if (!named.refusal.empty()) {
            cells.refuse(cell::Name, named.refusal);
            return;
        }
        if (!named.adjustment.empty())
            cells.adjust(cell::Name, named.adjustment);
        // Regions have zonations of their own.
        const std::string region(cells.raw(cell::Region));
        const RowPlace* other =
            ages ? overlaps_.before(group + region, ages->first, ages->second, place) : nullptr;
        if (other)
            cells.adjust(cell::Top,
                "stored, but its ages overlap those in " + other->seenFrom(cells.file()));
        term_ = all_.terms.find(scheme, named.name, rank);
        if (!term_)
            term_ = all_.terms.add(scheme, named.name, rank);
        all_.numberedTerms.give(cells.file().set, std::string(cells.raw(cell::Number)), term_);
    }

    // A name is given once in each rank: another zone of that name carries its region.
    Named named_(const CellReader& cells, const std::string& group, const std::string& name)
    {
        const RowPlace place{&cells.file(), cells.line()};
        const std::string region(cells.raw(cell::Region));
        const RowPlace* first = rows_.before(group + upperCased(name), place);
        const bool isNewThere = !regions_.before(group + upperCased(name + '\n' + region), place);
        if (!first)
            return {name, {}, {}};
        const std::string longer = name + " (" + region + ')';
        const std::string where = first->seenFrom(cells.file());
        const bool fits = isNewThere && !region.empty() && longer.size() <= kLongestName
            && region.find('%') == std::string::npos;
        if (fits && !rows_.before(group + upperCased(longer), place))
            return {longer, "this name is in " + where + " already; stored as " + longer, {}};
        return {name, {}, "this name is in " + where + " already"};
    }

    void set(TermColumn column, std::optional<Value> value)
    {
        row_[static_cast<std::size_t>(column)] = std::move(value);
    }

    ImportContext& context_;
    Interpretation& all_;
    const TermFiles& files_;
    FirstRows rows_;
    FirstRows regions_; // names with their regions
    Overlaps overlaps_;
    Decisions<Named> names_;

    // The row at hand.
    Row row_;
    TermEntry* term_ = nullptr;
};

} // namespace

std::unique_ptr<RowLoader> makeTimeScaleLoader(ImportContext& context)
{
    return std::make_unique<TermsLoader>(context, kTimeScales);
}

std::unique_ptr<RowLoader> makeZonationLoader(ImportContext& context)
{
    return std::make_unique<TermsLoader>(context, kZonations);
}

std::unique_ptr<RowLoader> makeUnitsLoader(ImportContext& context)
{
    return std::make_unique<TermsLoader>(context, kUnits);
}
