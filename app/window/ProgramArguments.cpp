// app/window/ProgramArguments.cpp
#include "app/window/ProgramArguments.h"

#include "app/shell/ConnectionSettings.h"

namespace {

void add(QStringList& arguments, const char* option, const std::string& value)
{
    if (!value.empty())
        arguments << QString::fromLatin1(option) << QString::fromStdString(value);
}

} // namespace

QStringList programArguments(const ConnectionSettings& settings)
{
    QStringList arguments;
    add(arguments, "--database", settings.databaseFile);
    add(arguments, "--connect", settings.connectString);
    add(arguments, "--kind", std::to_string(settings.kind));
    add(arguments, "--owner", settings.ownerPrefix);
    add(arguments, "--user", settings.user);
    return arguments;
}
