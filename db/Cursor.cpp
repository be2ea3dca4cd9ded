// db/Cursor.cpp
#include "db/Cursor.h"

#include "db/Columns.h"
#include "db/Session.h"
#include "db/SessionState.h"
#include "util/TextUtil.h"

Cursor::Cursor(const std::string& sql)
    : number_(dbExecute(sql))
{
}

Cursor::~Cursor() { close(); }

bool Cursor::next() { return dbFetch(number_) == 0; }

long Cursor::integer(short column) const { return dbGetLong(number_, column); }

double Cursor::number(short column) const { return dbGetDouble(number_, column); }

std::string Cursor::text(short column) const
{
    std::string whole = columns::readText(session::statementOf(number_), column);
    whole.resize(trimmedRight(whole).size());
    return whole;
}

char Cursor::letter(short column) const { return dbGetChar(number_, column); }

long Cursor::rowCount() const { return dbRowCount(number_); }

int Cursor::close()
{
    const short number = number_;
    number_ = 0;
    return dbCloseCursor(number);
}

bool runStatement(const std::string& sql) { return static_cast<bool>(Cursor(sql)); }

bool runOrReport(const std::string& sql, Fatal fatal)
{
    const bool ran = runStatement(sql);
    if (!ran)
        reportDbFailure(sql, fatal);
    return ran;
}
