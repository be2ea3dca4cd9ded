// examples/library/ListWells.cpp
// list_wells DRIVER DATABASE [WELL]: lists the wells of an embedded database, or the samples of the
// well with that code.
#include "db/Connection.h"
#include "db/Cursor.h"
#include "db/Literals.h"
#include "db/Session.h"
#include "well/Sample.h"
#include "well/Well.h"

#include <iostream>
#include <string>

namespace {

class Connection {
public:
    // Values in braces, since paths may hold what else ends a value.
    Connection(const std::string& driver, const std::string& file)
        : open_(dbConnect(("Driver={" + driver + "};Database={" + file + "}").c_str()) == 1)
    {
    }
    ~Connection() { dbDisconnect(); }
    explicit operator bool() const { return open_; }

private:
    bool open_;
};

int failed(const std::string& why)
{
    std::cerr << why << '\n';
    return 1;
}

int listWells()
{
    Cursor rows("SELECT well_code, well_name FROM " + sql::table("WELLS") + " ORDER BY well_code");
    if (!rows)
        return failed(dbErrorText());
    while (rows.next()) {
        const std::string code = rows.text(1); // columns are read in order
        std::cout << code << '\t' << rows.text(2) << '\n';
    }
    return 0;
}

int listSamples(const char* code)
{
    Well well(code);
    if (well.well_id == 0)
        return failed(std::string("There is no well with the code ") + code + ".");
    well.LoadSamples(0);
    for (const Sample* sample : well.samples)
        std::cout << sample->DepthLabel(well.units, 0, 1, 0, 0, -1) << '\n';
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3 && argc != 4)
        return failed("Usage: list_wells DRIVER DATABASE [WELL]");
    const Connection connection(argv[1], argv[2]);
    if (!connection)
        return failed(dbConnectError());
    return argc == 3 ? listWells() : listSamples(argv[3]);
}
