// tests/support/DriverFault.cpp
#include "tests/support/DriverControl.h"
#include "tests/support/TestDatabase.h"

DriverFault::DriverFault(int n, const std::string& call, Times times, const std::string& sqlstate,
    const std::string& text)
{
    driver_control::connection().setAttribute(SQL_ATTR_DESKTOPDB_FAULT,
        call + ":" + std::to_string(n) + ":" + sqlstate + ":" + text
            + (times == Always ? ":always" : ""));
}

DriverFault::~DriverFault()
{
    driver_control::connection().setAttribute(SQL_ATTR_DESKTOPDB_FAULT, "");
}

bool DriverFault::fired() const { return !call().empty(); }

std::string DriverFault::call() const
{
    return driver_control::connection().attribute(SQL_ATTR_DESKTOPDB_FAULT_FIRED);
}
