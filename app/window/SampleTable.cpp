// app/window/SampleTable.cpp
#include "app/window/DepthUnits.h"
#include "app/window/RowTableModel.h"
#include "app/window/SampleTexts.h"
#include "app/window/Texts.h"
#include "app/window/WellTables.h"
#include "well/Sample.h"
#include "well/Well.h"

namespace {

using Samples = RowTableModel<const Sample*>;

QString dateText(const Date& date) { return shownOrMissing(date.isoText()); }

constexpr Samples::Column kColumns[] = {
    {{kSampleDepth, kSampleDepthMeaning, Qt::AlignRight},
        [](const Sample* const& s, char units) { return sampleDepthText(*s, units); }},
    {{"Top (%1)", "Top of the sampled interval", Qt::AlignRight},
        [](const Sample* const& s, char units) { return depthText(s->top, units); }},
    {{"Base (%1)", "Base of the sampled interval", Qt::AlignRight},
        [](const Sample* const& s, char units) { return depthText(s->base, units); }},
    {{"Type", "Kind of sample: CU, SC, CO, OC or LOG", Qt::AlignHCenter},
        [](const Sample* const& s, char) { return shownOrMissing(s->type.view()); },
        [](const Sample* const& s) { return sampleTypeWord(*s); }},
    {{"Label", "What the sample is called", Qt::AlignLeft},
        [](const Sample* const& s, char) { return shownOrMissing(s->label.view()); }},
    {{"Created", "The day the sample was entered", Qt::AlignLeft},
        [](const Sample* const& s, char) { return dateText(s->created); }},
    {{"Created by", "Who entered the sample", Qt::AlignLeft},
        [](const Sample* const& s, char) { return shownOrMissing(s->creator.view()); }},
    {{"Changed", "The day the sample was last changed", Qt::AlignLeft},
        [](const Sample* const& s, char) { return dateText(s->modified); }},
    {{"Changed by", "Who changed the sample last", Qt::AlignLeft},
        [](const Sample* const& s, char) { return shownOrMissing(s->modifier.view()); }},
};

std::vector<const Sample*> samplesOf(const Well& well)
{
    std::vector<const Sample*> samples;
    for (const Sample* sample : well.samples)
        if (sample->samp_id != 0)
            samples.push_back(sample);
    return samples;
}

} // namespace

std::unique_ptr<WellTableModel> sampleTable()
{
    return std::make_unique<Samples>(kColumns, samplesOf);
}
