// app/Entry.cpp
#include "app/Entry.h"

#ifdef _WIN32
#include <windows.h>
#endif

#include <string_view>
#include <utility>

namespace {

constexpr int kMessageQueue = 128; // messages

bool needsQuotes(std::string_view argument)
{
    return argument.empty() || argument.find_first_of(" \t\n\v\"") != std::string_view::npos;
}

// Windows reads a backslash as itself except in a run that stands before a quotation mark, where
// two make one.
std::string quoted(std::string_view argument)
{
    if (!needsQuotes(argument))
        return std::string(argument);
    std::string out = "\"";
    std::size_t backslashes = 0; // the run that ends here
    for (const char c : argument) {
        if (c == '"')
            out.append(backslashes + 1, '\\');
        backslashes = c == '\\' ? backslashes + 1 : 0;
        out += c;
    }
    out.append(backslashes, '\\');
    return out + '"';
}

void runWindow(zApp& app, const RootWindowMaker& make)
{
    app.initIntPack();
    std::unique_ptr<RootWindow> root = make(app);
    if (!root)
        return;
    app.setRootWindow(root->window());
    app.go();
    // What the window still reports while it goes down must not be parented to it.
    app.setRootWindow(nullptr);
    root.reset();
}

} // namespace

int zonarisEntry(
    void* instance, void* previous, const char* commandLine, int show, const MainRoutine& routine)
{
    SetMessageQueue(kMessageQueue);
    zApp app(instance, previous, commandLine, show);
    routine(app);
    return app.exitStatus();
}

MainRoutine windowRoutine(RootWindowMaker make)
{
    return [make = std::move(make)](zApp& app) { runWindow(app, make); };
}

StartArguments startArguments(int argc, const char* const* argv)
{
    StartArguments start;
    for (int i = 1; i < argc; ++i) {
        if (i > 1)
            start.commandLine += ' ';
        start.commandLine += quoted(argv[i]);
    }
    return start;
}

#ifdef _WIN32
int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int show)
{
    return zonarisProgram(instance, previous, commandLine, show);
}
#else
int messageQueueAsked = 0;

int SetMessageQueue(int messages)
{
    messageQueueAsked = messages;
    return 1;
}
#endif
