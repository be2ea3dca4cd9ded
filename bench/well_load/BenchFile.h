// bench/well_load/BenchFile.h
#pragma once

#include "bench/well_load/GeneratedWell.h"
#include "db/Session.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <unistd.h>

inline std::string connectStringFor(const std::string& file)
{
    return "Driver=" DESKTOPDB_FILE ";Database=" + file;
}

/// A temporary database file with generated wells, removed at its end.
class BenchFile {
public:
    explicit BenchFile(std::span<const GeneratedWell> wells)
        : path_((std::filesystem::temp_directory_path()
            / ("zonaris-wells-" + std::to_string(getpid()) + ".db"))
                    .string())
    {
        generate(wells, path_);
    }
    ~BenchFile()
    {
        for (const char* ending : {"", "-wal", "-shm"})
            std::filesystem::remove(path_ + ending);
    }
    BenchFile(const BenchFile&) = delete;
    BenchFile& operator=(const BenchFile&) = delete;

    const std::string& path() const { return path_; }

private:
    std::string path_;
};

/// The session on such a file. Ends the process when it cannot connect.
class BenchSession {
public:
    explicit BenchSession(const std::string& file)
    {
        if (dbConnect(connectStringFor(file).c_str()))
            return;
        std::fprintf(stderr, "the session cannot connect\n");
        std::exit(1);
    }
    ~BenchSession() { dbDisconnect(); }
    BenchSession(const BenchSession&) = delete;
    BenchSession& operator=(const BenchSession&) = delete;
};
