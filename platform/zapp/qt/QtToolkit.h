// platform/zapp/qt/QtToolkit.h
#pragma once

#include "platform/zapp/zApp.h"

#include <memory>
#include <string>
#include <vector>

class QApplication;
class QEventLoop;

/// The seam on Qt. The QApplication lives from `start` to `stop`; a zWindow is a QWidget
/// (qt/QtWindow.h). Closing the last window does not end the loop: the main window calls
/// `_app->quit()` when it closes. LC_NUMERIC stays "C", whatever locale Qt brings in.
class QtToolkit : public zToolkit {
public:
    /// The arguments of the process, program name first; copied.
    QtToolkit(int argc, const char* const* argv);
    ~QtToolkit() override;
    QtToolkit(const QtToolkit&) = delete;
    QtToolkit& operator=(const QtToolkit&) = delete;

    void start() override;
    void runLoop() override;
    void quitLoop() override;
    /// Before `start` and after `stop` the text goes to the console.
    void messageBox(zWindow* parent, const char* text, const char* caption, long style) override;
    void stop() override;

private:
    std::vector<std::string> arguments_;
    // QApplication keeps references to both, and takes its own options out of them.
    std::vector<char*> argv_;
    int argc_ = 0;
    std::unique_ptr<QApplication> application_;
    QEventLoop* loop_ = nullptr;
};
