// app/shell/SettingsFile.cpp
#include "app/shell/SettingsFile.h"

#include "app/shell/FilePlacing.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

// Keys of the file.
constexpr const char* kRecent = "recent";
constexpr const char* kConnections = "connections";
constexpr const char* kFile = "file";
constexpr const char* kConnect = "connect";
constexpr const char* kKind = "kind";
constexpr const char* kPrefix = "prefix";
constexpr const char* kUser = "user";

/// Thrown inside of this file only.
struct WrongContent : std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::string environment(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

// The words of the parser repeat what it read, which may be a password.
Json parsed(const std::string& text)
{
    if (text.empty())
        return Json::object();
    try {
        return Json::parse(text);
    } catch (const Json::parse_error& error) {
        // The byte counts from 1; where it is a line's end itself, that line is meant.
        const std::size_t before = std::clamp<std::size_t>(error.byte, 1, text.size() + 1) - 1;
        const auto end = text.begin() + static_cast<std::ptrdiff_t>(before);
        throw WrongContent("line " + std::to_string(1 + std::count(text.begin(), end, '\n'))
            + ": this is not JSON");
    }
}

/// The member `key`, which may be absent (null), when it has the `right` type.
const Json* member(const Json& object, const std::string& where, const char* key,
    bool (Json::*right)() const noexcept, const char* expected)
{
    const auto found = object.find(key);
    if (found == object.end() || found->is_null())
        return nullptr;
    if (!((*found).*right)())
        throw WrongContent('"' + where + key + "\" is not " + expected);
    return &*found;
}

std::string textOf(const Json& object, const std::string& where, const char* key)
{
    const Json* found = member(object, where, key, &Json::is_string, "a text");
    return found ? found->get<std::string>() : std::string();
}

ConnectionChoice choiceOf(const Json& object, const std::string& where)
{
    ConnectionChoice choice;
    if (const Json* kind = member(object, where, kKind, &Json::is_number_integer, "a whole number"))
        choice.kind = kind->get<int>();
    if (object.contains(kPrefix))
        choice.ownerPrefix = textOf(object, where, kPrefix);
    if (object.contains(kUser))
        choice.user = textOf(object, where, kUser);
    return choice;
}

Settings settingsOf(const Json& root)
{
    if (!root.is_object())
        throw WrongContent("line 1: the file does not hold one object in braces");
    Settings settings;
    settings.defaults = choiceOf(root, "");
    if (const Json* recent = member(root, "", kRecent, &Json::is_array, "a list"))
        for (const Json& file : *recent)
            if (file.is_string())
                settings.recent.push_back(file.get<std::string>());
    const Json* connections = member(root, "", kConnections, &Json::is_object, "an object");
    if (!connections)
        return settings;
    for (const auto& [name, kept] : connections->items()) {
        const std::string where = std::string(kConnections) + '.' + name + '.';
        if (!kept.is_object())
            throw WrongContent('"' + where + "\" is not an object");
        ConnectionChoice& choice = settings.connections[name] = choiceOf(kept, where);
        choice.database = textOf(kept, where, kFile);
        choice.connect = textOf(kept, where, kConnect);
    }
    return settings;
}

void put(Json* object, const char* key, const std::string& value)
{
    if (value.empty())
        object->erase(key);
    else
        (*object)[key] = value;
}

template <typename T> void put(Json* object, const char* key, const std::optional<T>& value)
{
    if (value)
        (*object)[key] = *value;
    else
        object->erase(key);
}

void putChoice(Json* object, const ConnectionChoice& choice)
{
    put(object, kKind, choice.kind);
    put(object, kPrefix, choice.ownerPrefix);
    put(object, kUser, choice.user);
}

// Into what was read, so that keys of other programs' versions stay.
void putSettings(Json* root, const Settings& settings)
{
    (*root)[kRecent] = settings.recent;
    putChoice(root, settings.defaults);
    Json connections = Json::object();
    for (const auto& [name, choice] : settings.connections) {
        Json& kept = connections[name] = Json::object();
        if (root->contains(kConnections) && (*root)[kConnections].contains(name))
            kept = (*root)[kConnections][name];
        put(&kept, kFile, choice.database);
        put(&kept, kConnect, choice.connect);
        putChoice(&kept, choice);
    }
    (*root)[kConnections] = connections;
}

Json readFile(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::error_code ignored;
    if (!stream && fs::exists(file, ignored))
        throw WrongContent("it cannot be read");
    return parsed({std::istreambuf_iterator<char>(stream), {}});
}

/// What `work` throws, as a text about the file.
template <typename Work> std::string guarded(const fs::path& file, Work work)
{
    const std::string about = "The settings in " + file.string() + " cannot be used: ";
    try {
        return work();
    } catch (const WrongContent& error) {
        return about + error.what() + ". Correct the file or move it away; it was left as it is.";
    } catch (const Json::exception&) {
        return about + "a text in them is not UTF-8.";
    } catch (const fs::filesystem_error& error) {
        return about + error.code().message() + '.';
    }
}

/// Keeps other processes from changing the file while it lives.
class FileLock {
public:
    explicit FileLock(const fs::path& file)
        : descriptor_(open((file.string() + ".lock").c_str(), O_CREAT | O_RDWR | O_CLOEXEC, 0600))
    {
        if (descriptor_ >= 0)
            flock(descriptor_, LOCK_EX);
    }
    ~FileLock()
    {
        if (descriptor_ >= 0)
            close(descriptor_);
    }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

private:
    int descriptor_;
};

std::string changeFile(const fs::path& file, const std::function<std::string(Settings*)>& change)
{
    fs::create_directories(file.parent_path());
    const FileLock lock(file);
    Json root = readFile(file);
    Settings settings = settingsOf(root);
    const std::string problem = change(&settings);
    if (!problem.empty())
        return problem;
    const Json before = root;
    putSettings(&root, settings);
    if (root == before)
        return {};
    const std::error_code error = writePrivately(file, root.dump(4) + '\n');
    return error ? file.string() + " could not be written: " + error.message() : std::string();
}

} // namespace

fs::path settingsFile()
{
    if (std::getenv("ZONARIS_SETTINGS"))
        return environment("ZONARIS_SETTINGS");
    fs::path folder = environment("XDG_CONFIG_HOME");
    if (!folder.is_absolute()) { // what the convention wants ignored
        folder = environment("HOME");
        if (!folder.is_absolute())
            return {};
        folder /= ".config";
    }
    return folder / "zonaris" / "settings.json";
}

std::string readSettings(Settings* settings)
{
    *settings = {};
    const fs::path file = settingsFile();
    if (file.empty())
        return {};
    return guarded(file, [&] {
        *settings = settingsOf(readFile(file));
        return std::string();
    });
}

std::string changeSettings(const std::function<std::string(Settings*)>& change)
{
    const fs::path named = settingsFile();
    if (named.empty())
        return "There is no place for settings: neither XDG_CONFIG_HOME nor HOME names a folder.";
    return guarded(named, [&] {
        // What a link leads to, so that the link stays one.
        return changeFile(fs::weakly_canonical(fs::absolute(named)), change);
    });
}

void rememberDatabase(const ConnectionSettings& connection)
{
    std::error_code error;
    const fs::path file = fs::absolute(connection.databaseFile, error).lexically_normal();
    if (connection.databaseFile.empty() || error || settingsFile().empty())
        return;
    Settings known;
    if (!readSettings(&known).empty()
        || (!known.recent.empty() && known.recent.front() == file.string()))
        return;
    changeSettings([&](Settings* settings) {
        rememberFile(settings, file.string());
        return std::string();
    });
}
