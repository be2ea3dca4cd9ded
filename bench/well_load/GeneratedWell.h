// bench/well_load/GeneratedWell.h
#pragma once

#include <span>
#include <string>

/// A well of the benchmarks. Every sample has details in each discipline; of the two analysts that
/// a discipline has, one looked at it.
struct GeneratedWell {
    /// The letters of the disciplines.
    static constexpr char kDisciplines[] = {'M', 'N'};

    long id = 1;
    long samples = 5000;
    long taxa = 2000;
    long occurrencesPerDetail = 50;

    long details() const { return samples * static_cast<long>(sizeof kDisciplines); }
    long occurrences() const { return details() * occurrencesPerDetail; }
};

/// Makes a database with the shipped tables that holds the wells, the same ones each time. An old
/// file of that name is replaced. Ends the process with a message when it cannot be made.
void generate(std::span<const GeneratedWell> wells, const std::string& file);
