// well/Watched.h
#pragma once

/// A member that an index outside its object is made from. Reads and writes as a plain `T`; a write
/// that changes the value moves on one number for all members watched under the same `What`, by
/// which an index tells that it may be stale. Making an object moves nothing on, since no index can
/// know it yet.
template <typename T, typename What> class Watched {
public:
    Watched(T value = T()) // NOLINT(google-explicit-constructor)
        : value_(value)
    {
    }
    Watched(const Watched&) = default;
    Watched& operator=(T value)
    {
        if (value_ != value) {
            value_ = value;
            ++changes_;
        }
        return *this;
    }
    Watched& operator=(const Watched& other) { return *this = other.value_; }

    operator T() const { return value_; } // NOLINT(google-explicit-constructor)

    /// Moves on with every change of any such member in the process.
    static unsigned long changes() { return changes_; }

private:
    T value_;
    static inline unsigned long changes_ = 0;
};
