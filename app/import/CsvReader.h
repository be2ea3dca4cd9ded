// app/import/CsvReader.h
#pragma once

#include <csv.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

/// One row of a file. A row with a fault has no usable fields.
struct CsvRow {
    long line = 0; ///< from 1, where the row begins
    std::vector<std::string> fields;
    std::string fault;              ///< why the row cannot be read; empty for a good row
    std::vector<bool> nothing = {}; ///< of each field: no byte and no quotation marks
};

/// Reads a CSV file row by row: UTF-8, a byte-order mark dropped, the separator (comma, semicolon
/// or tab) taken from the first line, fields in double quotes with everything in them including
/// line breaks, any line ends, empty lines skipped. White space around a field without quotes is
/// not part of it. Memory is bounded by the longest row, which has a limit.
class CsvReader {
public:
    explicit CsvReader(const std::filesystem::path& file);
    ~CsvReader();
    CsvReader(const CsvReader&) = delete;
    CsvReader& operator=(const CsvReader&) = delete;

    /// The next row, the header included. False at the end, and when the file as a whole cannot be
    /// read: then `failure` is not empty.
    bool next(CsvRow* row);

    const std::string& failure() const { return failure_; }
    bool hadByteOrderMark() const { return byteOrderMark_; }
    char separator() const { return separator_; }

private:
    bool readLine();
    bool fillBuffer();
    bool takeLineEnd(std::size_t end);
    void startParser();
    void prepare();
    void noteBadBytes();
    void feedLine();
    void finish();
    bool fail(const std::string& why);

    static void onField(void* text, std::size_t length, void* reader);
    static void onRow(int terminator, void* reader);

    std::ifstream stream_;
    std::vector<char> buffer_;
    std::size_t position_ = 0; // of what is not handed out yet, in the buffer
    std::size_t filled_ = 0;
    std::string line_; // the physical line, with its end
    long lineNumber_ = 0;

    csv_parser parser_{};
    char separator_ = ',';
    CsvRow* row_ = nullptr; // being filled
    std::size_t fields_ = 0;
    std::size_t rowBytes_ = 0;
    bool rowEnded_ = false;
    bool finished_ = false;
    bool byteOrderMark_ = false;
    std::string failure_;
};
