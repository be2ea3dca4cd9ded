// app/batch/LasCommand.cpp
#include "app/batch/LasCommand.h"

#include "app/batch/BatchOptions.h"
#include "app/batch/Failure.h"
#include "app/batch/WellArgument.h"
#include "app/export/OutputFolder.h"
#include "app/las/LasWriter.h"

#include <filesystem>
#include <iostream>

namespace {

namespace fs = std::filesystem;

// Whole or not at all. Empty, or why not.
std::string writeWhole(const fs::path& file, const std::string& content)
{
    constexpr bool kBesideOthers = true;
    OutputFolder folder(file.has_parent_path() ? file.parent_path() : fs::path("."));
    if (!folder.open(kBesideOthers))
        return folder.error();
    std::ostream* out = folder.begin(file.filename());
    if (out)
        *out << content;
    return out && folder.end() && folder.keep() ? "" : folder.error();
}

} // namespace

int writeLasFile(const std::string& well, const std::string& file, bool force)
{
    std::error_code ignored;
    if (!force && fs::exists(file, ignored))
        return failed(file + " is there already; --force replaces it.");
    const auto loaded = wellOf(well);
    if (!loaded)
        return kFailed;
    const LasExport las = lasExportOf(loaded->well);
    if (!las.error.empty())
        return failed(las.error);
    const std::string problem = writeWhole(file, las.content);
    if (!problem.empty())
        return failed(problem);
    for (const auto* lines : {&las.reports, &las.changes})
        for (const std::string& line : *lines)
            std::cerr << line << '\n';
    return kDone;
}
