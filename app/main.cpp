// app/main.cpp
#include "app/Entry.h"
#include "app/batch/CommandLine.h"
#include "app/batch/Commands.h"

#ifdef ZONARIS_WINDOW
#include "app/window/MainWindow.h"
#else
#include <iostream>

namespace {

int openMainWindow(const StartArguments&, const ConnectionSettings&)
{
    std::cerr << "zonaris: this build has no window; \"zonaris --help\" lists the commands\n";
    return kWrongUsage;
}

} // namespace
#endif

int main(int argc, char** argv)
{
    BatchOptions options;
    if (const auto status = readCommandLine(argc, argv, &options))
        return *status;
    const StartArguments start = startArguments(argc, argv);
    if (options.command == BatchCommand::None)
        return openMainWindow(start, options.connection);
    // Without a toolkit of its own the process shows its message boxes on the console.
    return zonarisEntry(start.instance, start.previous, start.commandLine.c_str(), start.show,
        [&](zApp& app) { app.setExitStatus(runCommand(options)); });
}
