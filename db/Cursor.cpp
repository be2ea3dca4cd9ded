// db/Cursor.cpp
#include "db/Cursor.h"

#include "db/BoundRow.h"
#include "db/Columns.h"
#include "db/Session.h"
#include "db/SessionState.h"
#include "util/TextUtil.h"

namespace {

// Binding costs about as much as reading two rows singly, and most results are shorter than this.
constexpr short kSingleRows = 12;

} // namespace

Cursor::Cursor(const std::string& sql)
    : number_(dbExecute(sql))
    , generation_(session::state().generation)
{
}

Cursor::~Cursor() { close(); }

bool Cursor::isLost() const { return generation_ != session::state().generation; }

short Cursor::live() const { return isLost() ? short(0) : number_; }

bool Cursor::next()
{
    if (isLost())
        return false;
    if (bound_) {
        const bool fetched = bound_->fetch();
        ended_ = bound_->atEnd();
        return fetched;
    }
    if (singleRows_ < kSingleRows)
        ++singleRows_;
    else if (singleRows_ == kSingleRows && number_ != 0) {
        ++singleRows_;
        bound_ = BoundRow::bind(session::statementOf(number_), uses_);
        return next();
    }
    const SQLHSTMT statement = session::statementOf(number_);
    const SQLRETURN result = statement == SQL_NULL_HSTMT ? SQL_ERROR : SQLFetch(statement);
    ended_ = result == SQL_NO_DATA;
    return odbcSucceeded(result);
}

// What is read in several ways is left to the driver, which converts anew each time.
void Cursor::use(short column, ColumnUse use) const
{
    const auto index = static_cast<std::size_t>(column - 1);
    if (bound_ || index >= uses_.size())
        return;
    ColumnUse& known = uses_[index];
    known = known == ColumnUse::None || known == use ? use : ColumnUse::Several;
}

long Cursor::integer(short column) const
{
    use(column, ColumnUse::Integer);
    const auto bound = bound_ ? bound_->integer(column) : std::nullopt;
    return bound ? *bound : dbGetLong(live(), column);
}

double Cursor::number(short column) const
{
    use(column, ColumnUse::Number);
    const auto bound = bound_ ? bound_->number(column) : std::nullopt;
    return bound ? *bound : dbGetDouble(live(), column);
}

std::string Cursor::text(short column) const { return std::string(view(column)); }

std::string_view Cursor::view(short column) const
{
    use(column, ColumnUse::Text);
    if (const auto bound = bound_ ? bound_->text(column) : std::nullopt)
        return trimmedRight(*bound);
    long_ = columns::readText(session::statementOf(live()), column);
    return trimmedRight(long_);
}

char Cursor::letter(short column) const
{
    use(column, ColumnUse::Letter);
    const auto bound = bound_ ? bound_->letter(column) : std::nullopt;
    return bound ? *bound : dbGetChar(live(), column);
}

long Cursor::rowCount() const { return dbRowCount(live()); }

int Cursor::close()
{
    const short number = live();
    number_ = 0;
    const int result = dbCloseCursor(number);
    bound_.reset(); // once the driver knows the buffers no more
    return result;
}

bool runStatement(const std::string& sql) { return static_cast<bool>(Cursor(sql)); }

bool runOrReport(const std::string& sql, Fatal fatal)
{
    const bool ran = runStatement(sql);
    if (!ran)
        reportDbFailure(sql, fatal);
    return ran;
}
