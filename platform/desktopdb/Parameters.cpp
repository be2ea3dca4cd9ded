// platform/desktopdb/Parameters.cpp
#include "platform/desktopdb/Parameters.h"

#include <algorithm>
#include <cstring>

namespace desktopdb {

namespace {
bool comesLater(const BoundParameter& bound)
{
    return bound.indicator
        && (*bound.indicator == SQL_DATA_AT_EXEC
            || *bound.indicator <= SQL_LEN_DATA_AT_EXEC_OFFSET);
}

// Without an indicator a text ends at its zero.
SQLLEN lengthOf(const BoundParameter& bound)
{
    return bound.indicator ? *bound.indicator : SQL_NTS;
}

size_t textLength(SQLSMALLINT cType, const char* text)
{
    if (cType != SQL_C_WCHAR)
        return std::strlen(text);
    size_t n = 0;
    while (text[n] || text[n + 1])
        n += 2;
    return n;
}
} // namespace

void Parameters::bind(size_t index, const BoundParameter& bound)
{
    bound_.resize(std::max(bound_.size(), index + 1));
    bound_[index] = bound;
}

bool Parameters::areBound(size_t count) const
{
    return bound_.size() >= count
        && std::all_of(bound_.begin(), bound_.begin() + static_cast<std::ptrdiff_t>(count),
            [](const auto& bound) { return bound.has_value(); });
}

bool Parameters::beginData(size_t count)
{
    forgetData();
    for (size_t i = 0; i < count; ++i) {
        if (comesLater(*bound_[i]))
            arriving_.push_back({i});
    }
    return !arriving_.empty();
}

const BoundParameter* Parameters::nextWaiting()
{
    if (static_cast<size_t>(++current_) < arriving_.size())
        return &*bound_[arriving_[static_cast<size_t>(current_)].index];
    current_ = -1;
    return nullptr;
}

bool Parameters::put(SQLPOINTER data, SQLLEN length, Failure& failure)
{
    Arriving& arriving = arriving_[static_cast<size_t>(current_)];
    const SQLSMALLINT cType = bound_[arriving.index]->cType;
    const SQLLEN fixed = fixedSize(cType);
    if (arriving.any && (fixed || arriving.isNull || length == SQL_NULL_DATA)) {
        failure = fixed ? Failure{"HY019", "only text and bytes may come in pieces"}
                        : Failure{"HY020", "NULL has no pieces"};
        return false;
    }
    arriving.any = true;
    arriving.isNull = length == SQL_NULL_DATA;
    if (arriving.isNull)
        return true;
    const auto* bytes = static_cast<const char*>(data);
    if (!bytes && length != 0) {
        failure = {"HY009", "no data behind the null pointer"};
        return false;
    }
    if (!fixed && length < 0 && length != SQL_NTS) {
        failure = {"HY090", "the length of the data is negative"};
        return false;
    }
    const size_t size = fixed ? static_cast<size_t>(fixed)
        : length == SQL_NTS   ? textLength(cType, bytes)
                              : static_cast<size_t>(length);
    arriving.bytes.append(bytes ? bytes : "", size);
    return true;
}

void Parameters::forgetData()
{
    arriving_.clear();
    current_ = -1;
}

const Parameters::Arriving* Parameters::arrived(size_t index) const
{
    const auto found = std::ranges::find(arriving_, index, &Arriving::index);
    return found == arriving_.end() ? nullptr : &*found;
}

bool Parameters::read(size_t count, std::vector<Value>& values, Failure& failure) const
{
    values.resize(count);
    for (size_t i = 0; i < count; ++i) {
        const BoundParameter& bound = *bound_[i];
        const Arriving* data = arrived(i);
        Source source{bound.cType, bound.sqlType, bound.buffer, lengthOf(bound)};
        if (data) {
            source.buffer = data->bytes.data();
            source.length = data->isNull ? SQL_NULL_DATA : static_cast<SQLLEN>(data->bytes.size());
        }
        if (!readSource(source, values[i], failure)) {
            failure.text += " (parameter " + std::to_string(i + 1) + ")";
            return false;
        }
    }
    return true;
}

} // namespace desktopdb
