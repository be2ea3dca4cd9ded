// db/ErrorText.cpp
#include "db/Session.h"
#include "db/SessionState.h"
#include "util/FixedText.h"

namespace {

constexpr const char* kDefaultText = "A database error has occurred.";

} // namespace

std::string session::errorMessage(SQLHSTMT statement)
{
    const State& s = state();
    SQLCHAR message[1024] = "";
    SQLCHAR sqlstate[6];
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    const SQLRETURN result = SQLError(s.environment, s.connection, statement, sqlstate, &native,
        message, sizeof message, &length);
    return odbcSucceeded(result) ? reinterpret_cast<const char*>(message) : "";
}

const char* dbErrorText()
{
    static FixedText<255> text;
    session::State& s = session::state();
    const std::string message =
        s.lastFailedCursor != 0 ? session::errorMessage(s.statements[s.lastFailedCursor]) : "";
    text = message.empty() ? kDefaultText : message.c_str();
    s.lastFailedCursor = 0;
    return text.c_str();
}
