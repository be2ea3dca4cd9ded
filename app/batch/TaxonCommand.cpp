// app/batch/TaxonCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/Failure.h"
#include "app/batch/Italics.h"
#include "app/batch/TextTable.h"
#include "app/import/TaxonName.h"
#include "app/import/Words.h"
#include "store/TaxonWriter.h"

#include <unistd.h>

#include <iostream>
#include <memory>

namespace {

std::string italicName(Taxon& taxon)
{
    return withItalics(withSingleBlanks(taxon.displayName(1, 1, 0, 0)), isatty(STDOUT_FILENO) == 1);
}

void writeReading(NameReading& reading, const std::string& written)
{
    TextTable table({{"part"}, {"text"}});
    Taxon& taxon = reading.taxon;
    for (int number = slot::preGenus; number < slot::count; ++number)
        if (taxon.has(number))
            table.add({std::string(slotRule(number).fieldName), taxon.field(number)});
    if (taxon.year != 0)
        table.add({"Year", std::to_string(taxon.year)});
    table.write(std::cout);
    std::cout << '\n' << "name: " << composedName(taxon, true) << '\n';
    std::cout << "with italics: " << italicName(taxon) << '\n';
    if (!reading.exact)
        std::cout << "The name does not read back as it is written: " << written << '\n';
    if (reading.fault != 0)
        std::cout << slotRule(reading.fault).fieldName
                  << ": these marks cannot stand together; an import leaves all marks in the name."
                  << '\n';
}

int writeEntries(const NameReading& reading, const std::string& written)
{
    TaxonWriter dictionary(Writing::Check);
    if (!dictionary.load())
        return failed(dictionary.error());
    // What an import would look up.
    const NameReading stored = storedName(written, partsOfName(written));
    const auto entries = dictionary.named(reading.fault == 0 ? reading.taxon : stored.taxon);
    if (entries.empty())
        std::cout << "The name is not in the dictionary.\n";
    for (const DictionaryTaxon* entry : entries)
        std::cout << "In the dictionary: number " << entry->taxon.spec_id() << ", "
                  << (entry->taxon.has(slot::category) ? entry->taxon.category() : "no category")
                  << ", " << composedName(entry->taxon, true) << '\n';
    return kDone;
}

int showTaxon(const std::vector<std::string>& words, bool hasDatabase)
{
    const std::string written = withSingleBlanks(joinedWords(words, 0, words.size()));
    if (written.empty())
        return failed("There is no name in this text.");
    NameReading reading = readName(written);
    writeReading(reading, written);
    return hasDatabase ? writeEntries(reading, written) : kDone;
}

} // namespace

void addTaxon(CLI::App& app, BatchOptions* options)
{
    const auto words = std::make_shared<std::vector<std::string>>();
    addCommand(
        app, options, "taxon",
        "Show how a written name is read and whether it is in the dictionary; reading needs no "
        "database",
        [=] { return showTaxon(*words, options->connection.isNamed()); }, DatabaseNeed::IfNamed)
        ->add_option("TEXT", *words, "The name, with its marks and author")
        ->required();
}
