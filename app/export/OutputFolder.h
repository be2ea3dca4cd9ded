// app/export/OutputFolder.h
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

/// A folder that files are written into: all of them or none. Each is written beside its place,
/// under its name with ".part" behind it, and they are renamed together at the end.
class OutputFolder {
public:
    explicit OutputFolder(std::filesystem::path folder);
    /// Removes what was written and not kept, and the folder when `open` made it.
    ~OutputFolder();
    OutputFolder(const OutputFolder&) = delete;
    OutputFolder& operator=(const OutputFolder&) = delete;

    /// Makes the folder when it is not there. One with something in it fails, unless `force` says
    /// that files of the names to be written may be replaced.
    bool open(bool force);
    /// Begins a file; null on failure.
    std::ostream* begin(const std::string& name);
    /// Ends it: everything is on its way to the disk.
    bool end();
    /// Puts all files in their places.
    bool keep();

    /// The file or folder of the call that failed, and why.
    const std::string& error() const { return error_; }

private:
    std::filesystem::path partOf(const std::string& name) const;
    bool fail(const std::filesystem::path& where, const std::string& why);

    std::filesystem::path folder_;
    bool isNew_ = false;
    bool kept_ = false;
    std::vector<std::string> names_;
    std::ofstream stream_;
    std::string error_;
};
