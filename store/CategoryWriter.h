// store/CategoryWriter.h
#pragma once

#include "store/Outcome.h"
#include "store/TableWriter.h"

#include <deque>
#include <string>

/// A category of taxa, from the database or announced.
struct Category {
    std::string mnemonic; ///< at most 5 bytes, capitals
    std::string name;
    char discipline = 0; ///< 0: not known
    bool isStored = false;
};

/// Brings categories in. All of them are read once.
class CategoryWriter {
public:
    explicit CategoryWriter(Writing writing);

    /// Reads the categories unless that is done. False: `error`; nothing else works then.
    bool load();

    /// Null without one. Pointers stay good as long as the writer.
    Category* find(const std::string& mnemonic);
    /// The category of a group of that name: underscores and blanks, and letter case, are alike.
    Category* named(const std::string& group);
    /// The category for a group of taxa that a file names without a mnemonic: one of that name, or
    /// a new one, which is announced. Its mnemonic is made of the name and the same at every
    /// import: NANNO for nannofossils, BFORA for benthic_forams. Null when nine groups share it.
    Category* forGroup(const std::string& group, char discipline);

    /// Announces a category that is not there: it is found from now on and stored by `put`.
    Category* add(Category category);
    /// Stores an announced category, or what the given values change of a stored one. Empty name
    /// and 0 leave it as it is.
    Outcome put(Category& category, const std::string& name, char discipline);

    const std::string& error() const { return error_; }

private:
    Outcome failed();

    Writing writing_;
    TableWriter table_;
    std::deque<Category> categories_;
    bool loaded_ = false;
    std::string error_;
};
