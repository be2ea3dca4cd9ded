// app/shell/TaxonRanges.cpp
#include "app/shell/TaxonRanges.h"

#include "well/Sample.h"
#include "well/Well.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>

namespace {

constexpr const char* kAnyAnalyst = "";
constexpr int kTop = 1, kBase = 2;
constexpr int kNoWindow = 0, kAnyOne = 0;

// What a range may pass over at that end.
bool isSuspect(const Fssabnd& occurrence, int mode)
{
    return mode == kTop ? occurrence.isReworked() : occurrence.isCaved();
}

/// The samples of a well that a discipline examined, from one end of the well on, and where its
/// taxa were found.
class Finds {
public:
    Finds(const Well& well, char disc, int mode)
        : mode_(mode)
    {
        for (const Sample* sample : well.samples)
            if (sample->FindDetails(disc, kAnyAnalyst))
                examined_.push_back(sample);
        // Of samples at one depth the first in the list is taken, at either end.
        std::ranges::stable_sort(examined_, {}, [mode](const Sample* sample) {
            constexpr int kWithShift = 1;
            return sample->GetDepth('M', mode == kBase, kWithShift);
        });
        for (std::size_t place = 0; place < examined_.size(); ++place)
            for (const Smpdtl* record : examined_[place]->details)
                if (record->disc == disc)
                    add(place, *record);
    }

    RangeEnd end(long spec_id, Suspect suspect) const
    {
        const auto found = finds_.find(spec_id);
        if (found == finds_.end())
            return {};
        const std::vector<Find>& finds = found->second;
        const auto first = std::ranges::find_if(
            finds, [&](const Find& find) { return suspect == Suspect::Counts || find.sound; });
        const auto chosen = first != finds.end() ? first : finds.begin();
        return {examined_[chosen->place], absentBefore(finds, chosen),
            reason(chosen - finds.begin(), chosen->sound)};
    }

private:
    struct Find {
        std::size_t place; ///< among the examined samples
        bool sound;        ///< whether an occurrence there is not suspect
    };

    void add(std::size_t place, const Smpdtl& record)
    {
        for (const Fssabnd* occurrence : record.occurrences) {
            std::vector<Find>& finds = finds_[occurrence->spec_id];
            if (finds.empty() || finds.back().place != place)
                finds.push_back({place, false});
            finds.back().sound |= !isSuspect(*occurrence, mode_);
        }
    }

    const Sample* absentBefore(
        const std::vector<Find>& finds, std::vector<Find>::const_iterator chosen) const
    {
        std::size_t place = chosen->place;
        while (chosen != finds.begin() && std::prev(chosen)->place + 1 == place)
            place = (--chosen)->place;
        return place == 0 ? nullptr : examined_[place - 1];
    }

    std::string reason(std::ptrdiff_t passed, bool sound) const
    {
        const std::string mark = mode_ == kTop ? "reworked" : "caved";
        if (passed > 0)
            return mark + " in " + std::to_string(passed) + (passed == 1 ? " sample" : " samples")
                + " beyond";
        return sound ? "" : "only " + mark + " here";
    }

    int mode_;
    std::vector<const Sample*> examined_;
    std::unordered_map<long, std::vector<Find>> finds_;
};

} // namespace

std::vector<TaxonRange> taxonRanges(Well& well, char disc, Suspect suspect, TaxonList& taxa)
{
    const int exclude = suspect == Suspect::Excluded ? 1 : 0;
    well.CollectTaxa(disc, taxa);
    well.RangeOrder(taxa, kTop, disc, exclude, kNoWindow, 0, 0, 'M', kAnyOne, kAnyAnalyst);
    // A section is measured upwards: its highest sample is its top.
    const bool upwards = well.type == 'O';
    const Finds tops(well, disc, upwards ? kBase : kTop);
    const Finds bases(well, disc, upwards ? kTop : kBase);
    std::vector<TaxonRange> ranges;
    for (const Taxon* taxon : taxa)
        ranges.push_back(
            {taxon, tops.end(taxon->spec_id(), suspect), bases.end(taxon->spec_id(), suspect)});
    return ranges;
}
