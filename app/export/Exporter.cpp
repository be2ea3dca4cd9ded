// app/export/Exporter.cpp
#include "app/export/Exporter.h"

#include "app/export/CsvText.h"
#include "app/export/OutputFolder.h"
#include "app/export/RowNames.h"
#include "app/export/Snapshot.h"
#include "app/tables/SplitComments.h"
#include "db/Literals.h"

#include <algorithm>
#include <map>
#include <ostream>

namespace {

struct ExportRow {
    RowTexts stored;
    RowTexts written; ///< with what the files call the rows that it refers to
};

/// The rows of one table that are written together, sorted among themselves alone.
using Rows = std::vector<ExportRow>;

class Export {
public:
    Export(const ExportOptions& options, const std::function<void(const ExportedFile&)>& written)
        : options_(options)
        , told_(written)
        , folder_(options.folder)
    {
    }

    ExportResult run()
    {
        if (!folder_.open(options_.force))
            result_.failure = folder_.error();
        else if (!snapshot_.error().empty())
            result_.failure = snapshot_.error();
        else if (writeAll() && !folder_.keep())
            result_.failure = folder_.error();
        return std::move(result_);
    }

private:
    bool writeAll()
    {
        return std::ranges::all_of(
            tableFiles(), [&](const TableFile& table) { return writeFile(table); });
    }

    bool fail(const std::string& why)
    {
        result_.failure = why;
        return false;
    }

    bool writeFile(const TableFile& table)
    {
        file_ = {table.stem() + ".csv", 0};
        empty_ = 0;
        number_ = 0;
        out_ = folder_.begin(file_.name);
        if (!out_)
            return fail(folder_.error());
        *out_ << headerOf(table) << '\n';
        if (!writeRows(table))
            return false;
        if (!folder_.end())
            return fail(folder_.error());
        if (empty_ > 0)
            result_.left.push_back(
                file_.name + ": " + std::to_string(empty_) + " rows without any value");
        result_.files.push_back(file_);
        if (told_)
            told_(file_);
        return true;
    }

    bool writeRows(const TableFile& table)
    {
        std::vector<RowFilter> filters{{}};
        if (options_.well != 0)
            filters = {ofOneWell(table)};
        else if (table.well() >= 0 && !readWells(table, &filters))
            return false;
        return std::ranges::all_of(
            filters, [&](const RowFilter& filter) { return writePart(table, filter); });
    }

    RowFilter ofOneWell(const TableFile& table)
    {
        const Value well(options_.well);
        switch (table.scope) {
        case TableScope::Dictionary:
            return {};
        case TableScope::Well:
            return whereIs("well_id", well);
        case TableScope::WellCode:
            return {"well_code IN (SELECT well_code FROM " + sql::table("WELL_IDENT")
                    + " WHERE well_id=?)",
                {well}};
        case TableScope::Sample:
            break;
        }
        RowFilter filter;
        for (const TableField& field : table.fields) {
            if (field.target != "SAMPLES")
                continue;
            filter.where.append(filter.where.empty() ? "" : " OR ").append(field.column);
            filter.where +=
                " IN (SELECT samp_id FROM " + sql::table("SAMPLES") + " WHERE well_id=?)";
            filter.values.push_back(well);
        }
        return filter;
    }

    // One filter for each well that the table has rows of, in the order of the file.
    bool readWells(const TableFile& table, std::vector<RowFilter>* filters)
    {
        const auto place = static_cast<std::size_t>(table.well());
        const char* const column = table.fields[place].column;
        Statement select(
            std::string("SELECT DISTINCT ") + column + " FROM " + sql::table(table.name));
        std::vector<std::pair<std::optional<std::string>, Value>> wells;
        RowTexts row(table.fields.size());
        Statement::Row state = Statement::Row::Failed;
        bool good = select.execute();
        while (good && (state = select.fetch()) == Statement::Row::Fetched) {
            good = select.readStored(1, &row[place]);
            const Value id = boundValue(FieldKind::Reference, row[place]);
            wells.emplace_back(written(table, row, place), id);
        }
        if (!good || state != Statement::Row::End)
            return fail(select.sql() + ": " + select.error());
        std::ranges::sort(wells, [](const auto& a, const auto& b) {
            return compareTexts(a.first, b.first, FieldKind::Reference) < 0;
        });
        filters->clear();
        for (const auto& well : wells)
            filters->push_back(whereIs(column, well.second));
        return true;
    }

    bool writePart(const TableFile& table, const RowFilter& filter)
    {
        Rows rows;
        const auto take = [&](RowTexts& stored) {
            ExportRow row{stored, stored};
            for (std::size_t i = 0; i < stored.size(); ++i)
                if (table.fields[i].kind == FieldKind::Reference)
                    row.written[i] = written(table, stored, i);
            rows.push_back(std::move(row));
        };
        if (!readRows(table, filter, take, &result_.failure))
            return false;
        sort(table, &rows);
        if (table.own() >= 0)
            number(table, &rows);
        for (const ExportRow& row : rows)
            writeRow(table, row);
        return out_->good() || fail(file_.name + ": cannot be written");
    }

    // A reference to nothing keeps its number, marked as such; 0 says by itself that it is none.
    std::optional<std::string> written(
        const TableFile& table, const RowTexts& stored, std::size_t field) const
    {
        const RowNames::Name* name = names_.find(table, stored, field);
        if (name)
            return name->reference;
        return !stored[field] || *stored[field] == "0" ? stored[field] : '?' + *stored[field];
    }

    static void sort(const TableFile& table, Rows* rows)
    {
        const int own = table.own();
        std::ranges::sort(*rows, [&](const ExportRow& a, const ExportRow& b) {
            if (rowBefore(table, a.written, b.written))
                return true;
            // Rows alike are still told apart by what refers to them.
            return own >= 0 && !rowBefore(table, b.written, a.written)
                && compareTexts(a.stored[static_cast<std::size_t>(own)],
                       b.stored[static_cast<std::size_t>(own)], FieldKind::Own)
                < 0;
        });
    }

    void number(const TableFile& table, Rows* rows)
    {
        const auto own = static_cast<std::size_t>(table.own());
        std::map<std::string, int> codes; // of wells: how often each is there
        const bool byCode = table.name == std::string_view("WELL_IDENT");
        for (const ExportRow& row : *rows)
            ++codes[byCode ? row.stored[own + 1].value_or("") : ""];
        if (table.numbersPerWell)
            number_ = 0;
        for (ExportRow& row : *rows) {
            if (!table.keepsNumbers)
                row.written[own] = std::to_string(++number_);
            if (!row.stored[own])
                continue;
            const std::string code = byCode ? row.stored[own + 1].value_or("") : "";
            const bool codeIsEnough = codes[code] == 1 && standsForWell(code);
            names_.give(table, row.stored,
                !byCode            ? *row.written[own]
                    : codeIsEnough ? code
                                   : '#' + *row.written[own]);
        }
    }

    void writeRow(const TableFile& table, const ExportRow& row)
    {
        const auto joined = [this](const RowTexts& cells) {
            for (const auto& cell : cells) {
                appendCell(&line_, cell);
                line_ += ',';
            }
        };
        line_.clear();
        RowTexts cells = row.written;
        if (table.splitsComments) {
            const SplitComments parts = splitComments(cells.back());
            cells.back() = parts.text;
            cells.push_back(parts.abundance);
            cells.push_back(parts.percent);
        }
        for (const ShownField& shown : table.shown) {
            const RowNames::Name* name = names_.find(table, row.stored, shown.reference);
            cells.push_back(
                name && !name->title.empty() ? std::optional(name->title) : std::nullopt);
        }
        joined(cells);
        line_.back() = '\n';
        // A line without a byte is no row to a reader.
        if (line_ == "\n") {
            ++empty_;
            return;
        }
        *out_ << line_;
        ++file_.rows;
    }

    const ExportOptions& options_;
    const std::function<void(const ExportedFile&)>& told_;
    OutputFolder folder_;
    Snapshot snapshot_;
    RowNames names_;
    ExportResult result_;

    // The file at hand.
    std::ostream* out_ = nullptr;
    ExportedFile file_;
    long empty_ = 0;
    long number_ = 0; // the last that a row was given
    std::string line_;
};

} // namespace

ExportResult exportTables(
    const ExportOptions& options, const std::function<void(const ExportedFile&)>& written)
{
    return Export(options, written).run();
}
