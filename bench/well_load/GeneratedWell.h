// bench/well_load/GeneratedWell.h
#pragma once

#include <string>

/// The well that the benchmarks load: its identifier, and how large it is.
struct GeneratedWell {
    static constexpr long kId = 1;
    /// The letters of its disciplines. Each has two analysts, who share the samples.
    static constexpr char kDisciplines[] = {'M', 'N'};

    long samples = 5000;
    long taxa = 2000;
    long occurrencesPerDetail = 50;

    long details() const { return samples * static_cast<long>(sizeof kDisciplines); }
    long occurrences() const { return details() * occurrencesPerDetail; }
};

/// Makes a database with the shipped tables that holds the well, the same one each time. An old
/// file of that name is replaced. Ends the process with a message when the file cannot be made.
void generate(const GeneratedWell& well, const std::string& file);
