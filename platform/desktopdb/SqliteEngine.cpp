// platform/desktopdb/SqliteEngine.cpp
#include "platform/desktopdb/SqliteEngine.h"

#include <filesystem>
#include <sqlite3.h>

namespace desktopdb {

namespace {
struct MessageState {
    std::string_view part;
    const char* state;
};

// The engine has one code for all faults of a statement's text; only its words tell them
// apart.
constexpr MessageState kMessageStates[] = {
    {"no such table", "42S02"},
    {"no such view", "42S02"},
    {"unknown database", "42S02"},
    {"no such index", "42S12"},
    {"no such column", "42S22"},
    {"has no column named", "42S22"},
    {"duplicate column name", "42S21"},
    {"values for", "21S01"},
    {"values were supplied", "21S01"},
    {"term does not match", "21S01"},
    {"already exists", "42S01"},
    {"there is already", "42S01"},
    {"within a transaction", "25000"},
    {"no transaction is active", "25000"},
    {"integer overflow", "22003"},
};

const char* stateOfMessage(std::string_view message)
{
    for (const MessageState& known : kMessageStates) {
        if (message.find(known.part) != message.npos)
            return message.starts_with("index") ? "42S11" : known.state;
    }
    return "42000";
}

const char* stateOf(int extendedCode, std::string_view message)
{
    if (extendedCode == SQLITE_BUSY_SNAPSHOT)
        return "40001";
    switch (extendedCode & 0xff) {
    case SQLITE_ERROR:
        return stateOfMessage(message);
    case SQLITE_CONSTRAINT:
        return "23000";
    case SQLITE_BUSY:
        return "HYT00";
    case SQLITE_LOCKED:
        return "40001";
    case SQLITE_INTERRUPT:
        return "HY008";
    case SQLITE_ABORT:
        return "24000"; // the rows went away with a rollback
    case SQLITE_NOMEM:
        return "HY001";
    case SQLITE_TOOBIG:
        return "22001";
    case SQLITE_MISMATCH:
        return "22018";
    case SQLITE_NOTADB:
    case SQLITE_CANTOPEN:
        return "08001";
    case SQLITE_IOERR:
        return "08S01";
    case SQLITE_READONLY:
    case SQLITE_AUTH:
    case SQLITE_PERM:
        return "42000";
    default:
        return "HY000";
    }
}

Failure failureOf(sqlite3* db)
{
    const std::string message = sqlite3_errmsg(db);
    const int code = sqlite3_extended_errcode(db);
    return {stateOf(code, message), message, code};
}

std::string textOrEmpty(const char* text) { return text ? text : ""; }

class SqliteStatement : public EngineStatement {
public:
    SqliteStatement(sqlite3* db, sqlite3_stmt* statement)
        : db_(db)
        , statement_(statement)
    {
    }
    ~SqliteStatement() override { sqlite3_finalize(statement_); }
    SqliteStatement(const SqliteStatement&) = delete;
    SqliteStatement& operator=(const SqliteStatement&) = delete;

    Step step(Failure& failure) override
    {
        switch (sqlite3_step(statement_)) {
        case SQLITE_ROW:
            return Step::Row;
        case SQLITE_DONE:
            changes_ = sqlite3_changes64(db_);
            return Step::Done;
        default:
            failure = failureOf(db_);
            return Step::Failed;
        }
    }

    int columnCount() const override { return sqlite3_column_count(statement_); }

    // By way of the value object: each call on the statement itself would check it anew. That is
    // allowed because the connection is opened without mutexes.
    Cell cell(int column) const override
    {
        sqlite3_value* value = sqlite3_column_value(statement_, column);
        switch (sqlite3_value_type(value)) {
        case SQLITE_INTEGER:
            return Cell::ofInteger(sqlite3_value_int64(value));
        case SQLITE_FLOAT:
            return Cell::ofReal(sqlite3_value_double(value));
        case SQLITE_TEXT: {
            const void* text = sqlite3_value_text(value);
            return Cell::ofText(bytes(text, value));
        }
        case SQLITE_BLOB: {
            const void* blob = sqlite3_value_blob(value);
            return Cell::ofBlob(bytes(blob, value));
        }
        default:
            return {};
        }
    }

    ResultColumn column(int column) const override
    {
        ResultColumn result;
        result.label = textOrEmpty(sqlite3_column_name(statement_, column));
        result.table = textOrEmpty(sqlite3_column_table_name(statement_, column));
        result.name = textOrEmpty(sqlite3_column_origin_name(statement_, column));
        result.declaredType = textOrEmpty(sqlite3_column_decltype(statement_, column));
        if (!result.table.empty()) {
            int notNull = 0;
            sqlite3_table_column_metadata(db_, sqlite3_column_database_name(statement_, column),
                result.table.c_str(), result.name.c_str(), nullptr, nullptr, &notNull, nullptr,
                nullptr);
            result.notNull = notNull != 0;
        }
        return result;
    }

    int parameterCount() const override { return sqlite3_bind_parameter_count(statement_); }

    bool bind(int index, const Cell& cell, Failure& failure) override
    {
        if (bindCell(index + 1, cell) == SQLITE_OK)
            return true;
        failure = failureOf(db_);
        return false;
    }

    void reset() override
    {
        sqlite3_reset(statement_);
        sqlite3_clear_bindings(statement_);
    }

    bool readOnly() const override { return sqlite3_stmt_readonly(statement_) != 0; }
    std::int64_t changes() const override { return changes_; }

private:
    // An empty blob has no address.
    static std::string_view bytes(const void* data, sqlite3_value* value)
    {
        return data ? std::string_view(
                   static_cast<const char*>(data), static_cast<size_t>(sqlite3_value_bytes(value)))
                    : std::string_view();
    }

    int bindCell(int number, const Cell& cell)
    {
        const char* data = cell.bytes.data(); // never null: an empty text is not NULL
        switch (cell.kind) {
        case ValueKind::Integer:
            return sqlite3_bind_int64(statement_, number, cell.integer);
        case ValueKind::Real:
            return sqlite3_bind_double(statement_, number, cell.real);
        case ValueKind::Text:
            return sqlite3_bind_text64(
                statement_, number, data, cell.bytes.size(), SQLITE_STATIC, SQLITE_UTF8);
        case ValueKind::Blob:
            return sqlite3_bind_blob64(statement_, number, data, cell.bytes.size(), SQLITE_STATIC);
        default:
            return sqlite3_bind_null(statement_, number);
        }
    }

    sqlite3* db_;
    sqlite3_stmt* statement_;
    std::int64_t changes_ = 0;
};

class SqliteEngine : public Engine {
public:
    explicit SqliteEngine(sqlite3* db)
        : db_(db)
    {
    }
    ~SqliteEngine() override
    {
        schemaQuery_.reset();
        sqlite3_close_v2(db_);
    }
    SqliteEngine(const SqliteEngine&) = delete;
    SqliteEngine& operator=(const SqliteEngine&) = delete;

    /// Settings that every connection has, and a first look whether this is a database.
    bool setUp(const OpenOptions& options, Failure& failure)
    {
        sqlite3_extended_result_codes(db_, 1);
        sqlite3_busy_timeout(db_, options.busyTimeout);
        // A name in double quotes that is not there must not turn into a text.
        sqlite3_db_config(db_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
        sqlite3_db_config(db_, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
        sqlite3_db_config(db_, SQLITE_DBCONFIG_ENABLE_FKEY, 0, nullptr);
        if (!run("SELECT count(*) FROM sqlite_master", failure))
            return false;
        Failure ignored; // a file that may only be read keeps the journal that it has
        run("PRAGMA journal_mode=WAL", ignored);
        return !options.caseSensitiveLike || run("PRAGMA case_sensitive_like=ON", failure);
    }

    std::unique_ptr<EngineStatement> prepare(std::string_view sql, Failure& failure) override
    {
        sqlite3_stmt* statement = nullptr;
        const char* rest = nullptr;
        const int code = sqlite3_prepare_v3(db_, sql.data(), static_cast<int>(sql.size()),
            SQLITE_PREPARE_PERSISTENT, &statement, &rest);
        if (code != SQLITE_OK) {
            failure = failureOf(db_);
            return nullptr;
        }
        if (!statement) {
            failure = {"42000", "the statement is empty"};
            return nullptr;
        }
        return std::make_unique<SqliteStatement>(db_, statement);
    }

    // IMMEDIATE waits for another writer here, before the statement has done anything.
    bool begin(Failure& failure) override { return run("BEGIN IMMEDIATE", failure); }
    bool commit(Failure& failure) override { return run("COMMIT", failure); }
    bool rollback(Failure& failure) override { return run("ROLLBACK", failure); }
    bool inTransaction() const override { return sqlite3_get_autocommit(db_) == 0; }

    std::int64_t schemaVersion() override
    {
        Failure ignored;
        if (!schemaQuery_)
            schemaQuery_ = prepare("PRAGMA schema_version", ignored);
        std::int64_t version = -1;
        if (schemaQuery_ && schemaQuery_->step(ignored) == Step::Row)
            version = schemaQuery_->cell(0).integer;
        if (schemaQuery_)
            schemaQuery_->reset();
        // The engine compiles for the tables that it remembers and looks at the file only when a
        // statement runs.
        if (version != schemaVersion_)
            run("SELECT 1 FROM sqlite_master LIMIT 1", ignored);
        return schemaVersion_ = version;
    }

    bool tables(std::vector<TableEntry>& out, Failure& failure) override
    {
        return each("SELECT name, type = 'view' FROM sqlite_master WHERE type IN ('table', 'view')"
                    " AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY name",
            {}, failure, [&](const RowSource& row) {
                out.push_back({text(row, 0), row.cell(1).integer != 0});
            });
    }

    bool columns(const std::string& table, std::vector<TableColumn>& out, Failure& failure) override
    {
        return each("SELECT name, type, dflt_value, \"notnull\", pk FROM pragma_table_info(?)",
            table, failure, [&](const RowSource& row) {
                out.push_back(
                    {text(row, 0), text(row, 1), text(row, 2), row.cell(2).kind != ValueKind::Null,
                        row.cell(3).integer != 0, static_cast<int>(row.cell(4).integer)});
            });
    }

    bool indexes(const std::string& table, std::vector<IndexEntry>& out, Failure& failure) override
    {
        if (!each("SELECT name, \"unique\" FROM pragma_index_list(?) ORDER BY seq", table, failure,
                [&](const RowSource& row) {
                    out.push_back({text(row, 0), row.cell(1).integer != 0, {}});
                }))
            return false;
        for (IndexEntry& index : out) {
            if (!each("SELECT name FROM pragma_index_info(?) ORDER BY seqno", index.name, failure,
                    [&](const RowSource& row) { index.columns.push_back(text(row, 0)); }))
                return false;
        }
        return true;
    }

    void interrupt() override { sqlite3_interrupt(db_); }
    std::string name() const override { return "SQLite"; }
    std::string version() const override { return sqlite3_libversion(); }

private:
    static std::string text(const RowSource& row, int column)
    {
        return std::string(row.cell(column).bytes);
    }

    bool run(const char* sql, Failure& failure)
    {
        const auto statement = prepare(sql, failure);
        if (!statement)
            return false;
        Step step;
        do
            step = statement->step(failure);
        while (step == Step::Row);
        return step == Step::Done;
    }

    template <class Visit>
    bool each(const char* sql, const std::string& argument, Failure& failure, Visit visit)
    {
        const auto statement = prepare(sql, failure);
        if (!statement
            || (statement->parameterCount()
                && !statement->bind(0, Cell::ofText(argument), failure)))
            return false;
        Step step;
        while ((step = statement->step(failure)) == Step::Row)
            visit(*statement);
        return step == Step::Done;
    }

    sqlite3* db_;
    std::unique_ptr<EngineStatement> schemaQuery_;
    std::int64_t schemaVersion_ = -1;
};

bool checkFile(const OpenOptions& options, Failure& failure)
{
    std::error_code code;
    const auto status = std::filesystem::status(options.file, code);
    if (options.file.empty())
        failure = {"08001", "no database file is named: the connection string lacks Database="};
    else if (std::filesystem::is_directory(status))
        failure = {"08001", "the database file is a folder: " + options.file};
    else if (!std::filesystem::exists(status) && !options.create)
        failure = {"08001", "the database file does not exist: " + options.file};
    return !failure;
}
} // namespace

std::unique_ptr<Engine> openSqlite(const OpenOptions& options, Failure& failure)
{
    if (!checkFile(options, failure))
        return nullptr;
    sqlite3* db = nullptr;
    const int flags =
        SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (options.create ? SQLITE_OPEN_CREATE : 0);
    // As an absolute path the name is a file's, whatever it looks like to the engine.
    std::error_code noFolder;
    const auto path = std::filesystem::absolute(options.file, noFolder);
    const int code = sqlite3_open_v2(path.c_str(), &db, flags, nullptr);
    auto engine = std::make_unique<SqliteEngine>(db);
    if (code != SQLITE_OK)
        failure = failureOf(db);
    if (code != SQLITE_OK || !engine->setUp(options, failure)) {
        failure.text = "cannot open " + options.file + ": " + failure.text;
        if (failure.state != "HYT00")
            failure.state = "08001";
        return nullptr;
    }
    return engine;
}

} // namespace desktopdb
