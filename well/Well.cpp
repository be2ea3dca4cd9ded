// well/Well.cpp
#include "well/Well.h"

#include "db/Units.h"
#include "well/Sample.h"

Well::Well() { Reset(); }

Well::~Well()
{
    while (const Sample* s = samples.pop())
        delete s;
}

void Well::Reset()
{
    well_id = 0;
    identified = 0;
    samplesLoaded = 0;
    well_name.clear();
    well_code.clear();
    operator_.clear();
    country.clear();
    field.clear();
    ocs.clear();
    county.clear();
    descrip.clear();
    geoDatum.clear();
    grid_x = grid_y = 0;
    spud_date = comp_date = Date();
    lat_dec = long_dec = 0;
    td = sl = sb = rte = kicko = 0;
    datum = 1;
    type = 'W';
    units = 'M';
    detailsLoaded.fill(0);
    occurrencesLoaded.fill(0);
    slithLoaded = 0;
    coresState = 0;
    tvd.reset();
}

void Well::SetUnits(char c) { units = c == '\'' || c == 'F' || c == 'f' ? 'F' : 'M'; }

const char* Well::UnitsText(int form) const
{
    static ResultText letter;
    const bool feet = units == 'F';
    switch (form) {
    case 2:
        return feet ? "'" : "m";
    case 3:
        return feet ? "feet" : "metres";
    case 4:
        return feet ? "FT" : "M";
    default:
        return letter.keep(units ? std::string(1, units) : "");
    }
}

void Well::AddSample(Sample* s)
{
    if (s->samp_id == 0 || !samples.FindById(s->samp_id))
        samples.InsertOrdered(s, type);
}

Sample* Well::FindOrAddSample(float depth, const char* sampleType, const char* defaultType)
{
    return samples.FindOrAdd(depth, sampleType, defaultType);
}

void Well::ConvertSampleDepths(char c)
{
    const double factor = c == 'M' ? kFeetPerMetre : kMetresPerFoot;
    for (Sample* s : samples) {
        const Sample::Depth top = s->top, base = s->base;
        s->top = static_cast<float>(top * factor);
        s->base = static_cast<float>(base * factor);
        if (s->top != top || s->base != base)
            s->saved = 0;
    }
}
