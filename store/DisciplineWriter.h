// store/DisciplineWriter.h
#pragma once

#include "store/Outcome.h"
#include "store/TableWriter.h"

#include <string>

/// What a row says of a discipline beside its letter: at most 30, 5 and 30 bytes.
enum class DisciplineColumn { Name, Abr, Adjective, Count };

/// Brings disciplines in (DISCS), known by their letters M, N, P and A.
class DisciplineWriter {
public:
    explicit DisciplineWriter(Writing writing);

    /// `row`: by `DisciplineColumn`; what is not set is left as it is.
    Outcome put(char letter, const Row& row);

    const std::string& error() const { return table_.error(); }

private:
    Writing writing_;
    TableWriter table_;
};
