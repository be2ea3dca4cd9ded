// app/las/LasFile.h
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

/// One line of a section of parameters or definitions:
/// "MNEM.UNIT VALUE : DESCRIPTION {FORMAT} | ASSOCIATION,ASSOCIATION".
struct LasItem {
    long line = 0;
    std::string mnemonic;
    std::string unit;
    std::string value;
    std::string description;
    std::string format; ///< without the braces; empty: none is given
    std::vector<std::string> associations;
};

/// A row of a section of data, its fields without their quotes.
struct LasRow {
    long line = 0;
    std::vector<std::string> fields;
};

/// "~Tops_Data | Tops_Definition": a section has items, or rows when it is one of data.
struct LasSection {
    long line = 0;
    std::string title;       ///< without "~"
    std::string association; ///< empty: none
    std::vector<LasItem> items;
    std::vector<LasRow> rows;

    bool isData() const;
    /// The item of that mnemonic, letter case apart, or null.
    const LasItem* item(std::string_view mnemonic) const;
};

/// What a LAS file says.
struct LasFile {
    std::vector<LasSection> sections;

    /// The section of that title, letter case apart, or null.
    const LasSection* section(std::string_view title) const;
};

/// Reads a file of LAS 3.0 and holds it to the grammar of that version: sections and their order,
/// what the first two must say, the form of every line, as many fields in a row as its definition
/// has items, each of the form that is declared. Every breach becomes a line of `problems`,
/// "line 12: why"; what could be read is in the result all the same.
LasFile readLas(std::istream& in, std::vector<std::string>* problems);
