// app/shell/CollectedReports.cpp
#include "app/shell/CollectedReports.h"

#include "db/ErrorReporter.h"

#include <cstring>
#include <utility>

namespace {

// What the reporter answers by asking whether to connect again.
constexpr const char* kLostConnection = "ORA-03113";

} // namespace

CollectedReports::CollectedReports()
    : before_(zUseToolkit(this))
{
}

CollectedReports::~CollectedReports() { zUseToolkit(before_); }

std::vector<std::string> CollectedReports::take() { return std::exchange(texts_, {}); }

void CollectedReports::quitLoop()
{
    if (before_)
        before_->quitLoop();
}

void CollectedReports::messageBox(
    zWindow* parent, const char* text, const char* caption, long style)
{
    lostConnection_ = lostConnection_ || std::strstr(text, kLostConnection);
    if (fatalError == 0 && !lostConnection_) {
        texts_.emplace_back(text);
        return;
    }
    for (const std::string& kept : take())
        show(parent, kept.c_str(), caption, style);
    show(parent, text, caption, style);
}

void CollectedReports::show(zWindow* parent, const char* text, const char* caption, long style)
{
    zUseToolkit(before_);
    zMessage(parent, text, caption, style);
    zUseToolkit(this);
}
