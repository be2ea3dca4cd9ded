// app/shell/ConnectFailure.cpp
#include "app/shell/ConnectFailure.h"

#include "app/shell/ConnectionSettings.h"
#include "util/TextUtil.h"

#include <algorithm>

namespace {

struct Advice {
    const char* words; ///< in the reason
    const char* text;
};

// Drivers agree on codes less than on words; the first row that fits counts.
constexpr Advice kAdvice[] = {
    {"Data source name not found",
        "Check the name: `odbcinst -q -s` lists the data sources, `odbcinst -q -d` the drivers."},
    {"Can't open lib",
        "The file of the driver is not there, or a library that it needs is not: `ldd FILE` tells "
        "which."},
    {"file is not a database",
        "The file is not a database of this program, or it is damaged. Make a new one with: "
        "zonaris create FILE"},
    {"malformed", "The file is damaged. Use its last backup."},
    {"locked", "Another program is writing to it. Try again when that has ended."},
    {"unable to open", "Check that you may read and write the file and its folder."},
    {"readonly", "Check that you may write the file and its folder."},
    {"authentication", "Check UID and PWD."},
    {"password", "Check UID and PWD."},
    {"logon denied", "Check UID and PWD."},
    {"login", "Check UID and PWD."},
    {"denied", "Check UID and PWD, and whether this user may connect."},
    {"refused", "Check the name of the server and its port, and whether it is running."},
    {"translate host", "Check the name of the server."},
    {"timeout", "Check the name of the server and the network."},
};

constexpr const char* kGeneral =
    "Check the connection string, and whether the database is running.";

std::string adviceFor(const std::string& reason)
{
    const auto* found = std::ranges::find_if(
        kAdvice, [&](const Advice& row) { return containsIgnoringCase(reason, row.words); });
    return found == std::end(kAdvice) ? kGeneral : found->text;
}

} // namespace

std::string connectFailure(const std::string& connectString, const std::string& reason)
{
    return "Could not connect with " + withoutSecrets(connectString) + '\n'
        + (reason.empty() ? "The driver gave no reason." : withoutSecretsOf(connectString, reason))
        + '\n' + adviceFor(reason);
}
