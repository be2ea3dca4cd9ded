// tests/support/MessageLog.h
#pragma once

#include "platform/zapp/zApp.h"

#include <string>
#include <vector>

/// Stands in for the screen while it lives: message boxes are kept instead of shown.
class MessageLog : public zToolkit {
public:
    MessageLog();
    ~MessageLog() override;

    struct Box {
        std::string text;
        std::string caption;
        long style;
    };
    const std::vector<Box>& boxes() const { return boxes_; }
    /// The texts of the boxes in order.
    std::vector<std::string> texts() const;
    /// How often the event loop was told to quit.
    int quits() const { return quits_; }
    void clear() { boxes_.clear(); }
    /// Also writes each box to the standard error stream, for death tests to match.
    void echo() { echo_ = true; }

    void start() override {}
    void runLoop() override {}
    void quitLoop() override { ++quits_; }
    void messageBox(zWindow* parent, const char* text, const char* caption, long style) override;
    void stop() override {}

private:
    zToolkit* before_;
    std::vector<Box> boxes_;
    int quits_ = 0;
    bool echo_ = false;
};
