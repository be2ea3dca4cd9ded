// bench/well_load/LoadedWell.cpp
#include "bench/well_load/LoadedWell.h"

#include "bench/well_load/GeneratedWell.h"
#include "well/Sample.h"
#include "well/Well.h"

#include <cstdlib>

namespace {

/// The abbreviation and number that an analyst key was made from.
void hashKey(std::string_view key, HashedValues& values)
{
    const std::size_t slash = key.find('/');
    values.text(key.substr(0, slash));
    values.integer(slash == key.npos ? 1 : std::atol(key.data() + slash + 1));
}

void hashSample(const Sample& s, HashedValues& values)
{
    values.integer(s.samp_id);
    values.number(s.top);
    values.number(s.base);
    values.text(s.type.c_str());
    values.integer(s.grid_x);
    values.integer(s.grid_y);
    values.text(s.created.isoText());
    values.text(s.modified.isoText());
    values.text(s.creator.c_str());
    values.text(s.modifier.c_str());
    values.text(s.label.c_str());
    values.endRow();
}

void hashDetails(const Sample& s, const Smpdtl& d, HashedValues& values)
{
    values.integer(s.samp_id);
    hashKey(d.analyst.c_str(), values);
    values.text(d.picker.c_str());
    values.text(d.source.c_str());
    values.letter(d.barren);
    values.text(d.modified.isoText());
    values.text(d.modifier.c_str());
    for (const float number : {d.weight, d.coarse, d.medium, d.fine})
        values.number(number);
    values.text(d.notes.c_str());
    for (const long number : {d.proximal, d.distal, long{d.red}, long{d.green}, long{d.blue}})
        values.integer(number);
    values.integer(d.abnsch_id);
    values.endRow();
}

// A missing caved mark is kept as a blank, the marker as a number.
void hashOccurrence(const Fssabnd& o, const Smpdtl& d, HashedValues& values)
{
    values.integer(o.samp_id);
    hashKey(d.analyst.c_str(), values);
    values.integer(o.spec_id);
    values.letter(o.status);
    values.letter(o.ident_type);
    values.text(o.abund.c_str());
    values.letter(o.isCaved() ? 'C' : '\0');
    values.letter(o.marker ? 'Y' : '\0');
    for (const long count : {o.medium, o.coarse, o.fine})
        values.integer(count);
    values.text(o.preserv.c_str());
    values.text(o.colour.c_str());
    values.text(o.comments.c_str());
    values.endRow();
}

} // namespace

void loadWhole(Well& well, long id)
{
    well.well_id = id;
    well.LoadSamples(0);
    for (const char discipline : GeneratedWell::kDisciplines)
        well.LoadSampleDetails(discipline, "");
    for (const char discipline : GeneratedWell::kDisciplines)
        well.loadFss(discipline, "", 0);
}

void hashObjects(Well& well, HashedValues& values)
{
    for (const Sample* s : well.samples) {
        hashSample(*s, values);
        for (const Smpdtl* d : s->details) {
            hashDetails(*s, *d, values);
            for (const Fssabnd* o : d->occurrences)
                hashOccurrence(*o, *d, values);
        }
    }
}
