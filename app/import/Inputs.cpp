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
std::vector<fs::path> filesIn(const fs::path& folder, std::error_code* error)
{
    std::vector<fs::path> files;
    for (fs::directory_iterator entry(folder, *error), end; !*error && entry != end;
         entry.increment(*error))
        if (isCsv(entry->path()) && entry->is_regular_file())
            files.push_back(entry->path());
    std::ranges::sort(files);
    return files;
}

std::string knownNames()
{
    std::string names;
    for (const FileShape& shape : fileShapes())
        if (names.find(std::string(shape.name) + '.') == std::string::npos)
            names.append(names.empty() ? "" : ", ").append(shape.name).append(".csv");
    return names;
}

class Finder {
public:
    void add(const fs::path& input)
    {
        std::error_code error;
        const fs::file_status status = fs::status(input, error);
        if (fs::is_directory(status)) {
            for (const fs::path& file : filesIn(input, &error))
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
        if (found.failure.empty() && found.files.empty())
            found.failure = "Nothing to import. Known files: " + knownNames() + '.';
        // Names alone are enough while they cannot be mixed up.
        for (InputFile& file : found.files)
            file.name = sets_.size() > 1 ? file.path.string() : file.path.filename().string();
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
        const std::string stem = lowerCased(file.stem().string());
        const auto shapes = shapesOfFile(stem);
        if (shapes.empty()) {
            found_.left.push_back({Severity::Note, file.filename().string(), 0, "", "",
                "no such file is known; left"});
            return;
        }
        InputFile input;
        input.path = file;
        input.set = real.parent_path().string();
        input.shape = shapes.front();
        sets_.insert(input.set);
        found_.files.push_back(std::move(input));
    }

    void fail(const fs::path& input, const std::string& why)
    {
        if (found_.failure.empty())
            found_.failure = input.string() + ' ' + why + '.';
    }

    Inputs found_;
    std::set<fs::path> met_;
    std::set<std::string> sets_;
};

} // namespace

Inputs findInputs(const std::vector<fs::path>& inputs)
{
    Finder finder;
    for (const fs::path& input : inputs)
        finder.add(input);
    return finder.finish();
}
