// platform/desktopdb/Parameters.h
#pragma once

#include "platform/desktopdb/Conversion.h"

#include <optional>
#include <string>
#include <vector>

namespace desktopdb {

/// A parameter as the application bound it, with its C type named.
struct BoundParameter {
    SQLSMALLINT cType = SQL_C_CHAR;
    SQLSMALLINT sqlType = SQL_VARCHAR;
    SQLPOINTER buffer = nullptr; ///< value, or the token that SQLParamData gives back
    SQLLEN capacity = 0;
    SQLLEN* indicator = nullptr;
};

/// The bound parameters of a statement, and the data that arrives for them in pieces.
class Parameters {
public:
    void bind(size_t index, const BoundParameter& bound);
    void unbindAll() { bound_.clear(); }

    /// Whether the first `count` parameters are all bound.
    bool areBound(size_t count) const;

    /// Looks for parameters whose data is still to come; true when there are any.
    bool beginData(size_t count);
    /// Moves to the next parameter that waits for data; null when all have come.
    const BoundParameter* nextWaiting();
    /// Whether a parameter takes data at the moment.
    bool isTaking() const { return current_ >= 0; }
    bool put(SQLPOINTER data, SQLLEN length, Failure& failure);
    void forgetData();

    /// The values of the first `count` parameters.
    bool read(size_t count, std::vector<Value>& values, Failure& failure) const;

private:
    struct Arriving {
        size_t index;
        std::string bytes{};
        bool isNull = false;
        bool any = false; ///< an empty piece counts as well
    };
    const Arriving* arrived(size_t index) const;

    std::vector<std::optional<BoundParameter>> bound_;
    std::vector<Arriving> arriving_;
    int current_ = -1;
};

} // namespace desktopdb
