// tests/app/Program.h
#pragma once

#include "tests/app/Files.h"

#include <cstdlib>
#include <string>

#include <sys/wait.h>

#include <gtest/gtest.h>

// The program itself, run in a shell with what stands behind its name.
class Program : public testing::Test {
protected:
    int run(const std::string& arguments)
    {
        const auto outFile = folder.path() / "out.txt";
        const auto errFile = folder.path() / "err.txt";
        const std::string command = std::string("cd ") + folder.path().string()
            + " && " ZONARIS_PROGRAM " " + arguments + " >out.txt 2>err.txt";
        const int status = std::system(command.c_str());
        out = contentOf(outFile);
        err = contentOf(errFile);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    const Folder folder;
    std::string out;
    std::string err;
};
