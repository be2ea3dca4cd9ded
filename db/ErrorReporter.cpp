// db/ErrorReporter.cpp
#include "db/ErrorReporter.h"

#include "db/Cursor.h"
#include "db/Dialect.h"
#include "db/Session.h"
#include "platform/zapp/zApp.h"

#include <cstdlib>

int fatalError = 0;

namespace {

constexpr const char* kCaption = "Zonaris Error";
// The server's number for a connection that ended under a statement.
constexpr const char* kLostConnection = "ORA-03113";
constexpr const char* kPrompt = "Press OK to attempt to reconnect and continue...";
// Date literals are written in this format; a new connection starts with the server's own.
constexpr const char* kDateFormat = "ALTER SESSION SET NLS_DATE_FORMAT='ddmmyyyy' ";

void showBox(const char* text)
{
    zMessage(_app ? _app->rootWindow() : nullptr, text, kCaption, MB_ICONHAND | MB_OK);
}

// A connection that does not come back shows in the statements that follow; only the date format
// must be there before any of them.
void reconnect()
{
    showBox(kPrompt);
    dbConnect(nullptr);
    fatalError = 0;
    if (dialectFacts().dateFormatStatement && !runStatement(kDateFormat))
        fatalError = 1;
}

[[noreturn]] void endProcess()
{
    dbDisconnect();
    if (_app)
        _app->quit();
    std::exit(1);
}

} // namespace

void reportError(const char* text)
{
    // A copy: the text may be a result that the reconnection overwrites.
    reportError(std::string(text ? text : ""));
}

void reportError(const std::string& text)
{
    showBox(text.c_str());
    if (text.find(kLostConnection) != std::string::npos)
        reconnect();
    if (fatalError > 0)
        endProcess();
}

void reportFatal(const std::string& text)
{
    fatalError = 1;
    reportError(text);
}

void reportDbFailure(const std::string& sql, Fatal fatal) { reportDbFailureAs(sql, fatal); }

void reportDbFailureAs(const std::string& firstText, Fatal fatal)
{
    reportError(firstText);
    if (fatal == Fatal::Yes)
        reportFatal(dbErrorText());
    else
        reportError(dbErrorText());
}
