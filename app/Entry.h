// app/Entry.h
#pragma once

#include "platform/zapp/zApp.h"

#include <functional>
#include <memory>
#include <string>

// The process from its first step to its exit status. The windows and the toolkit are the
// program's choice; the entry knows neither.

/// What the application does between the making of its application object and its end.
using MainRoutine = std::function<void(zApp&)>;

/// Start-up and shut-down: asks for the message queue, makes the application object from the four
/// start arguments, runs `routine`, destroys the application object. Returns the exit status that
/// the application object held when the routine was through. The toolkit is chosen before.
int zonarisEntry(
    void* instance, void* previous, const char* commandLine, int show, const MainRoutine& routine);

/// The main window as the entry sees it. Destroying this object destroys the window.
class RootWindow {
public:
    virtual ~RootWindow() = default;
    /// The parent of the message boxes from now on; may be null.
    virtual zWindow* window() = 0;
};

/// Makes the main window. Null when there is nothing to show: then the event loop does not run.
/// A batch step does its work here, sets the exit status and returns null.
using RootWindowMaker = std::function<std::unique_ptr<RootWindow>(zApp&)>;

/// The main routine of a window: prepares the controls, makes the window, runs the event loop
/// until it is told to quit, destroys the window.
MainRoutine windowRoutine(RootWindowMaker make);

/// The four start arguments of a GUI process.
struct StartArguments {
    void* instance = nullptr;
    void* previous = nullptr;
    std::string commandLine; ///< without the program's name
    int show = 1;            ///< shown at its normal size
};

/// The start arguments out of those of `main`: the command line is argv[1] and those behind it,
/// joined by blanks and quoted so that Windows' own splitting gives them back.
StartArguments startArguments(int argc, const char* const* argv);

#ifdef _WIN32
/// Defined by the program: chooses the toolkit and calls `zonarisEntry` with its main routine.
/// Windows enters the process here, through WinMain.
int zonarisProgram(void* instance, void* previous, const char* commandLine, int show);
#else
/// Stands in for the desktop's call where message queues grow by themselves. Returns 1.
int SetMessageQueue(int messages);
/// The size last asked for; 0 before.
extern int messageQueueAsked;
#endif
