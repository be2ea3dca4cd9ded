// app/las/LasText.h
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Texts of the database as a comma-delimited LAS file can hold them, and what had to be changed
/// for it. Apostrophes are written as such.
class LasText {
public:
    /// For the lines of sections of parameters, where a colon, braces and a bar have a meaning.
    std::string value(std::string_view mnemonic, std::string_view stored);
    /// For a row of data: in quotes when it has to be.
    std::string field(std::string_view mnemonic, std::string_view stored);

    /// A line for each text that is written otherwise than stored: the item, the text as written,
    /// why.
    const std::vector<std::string>& changes() const { return changes_; }

private:
    enum class Place { Value, Field };
    std::string written(std::string_view mnemonic, std::string_view stored, Place place);

    std::vector<std::string> changes_;
};
