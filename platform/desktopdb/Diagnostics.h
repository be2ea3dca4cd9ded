// platform/desktopdb/Diagnostics.h
#pragma once

#include <sqlext.h>
#include <string>
#include <string_view>
#include <vector>

namespace desktopdb {

/// One thing that went wrong, before it is tied to a handle. An empty state means no failure.
struct Failure {
    std::string state; ///< SQLSTATE, five characters in their 3.x spelling
    std::string text;  ///< what is wrong, without the driver's prefix
    int native = 0;    ///< the engine's own code, 0 when the driver itself refused
    explicit operator bool() const { return !state.empty(); }
};

struct DiagnosticRecord {
    std::string state;
    std::string message; ///< with the driver's prefix
    int native;
};

/// What the last call on a handle left to say. Each call starts by clearing it.
class Diagnostics {
public:
    void clear() { records_.clear(); }
    /// Notes the failure and gives SQL_ERROR, so that a caller can return it.
    SQLRETURN fail(const Failure& failure);
    SQLRETURN fail(const char* state, std::string_view text);
    /// Notes a warning and gives SQL_SUCCESS_WITH_INFO.
    SQLRETURN warn(const char* state, std::string_view text);

    int count() const { return static_cast<int>(records_.size()); }
    /// Record `number`, counted from 1, or null.
    const DiagnosticRecord* record(int number) const;

private:
    std::vector<DiagnosticRecord> records_;
};

/// Copies `text` into a caller's buffer of `capacity` bytes with a final zero and says in
/// `length` (may be null) how long the text is. False when it was cut.
template <class Length>
bool copyOut(std::string_view text, void* buffer, SQLLEN capacity, Length* length)
{
    if (length)
        *length = static_cast<Length>(text.size());
    if (!buffer)
        return true;
    if (capacity <= 0)
        return false;
    const auto room = static_cast<size_t>(capacity) - 1;
    const size_t copied = text.copy(static_cast<char*>(buffer), room);
    static_cast<char*>(buffer)[copied] = '\0';
    return copied == text.size();
}

} // namespace desktopdb
