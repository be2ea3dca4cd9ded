// tests/platform/zapp/Recorder.h
#pragma once

#include "platform/zapp/zApp.h"

#include <string>
#include <vector>

/// Makes `toolkit` the one of the process while this lives.
struct Serving {
    explicit Serving(zToolkit* toolkit) { zUseToolkit(toolkit); }
    ~Serving() { zUseToolkit(nullptr); }
    Serving(const Serving&) = delete;
    Serving& operator=(const Serving&) = delete;
};

/// A toolkit that writes down what it is asked for, and what state it finds then.
struct Recorder : zToolkit {
    std::vector<std::string> steps;
    Serving serving{this};

    void start() override { note("start"); }
    void prepareControls() override { note("prepare"); }
    void runLoop() override { note("loop"); }
    void quitLoop() override { note("quit"); }
    void messageBox(zWindow* parent, const char* text, const char*, long) override
    {
        note(std::string(text) + (parent ? " with a parent" : ""));
    }
    void stop() override { note("stop"); }
    void note(const std::string& step)
    {
        steps.push_back(step + (!_app ? " outside" : _app->rootWindow() ? " of a window" : ""));
    }
};
