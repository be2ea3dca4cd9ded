// app/import/TableLoader.cpp
#include "app/import/TableLoader.h"

#include "app/import/Cells.h"
#include "app/import/ImportContext.h"
#include "app/import/RowPlaces.h"
#include "app/import/StoredRows.h"
#include "app/tables/SplitComments.h"
#include "db/SchemaInspection.h"

#include <charconv>
#include <deque>
#include <unordered_map>

namespace {

std::optional<long> numberIn(std::string_view text)
{
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc() && result.ptr == end ? std::optional<long>(number)
                                                         : std::nullopt;
}

const char* whatIsWrong(FieldKind kind)
{
    switch (kind) {
    case FieldKind::Number:
        return "not a number";
    case FieldKind::Date:
        return "not a day written as yyyy-mm-dd";
    default:
        return "not a whole number of 32 bits";
    }
}

class TableLoader : public RowLoader {
public:
    TableLoader(ImportContext& context, const TableFile& table)
        : context_(context)
        , table_(table)
        , rows_(table, context.writing, context.tableNumbers)
        , isView_(table.mayLackColumns && viewExists(table.name) != 0)
        , targets_(table.fields.size())
    {
    }

    bool check(CellReader& cells) override
    {
        cells_ = &cells;
        source_ = &cells.file();
        read();
        for (std::size_t i = 0; i < table_.fields.size() && error_.empty(); ++i)
            if (table_.fields[i].kind == FieldKind::Reference)
                resolve(i);
        if (error_.empty() && !cells.report().refused())
            announce();
        return error_.empty();
    }

    Outcome store() override
    {
        RowTexts row = file_;
        for (std::size_t i = 0; i < row.size(); ++i)
            if (table_.fields[i].kind == FieldKind::Reference && row[i])
                row[i] = std::to_string(targets_[i].number());
        std::optional<long> own = own_;
        const Outcome outcome = rows_.put(std::move(row), keys_[keyText()] == 1, source_, &own);
        if (outcome == Outcome::Failed)
            error_ = rows_.error();
        for (NumberedRow* name : names_)
            name->databaseId = own;
        return outcome;
    }

private:
    /// What a reference is to; the number is known when its row is stored.
    struct Target {
        long fixed = 0;
        const NumberedRow* row = nullptr;
        const KnownWell* well = nullptr;
        const FileId* sample = nullptr;

        long number() const
        {
            return row   ? row->databaseId.value_or(0)
                : well   ? well->id
                : sample ? sample->databaseId
                         : fixed;
        }
    };

    void refuse(std::size_t column, const std::string& reason)
    {
        cells_->refuse(static_cast<int>(column), reason);
    }

    void read()
    {
        const std::size_t count = table_.fields.size();
        file_.resize(count);
        for (std::size_t i = 0; i < count; ++i)
            file_[i] = cells_->bytes(static_cast<int>(i));
        if (table_.splitsComments)
            file_.back() = joinedComments({cells_->bytes(static_cast<int>(count)),
                cells_->bytes(static_cast<int>(count) + 1), file_.back()});
        for (std::size_t i = 0; i < count; ++i)
            judge(i);
        if (isView_)
            cells_->report().refuse("", "", "the table is a view here, which others fill");
    }

    void judge(std::size_t i)
    {
        const FieldKind kind = table_.fields[i].kind;
        std::optional<std::string>& text = file_[i];
        if (!text || kind == FieldKind::Text)
            return;
        // Programs that quote every cell quote the empty ones too.
        if (text->empty()) {
            text.reset();
            return;
        }
        if (kind == FieldKind::Reference)
            return;
        std::optional<std::string> plain = plainText(kind, *text);
        if (!plain)
            refuse(i, whatIsWrong(kind));
        text = std::move(plain);
    }

    const TableFile& targetOf(std::size_t i) const { return *tableFile(table_.fields[i].target); }

    std::string scopeIn(const TableFile& target) const
    {
        return target.numbersPerWell ? file_[static_cast<std::size_t>(table_.well())].value_or("")
                                     : "";
    }

    void resolve(std::size_t i)
    {
        targets_[i] = {};
        if (!file_[i] || *file_[i] == "0")
            return;
        const TableFile& target = targetOf(i);
        const std::string& text = *file_[i];
        const std::string& set = cells_->file().set;
        if (text.starts_with('?')) {
            takeOrphan(i, target, numberIn(std::string_view(text).substr(1)));
            return;
        }
        const NumberedRow* row = context_.tableNumbers.find(target, set, scopeIn(target), text);
        if (row && row->isAmbiguous)
            refuse(i, "names more than one row of " + target.stem() + ".csv");
        targets_[i].row = row;
        if (!row && !findElsewhere(i, target, text))
            refuse(i, "names no row of " + target.stem() + ".csv in the same folder");
    }

    // Files of other kinds number their samples too, and a well may be in the database already.
    bool findElsewhere(std::size_t i, const TableFile& target, const std::string& text)
    {
        if (target.name == std::string_view("SAMPLES")) {
            const FileIds& ids = context_.ids("samples", cells_->file().set);
            const auto found = ids.find(text);
            if (found != ids.end())
                targets_[i].sample = &found->second;
        }
        if (target.name == std::string_view("WELL_IDENT")
            && !context_.findWell(text, &targets_[i].well))
            error_ = context_.error();
        return targets_[i].sample || targets_[i].well || !error_.empty();
    }

    // Refers to a row that was missing already where the file was written.
    void takeOrphan(std::size_t i, const TableFile& target, std::optional<long> number)
    {
        if (!number) {
            refuse(i, "no number behind the question mark");
            return;
        }
        targets_[i].fixed = *number;
        context_.tableNumbers.addOrphan(target, *number);
        if (target.numbersPerWell || target.keepsNumbers)
            return;
        const std::optional<bool> isTaken = isThere(target, *number);
        if (isTaken && *isTaken)
            refuse(i,
                "named a row that was missing where this was written; here another row has its "
                "number");
    }

    // As it was before the import.
    std::optional<bool> isThere(const TableFile& target, long number)
    {
        const auto known = there_.find({&target, number});
        if (known != there_.end())
            return known->second;
        StoredRows stored(target, Writing::Check, context_.tableNumbers);
        const std::optional<bool> is = stored.has(number);
        if (!is)
            error_ = stored.error();
        else
            there_[{&target, number}] = *is;
        return is;
    }

    // Tells the other files of the row, and refuses one that stands there twice.
    void announce()
    {
        names_.clear();
        own_.reset();
        if (!nameRow() || !keyIsFirst())
            return;
        if (context_.phase == ImportPhase::Checking)
            ++keys_[keyText()];
    }

    bool nameRow()
    {
        const int own = table_.own();
        if (own < 0 || !file_[static_cast<std::size_t>(own)])
            return true;
        const std::string number = *file_[static_cast<std::size_t>(own)];
        own_ = numberIn(number);
        if (table_.name != std::string_view("WELL_IDENT"))
            return give(number, true);
        const std::optional<std::string>& code = file_[static_cast<std::size_t>(own) + 1];
        return give('#' + number, true) && (!code || !standsForWell(*code) || give(*code, false));
    }

    // A number is one row's, a code of a well may be that of several.
    bool give(const std::string& reference, bool isNumber)
    {
        const std::string& set = cells_->file().set;
        const std::string scope = table_.numbersPerWell ? file_.front().value_or("") : "";
        NumberedRow* row = context_.tableNumbers.find(table_, set, scope, reference);
        if (row && isNumber && row->line != cells_->line()) {
            refuse(static_cast<std::size_t>(table_.own()),
                "the number is that of line " + std::to_string(row->line) + " already");
            return false;
        }
        names_.push_back(context_.tableNumbers.give(table_, set, scope, reference, cells_->line()));
        return true;
    }

    bool keyIsFirst()
    {
        if (table_.keyUse != KeyUse::Unique)
            return true;
        for (std::size_t i = 0; i < file_.size(); ++i)
            if (table_.fields[i].isKey && !file_[i])
                return true;
        const RowPlace* first = firstRows_.before(keyText(), {&cells_->file(), cells_->line()});
        if (first)
            cells_->report().refuse(
                "", "", "the row of this key is " + first->seenFrom(cells_->file()) + " already");
        return !first;
    }

    // As the file has it, where numbers are the file's own.
    std::string keyText() const
    {
        std::string key = cells_->file().set;
        for (std::size_t i = 0; i < file_.size(); ++i)
            if (table_.fields[i].isKey)
                key += '\n' + file_[i].value_or("\n");
        return key;
    }

    ImportContext& context_;
    const TableFile& table_;
    StoredRows rows_;
    const bool isView_;
    FirstRows firstRows_;
    std::unordered_map<std::string, long> keys_; // how often each key is in the files
    std::map<std::pair<const TableFile*, long>, bool> there_;

    // The row at hand.
    CellReader* cells_ = nullptr;
    const void* source_ = nullptr;
    RowTexts file_;
    std::vector<Target> targets_;
    std::vector<NumberedRow*> names_;
    std::optional<long> own_;
};

constexpr ColumnShape columnOf(std::size_t column, std::string_view name, bool required)
{
    return {static_cast<int>(column), name, CellKind::Text, BadCell::RefusesRow, required};
}

// In the order of the header. What is only shown need not be there.
std::vector<ColumnShape> columnsOf(const TableFile& table)
{
    std::vector<ColumnShape> columns;
    for (const TableField& field : table.fields)
        columns.push_back(columnOf(columns.size(), field.name, true));
    if (table.splitsComments)
        for (const std::string_view name : kSplitNames)
            columns.push_back(columnOf(columns.size(), name, true));
    for (const ShownField& shown : table.shown)
        columns.push_back(columnOf(columns.size(), shown.name, false));
    return columns;
}

} // namespace

std::vector<FileShape> tableShapes()
{
    static std::deque<std::vector<ColumnShape>> columns;
    static std::deque<std::string> stems;
    std::vector<FileShape> shapes;
    for (const TableFile& table : tableFiles()) {
        FileShape& shape = shapes.emplace_back();
        shape.name = stems.emplace_back(table.stem());
        shape.columns = columns.emplace_back(columnsOf(table));
        shape.table = &table;
    }
    return shapes;
}

std::unique_ptr<RowLoader> makeTableLoader(ImportContext& context, const TableFile& table)
{
    return std::make_unique<TableLoader>(context, table);
}
