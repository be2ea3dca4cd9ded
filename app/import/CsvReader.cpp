// app/import/CsvReader.cpp
#include "app/import/CsvReader.h"

#include "app/import/Utf8.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::size_t kBuffer = 1 << 16;
// A row beyond this is no row of a table: somewhere a quote is missing.
constexpr std::size_t kLongestRow = 1 << 20;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool startsWithUtf16Mark(std::string_view line)
{
    return line.starts_with("\xFF\xFE") || line.starts_with("\xFE\xFF");
}

// The separator that stands most often outside quotes; a comma when none does.
char separatorOf(std::string_view line)
{
    constexpr std::string_view kSeparators = ",;\t";
    std::array<int, kSeparators.size()> counts{};
    bool quoted = false;
    for (const char c : line) {
        quoted = quoted != (c == '"');
        const std::size_t which = quoted ? std::string_view::npos : kSeparators.find(c);
        if (which != std::string_view::npos)
            ++counts[which];
    }
    return kSeparators[static_cast<std::size_t>(std::ranges::max_element(counts) - counts.begin())];
}

// Blanks alone are trimmed by the parser: a tab may separate.
int isBlank(unsigned char c) { return c == ' ' ? 1 : 0; }

} // namespace

CsvReader::CsvReader(const std::filesystem::path& file)
    : stream_(file, std::ios::binary)
    , buffer_(kBuffer)
{
    startParser();
    if (!stream_)
        failure_ = "cannot be opened for reading";
}

CsvReader::~CsvReader() { csv_free(&parser_); }

bool CsvReader::fail(const std::string& why)
{
    failure_ = why;
    return false;
}

bool CsvReader::fillBuffer()
{
    stream_.read(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
    position_ = 0;
    filled_ = static_cast<std::size_t>(stream_.gcount());
    if (stream_.bad())
        failure_ = "cannot be read to its end";
    return filled_ > 0;
}

// Whether the line is whole with the bytes up to `end`. A carriage return alone ends a line too, so
// the byte behind it decides.
bool CsvReader::takeLineEnd(std::size_t end)
{
    if (end == filled_)
        return false;
    const char c = buffer_[end];
    line_ += c;
    position_ = end + 1;
    if (c == '\n')
        return true;
    if (position_ == filled_ && !fillBuffer())
        return true;
    if (buffer_[position_] == '\n')
        line_ += buffer_[position_++];
    return true;
}

// The next physical line into `line_`; false at the end of the file.
bool CsvReader::readLine()
{
    line_.clear();
    for (;;) {
        if (position_ == filled_ && !fillBuffer())
            break;
        std::size_t end = position_;
        while (end < filled_ && buffer_[end] != '\n' && buffer_[end] != '\r')
            ++end;
        line_.append(buffer_.data() + position_, end - position_);
        position_ = end;
        if (takeLineEnd(end))
            break;
        if (line_.size() > kLongestRow)
            return fail("line " + std::to_string(lineNumber_ + 1) + " is longer than 1 MiB");
    }
    if (line_.empty())
        return false;
    ++lineNumber_;
    return true;
}

void CsvReader::startParser()
{
    csv_init(&parser_, CSV_STRICT | CSV_STRICT_FINI | CSV_EMPTY_IS_NULL);
    csv_set_delim(&parser_, static_cast<unsigned char>(separator_));
    csv_set_space_func(&parser_, isBlank);
}

// What only the first line tells.
void CsvReader::prepare()
{
    if (startsWithUtf16Mark(line_)) {
        fail("is written in UTF-16; save it as UTF-8");
        return;
    }
    if (line_.starts_with(kByteOrderMark)) {
        byteOrderMark_ = true;
        line_.erase(0, kByteOrderMark.size());
    }
    separator_ = separatorOf(line_);
    csv_set_delim(&parser_, static_cast<unsigned char>(separator_));
}

void CsvReader::noteBadBytes()
{
    if (!row_->fault.empty())
        return;
    const std::size_t bad = std::min(firstInvalidUtf8(line_), line_.find('\0'));
    if (bad == std::string::npos)
        return;
    row_->fault = "byte " + std::to_string(bad + 1) + " of line " + std::to_string(lineNumber_)
        + " (" + hexByte(line_[bad]) + ") is not UTF-8";
}

void CsvReader::onField(void* text, std::size_t length, void* reader)
{
    auto* self = static_cast<CsvReader*>(reader);
    auto& fields = self->row_->fields;
    if (self->fields_ == fields.size())
        fields.emplace_back();
    self->row_->nothing.push_back(!text);
    fields[self->fields_++].assign(static_cast<const char*>(text), text ? length : 0);
}

void CsvReader::onRow(int, void* reader) { static_cast<CsvReader*>(reader)->rowEnded_ = true; }

// One physical line ends one row at most.
void CsvReader::feedLine()
{
    constexpr int kRowNotBegun = 0; // the parser's own first state
    if (parser_.pstate == kRowNotBegun) {
        row_->line = lineNumber_;
        rowBytes_ = 0;
    }
    rowBytes_ += line_.size();
    if (rowBytes_ > kLongestRow) {
        fail("the row that begins in line " + std::to_string(row_->line)
            + " is longer than 1 MiB; a closing quote may be missing");
        return;
    }
    noteBadBytes();
    if (csv_parse(&parser_, line_.data(), line_.size(), onField, onRow, this) == line_.size())
        return;
    // What follows the stray quote cannot be told apart any more; the next line begins anew.
    row_->fault = "a quotation mark in line " + std::to_string(lineNumber_)
        + " is neither doubled nor at the edge of a field";
    csv_free(&parser_);
    startParser();
    rowEnded_ = true;
}

void CsvReader::finish()
{
    finished_ = true;
    if (csv_fini(&parser_, onField, onRow, this) != 0)
        fail("a quotation mark opens in the row of line " + std::to_string(row_->line)
            + " and never closes");
}

bool CsvReader::next(CsvRow* row)
{
    row_ = row;
    row->fault.clear();
    row->nothing.clear();
    fields_ = 0;
    rowBytes_ = 0;
    rowEnded_ = false;
    while (!rowEnded_ && !finished_ && failure_.empty()) {
        if (readLine()) {
            if (lineNumber_ == 1)
                prepare();
            if (failure_.empty())
                feedLine();
        } else if (failure_.empty()) {
            finish();
        }
    }
    row->fields.resize(row->fault.empty() ? fields_ : 0);
    return rowEnded_ && failure_.empty();
}
