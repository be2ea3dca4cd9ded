// app/main.cpp
#include "app/Entry.h"
#include "app/OpenMainWindow.h"
#include "app/batch/CommandLine.h"
#include "app/batch/RunCommand.h"

int main(int argc, char** argv)
{
    BatchOptions options;
    if (const auto status = readCommandLine(argc, argv, &options))
        return *status;
    const StartArguments start = startArguments(argc, argv);
    if (!options.run)
        return options.picture.file.empty()
            ? openMainWindow(start, options.connection)
            : saveMainWindow(start, options.connection, options.picture);
    // Without a toolkit of its own the process shows its message boxes on the console.
    return zonarisEntry(start.instance, start.previous, start.commandLine.c_str(), start.show,
        [&](zApp& app) { app.setExitStatus(runCommand(options)); });
}
