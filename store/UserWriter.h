// store/UserWriter.h
#pragma once

#include "store/IdAllocator.h"
#include "store/Outcome.h"
#include "store/TableWriter.h"

#include <map>
#include <string>

/// Somebody who analyses samples, from the database or announced.
struct User {
    long id = 0;     ///< USERDEF.user_id
    std::string abr; ///< at most `kLongestUser` bytes
    bool isStored = false;
};

constexpr std::size_t kLongestUser = 5; // bytes

/// Brings users in, known by their abbreviations as they are written. All of them are read once.
class UserWriter {
public:
    explicit UserWriter(Writing writing);

    /// Reads the users unless that is done. False: `error`; nothing else works then.
    bool load();

    /// Null without one. Pointers stay good as long as the writer.
    User* find(const std::string& abr);
    User* withId(long id);
    /// Announces a user who is not there: found from now on and stored by `put`.
    User* add(const std::string& abr);
    Outcome put(User& user);

    const std::string& error() const { return error_; }

private:
    Outcome failed(const std::string& error);

    Writing writing_;
    TableWriter table_;
    IdAllocator ids_;
    std::map<std::string, User> users_;
    bool loaded_ = false;
    std::string error_;
};
