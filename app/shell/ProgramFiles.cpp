// app/shell/ProgramFiles.cpp
#include "app/shell/ProgramFiles.h"

#include <cstdlib>
#include <system_error>

namespace {

namespace fs = std::filesystem;

fs::path runningProgram()
{
    std::error_code ignored;
    return fs::read_symlink("/proc/self/exe", ignored);
}

} // namespace

std::vector<fs::path> placesOf(const ProgramPart& part, const fs::path& program)
{
    const char* named = std::getenv(part.variable);
    if (named && *named)
        return {named};
    // The driver manager copies paths into a short buffer, so no "bin/../lib".
    const fs::path root = program.parent_path().parent_path();
    std::vector<fs::path> places;
    for (const char* beside : part.besides)
        places.push_back(root / beside);
    return places;
}

fs::path findPart(const ProgramPart& part, std::string* error)
{
    std::string tried;
    for (const fs::path& place : placesOf(part, runningProgram())) {
        std::error_code ignored;
        if (fs::status(place, ignored).type() == part.type)
            return place;
        tried += "\n  " + place.string();
    }
    *error = std::string(part.missing) + " Looked for:" + tried + "\nSet " + part.variable + " to "
        + part.wanted + '.';
    return {};
}
