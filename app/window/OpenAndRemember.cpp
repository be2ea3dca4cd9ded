// app/window/OpenAndRemember.cpp
#include "app/window/OpenAndRemember.h"

#include "app/shell/OpenDatabase.h"
#include "app/shell/SettingsFile.h"
#include "db/ErrorReporter.h"

std::string openAndRemember(const ConnectionSettings& settings)
{
    std::string notice;
    const std::string error = openDatabase(settings, &notice);
    if (!notice.empty())
        reportError(notice);
    if (error.empty())
        rememberDatabase(settings);
    return error;
}
