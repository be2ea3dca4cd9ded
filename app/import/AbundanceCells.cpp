// app/import/AbundanceCells.cpp
#include "app/import/AbundanceCells.h"

#include "app/import/AnalysisShapes.h"
#include "app/tables/NamedNotes.h"
#include "util/TextUtil.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

namespace cell = occurrences;

enum class Mark { None, Reworked, Caved, Questionable };
struct MarkWord {
    std::string_view word;
    Mark mark;
};
constexpr MarkWord kStatus[] = {{"i", Mark::None}, {"in place", Mark::None},
    {"in situ", Mark::None}, {"r", Mark::Reworked}, {"rw", Mark::Reworked},
    {"reworked", Mark::Reworked}, {"c", Mark::Caved}, {"cv", Mark::Caved}, {"caved", Mark::Caved}};
constexpr MarkWord kIdentification[] = {{"p", Mark::None}, {"positive", Mark::None},
    {"certain", Mark::None}, {"?", Mark::Questionable}, {"q", Mark::Questionable},
    {"questionable", Mark::Questionable}};
constexpr MarkWord kCaved[] = {{"c", Mark::Caved}, {"y", Mark::Caved}, {"yes", Mark::Caved},
    {"n", Mark::None}, {"no", Mark::None}};

template <std::size_t N> Mark readMark(CellReader& cells, int column, const MarkWord (&words)[N])
{
    const std::string text = lowerCased(cells.raw(column));
    const auto word = std::ranges::find(words, text, &MarkWord::word);
    if (word != std::end(words))
        return word->mark;
    if (!text.empty())
        cells.adjust(column, "not a known mark; not taken");
    return Mark::None;
}

void readMarks(CellReader& cells, OccurrenceCells* row)
{
    for (const Mark mark : {readMark(cells, cell::Status, kStatus),
             readMark(cells, cell::Identification, kIdentification),
             readMark(cells, cell::Caved, kCaved)}) {
        row->reworked |= mark == Mark::Reworked;
        row->caved |= mark == Mark::Caved;
        row->questionable |= mark == Mark::Questionable;
    }
}

/// The abundance of a row from all its cells.
class AbundanceReader {
public:
    AbundanceReader(CellReader& cells, const AbundanceWords& words)
        : cells_(cells)
    {
        cells.text(cell::Written, &written_);
        cells.text(cell::Code, &codeCell_);
        reading_ = readAbundance(written_, words);
        codeReading_ = readAbundance(codeCell_, words);
        hasCount_ = cells.number(cell::Counted, &count_) == Cell::Good;
        hasPercent_ = cells.number(cell::Percent, &percent_) == Cell::Good;
        for (const int column : {cell::Coarse, cell::Fine}) {
            long count = 0;
            hasFractions_ |= cells.whole(column, &count) == Cell::Good && count > 0;
        }
    }

    void read(OccurrenceCells* row)
    {
        refuseAbsent();
        for (const AbundanceReading* reading : {&reading_, &codeReading_}) {
            row->reworked |= reading->reworked;
            row->caved |= reading->caved;
            row->questionable |= reading->questionable;
        }
        row->code = codeReading_.code.empty() ? reading_.code : codeReading_.code;
        tellUnread(row->code);
        readCount(row);
        compose(row);
    }

private:
    bool hasOther() const
    {
        return hasFractions_ || !codeReading_.code.empty() || !reading_.code.empty();
    }

    void refuseAbsent()
    {
        const char* const reason = "looked for and not found; no occurrence";
        if (reading_.absent)
            cells_.refuse(cell::Written, reason);
        else if (codeReading_.absent)
            cells_.refuse(cell::Code, reason);
        else if (hasCount_ && count_ == 0 && !hasOther())
            cells_.refuse(cell::Counted, reason);
        else if (hasPercent_ && percent_ == 0 && !hasCount_ && !hasOther())
            cells_.refuse(cell::Percent, reason);
        if (hasCount_ && count_ < 0)
            cells_.refuse(cell::Counted, "a count is never below 0");
    }

    void tellUnread(const std::string& code)
    {
        const char* const reason =
            "no code, count or percentage that is known; as written it is kept in the comments";
        if (!codeReading_.understood)
            cells_.adjust(cell::Code, reason);
        if (!reading_.understood && code.empty() && !hasCount_ && !hasPercent_)
            cells_.adjust(cell::Written, reason);
    }

    void readCount(OccurrenceCells* row)
    {
        const auto& text = reading_.count ? reading_.count : codeReading_.count;
        if (!hasCount_ && !text)
            return;
        const int column = hasCount_ ? cell::Counted : reading_.count ? cell::Written : cell::Code;
        const double count = hasCount_ ? count_ : *text;
        if (count > std::numeric_limits<int>::max()) {
            cells_.adjust(column, "too large for a count; as written it is kept in the comments");
            return;
        }
        // Half a valve was found, so there is one.
        row->count = count > 0 ? std::max(1L, std::lround(count)) : 0;
        if (static_cast<double>(row->count) == count)
            return;
        fraction_ = cells_.raw(column);
        cells_.adjust(column,
            "no whole count; stored as " + std::to_string(row->count)
                + ", as written it is kept in the comments");
    }

    void compose(OccurrenceCells* row)
    {
        NamedNotes notes;
        const Cell state = cells_.text(cell::Comments, &notes.text);
        row->hasComments = state != Cell::Missing || cells_.file().has(cell::Written)
            || cells_.file().has(cell::Percent) || !fraction_.empty() || !codeReading_.understood;
        std::string written = !written_.empty() ? written_ : fraction_;
        if (written.empty() && codeCell_ != row->code)
            written = codeCell_;
        if (written != row->code && written != std::to_string(row->count))
            notes.add("abundance", written);
        if (hasPercent_ && reading_.percent != percent_)
            notes.add("percent", cells_.raw(cell::Percent));
        row->hasComments |= !notes.fields.empty();
        row->comments = notes.compose();
    }

    CellReader& cells_;
    std::string written_;
    std::string codeCell_;
    std::string fraction_;
    AbundanceReading reading_;
    AbundanceReading codeReading_;
    double count_ = 0;
    double percent_ = 0;
    bool hasCount_ = false;
    bool hasPercent_ = false;
    bool hasFractions_ = false;
};

} // namespace

OccurrenceCells readOccurrenceCells(CellReader& cells, const AbundanceWords& words)
{
    OccurrenceCells row;
    readMarks(cells, &row);
    AbundanceReader(cells, words).read(&row);
    return row;
}
