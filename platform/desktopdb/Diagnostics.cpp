// platform/desktopdb/Diagnostics.cpp
#include "platform/desktopdb/Diagnostics.h"

namespace desktopdb {

namespace {
constexpr std::string_view kPrefix = "[Zonaris][desktopdb] ";

DiagnosticRecord asRecord(std::string_view state, std::string_view text, int native)
{
    return {std::string(state), std::string(kPrefix).append(text), native};
}
} // namespace

SQLRETURN Diagnostics::fail(const Failure& failure)
{
    records_.push_back(asRecord(failure.state, failure.text, failure.native));
    return SQL_ERROR;
}

SQLRETURN Diagnostics::fail(const char* state, std::string_view text)
{
    records_.push_back(asRecord(state, text, 0));
    return SQL_ERROR;
}

SQLRETURN Diagnostics::warn(const char* state, std::string_view text)
{
    records_.push_back(asRecord(state, text, 0));
    return SQL_SUCCESS_WITH_INFO;
}

const DiagnosticRecord* Diagnostics::record(int number) const
{
    return number >= 1 && number <= count() ? &records_[static_cast<size_t>(number) - 1] : nullptr;
}

} // namespace desktopdb
