// store/IdAllocator.h
#pragma once

#include <optional>
#include <string>

/// Hands out new identifiers of one table: the largest is asked for once, then counted up. Another
/// process that inserts meanwhile makes the insert fail, never two rows alike.
class IdAllocator {
public:
    IdAllocator(const char* column, const char* table);

    /// The next identifier; none when the question failed or 32 bits are used up (`error`).
    std::optional<long> next();
    const std::string& error() const { return error_; }

private:
    bool readLargest();

    const char* column_;
    const char* table_;
    std::optional<long> largest_;
    std::string error_;
};
