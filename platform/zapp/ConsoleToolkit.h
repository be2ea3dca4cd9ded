// platform/zapp/ConsoleToolkit.h
#pragma once

#include "platform/zapp/zApp.h"

#include <deque>
#include <functional>

/// The toolkit without a screen, for batch steps and tests. A message box is the line
/// "caption: text" on the standard error stream and waits for no answer. The loop has no user to
/// wait for either: it ends when nothing is left to run.
class ConsoleToolkit : public zToolkit {
public:
    /// Has the loop run `task`, in order of arrival. A task may post further tasks.
    void post(std::function<void()> task);

    void start() override {}
    void runLoop() override;
    void quitLoop() override { running_ = false; }
    void messageBox(zWindow* parent, const char* text, const char* caption, long style) override;
    /// Drops the tasks that did not run.
    void stop() override { tasks_.clear(); }

private:
    std::deque<std::function<void()>> tasks_;
    bool running_ = false;
};
