// app/import/SurfacesLoader.cpp
#include "app/import/Cells.h"
#include "app/import/ImportContext.h"
#include "app/import/Loader.h"
#include "app/import/MarkerShapes.h"
#include "app/import/RowPlaces.h"

namespace {

namespace cell = surfaces;

class SurfacesLoader : public RowLoader {
public:
    explicit SurfacesLoader(ImportContext& context)
        : context_(context)
        , all_(context.interpretation)
    {
    }

    bool check(CellReader& cells) override
    {
        if (!all_.surfaces.load() || !all_.schemes.load()) {
            error_ = all_.surfaces.error() + all_.schemes.error();
            return false;
        }
        std::string name;
        const bool hasName = cells.key(cell::Name, &name) == Cell::Good;
        readRest(cells);
        const RowPlace place{&cells.file(), cells.line()};
        const RowPlace* first = hasName ? rows_.before(name, place) : nullptr;
        if (first)
            cells.refuse(
                cell::Name, "this surface is in " + first->seenFrom(cells.file()) + " already");
        FileIds& numbers = context_.ids("surfaces", cells.file().set);
        FileId* number = nullptr;
        if (cells.report().refused() || !takeFileNumber(cells, cell::Number, numbers, &number))
            return true;
        surface_ = all_.surfaces.find(name);
        if (!surface_)
            surface_ = all_.surfaces.add(name);
        all_.numberedSurfaces.give(
            cells.file().set, std::string(cells.raw(cell::Number)), surface_);
        return true;
    }

    Outcome store() override
    {
        if (scheme_ && all_.schemes.put(*scheme_) == Outcome::Failed) {
            error_ = all_.schemes.error();
            return Outcome::Failed;
        }
        if (scheme_)
            record_.schemeId = Value(scheme_->id);
        const Outcome outcome = all_.surfaces.put(*surface_, record_);
        if (outcome == Outcome::Failed)
            error_ = all_.surfaces.error();
        return outcome;
    }

private:
    void readRest(CellReader& cells)
    {
        record_ = SurfaceRecord();
        std::string name;
        scheme_ = nullptr;
        if (cells.text(cell::Scheme, &name) == Cell::Good) {
            scheme_ = all_.schemes.find(name);
            if (!scheme_)
                cells.refuse(cell::Scheme, "no such scheme in the database or in files beside it");
        }
        double age = 0;
        const Cell ageState = cells.number(cell::Age, &age);
        record_.age = givenValue(ageState, age);
        if (ageState == Cell::Good && age <= 0)
            cells.adjust(cell::Age, "stored, but no zones are made of a surface without an age");
        long type = 0;
        const Cell typeState = cells.whole(cell::Type, &type);
        record_.type = givenValue(typeState, type);
    }

    ImportContext& context_;
    Interpretation& all_;
    FirstRows rows_;

    // The row at hand.
    NamedEntry* surface_ = nullptr;
    NamedEntry* scheme_ = nullptr;
    SurfaceRecord record_;
};

} // namespace

std::unique_ptr<RowLoader> makeSurfacesLoader(ImportContext& context)
{
    return std::make_unique<SurfacesLoader>(context);
}
