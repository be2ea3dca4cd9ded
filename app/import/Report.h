// app/import/Report.h
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

/// What became of a row or a file. A note is about a whole file; an adjusted row was stored, with
/// something in it other than the file has it; a refused row was not stored; a failed file keeps
/// the whole import from storing anything.
enum class Severity { Note, Adjusted, Refused, Failed };

struct Issue {
    Severity severity;
    std::string file;
    long line = 0;      ///< 0: the file as a whole
    std::string column; ///< as the file's header has it; empty: the row as a whole
    std::string value;  ///< as the file has it
    std::string reason;
};

/// "samples.csv:12: refused: top_depth_m "abc": not a number", in one line.
std::string issueText(const Issue& issue);

/// Rows of one file. `read` is all of them; each is added, changed, same or refused. `adjusted` are
/// those of them that were stored otherwise than written.
struct FileCounts {
    std::string file;
    long read = 0;
    long added = 0;
    long changed = 0;
    long same = 0;
    long adjusted = 0;
    long refused = 0;
};

enum class ImportPhase { Checking, Storing };

/// Who follows an import. The issues of a file come while it is checked, so before anything is
/// stored; they are not kept, so that a long list costs no memory.
class ImportListener {
public:
    virtual ~ImportListener() = default;
    virtual void issue(const Issue& issue) = 0;
    /// Called every 1,000 rows.
    virtual void progress(const std::string& /*file*/, long /*rows*/, ImportPhase /*phase*/) {}
    /// Asked as often as `progress` is called; true ends the import with nothing stored.
    virtual bool cancelled() { return false; }
};

/// Counts what happens to one file and passes it on.
class FileReport {
public:
    /// Without a listener it counts only.
    FileReport(std::string file, ImportListener* listener);

    void note(const std::string& column, const std::string& value, const std::string& reason);
    /// As `note`, the first time only.
    void noteOnce(const std::string& column, const std::string& value, const std::string& reason);
    void fail(const std::string& reason);
    bool failed() const { return failed_; }

    /// Every row begins here and ends with `endRow`, which counts it as refused or adjusted.
    void beginRow(long line);
    void refuse(const std::string& column, std::string_view value, const std::string& reason);
    void adjust(const std::string& column, std::string_view value, const std::string& reason);
    bool refused() const { return refused_; }
    void endRow();

    FileCounts counts;

private:
    void pass(const Issue& issue);

    ImportListener* listener_;
    bool failed_ = false;
    bool refused_ = false;
    long line_ = 0;
    std::vector<Issue> pending_; // of the row
    std::set<std::string> notes_;
};
