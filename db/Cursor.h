// db/Cursor.h
#pragma once

#include "db/ColumnUse.h"
#include "db/ErrorReporter.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>

class BoundRow;

/// A running statement of the session that closes itself: the way this system reads rows.
/// Opens with `dbExecute`, so it occupies a cursor number; construct late, let it go early.
///
/// When the connection is lost and made again while it is open, its rows end there, and it closes
/// nothing: its number may be another statement's by then.
///
/// A long result is read faster from its second dozen of rows on: the columns are bound then, as
/// they have been read until there. What is read stays the same, whatever is read when.
class Cursor {
public:
    /// Runs `sql`. Test the object: false when the statement could not be run (nothing reported).
    explicit Cursor(const std::string& sql);
    /// Closes the statement; a failed drop is reported by the session.
    ~Cursor();
    Cursor(const Cursor&) = delete;
    Cursor& operator=(const Cursor&) = delete;

    explicit operator bool() const { return number_ != 0; }
    /// The session's cursor number; 0 when closed or failed.
    short number() const { return number_; }
    /// Whether the session was connected again since.
    bool isLost() const;
    /// Once `next` gave false: whether it was for want of rows. Else a fetch failed or the cursor
    /// is lost, and rows may be missing; nothing was reported.
    bool readAll() const { return ended_ && !isLost(); }

    /// Fetches the next row; false at the end or on failure.
    bool next();

    // The current row's columns, from 1. NULL reads as 0, 0.0, empty, character 0.
    long integer(short column) const;
    double number(short column) const;
    /// The whole text, however long, trailing white space, control characters and blanks removed.
    std::string text(short column) const;
    /// The same without a copy, valid until the next call of this function or `next`.
    std::string_view view(short column) const;
    char letter(short column) const;

    /// Rows that the statement affected, or -1.
    long rowCount() const;

    /// Closes now. 0, or -1 after the session reported the failed drop.
    int close();

private:
    void use(short column, ColumnUse use) const;
    short live() const; // the number, 0 when it is another statement's

    short number_;
    unsigned long generation_; // of the session's statements
    bool ended_ = false;
    short singleRows_ = 0;                     // so many rows have been read column by column
    mutable std::array<ColumnUse, 32> uses_{}; // of the columns from 1; any further stay unbound
    std::unique_ptr<BoundRow> bound_;          // null until the columns are bound
    mutable std::string long_;                 // what `view` gives of texts that are not bound
};

/// Runs a statement that returns no rows and closes it. False when it could not be run; nothing is
/// reported then.
bool runStatement(const std::string& sql);

/// The same, reporting a failure as `reportDbFailure` does.
bool runOrReport(const std::string& sql, Fatal fatal);
