// app/batch/TaxonCommand.cpp
#include "app/batch/Failure.h"
#include "app/batch/TaxonCommands.h"
#include "app/batch/TextTable.h"
#include "app/import/TaxonName.h"
#include "app/import/Words.h"
#include "store/TaxonWriter.h"

#include <unistd.h>

#include <iostream>

namespace {

constexpr std::string_view kItalicOn = "\x1B[3m";
constexpr std::string_view kItalicOff = "\x1B[23m";

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

} // namespace

std::string withItalics(std::string_view marked, bool terminal)
{
    const std::string_view on = terminal ? kItalicOn : "_";
    const std::string_view off = terminal ? kItalicOff : "_";
    std::string text;
    bool italic = false;
    const auto change = [&] {
        const std::size_t end = text.find_last_not_of(' ') + 1;
        italic ? text.insert(end, off) : text.append(on);
        italic = !italic;
    };
    for (const char c : marked) {
        if (c == '\\')
            change();
        else
            text += c;
    }
    if (italic)
        change();
    text.resize(text.find_last_not_of(' ') + 1);
    return text;
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
