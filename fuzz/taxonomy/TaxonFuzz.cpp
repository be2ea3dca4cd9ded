// fuzz/taxonomy/TaxonFuzz.cpp
#include "app/import/TaxonName.h"
#include "app/import/Utf8.h"
#include "taxonomy/Taxon.h"
#include "tests/support/MessageLog.h"
#include "tests/support/TestDatabase.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <vector>

// A text goes through all four readers of Taxon and the one that an import uses; what comes out is
// checked, displayed and checked again. The readers ask a real dictionary, so a name that breaks
// out of its literal in a statement ends the program as well.

namespace {

constexpr std::size_t kLongestName = 255;
constexpr std::size_t kAuthorYearRoom = 88;

void require(bool holds, const char* what, std::string_view text)
{
    if (holds)
        return;
    std::cerr << what << ": \"" << text << "\"\n";
    std::abort();
}

bool isUtf8(std::string_view text) { return firstInvalidUtf8(text) == std::string_view::npos; }

/// A result text: within its room, and whole characters where whole characters came in.
void requireText(std::string_view text, std::size_t room, bool utf8, const char* what)
{
    require(text.size() <= room, what, text);
    require(!utf8 || isUtf8(text), "cut inside a character", text);
}

void requireSlots(const Taxon& taxon, bool utf8)
{
    for (int number = 0; number < slot::count; ++number)
        requireText(taxon.field(number), slotRule(number).capacity, utf8, "slot overrun");
}

void requireNames(Taxon taxon, bool utf8)
{
    for (int choice = 0; choice < 8; ++choice)
        requireText(taxon.displayName(choice & 1, choice >> 1 & 1, choice >> 2 & 1, 0),
            kLongestName, utf8, "name too long");
    for (const int length : {0, 5, 20, 300})
        requireText(taxon.shortName(length), kLongestName, utf8, "short name too long");
    std::vector<char> out(kAuthorYearRoom); // on the heap, where an overrun shows
    taxon.authorYearText(out.data(), 1);
    requireText(out.data(), kAuthorYearRoom - 1, utf8, "author and year too long");
}

void requireTaxon(Taxon taxon, bool utf8)
{
    requireSlots(taxon, utf8);
    requireNames(taxon, utf8);
    const int fault = taxon.checkQualifiers();
    require(fault >= 0 && fault < slot::count, "no such slot", taxon.genus());
    requireSlots(taxon, utf8);
    if (fault == 0)
        require(taxon.normaliseQualifiers() == 0, "good qualifiers went bad", taxon.genus());
    taxon.makeSpp();
    taxon.setSpeciesPart(taxon.author());
    requireSlots(taxon, utf8);
    requireNames(taxon, utf8);
}

std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines(1);
    for (const char c : text) {
        if (c == '\n')
            lines.emplace_back();
        else
            lines.back() += c;
    }
    return lines;
}

/// "Genus=Alphina", a field a line.
Taxon readFields(const std::vector<std::string>& lines)
{
    std::vector<std::string> names, values;
    for (const std::string& line : lines) {
        const std::size_t equals = std::min(line.find('='), line.size());
        names.push_back(line.substr(0, equals));
        values.push_back(line.substr(std::min(equals + 1, line.size())));
    }
    std::vector<const char*> namePointers, valuePointers;
    for (std::size_t i = 0; i < names.size(); ++i) {
        namePointers.push_back(names[i].c_str());
        valuePointers.push_back(values[i].c_str());
    }
    return {namePointers.data(), valuePointers.data(), static_cast<int>(names.size())};
}

Taxon readTexts(std::vector<std::string> lines)
{
    lines.resize(3);
    return {lines[0].c_str(), lines[1].c_str(), lines[2].c_str()};
}

void requireReading(const std::string& text, bool utf8)
{
    const NameReading reading = readName(text);
    requireTaxon(reading.taxon, utf8);
    requireTaxon(storedName(text, partsOfName(text)).taxon, utf8);
}

struct Dictionary {
    Dictionary()
    {
        db.run("INSERT INTO CATEGORY VALUES ('FORAM', 'foraminifera', 'M')");
        db.run("INSERT INTO GENUS (gen_id, cat_mnem, genus) VALUES (1, 'FORAM', 'Alphina')");
        db.run("INSERT INTO SPECIES (spec_id, gen_id, species) VALUES (1, 1, 'betana')");
    }
    TestDatabase db;
    MessageLog screen; // the refusals of unknown names
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static Dictionary dictionary;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::string text = bytes.c_str(); // the readers take terminated texts
    const bool utf8 = isUtf8(text);
    const std::vector<std::string> lines = linesOf(text);
    requireTaxon(readTexts(lines), utf8);
    requireTaxon(Taxon(text.c_str()), utf8);
    requireTaxon(Taxon(text.c_str(), 0), utf8);
    requireTaxon(readFields(lines), utf8);
    requireReading(text, utf8);
    dictionary.screen.clear();
    return 0;
}
