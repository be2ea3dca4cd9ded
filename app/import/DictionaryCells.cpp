// app/import/DictionaryCells.cpp
#include "app/import/DictionaryCells.h"

#include "util/TextUtil.h"

#include <string_view>

namespace {

constexpr std::size_t kLongestMnemonic = 5; // bytes
constexpr std::string_view kDisciplines = "MNPA";

} // namespace

std::string inCapitals(CellReader& cells, int column, const std::string& mnemonic)
{
    std::string capitals = upperCased(mnemonic);
    if (capitals != mnemonic)
        cells.adjust(column, "stored as " + capitals);
    return capitals;
}

char disciplineLetter(std::string_view cell)
{
    const std::string letter = upperCased(cell);
    const bool isKnown =
        letter.size() == 1 && kDisciplines.find(letter[0]) != std::string_view::npos;
    return isKnown ? letter[0] : char{0};
}

Cell readDiscipline(CellReader& cells, int column, char* out)
{
    const std::string_view cell = cells.raw(column);
    if (cell.empty())
        return cells.file().has(column) ? Cell::Empty : Cell::Missing;
    const char letter = disciplineLetter(cell);
    if (!letter) {
        cells.adjust(column, "unknown discipline (M, N, P or A); not taken");
        return Cell::Bad;
    }
    *out = letter;
    return Cell::Good;
}

Category* readCategory(
    CellReader& cells, int column, bool isGroup, char discipline, CategoryWriter& categories)
{
    std::string text;
    if (cells.text(column, &text) != Cell::Good)
        return nullptr;
    if (isGroup || text.size() > kLongestMnemonic) {
        Category* category = categories.forGroup(text, discipline);
        if (category)
            cells.report().noteOnce(
                cells.header(column), "", text + " is category " + category->mnemonic);
        else
            cells.refuse(column, "no mnemonic is left for this group; give it one");
        return category;
    }
    const std::string mnemonic = upperCased(text);
    Category* category = categories.find(mnemonic);
    if (!category && discipline)
        category = categories.add({mnemonic, text, discipline, false});
    if (!category)
        cells.refuse(column,
            "no such category in the database or among the accepted rows of categories files");
    return category;
}
