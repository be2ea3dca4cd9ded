// tests/support/DriverControl.cpp
#include "tests/support/DriverControl.h"

#include "tests/support/Workspace.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

/// The recorder's file of this process; at its end the file that the environment asks for gets it
/// in one piece, since other processes append to that one as well.
class Record {
public:
    Record()
        : file_(workspace::newFile("statements.txt"))
    {
        driver_control::connection().setAttribute(SQL_ATTR_DESKTOPDB_RECORD, file_);
    }
    ~Record()
    {
        const char* collected = std::getenv("ZONARIS_TEST_RECORD");
        std::ifstream statements(file_);
        if (!collected || !*collected || statements.peek() == std::ifstream::traits_type::eof())
            return;
        std::error_code ignored;
        std::filesystem::create_directories(
            std::filesystem::path(collected).parent_path(), ignored);
        std::ofstream(collected, std::ios::app) << statements.rdbuf();
    }
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;

    const std::string& file() const { return file_; }

private:
    std::string file_;
};

} // namespace

namespace driver_control {

std::string connectString(const std::string& file, const std::string& dialect)
{
    return "Driver=" ZONARIS_DRIVER_FILE ";Database=" + file + ";Create=1;Dialect=" + dialect;
}

OdbcConnection& connection()
{
    static OdbcConnection control(connectString(workspace::newFile("control.db"), "Access"));
    return control;
}

const std::string& record()
{
    connection(); // ends after the record, which needs it
    static const Record theRecord;
    return theRecord.file();
}

} // namespace driver_control
