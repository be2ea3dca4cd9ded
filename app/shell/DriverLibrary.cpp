// app/shell/DriverLibrary.cpp
#include "app/shell/DriverLibrary.h"

#include <cstdlib>
#include <system_error>

namespace {

namespace fs = std::filesystem;

constexpr const char* kVariable = "ZONARIS_DRIVER";
constexpr const char* kLibrary = "libdesktopdb.so";

fs::path runningProgram()
{
    std::error_code ignored;
    return fs::read_symlink("/proc/self/exe", ignored);
}

} // namespace

std::vector<fs::path> driverPlaces(const fs::path& program)
{
    const char* named = std::getenv(kVariable);
    if (named && *named)
        return {named};
    // The manager copies the path into a short buffer, so no "bin/../lib".
    const fs::path root = program.parent_path().parent_path();
    return {root / "lib" / kLibrary, root / "lib" / "zonaris" / kLibrary};
}

std::string driverLibrary(std::string* error)
{
    std::string tried;
    for (const fs::path& place : driverPlaces(runningProgram())) {
        std::error_code ignored;
        if (fs::is_regular_file(place, ignored))
            return place.string();
        tried += "\n  " + place.string();
    }
    *error = "The driver of embedded databases was not found. Looked for:" + tried + "\nSet "
        + kVariable + " to the file that holds it.";
    return {};
}
