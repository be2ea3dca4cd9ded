// app/shell/DriverLibrary.cpp
#include "app/shell/DriverLibrary.h"

#include "app/shell/ProgramFiles.h"

namespace {

constexpr const char* kBesides[] = {"lib/libdesktopdb.so", "lib/zonaris/libdesktopdb.so"};
constexpr ProgramPart kDriver{std::filesystem::file_type::regular, "ZONARIS_DRIVER", kBesides,
    "The driver of embedded databases was not found.", "the file that holds it"};

} // namespace

std::vector<std::filesystem::path> driverPlaces(const std::filesystem::path& program)
{
    return placesOf(kDriver, program);
}

std::string driverLibrary(std::string* error) { return findPart(kDriver, error).string(); }
