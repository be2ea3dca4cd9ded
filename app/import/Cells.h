// app/import/Cells.h
#pragma once

#include "app/import/InputFile.h"
#include "store/Value.h"
#include "util/Date.h"

#include <optional>
#include <string>
#include <string_view>

// How the texts of cells are understood.

/// Digits with exactly one `mark` among them, perhaps signed: "12,5", ".5", "-3,".
bool isDecimalWith(char mark, std::string_view cell);
/// The comma as a point.
std::string withPoint(std::string_view cell);
/// A finite number with a point; none for anything else, words like "nan" included. Minus zero is
/// zero.
std::optional<double> numberOf(std::string_view cell);
/// 'W' or 'O'; 0 for any other text.
char wellTypeOf(std::string_view cell);
/// 'M' or 'F'; 0 for any other text.
char unitsOf(std::string_view cell);

/// What reading a cell came to. Missing: the file has no such column. Empty also stands for values
/// that mean "not known". Bad: reported; the row is refused or goes on without the cell, as its
/// column's shape says.
enum class Cell { Missing, Empty, Bad, Good };

/// What a cell gives a column of the database: nothing when it is missing or bad, which leaves the
/// column as it is, NULL when it is empty.
std::optional<Value> givenValue(Cell state, Value value);

/// The cells of one row by their columns, with everything odd told to the file's report.
class CellReader {
public:
    CellReader(const InputFile& file, const CsvRow& row, FileReport& report)
        : file_(file)
        , row_(row)
        , report_(report)
    {
    }

    /// Texts lose white space around them; line breaks and other control characters in them become
    /// blanks; what is longer than the column is cut at a character.
    Cell text(int column, std::string* out);
    /// A text that rows are found by. Empty ones and those with a percent sign refuse the row.
    Cell key(int column, std::string* out);
    Cell number(int column, double* out);
    Cell whole(int column, long* out);
    Cell date(int column, Date* out);
    Cell wellType(int column, char* out);
    Cell units(int column, char* out);
    /// One of the five codes; those of other programs are translated.
    Cell sampleType(int column, std::string* out);
    /// The type of the well that the row belongs to: outcrops count depths upwards.
    void standInWell(char type) { wellType_ = type; }
    /// Metres or feet as the file has it, or as a map converts them, in the direction of the well.
    /// `*units` is what the column's name or the map says, or 0.
    Cell depth(int column, double* out, char* units);

    /// The bytes of the cell with nothing dropped or changed, for copies of a database. None where
    /// the file has nothing, not even quotation marks.
    std::optional<std::string> bytes(int column) const;
    /// The cell as the file has it, white space around it dropped; empty when there is none.
    std::string_view raw(int column) const;
    const std::string& header(int column) const { return file_.column(column).header; }
    const InputFile& file() const { return file_; }
    long line() const { return row_.line; }
    FileReport& report() { return report_; }

    void refuse(int column, const std::string& reason);
    void adjust(int column, const std::string& reason);

private:
    Cell bad(int column, const std::string& reason);
    Cell start(int column, std::string_view* cell) const;
    bool isUnknownNumber(int column, double value);

    const InputFile& file_;
    const CsvRow& row_;
    FileReport& report_;
    char wellType_ = 'W';
};
