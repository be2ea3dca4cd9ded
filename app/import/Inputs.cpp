// app/import/Inputs.cpp
#include "app/import/Inputs.h"

#include "util/TextUtil.h"

#include <algorithm>
#include <set>
#include <system_error>

namespace {

namespace fs = std::filesystem;

bool isCsv(const fs::path& file)
{
    return compareIgnoringCase(file.extension().string(), ".csv") == 0;
}

// The folder's own order is chance.
template <typename Wanted>
std::vector<fs::path> filesIn(const fs::path& folder, const Wanted& wanted, std::error_code* error)
{
    std::vector<fs::path> files;
    for (fs::directory_iterator entry(folder, *error), end; !*error && entry != end;
         entry.increment(*error))
        if (wanted(entry->path()) && entry->is_regular_file())
            files.push_back(entry->path());
    std::ranges::sort(files);
    return files;
}

std::string knownNames()
{
    std::string names;
    for (const FileShape& shape : fileShapes())
        if (!shape.table && names.find(std::string(shape.name) + '.') == std::string::npos)
            names.append(names.empty() ? "" : ", ").append(shape.name).append(".csv");
    return names;
}

class Finder {
public:
    Finder(const fs::path& mapFile, const ColumnMap& map)
        : map_(map)
    {
        if (mapFile.empty())
            return;
        std::error_code ignored;
        met_.insert(fs::weakly_canonical(mapFile, ignored));
    }

    void add(const fs::path& input)
    {
        std::error_code error;
        const fs::file_status status = fs::status(input, error);
        if (fs::is_directory(status)) {
            const auto wanted = [this](const fs::path& file) {
                return isCsv(file) || !map_.entriesOf(file.filename().string()).empty();
            };
            for (const fs::path& file : filesIn(input, wanted, &error))
                addFile(file);
            if (error)
                fail(input, "cannot be read: " + error.message());
        } else if (fs::exists(status)) {
            addFile(input);
        } else {
            fail(input, "is not there");
        }
    }

    Inputs finish()
    {
        Inputs& found = found_;
        refuseUnused();
        if (found.failure.empty() && found.files.empty())
            found.failure = "Nothing to import. Known files: " + knownNames() + '.';
        // Names alone are enough while they cannot be mixed up.
        for (InputFile& file : found.files)
            file.name += sets_.size() > 1 ? file.path.string() : file.path.filename().string();
        std::ranges::stable_sort(found.files, {}, &InputFile::shape);
        return std::move(found);
    }

private:
    void addFile(const fs::path& file)
    {
        std::error_code error;
        const fs::path real = fs::weakly_canonical(file, error);
        if (!met_.insert(real).second)
            return;
        const std::string name = file.filename().string();
        names_.append(names_.empty() ? "" : ", ").append(name);
        const auto entries = map_.entriesOf(name);
        if (!entries.empty()) {
            addMapped(file, real, entries);
            return;
        }
        const std::string stem = lowerCased(file.stem().string());
        const auto shapes = shapesOfFile(stem);
        if (shapes.empty()) {
            found_.left.push_back({Severity::Note, name, 0, "", "", "no such file is known; left"});
            return;
        }
        addInput(file, real, shapes.front());
    }

    InputFile& addInput(const fs::path& file, const fs::path& real, const FileShape* shape)
    {
        InputFile& input = found_.files.emplace_back();
        input.path = file;
        input.set = real.parent_path().string();
        input.shape = shape;
        sets_.insert(input.set);
        return input;
    }

    // What the rows of the last kind refer to stands in them again and again.
    void addMapped(
        const fs::path& file, const fs::path& real, const std::vector<const MapEntry*>& entries)
    {
        const FileShape* last = std::ranges::max(entries, {}, &MapEntry::shape)->shape;
        for (const MapEntry* entry : entries) {
            InputFile& input = addInput(file, real, entry->shape);
            input.map = entry;
            input.takesRowsOnce = entry->shape != last;
            if (entries.size() > 1)
                input.name = std::string(entry->shape->name) + " of ";
            used_.insert(entry);
        }
    }

    void refuseUnused()
    {
        for (const MapEntry& entry : map_.entries)
            if (!used_.contains(&entry) && found_.failure.empty())
                found_.failure = entry.place(entry.line) + ": no file is called " + entry.pattern
                    + "; there are: " + names_ + '.';
    }

    void fail(const fs::path& input, const std::string& why)
    {
        if (found_.failure.empty())
            found_.failure = input.string() + ' ' + why + '.';
    }

    const ColumnMap& map_;
    Inputs found_;
    std::string names_;
    std::set<const MapEntry*> used_;
    std::set<fs::path> met_;
    std::set<std::string> sets_;
};

} // namespace

Inputs findInputs(
    const std::vector<fs::path>& inputs, const fs::path& mapFile, const ColumnMap& map)
{
    Finder finder(mapFile, map);
    for (const fs::path& input : inputs)
        finder.add(input);
    return finder.finish();
}
