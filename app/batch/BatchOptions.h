// app/batch/BatchOptions.h
#pragma once

#include "app/shell/ConnectionSettings.h"

#include <string>
#include <vector>

enum class BatchCommand { None, Create, Import, Wells, Samples, Taxa, Taxon, Abundance };

/// What `taxa` lists.
struct TaxaQuery {
    std::vector<std::string> patterns; ///< genus, species, subspecies; a subgenus in brackets
    std::string category;              ///< a pattern
    std::string codes;                 ///< "A-B" or one code; empty: any or none
    std::string scheme;                ///< whose names to use are shown; empty: none
    bool synonyms = false;             ///< names that have a name to use as well
};

/// What the command line asks for. None: the main window.
struct BatchOptions {
    ConnectionSettings connection;
    BatchCommand command = BatchCommand::None;
    std::vector<std::string> inputs; ///< import: files and folders
    bool dryRun = false;             ///< import: store nothing
    bool strict = false;             ///< import: refused rows are a failure
    std::string well;                ///< samples: code, name or number
    char units = 0;                  ///< samples: 'M', 'F', or 0 for the units of the well
    TaxaQuery taxa;
    std::vector<std::string> words; ///< taxon: the name as it is written
    std::string scheme;             ///< abundance: name or number
    std::string amount;             ///< abundance: a count or a code, empty for the ladder alone
    std::string picture;            ///< None: save the window as this PNG file and end
};

// Exit statuses of the program.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kWrongUsage = 2;
