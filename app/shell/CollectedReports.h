// app/shell/CollectedReports.h
#pragma once

#include "platform/zapp/zApp.h"

#include <string>
#include <vector>

/// Keeps the reports of the core while it lives, where one box for each of many rows would bury the
/// user. A report that ends the process or asks for an answer is shown as ever, after those that
/// were kept.
class CollectedReports : public zToolkit {
public:
    CollectedReports();
    ~CollectedReports() override;
    CollectedReports(const CollectedReports&) = delete;
    CollectedReports& operator=(const CollectedReports&) = delete;

    /// Those since the last call, in order.
    std::vector<std::string> take();

    void start() override {}
    void runLoop() override {}
    void quitLoop() override;
    void messageBox(zWindow* parent, const char* text, const char* caption, long style) override;
    void stop() override {}

private:
    void show(zWindow* parent, const char* text, const char* caption, long style);

    zToolkit* before_;
    std::vector<std::string> texts_;
    bool lostConnection_ = false;
};
