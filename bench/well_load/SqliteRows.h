// bench/well_load/SqliteRows.h
#pragma once

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

/// The engine's own C interface with as little around it as can be: what the other ways of reading
/// are measured against. What fails ends the process with the engine's message.
class SqliteDatabase {
public:
    enum Mode { Read = SQLITE_OPEN_READONLY, Create = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE };
    explicit SqliteDatabase(const std::string& file, Mode mode = Read)
    {
        // Without mutexes, as for any program that reads from one thread.
        check(sqlite3_open_v2(file.c_str(), &db_, mode | SQLITE_OPEN_NOMUTEX, nullptr));
    }
    ~SqliteDatabase() { sqlite3_close_v2(db_); }
    SqliteDatabase(const SqliteDatabase&) = delete;
    SqliteDatabase& operator=(const SqliteDatabase&) = delete;

    void run(std::string_view sql)
    {
        check(sqlite3_exec(db_, std::string(sql).c_str(), nullptr, nullptr, nullptr));
    }
    void check(int code) const
    {
        if (code == SQLITE_OK)
            return;
        std::fprintf(stderr, "%s\n", sqlite3_errmsg(db_));
        std::exit(1);
    }
    sqlite3* handle() const { return db_; }

private:
    sqlite3* db_ = nullptr;
};

/// A statement and its rows; columns count from 1.
class SqliteRows {
public:
    SqliteRows(const SqliteDatabase& db, const std::string& sql)
        : db_(db)
    {
        db.check(sqlite3_prepare_v2(db.handle(), sql.c_str(), -1, &statement_, nullptr));
    }
    ~SqliteRows() { sqlite3_finalize(statement_); }
    SqliteRows(const SqliteRows&) = delete;
    SqliteRows& operator=(const SqliteRows&) = delete;

    /// Runs it with these values, a null text being NULL.
    template <class... Value> void run(Value... values)
    {
        int number = 0;
        (db_.check(bind(++number, values)), ...);
        next();
        db_.check(sqlite3_reset(statement_));
    }

    bool next()
    {
        const int code = sqlite3_step(statement_);
        if (code != SQLITE_ROW && code != SQLITE_DONE)
            db_.check(code);
        return code == SQLITE_ROW;
    }
    long integer(short column) { return sqlite3_column_int(statement_, column - 1); }
    double number(short column) { return sqlite3_column_double(statement_, column - 1); }
    std::string_view text(short column)
    {
        const auto* text = sqlite3_column_text(statement_, column - 1);
        const int length = sqlite3_column_bytes(statement_, column - 1);
        return {reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)};
    }

private:
    int bind(int number, long value) { return sqlite3_bind_int64(statement_, number, value); }
    int bind(int number, double value) { return sqlite3_bind_double(statement_, number, value); }
    int bind(int number, const char* value)
    {
        return sqlite3_bind_text(statement_, number, value, -1, SQLITE_TRANSIENT);
    }

    const SqliteDatabase& db_;
    sqlite3_stmt* statement_ = nullptr;
};
