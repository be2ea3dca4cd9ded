// db/ErrorText.cpp
#include "db/Session.h"
#include "db/SessionState.h"
#include "util/FixedText.h"

namespace {

constexpr const char* kDefaultText = "A database error has occurred.";

// Longer than any result, so that the cut is ours and falls between characters.
using Message = SQLCHAR[1024];

bool readError(const session::State& s, short cursor, Message& message)
{
    SQLCHAR sqlstate[6];
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    return odbcSucceeded(SQLError(s.environment, s.connection, s.statements[cursor], sqlstate,
        &native, message, sizeof message, &length));
}

} // namespace

const char* dbErrorText()
{
    static FixedText<255> text;
    text = kDefaultText;
    session::State& s = session::state();
    Message message = "";
    if (s.lastFailedCursor != 0 && readError(s, s.lastFailedCursor, message))
        text = reinterpret_cast<const char*>(message);
    s.lastFailedCursor = 0;
    return text.c_str();
}
