// tests/app/RealData.h
#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

// The real data lies beside the repository where it may be used, never in it.
inline const std::filesystem::path kData =
    std::filesystem::path(ZONARIS_SOURCE_DIR) / "../shared/data";

using Record = std::map<std::string, std::string>;

// A reader of its own, so that the comparison does not lean on what it checks.
inline std::vector<std::string> splitRow(const std::string& line)
{
    std::vector<std::string> fields(1);
    bool quoted = false;
    bool doubled = false;
    for (const char c : line) {
        // Two quotation marks in a quoted field are one of its text.
        if (c == '"' && doubled)
            fields.back() += c;
        doubled = c == '"' && quoted && !doubled;
        if (c == '"')
            quoted = !quoted;
        else if (c == ',' && !quoted)
            fields.emplace_back();
        else if (c != '\r')
            fields.back() += c;
    }
    return fields;
}

inline std::vector<Record> recordsOf(const std::filesystem::path& file)
{
    std::ifstream stream(file);
    std::string line;
    std::getline(stream, line);
    const auto header = splitRow(line);
    std::vector<Record> records;
    while (std::getline(stream, line)) {
        const auto fields = splitRow(line);
        Record record;
        for (std::size_t i = 0; i < header.size() && i < fields.size(); ++i)
            record[header[i]] = fields[i];
        records.push_back(record);
    }
    return records;
}
