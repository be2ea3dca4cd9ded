// bench/well_load/Recorder.h
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

/// Has the driver write down the statements that arrive on connections made while this lives.
class Recorder {
public:
    explicit Recorder(std::string file)
        : file_(std::move(file))
    {
        setenv("DESKTOPDB_RECORD", file_.c_str(), 1);
    }
    ~Recorder()
    {
        unsetenv("DESKTOPDB_RECORD");
        std::filesystem::remove(file_);
    }
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    /// The statements since the last call, one a line.
    std::string take()
    {
        std::ifstream in(file_);
        std::string lines{std::istreambuf_iterator<char>(in), {}};
        std::filesystem::remove(file_);
        return lines;
    }

private:
    std::string file_;
};
