// platform/zapp/zApp.h
#pragma once

#include <string>

// The seam to the screen: an application object with its event loop, modal message boxes, list
// boxes and combo boxes. This header knows no toolkit. Which one serves the process is chosen
// once, before the application object is made (`zUseToolkit`); without a choice the console
// serves, which writes message boxes to the standard error stream. One thread for all of it.

/// Message box styles, as the desktop numbers them.
inline constexpr long MB_OK = 0x00;
inline constexpr long MB_ICONHAND = 0x10;

/// A window of the toolkit in use; only passed through.
class zWindow;

/// What a toolkit offers the seam. Texts arrive non-null.
class zToolkit {
public:
    virtual ~zToolkit() = default;
    /// Called once by the application object, before anything else.
    virtual void start() = 0;
    /// Called once by `initIntPack`, for what the controls need before the first window.
    virtual void prepareControls() {}
    /// Runs the event loop until `quitLoop`.
    virtual void runLoop() = 0;
    /// Ends the loop that runs; without one nothing happens. A message box that is open stays
    /// until the user has answered.
    virtual void quitLoop() = 0;
    /// Shows a modal box with plain text and returns when the user has answered.
    virtual void messageBox(zWindow* parent, const char* text, const char* caption, long style) = 0;
    /// Called once when the application object is destroyed.
    virtual void stop() = 0;
};

/// Sets the toolkit of the process; it must outlive the application object. Null: the console.
/// Returns the one in use before (null: the console).
zToolkit* zUseToolkit(zToolkit* toolkit);

/// The application object: one for the process, published as `_app`.
class zApp {
public:
    /// The four start arguments of a GUI process: instance handle, previous-instance handle,
    /// command line, show command. Other platforms make them from argv. Starts the toolkit.
    zApp(void* instance, void* previous, const char* commandLine, int show);
    /// Stops the toolkit that the constructor started. All windows must be gone.
    ~zApp();
    zApp(const zApp&) = delete;
    zApp& operator=(const zApp&) = delete;

    /// Prepares the toolkit's controls; once, before the first window. Later calls do nothing.
    void initIntPack();
    /// Runs the event loop until `quit`. A `quit` that came before is honoured: returns at once.
    void go();
    /// Ends the event loop, for good: a later `go` returns at once.
    void quit();

    /// The parent of every message box; null until a main window is there.
    zWindow* rootWindow() const { return root_; }
    void setRootWindow(zWindow* window) { root_ = window; }
    /// The exit status that the process entry returns; 0 at start.
    int exitStatus() const { return status_; }
    void setExitStatus(int status) { status_ = status; }

    void* instance() const { return instance_; }
    void* previousInstance() const { return previous_; }
    const char* commandLine() const { return commandLine_.c_str(); }
    int showCommand() const { return show_; }

private:
    zToolkit* started_;
    zWindow* root_ = nullptr;
    void* instance_;
    void* previous_;
    std::string commandLine_;
    int show_;
    int status_ = 0;
    bool prepared_ = false;
    bool quitAsked_ = false;
};

/// The application object of the process, null before and after its life.
extern zApp* _app; // NOLINT: the framework's own name

/// A modal message box: shown by its construction, which returns when the user has answered.
class zMessage {
public:
    /// `text` and `caption` are plain text, never markup; null is read as empty. The parent may be
    /// null, and no application object is needed.
    zMessage(zWindow* parent, const char* text, const char* caption, long style);
};
