// platform/zapp/ConsoleToolkit.cpp
#include "platform/zapp/ConsoleToolkit.h"

#include <cstdio>
#include <string>
#include <utility>

void ConsoleToolkit::post(std::function<void()> task) { tasks_.push_back(std::move(task)); }

void ConsoleToolkit::runLoop()
{
    running_ = true;
    while (running_ && !tasks_.empty()) {
        const std::function<void()> task = std::move(tasks_.front());
        tasks_.pop_front();
        task();
    }
    running_ = false;
}

void ConsoleToolkit::messageBox(zWindow*, const char* text, const char* caption, long)
{
    // One write, so that a line of another process does not fall into it.
    const std::string line = std::string(caption) + ": " + text + "\n";
    std::fputs(line.c_str(), stderr);
}
