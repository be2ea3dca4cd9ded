// app/import/Importer.cpp
#include "app/import/Importer.h"

#include "app/import/Cells.h"
#include "app/import/ColumnMap.h"
#include "app/import/ImportContext.h"
#include "app/import/Inputs.h"
#include "app/import/Loader.h"
#include "app/import/TableLoader.h"
#include "store/Transaction.h"

#include <algorithm>
#include <map>
#include <memory>
#include <numeric>
#include <unordered_set>

namespace {

constexpr long kProgressRows = 1000;
constexpr const char* kCancelled = "Cancelled; nothing was stored.";

using RowTexts = std::unordered_set<std::string>;

/// Tells the rows apart by what fills their columns, where a file is to be taken so.
class RowsOnce {
public:
    /// `seen` are those of the files before.
    RowsOnce(const InputFile& file, RowTexts& seen)
        : file_(file)
        , seen_(seen)
    {
    }
    bool repeats(const CsvRow& row)
    {
        if (!file_.takesRowsOnce)
            return false;
        std::string text;
        for (const MappedColumn& column : file_.columns)
            if (column.field >= 0)
                text.append(row.fields[static_cast<std::size_t>(column.field)]).append(1, '\0');
        const bool isNew = seen_.insert(std::move(text)).second;
        repeated_ += !isNew;
        return !isNew;
    }
    void tell(FileReport& report) const
    {
        if (repeated_ > 0)
            report.note("", "",
                std::to_string(repeated_)
                    + " rows repeat others in these columns; each is taken once");
    }

private:
    const InputFile& file_;
    RowTexts& seen_;
    long repeated_ = 0;
};

class Import {
public:
    Import(const ImportOptions& options, ImportListener& listener)
        : listener_(listener)
        , context_(options.dryRun ? Writing::Check : Writing::Write)
    {
        if (!options.map.empty())
            map_ = readColumnMap(options.map);
        inputs_ = findInputs(options.inputs, options.map, map_);
    }

    ImportResult run()
    {
        if (map_.failure.empty())
            for (const Issue& issue : inputs_.left)
                listener_.issue(issue);
        failure_ = map_.failure.empty() ? inputs_.failure : map_.failure;
        if (failure_.empty())
            checkAndStore();
        return result();
    }

private:
    void keepFailure(const std::string& otherwise)
    {
        if (failure_.empty())
            failure_ = otherwise;
    }

    bool readHeaders()
    {
        bool good = true;
        for (InputFile& file : inputs_.files)
            good = readColumns(file) && good;
        std::erase_if(inputs_.files, [](const InputFile& file) { return !file.shape; });
        // A header may have told what a name did not.
        std::ranges::stable_sort(inputs_.files, {}, &InputFile::shape);
        return good;
    }

    // False: the file cannot be used.
    bool readColumns(InputFile& file)
    {
        FileReport report(file.name, &listener_);
        readHeader(&file, &report);
        if (report.failed() || !file.shape)
            return !report.failed();
        surveyColumns(&file, &report);
        const std::string problem =
            report.failed() ? "" : loaderOf(*file.shape).columnProblem(file);
        if (!problem.empty())
            report.fail(problem);
        return !report.failed();
    }

    // Locked from the first look: what was not there when it was checked must not be there when it
    // is stored.
    void checkAndStore()
    {
        Transaction transaction;
        if (context_.writing == Writing::Write && !transaction.lock()) {
            failure_ = "The database cannot be written to, perhaps because another program does so "
                       "now. Nothing was stored; try again when that is done: "
                + transaction.error();
            return;
        }
        if (!(readHeaders() && passOver(ImportPhase::Checking)))
            keepFailure("A file cannot be used; nothing was stored.");
        if (failure_.empty())
            storeAll(transaction);
    }

    void storeAll(Transaction& transaction)
    {
        if (!passOver(ImportPhase::Storing))
            keepFailure("A file cannot be read any more; nothing was stored.");
        if (failure_.empty() && context_.writing == Writing::Write && !transaction.commit())
            failure_ =
                "The database did not keep the rows; nothing was stored: " + transaction.error();
    }

    // False with a file that cannot be read to its end, or with `failure_`.
    bool passOver(ImportPhase phase)
    {
        context_.phase = phase;
        seen_.clear();
        bool good = true;
        for (const InputFile& file : inputs_.files) {
            FileReport report(file.name, phase == ImportPhase::Checking ? &listener_ : nullptr);
            good = readRows(file, report) && good;
            if (!failure_.empty())
                return false;
            if (phase == ImportPhase::Storing && !sameAsChecked(file, report.counts))
                return false;
            counts_[&file] = report.counts;
        }
        return good;
    }

    bool sameAsChecked(const InputFile& file, const FileCounts& counts)
    {
        const FileCounts& checked = counts_[&file];
        if (checked.read == counts.read && checked.refused == counts.refused
            && checked.adjusted == counts.adjusted)
            return true;
        failure_ = file.name + " changed while it was read; nothing was stored.";
        return false;
    }

    bool readRows(const InputFile& file, FileReport& report)
    {
        CsvReader reader(file.path);
        CsvRow row;
        reader.next(&row); // the header
        RowsOnce once(file, seen_[{file.map, file.set}]);
        while (reader.next(&row)) {
            const bool isWhole = completeRow(file, &row);
            if (isWhole && once.repeats(row))
                continue;
            report.beginRow(row.line);
            if (!takeRow(file, row, isWhole, report))
                return false;
            report.endRow();
            if (report.counts.read % kProgressRows == 0 && !goesOn(file, report))
                return false;
        }
        once.tell(report);
        if (!reader.failure().empty())
            report.fail(reader.failure());
        return !report.failed();
    }

    bool goesOn(const InputFile& file, const FileReport& report)
    {
        listener_.progress(file.name, report.counts.read, context_.phase);
        if (!listener_.cancelled())
            return true;
        failure_ = kCancelled;
        return false;
    }

    // False: `failure_`.
    bool takeRow(const InputFile& file, const CsvRow& row, bool isWhole, FileReport& report)
    {
        if (!row.fault.empty()) {
            report.refuse("", "", row.fault);
            return true;
        }
        if (!isWhole) {
            report.refuse("", "",
                std::to_string(row.fields.size()) + " fields instead of "
                    + std::to_string(file.fields));
            return true;
        }
        RowLoader& loader = loaderOf(*file.shape);
        CellReader cells(file, row, report);
        const bool asked = loader.check(cells);
        if (asked && (report.refused() || context_.phase == ImportPhase::Checking))
            return true;
        if (asked && count(loader.store(), report.counts))
            return true;
        failure_ = file.name + ':' + std::to_string(row.line)
            + ": the database failed; nothing was stored: " + loader.error();
        return false;
    }

    static bool count(Outcome outcome, FileCounts& counts)
    {
        counts.added += outcome == Outcome::New;
        counts.changed += outcome == Outcome::Changed;
        counts.same += outcome == Outcome::Same;
        return outcome != Outcome::Failed;
    }

    RowLoader& loaderOf(const FileShape& shape)
    {
        std::unique_ptr<RowLoader>& loader = loaders_[&shape];
        if (!loader)
            loader =
                shape.table ? makeTableLoader(context_, *shape.table) : shape.makeLoader(context_);
        return *loader;
    }

    ImportResult result()
    {
        ImportResult result{failure_, {}};
        for (const InputFile& file : inputs_.files) {
            FileCounts counts = counts_[&file];
            counts.file = file.name;
            if (!failure_.empty())
                counts.added = counts.changed = counts.same = 0;
            result.files.push_back(counts);
        }
        return result;
    }

    ImportListener& listener_;
    ImportContext context_;
    ColumnMap map_;
    Inputs inputs_;
    std::map<const FileShape*, std::unique_ptr<RowLoader>> loaders_;
    std::map<const InputFile*, FileCounts> counts_;
    std::map<std::pair<const MapEntry*, std::string>, RowTexts> seen_; // of a kind in one set
    std::string failure_;
};

} // namespace

long ImportResult::refused() const
{
    return std::accumulate(files.begin(), files.end(), 0L,
        [](long sum, const FileCounts& file) { return sum + file.refused; });
}

long ImportResult::stored() const
{
    return std::accumulate(files.begin(), files.end(), 0L,
        [](long sum, const FileCounts& file) { return sum + file.added + file.changed; });
}

ImportResult importFiles(const ImportOptions& options, ImportListener& listener)
{
    return Import(options, listener).run();
}
