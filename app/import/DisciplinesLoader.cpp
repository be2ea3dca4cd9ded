// app/import/DisciplinesLoader.cpp
#include "app/import/DictionaryCells.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"
#include "store/DisciplineWriter.h"

namespace {

class DisciplinesLoader : public RowLoader {
public:
    explicit DisciplinesLoader(ImportContext& context)
        : writer_(context.writing)
    {
    }

    bool check(CellReader& cells) override
    {
        row_.assign(static_cast<std::size_t>(DisciplineColumn::Count), std::nullopt);
        readLetter(cells);
        readText(cells, disciplines::Name, DisciplineColumn::Name);
        readText(cells, disciplines::Abr, DisciplineColumn::Abr);
        readText(cells, disciplines::Adjective, DisciplineColumn::Adjective);
        return true;
    }

    Outcome store() override
    {
        const Outcome outcome = writer_.put(letter_, row_);
        if (outcome == Outcome::Failed)
            error_ = writer_.error();
        return outcome;
    }

private:
    // The system has four disciplines; a row of another letter would take the place of one.
    void readLetter(CellReader& cells)
    {
        letter_ = disciplineLetter(cells.raw(disciplines::Letter));
        if (!letter_) {
            cells.refuse(disciplines::Letter, "unknown discipline (M, N, P or A)");
            return;
        }
        const RowPlace* first =
            rows_.before(std::string(1, letter_), {&cells.file(), cells.line()});
        if (first)
            cells.refuse(disciplines::Letter,
                "this discipline is in " + first->seenFrom(cells.file()) + " already");
    }

    void readText(CellReader& cells, int column, DisciplineColumn to)
    {
        std::string text;
        const Cell state = cells.text(column, &text);
        row_[static_cast<std::size_t>(to)] = givenValue(state, textValue(text));
    }

    DisciplineWriter writer_;
    FirstRows rows_;

    // The row at hand.
    char letter_ = 0;
    Row row_;
};

} // namespace

std::unique_ptr<RowLoader> makeDisciplinesLoader(ImportContext& context)
{
    return std::make_unique<DisciplinesLoader>(context);
}
