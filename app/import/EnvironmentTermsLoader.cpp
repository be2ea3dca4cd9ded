// app/import/EnvironmentTermsLoader.cpp
#include "app/import/Loader.h"
#include "app/import/RockShapes.h"
#include "app/import/RowPlaces.h"
#include "app/import/SchemeCells.h"
#include "util/TextUtil.h"

#include <algorithm>

namespace {

namespace cell = environment_terms;

constexpr std::size_t kMostTerms = 20;

class EnvironmentTermsLoader : public RowLoader {
public:
    explicit EnvironmentTermsLoader(ImportContext& context)
        : writer_(context.writing)
    {
    }

    bool check(CellReader& cells) override
    {
        std::string name;
        if (!writer_.load()) {
            error_ = writer_.error();
            return false;
        }
        EnvironmentTerm row;
        const bool hasScheme = cells.key(cell::Scheme, &name) == Cell::Good;
        cells.key(cell::Name, &row.name);
        if (cells.whole(cell::Number, &row.number) == Cell::Good && row.number < 1)
            cells.refuse(cell::Number, "terms are numbered from 1");
        row.colour = readColour(cells, {cell::Red, cell::Green, cell::Blue});
        if (!hasScheme || cells.report().refused())
            return true;
        if (!findScheme(name))
            return false;
        const RowPlace place{&cells.file(), cells.line()};
        term_ = &decisions_.of(place, [&] { return decide(cells, row); });
        if (!term_->refusal.empty())
            cells.refuse(cell::Name, term_->refusal);
        return true;
    }

    Outcome store() override
    {
        const Outcome outcome = writer_.put(*scheme_->entry, term_->term);
        if (outcome == Outcome::Failed)
            error_ = writer_.error();
        return outcome;
    }

private:
    struct Scheme {
        NamedEntry* entry;
        std::map<long, std::string> terms; ///< stored and announced ones
        FirstRows names;
        FirstRows numbers;
    };
    struct Decision {
        EnvironmentTerm term;
        std::string refusal;
    };

    // False: `error_`.
    bool findScheme(const std::string& name)
    {
        NamedEntry* entry = writer_.find(name);
        if (!entry)
            entry = writer_.add(name);
        const auto [known, isNew] = schemes_.try_emplace(entry, Scheme{entry, {}, {}, {}});
        scheme_ = &known->second;
        if (isNew && !writer_.readTerms(*entry, &scheme_->terms)) {
            error_ = writer_.error();
            return false;
        }
        return true;
    }

    Decision decide(const CellReader& cells, EnvironmentTerm term)
    {
        const RowPlace place{&cells.file(), cells.line()};
        auto& terms = scheme_->terms;
        if (term.number == 0)
            term.number = numberOf(term.name);
        const RowPlace* first = scheme_->names.before(upperCased(term.name), place);
        if (!first)
            first = scheme_->numbers.before(std::to_string(term.number), place);
        Decision decision{term, {}};
        if (first)
            decision.refusal =
                "a term of this name or number is in " + first->seenFrom(cells.file()) + " already";
        else if (terms.size() >= kMostTerms && terms.count(term.number) == 0)
            decision.refusal = "the scheme has twenty terms already, the most that one holds";
        else
            terms[term.number] = term.name;
        return decision;
    }

    // Without a number a term keeps that of its name, or comes behind the last one.
    long numberOf(const std::string& name) const
    {
        const auto& terms = scheme_->terms;
        const auto same = std::ranges::find_if(
            terms, [&](const auto& term) { return compareIgnoringCase(term.second, name) == 0; });
        if (same != terms.end())
            return same->first;
        return terms.empty() ? 1 : terms.rbegin()->first + 1;
    }

    EnvironmentWriter writer_;
    std::map<const NamedEntry*, Scheme> schemes_;
    Decisions<Decision> decisions_;

    // The row at hand.
    Scheme* scheme_ = nullptr;
    const Decision* term_ = nullptr;
};

} // namespace

std::unique_ptr<RowLoader> makeEnvironmentTermsLoader(ImportContext& context)
{
    return std::make_unique<EnvironmentTermsLoader>(context);
}
