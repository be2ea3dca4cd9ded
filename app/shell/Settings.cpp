// app/shell/Settings.cpp
#include "app/shell/Settings.h"

#include <algorithm>
#include <filesystem>

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostRecent = 10;

std::string unknownName(const std::string& name, const Settings& settings)
{
    std::string text = "No connection is called " + name + ". ";
    if (settings.connections.empty())
        text += "None is kept";
    const char* before = "There are: ";
    for (const auto& [known, choice] : settings.connections) {
        text += before + known;
        before = ", ";
    }
    return text + ". A connection string has the form KEY=value;KEY=value.";
}

const ConnectionChoice* find(const Settings& settings, const std::string& name)
{
    const auto found = settings.connections.find(name);
    return found == settings.connections.end() ? nullptr : &found->second;
}

/// Takes from `from` what `choice` leaves open.
void complete(ConnectionChoice* choice, const ConnectionChoice& from)
{
    if (!choice->kind)
        choice->kind = from.kind;
    if (!choice->ownerPrefix)
        choice->ownerPrefix = from.ownerPrefix;
    if (!choice->user)
        choice->user = from.user;
}

void follow(ConnectionChoice* choice, const ConnectionChoice& named)
{
    choice->database = named.database;
    choice->connect = named.connect;
    complete(choice, named);
}

} // namespace

void rememberFile(Settings* settings, const std::string& file)
{
    std::vector<std::string>& recent = settings->recent;
    std::erase(recent, file);
    recent.insert(recent.begin(), file);
    recent.resize(std::min(recent.size(), kMostRecent));
}

bool isConnectionName(const std::string& text)
{
    constexpr const char* kAllowed =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";
    return text.find_first_of(kAllowed) == 0 && text.find_first_of("-_") != 0
        && text.find_first_not_of(kAllowed) == std::string::npos;
}

std::string resolveConnection(
    const ConnectionChoice& asked, const Settings& settings, ConnectionSettings* out)
{
    ConnectionChoice choice = asked;
    std::error_code ignored;
    if (isConnectionName(asked.connect)) {
        const ConnectionChoice* named = find(settings, asked.connect);
        if (!named)
            return unknownName(asked.connect, settings);
        follow(&choice, *named);
    } else if (!fs::exists(asked.database, ignored)) {
        if (const ConnectionChoice* named = find(settings, asked.database))
            follow(&choice, *named);
    }
    complete(&choice, settings.defaults);
    *out = {choice.database, choice.connect, choice.kind.value_or(0),
        choice.ownerPrefix.value_or(""), choice.user.value_or("")};
    return {};
}
