// well/LoadSamples.cpp
#include "well/Well.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "well/Sample.h"
#include "well/SampleRow.h"
#include "well/SampleType.h"

#include <memory>

namespace {

std::unique_ptr<Sample> newSample(long well_id, const SampleRow& row)
{
    auto s = std::make_unique<Sample>(
        well_id, row.samp_id, row.top, row.type.c_str(), row.grid_x, row.grid_y, row.base);
    s->label = row.label; // as in the row, so not an edit
    s->SetCreated(row.created, row.creator.c_str(), 0);
    s->SetModified(row.modified, row.modifier.c_str());
    return s;
}

/// Takes over what the row says now; whether a depth changed.
bool takeOver(Sample& s, const SampleRow& row)
{
    const bool topChanged = s.SetTop(row.top, 'M');
    const bool baseChanged = row.base > 0 && s.SetBase(row.base, 'M');
    s.SetType(std::string(storedSampleType(row.type)).c_str());
    s.SetLabel(row.label.c_str());
    return topChanged || baseChanged;
}

} // namespace

void Well::LoadSamples(int reload)
{
    if (!reload && samplesLoaded)
        return;
    Cursor rows("SELECT samp_id, top_depth, base_depth, type, grid_x, grid_y, created, modified, "
                "creator, modifier,label FROM "
        + sql::table("SAMPLES") + " WHERE well_id=" + sql::integer(well_id) + " ORDER BY samp_id");
    if (!rows) {
        reportDbFailureAs("Error selecting sample list", Fatal::Yes);
        return;
    }
    while (rows.next()) {
        const SampleRow row(rows.integer(1), rows, 2);
        Sample* known = samples.FindById(row.samp_id);
        if (!known) {
            samples.InsertOrdered(newSample(well_id, row).release(), type);
        } else if (takeOver(*known, row)) {
            samples.TakeOut(known);
            samples.InsertOrdered(known, type);
        }
    }
    samplesLoaded = 1;
}
