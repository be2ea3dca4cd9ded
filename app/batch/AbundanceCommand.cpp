// app/batch/AbundanceCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/Failure.h"
#include "app/batch/TextTable.h"
#include "db/ItemList.h"
#include "dict/AbundanceSchemes.h"
#include "store/Value.h"
#include "util/TextUtil.h"

#include <charconv>
#include <iostream>
#include <memory>
#include <optional>

namespace {

using enum TextTable::Align;

struct Values {
    std::string scheme; ///< name or number
    std::string amount; ///< a count or a code; empty: the ladder alone
};

// The number of the scheme; 0 with a text for the user.
int findScheme(const std::string& text, std::string* error)
{
    const std::unique_ptr<ItemList> schemes(allSchemes());
    std::string known;
    for (const Item* item : *schemes) {
        const std::string name = shownText(item->text.view());
        if (compareIgnoringCase(name, text) == 0 || std::to_string(item->id) == text)
            return item->id;
        known += (known.empty() ? "" : ", ") + name;
    }
    *error = "No abundance scheme is called " + text + '.'
        + (known.empty() ? " There are none." : " There are: " + known + '.');
    return 0;
}

void writeLadder(const Abns& scheme)
{
    std::cout << shownText(scheme.name.view()) << '\n';
    TextTable table({{"level", Right}, {"code"}, {"name"}, {"from", Right}, {"stands for", Right}});
    for (int i = 0; i < scheme.levelCount(); ++i) {
        const std::string code = scheme.abrAt(i);
        table.add({std::to_string(i + 1), shownText(code), shownText(scheme.nameAt(i)),
            std::to_string(scheme.minAt(i)), std::to_string(scheme.valueForAbr(code.c_str()))});
    }
    table.write(std::cout);
}

std::optional<long> countOf(const std::string& text)
{
    long count = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), count);
    const bool good = failure == std::errc() && end == text.data() + text.size() && count >= 0;
    return good ? std::optional(count) : std::nullopt;
}

// A code that the ladder lacks would pass for its first level.
bool hasCode(const Abns& scheme, const std::string& code)
{
    for (int i = 0; i < scheme.levelCount(); ++i)
        if (code == scheme.abrAt(i))
            return true;
    return false;
}

int writeMeaning(const Abns& scheme, const std::string& amount)
{
    const std::string code = storedText(amount);
    const bool known = hasCode(scheme, code);
    const auto count = countOf(amount);
    if (!known && !count)
        return failed(amount + " is neither a count nor a code of this scheme.");
    if (known)
        std::cout << "The code " << amount << " stands for " << scheme.valueForAbr(code.c_str())
                  << ".\n";
    if (count) {
        const std::string given = scheme.abrForCount(*count);
        std::cout << "A count of " << *count << " is " << shownText(given) << ", "
                  << shownText(scheme.nameForAbr(given.c_str())) << ".\n";
    }
    return kDone;
}

int showAbundance(const Values& values)
{
    std::string error;
    const int id = findScheme(values.scheme, &error);
    if (id == 0)
        return failed(error);
    const Abns& levels = *schemeById(id);
    writeLadder(levels);
    if (levels.levelCount() == 0)
        return failed("The scheme has no levels.");
    return values.amount.empty() ? kDone : writeMeaning(levels, values.amount);
}

} // namespace

void addAbundance(CLI::App& app, BatchOptions* options)
{
    const auto values = std::make_shared<Values>();
    CLI::App* abundance = addCommand(app, options, "abundance",
        "Show the levels of an abundance scheme", [=] { return showAbundance(*values); });
    abundance->add_option("SCHEME", values->scheme, "Name or number of the scheme")->required();
    abundance->add_option("COUNT|CODE", values->amount,
        "A count to see its level, or a code to see the count that it stands for");
}
