// bench/well_load/Memory.cpp
#include "bench/well_load/Memory.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

long residentBytes(bool peak)
{
    const std::string wanted = peak ? "VmHWM:" : "VmRSS:";
    std::ifstream status("/proc/self/status");
    std::string word;
    long kibibytes = 0;
    while (status >> word && word != wanted) {}
    status >> kibibytes;
    return kibibytes * 1024;
}

long numberFromFreshProcess(const std::string& arguments)
{
    const std::string program = std::filesystem::read_symlink("/proc/self/exe").string();
    long number = -1;
    FILE* output = popen(("'" + program + "' " + arguments).c_str(), "r");
    if (!output || std::fscanf(output, "%ld", &number) != 1) {
        std::fprintf(stderr, "no answer to %s\n", arguments.c_str());
        std::exit(1);
    }
    pclose(output);
    return number;
}
