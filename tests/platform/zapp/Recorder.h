// tests/platform/zapp/Recorder.h
#pragma once

#include "platform/zapp/zApp.h"

#include <string>
#include <vector>

/// The toolkit of the process while this lives.
class Serving {
public:
    explicit Serving(zToolkit* toolkit)
        : before_(zUseToolkit(toolkit))
    {
    }
    ~Serving() { zUseToolkit(before_); }
    Serving(const Serving&) = delete;
    Serving& operator=(const Serving&) = delete;

private:
    zToolkit* before_;
};

/// A toolkit that writes down what it is asked for, and what state it finds then.
class Recorder : public zToolkit {
public:
    void start() override { steps.push_back(_app ? "start late" : "start"); }
    void prepareControls() override { steps.emplace_back("prepare"); }
    void runLoop() override { steps.push_back("loop" + rooted(_app->rootWindow())); }
    void quitLoop() override { steps.emplace_back("quit"); }
    void messageBox(zWindow* parent, const char* text, const char*, long style) override
    {
        steps.push_back(std::to_string(style) + " " + text + rooted(parent));
    }
    void stop() override { steps.push_back(_app ? "stop early" : "stop"); }

    std::vector<std::string> steps;

private:
    static std::string rooted(zWindow* window) { return window ? " with a window" : ""; }
};
