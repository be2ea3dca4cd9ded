// store/CategoryWriter.cpp
#include "store/CategoryWriter.h"

#include "db/Literals.h"
#include "store/Rows.h"
#include "util/TextUtil.h"

#include <algorithm>

namespace {

using Type = ColumnType;

constexpr Column kKey[] = {{"cat_mnem", Type::Text}};
enum CategoryColumn { Name, Discipline, Count };
constexpr Column kColumns[] = {{"cat_name", Type::Text}, {"disc_id", Type::Text}};
static_assert(std::size(kColumns) == Count);

constexpr std::size_t kLongestMnemonic = 5;

// What two spellings of a group have in common.
std::string groupKey(std::string_view group)
{
    std::string key = lowerCased(group);
    std::ranges::replace(key, '_', ' ');
    return key;
}

bool isLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); }

// The first letters of the words, filled up from the last word: benthic forams gives BFORA.
std::string mnemonicOf(std::string_view group)
{
    std::string initials;
    std::string word;
    for (const char c : upperCased(group)) {
        if (isLetter(c)) {
            word += c;
        } else if (!word.empty()) {
            initials += word[0];
            word.clear();
        }
    }
    const std::string mnemonic = initials.substr(0, kLongestMnemonic - 1) + word;
    return mnemonic.empty() ? "X" : mnemonic.substr(0, kLongestMnemonic);
}

// "Calcareous nannofossils" tells what "nannofossils" are.
bool tellsOf(std::string_view name, std::string_view group)
{
    return groupKey(name).find(groupKey(group)) != std::string::npos;
}

Value letterValue(char letter) { return letter ? Value(std::string(1, letter)) : Value(); }

} // namespace

CategoryWriter::CategoryWriter(Writing writing)
    : writing_(writing)
    , table_("CATEGORY", kKey, kColumns)
{
}

bool CategoryWriter::load()
{
    if (loaded_)
        return true;
    Statement select(
        "SELECT cat_mnem,cat_name,disc_id FROM " + sql::table("CATEGORY") + " ORDER BY cat_mnem");
    loaded_ = readAll(select, {Type::Text, Type::Text, Type::Text}, [this](const auto& values) {
        const std::string discipline = textOf(values[2]);
        categories_.push_back({textOf(values[0]), textOf(values[1]),
            discipline.empty() ? char{0} : discipline[0], true});
    });
    if (!loaded_)
        error_ = select.sql() + ": " + select.error();
    return loaded_;
}

Category* CategoryWriter::find(const std::string& mnemonic)
{
    const auto found = std::ranges::find(categories_, mnemonic, &Category::mnemonic);
    return found == categories_.end() ? nullptr : &*found;
}

Category* CategoryWriter::named(const std::string& group)
{
    const auto found = std::ranges::find_if(categories_,
        [&](const Category& category) { return groupKey(category.name) == groupKey(group); });
    return found == categories_.end() ? nullptr : &*found;
}

Category* CategoryWriter::forGroup(const std::string& group, char discipline)
{
    std::string mnemonic = mnemonicOf(group);
    Category* known = find(mnemonic);
    if (known && tellsOf(known->name, group))
        return known;
    if (Category* same = named(group))
        return same;
    // The end makes room for a digit when the mnemonic is another group's.
    for (char digit = '2'; find(mnemonic) && digit <= '9'; ++digit)
        mnemonic = mnemonicOf(group).substr(0, kLongestMnemonic - 1) + digit;
    if (find(mnemonic))
        return nullptr;
    std::string name = group;
    std::ranges::replace(name, '_', ' ');
    return add({mnemonic, name, discipline, false});
}

Category* CategoryWriter::add(Category category)
{
    return &categories_.emplace_back(std::move(category));
}

Outcome CategoryWriter::failed()
{
    error_ = table_.error();
    return Outcome::Failed;
}

Outcome CategoryWriter::put(Category& category, const std::string& name, char discipline)
{
    Row stored(Count), given(Count);
    stored[Name] = textValue(category.name);
    stored[Discipline] = letterValue(category.discipline);
    if (!name.empty())
        given[Name] = textValue(name);
    if (discipline)
        given[Discipline] = letterValue(discipline);
    const std::vector<Value> key{textValue(category.mnemonic)};
    const Row changes = table_.differences(stored, given);
    category.name = name.empty() ? category.name : name;
    category.discipline = discipline ? discipline : category.discipline;
    if (!category.isStored) {
        const Row row{textValue(category.name), letterValue(category.discipline)};
        if (writing_ == Writing::Write && !table_.insert(key, row))
            return failed();
        category.isStored = true;
        return Outcome::New;
    }
    if (isEmpty(changes))
        return Outcome::Same;
    if (writing_ == Writing::Write && !table_.update(key, changes))
        return failed();
    return Outcome::Changed;
}
