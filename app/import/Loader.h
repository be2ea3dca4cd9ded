// app/import/Loader.h
#pragma once

#include "store/Outcome.h"

#include <memory>
#include <string>

class CellReader;
class ImportContext;
struct InputFile;

/// Checks and stores the rows of one kind of file. One loader serves all files of its kind of an
/// import, first to check them all, then to store them all: `check` sees every row twice and must
/// decide the same way both times.
class RowLoader {
public:
    virtual ~RowLoader() = default;

    /// What is wrong with the columns that a file has; empty when nothing is.
    virtual std::string columnProblem(const InputFile&) const { return {}; }
    /// Reads the row into the loader and tells the file's report what it adjusts or refuses. False
    /// only when the database could not be asked (`error`).
    virtual bool check(CellReader& cells) = 0;
    /// Stores the row that was checked last and not refused.
    virtual Outcome store() = 0;

    const std::string& error() const { return error_; }

protected:
    std::string error_;
};

std::unique_ptr<RowLoader> makeWellsLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeSamplesLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeDisciplinesLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeCategoriesLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeTaxaLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeSynonymyLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeNameVariantsLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeSchemesLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeLevelsLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeAbundanceCodesLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeAnalystsLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeDetailsLoader(ImportContext& context);
/// Of occurrences and of counts.
std::unique_ptr<RowLoader> makeOccurrencesLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeEventDictionaryLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeEventsLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeStandardLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeTvdLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeCoresLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeInterpretationSchemesLoader(ImportContext& context);
/// Of terms of schemes: time scales, zonations, lithostratigraphic units.
std::unique_ptr<RowLoader> makeTimeScaleLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeZonationLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeUnitsLoader(ImportContext& context);
/// Of zones of wells.
std::unique_ptr<RowLoader> makeFormationTopsLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeAgeIntervalsLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeLithologiesLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeLayersLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeIntervalsLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeComponentsLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeEnvironmentTermsLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeCasingLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeMarkersLoader(ImportContext& context);
std::unique_ptr<RowLoader> makeSurfacesLoader(ImportContext& context);
std::unique_ptr<RowLoader> makePicksLoader(ImportContext& context);
