// app/import/Report.cpp
#include "app/import/Report.h"

#include "util/FixedText.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t kShownBytes = 60;

const char* word(Severity severity)
{
    switch (severity) {
    case Severity::Note:
        return "note";
    case Severity::Adjusted:
        return "adjusted";
    case Severity::Refused:
        return "refused";
    case Severity::Failed:
        break;
    }
    return "failed";
}

std::string shownValue(std::string_view value)
{
    std::string shown(utf8Prefix(value, kShownBytes));
    std::ranges::replace_if(
        shown, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return '"' + shown + (shown.size() < value.size() ? "...\"" : "\"");
}

} // namespace

std::string issueText(const Issue& issue)
{
    std::string text = issue.file;
    if (issue.line > 0)
        text += ':' + std::to_string(issue.line);
    text.append(": ").append(word(issue.severity)).append(": ");
    if (!issue.column.empty())
        text += issue.column + (issue.value.empty() ? "" : ' ' + shownValue(issue.value)) + ": ";
    return text + issue.reason;
}

FileReport::FileReport(std::string file, ImportListener* listener)
    : listener_(listener)
{
    counts.file = std::move(file);
}

void FileReport::pass(const Issue& issue)
{
    if (listener_)
        listener_->issue(issue);
}

void FileReport::note(
    const std::string& column, const std::string& value, const std::string& reason)
{
    pass({Severity::Note, counts.file, 0, column, value, reason});
}

void FileReport::noteOnce(
    const std::string& column, const std::string& value, const std::string& reason)
{
    if (notes_.insert(column + '\n' + reason).second)
        note(column, value, reason);
}

void FileReport::fail(const std::string& reason)
{
    failed_ = true;
    pass({Severity::Failed, counts.file, 0, "", "", reason});
}

void FileReport::beginRow(long line)
{
    ++counts.read;
    line_ = line;
    refused_ = false;
    pending_.clear();
}

void FileReport::refuse(
    const std::string& column, std::string_view value, const std::string& reason)
{
    refused_ = true;
    pending_.push_back({Severity::Refused, counts.file, line_, column, std::string(value), reason});
}

void FileReport::adjust(
    const std::string& column, std::string_view value, const std::string& reason)
{
    pending_.push_back(
        {Severity::Adjusted, counts.file, line_, column, std::string(value), reason});
}

void FileReport::endRow()
{
    // In a row that is not stored nothing was adjusted.
    for (const Issue& issue : pending_)
        if (!refused_ || issue.severity == Severity::Refused)
            pass(issue);
    if (refused_)
        ++counts.refused;
    else if (!pending_.empty())
        ++counts.adjusted;
}
