// db/Readers.cpp
#include "db/Columns.h"
#include "db/Session.h"
#include "db/SessionState.h"
#include "util/FixedText.h"
#include "util/TextUtil.h"

#include <array>

using session::statementOf;

namespace {

constexpr std::size_t kLongestText = 1023;

} // namespace

long dbGetLong(short cursor, short column)
{
    return columns::readLong(statementOf(cursor), column);
}

double dbGetDouble(short cursor, short column)
{
    return columns::readDouble(statementOf(cursor), column);
}

const char* dbGetString(short cursor, short column)
{
    // Room for the rest of a character that begins inside the limit, so that one that ends on the
    // limit is told from one that goes beyond it.
    static std::array<char, kLongestText + 4> text;
    const std::string_view read = columns::readStart(statementOf(cursor), column, text);
    text[trimmedRight(utf8Prefix(read, kLongestText)).size()] = '\0';
    return text.data();
}

char dbGetChar(short cursor, short column)
{
    std::array<char, 1024> text;
    const std::string_view read = columns::readStart(statementOf(cursor), column, text);
    return read.empty() ? '\0' : read.front();
}
