// well/WellReports.cpp
#include "well/Well.h"

#include "taxonomy/Disciplines.h"
#include "util/TextUtil.h"
#include "well/Sample.h"

#include <algorithm>
#include <array>
#include <ostream>
#include <span>
#include <string>
#include <vector>

namespace {

constexpr std::size_t kSummaryRoom = 600;

/// From a start that every well should exceed; one that does not keeps it.
struct DepthRange {
    float least;
    float most = 0;
    void add(float depth)
    {
        least = std::min(least, depth);
        most = std::max(most, depth);
    }
};

std::string totalsText(std::span<const int> totals, bool compact)
{
    std::string text;
    for (int i = 0; i < kDisciplines; ++i) {
        const std::string total = std::to_string(totals[i]);
        if (!compact)
            text += std::string("\nTotal ") + discLetters[i] + " occurrences: " + total;
        else if (totals[i] != 0)
            text += "\nTotal occurrences: " + total + "\nRead into discipline: " + discLetters[i];
    }
    return text;
}

} // namespace

void Well::ListSamples(std::ostream& stream)
{
    stream << "\nList of samples from well:\t" << GetName();
    std::vector<std::string> analysts;
    for (const Sample* s : samples) {
        stream << "\nSample depth:\t" << s->GetDepth(units, 0, 0);
        for (int i = 0; i < kDisciplines; ++i) {
            stream << "\nDiscipline: " << discLetters[i];
            analysts.clear();
            s->ListAnalysts(discLetters[i], analysts);
            for (const std::string& analyst : analysts)
                s->PrintOccurrences(discLetters[i], analyst.c_str(), stream);
        }
    }
    samples.reset();
    stream << "\nEnd of Sample list";
}

void Well::Summary(char* out, int totals[4], char c, int compact)
{
    if (c != 0)
        units = c;
    sampleCount = samples.count();
    std::fill_n(totals, kDisciplines, 0);
    DepthRange depths{20000.0f};
    for (const Sample* s : samples) {
        depths.add(s->GetDepth(units, 0, 0));
        for (int i = 0; i < kDisciplines; ++i)
            totals[i] += s->CountOccurrences(discLetters[i], "");
    }
    std::string text = "\nWell name: " + (well_name.empty() ? "( no name )" : well_name.str());
    if (sampleCount == 0) {
        text += "\nNo samples for this well";
    } else {
        const std::string mark = UnitsText(2);
        text += "\nTotal: " + std::to_string(sampleCount) + " samples, depth range "
            + fixedString(depths.least, 2) + mark + " to " + fixedString(depths.most, 2) + mark
            + totalsText({totals, kDisciplines}, compact);
    }
    const FixedText<kSummaryRoom - 1> kept(text);
    std::copy_n(kept.c_str(), kept.size() + 1, out);
}

void Well::WriteSummary(std::ostream& stream, int totals[4], char c, int compact)
{
    std::array<char, kSummaryRoom> text;
    Summary(text.data(), totals, c, compact);
    stream << text.data();
}

void Well::ListLithologyIntervals(std::ostream& stream) const
{
    if (lithology.isEmpty())
        return;
    DepthRange depths{99999.0f};
    for (const Litho* interval : lithology) {
        if (interval->top)
            depths.least = std::min(depths.least, interval->top->GetDepth(units, 0, 0));
        if (interval->base)
            depths.most = std::max(depths.most, interval->base->GetDepth(units, 0, 0));
    }
    const char* mark = UnitsText(2);
    stream << "\n"
           << lithology.count() << " lithology intervals, " << depths.least << mark << " to "
           << depths.most << mark;
}
