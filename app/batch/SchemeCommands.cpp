// app/batch/SchemeCommands.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/Failure.h"
#include "app/batch/TextTable.h"
#include "app/batch/WellArgument.h"
#include "db/Units.h"
#include "interp/IGDSchemeList.h"
#include "interp/IGDTypes.h"
#include "store/Value.h"
#include "util/TextUtil.h"
#include "well/Sample.h"

#include <iostream>

namespace {

using enum TextTable::Align;

constexpr int kLongForm = 1;

std::string ageText(float age) { return fixedString(age, 3); }

int listSchemes()
{
    const IGDSchemeList schemes;
    TextTable table(
        {{"number", Right}, {"type"}, {"name"}, {"from [Ma]", Right}, {"to [Ma]", Right}});
    for (const igd_sch* scheme : schemes)
        table.add({std::to_string(scheme->sch_id), typeName(scheme->igd_type, kLongForm),
            shownText(scheme->name.view()), ageText(scheme->youngestAge),
            ageText(scheme->oldestAge)});
    table.write(std::cout);
    return kDone;
}

// The scheme by its name or number, without its terms; null after telling which there are.
igd_sch* schemeOf(const IGDSchemeList& schemes, const std::string& text)
{
    for (igd_sch* scheme : schemes)
        if (compareIgnoringCase(shownText(scheme->name.view()), text) == 0
            || std::to_string(scheme->sch_id) == text)
            return scheme;
    failed("No interpretation scheme is called " + text + ". `zonaris schemes` lists them.");
    return nullptr;
}

std::vector<std::string> termCells(const igdDict& term)
{
    return {std::to_string(term.hier), columnName(term.igd_type, term.hier, kLongForm),
        shownText(term.name.view()), shownText(term.abr.view()), ageText(term.u_age),
        ageText(term.l_age)};
}

const std::vector<TextTable::Column> kTermColumns{
    {"rank", Right}, {""}, {"name"}, {"abr"}, {"from [Ma]", Right}, {"to [Ma]", Right}};

int showScheme(const std::string& name)
{
    const IGDSchemeList schemes;
    igd_sch* scheme = schemeOf(schemes, name);
    if (!scheme)
        return kFailed;
    scheme->loadTerms();
    std::cout << shownText(scheme->name.view()) << ", " << typeName(scheme->igd_type, kLongForm)
              << ", " << scheme->terms.count() << " terms\n";
    TextTable table(kTermColumns);
    for (const igdDictList& level : scheme->levels)
        for (const igdDict* term : level)
            table.add(termCells(*term));
    table.write(std::cout);
    return kDone;
}

struct Ages {
    std::string name; ///< a scheme, or a well
    float young = 0;  ///< Ma
    float old = -1;   ///< Ma; below 0: the same
};

int findAge(const Ages& ages)
{
    const IGDSchemeList schemes;
    igd_sch* scheme = schemeOf(schemes, ages.name);
    if (!scheme)
        return kFailed;
    scheme->loadTerms();
    igdDict* first = nullptr;
    igdDict* second = nullptr;
    scheme->findTermsForAges(ages.young, ages.old < 0 ? ages.young : ages.old, &first, &second);
    if (!first)
        return failed("No term of this scheme holds these ages.");
    TextTable table(kTermColumns);
    table.add(termCells(*first));
    if (second)
        table.add(termCells(*second));
    table.write(std::cout);
    return kDone;
}

int findDepths(const Ages& ages, char units)
{
    const auto loaded = sampledWellOf(ages.name);
    if (!loaded)
        return kFailed;
    float top = 0;
    float base = 0;
    loaded->well.AgeRangeDepths(ages.young, ages.old, &top, &base);
    const char shown = units ? units : loaded->well.units;
    if (isAbsentDepth(top) && isAbsentDepth(base))
        return failed("The interpreted ages of this well do not reach there.");
    std::cout << "from " << fixedString(fromMetres(top, shown), 2) << " to "
              << fixedString(fromMetres(base, shown), 2) << unitTitle(shown) << '\n';
    return kDone;
}

} // namespace

void addSchemes(CLI::App& app, BatchOptions* options)
{
    addCommand(app, options, "schemes", "List the interpretation schemes", listSchemes);
}

void addScheme(CLI::App& app, BatchOptions* options)
{
    const auto name = std::make_shared<std::string>();
    addCommand(app, options, "scheme", "List the terms of a scheme by rank and age",
        [=] { return showScheme(*name); })
        ->add_option("NAME", *name, "Name or number of the scheme")
        ->required();
}

void addAge(CLI::App& app, BatchOptions* options)
{
    const auto ages = std::make_shared<Ages>();
    CLI::App* age = addCommand(app, options, "age",
        "Find the finest term of a scheme that holds an age, or all ages between two",
        [=] { return findAge(*ages); });
    age->add_option("SCHEME", ages->name, "Name or number of the scheme")->required();
    age->add_option("TOP", ages->young, "The younger age in Ma")->required();
    age->add_option("BASE", ages->old, "The older age in Ma (default: the same)");
}

void addDepthOfAge(CLI::App& app, BatchOptions* options)
{
    const auto ages = std::make_shared<Ages>();
    const auto units = std::make_shared<char>('\0');
    CLI::App* depth = addCommand(app, options, "depth-of-age",
        "Find the depths at which the interpreted ages of a well reach a range",
        [=] { return findDepths(*ages, *units); });
    addWell(depth, &ages->name);
    depth->add_option("YOUNG", ages->young, "The younger age in Ma")->required();
    depth->add_option("OLD", ages->old, "The older age in Ma")->required();
    addUnits(depth, units.get());
}
