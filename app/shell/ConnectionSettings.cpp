// app/shell/ConnectionSettings.cpp
#include "app/shell/ConnectionSettings.h"

#include "util/TextUtil.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace {

// Behind the brace that closes the value in braces at `start`; a doubled one is part of it.
std::size_t bracesEnd(std::string_view text, std::size_t start)
{
    for (std::size_t i = start + 1; i < text.size(); ++i) {
        if (text[i] != '}')
            continue;
        if (i + 1 == text.size() || text[i + 1] != '}')
            return i + 1;
        ++i;
    }
    return text.size();
}

// Where the value that begins at `start` ends: at the next semicolon outside braces.
std::size_t valueEnd(std::string_view text, std::size_t start)
{
    start = std::min(text.find_first_not_of(" \t", start), text.size());
    if (start < text.size() && text[start] == '{')
        start = bracesEnd(text, start);
    return std::min(text.find(';', start), text.size());
}

constexpr const char* kHidden = "***";

constexpr std::string_view kSecretWords[] = {
    "PWD", "Password", "Passwd", "NewPassword", "Token", "AccessToken", "Secret"};

bool isSecret(std::string_view keyword)
{
    keyword = trimmedRight(keyword);
    const std::size_t border = keyword.find_last_of(" \t;,({[\"'");
    keyword.remove_prefix(border == std::string_view::npos ? 0 : border + 1);
    return std::ranges::any_of(kSecretWords,
        [&](std::string_view word) { return compareIgnoringCase(keyword, word) == 0; });
}

// Where the secret in one part of a connection string begins, behind its equals sign; npos without
// one. A forgotten semicolon puts it into the value of another keyword.
std::size_t secretStart(std::string_view part)
{
    for (std::size_t i = part.find('='); i != std::string_view::npos; i = part.find('=', i + 1))
        if (isSecret(part.substr(0, i)))
            return i + 1;
    return std::string_view::npos;
}

struct Part {
    std::string_view text; // without the semicolon behind it
    std::size_t secret;    // where its secret begins, or npos
    bool ends;             // with a semicolon
};

// A piece without equals sign belongs to a secret before it, which held a bare semicolon.
std::vector<Part> partsOf(std::string_view text)
{
    std::vector<Part> parts;
    bool behindSecret = false;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t equals = text.find('=', at);
        std::size_t end = std::min(text.find(';', at), text.size());
        const bool isPair = equals < end;
        if (isPair)
            end = valueEnd(text, equals + 1);
        const std::string_view part = text.substr(at, end - at);
        parts.push_back({part, isPair || !behindSecret ? secretStart(part) : 0, end < text.size()});
        behindSecret = parts.back().secret != std::string_view::npos;
        at = end + 1;
    }
    return parts;
}

// With closing braces doubled, as they are typed.
std::string_view insideBraces(std::string_view value)
{
    if (!value.starts_with('{'))
        return value;
    value.remove_prefix(1);
    return value.ends_with('}') ? value.substr(0, value.size() - 1) : value;
}

std::string singleBraces(std::string_view inside)
{
    std::string plain;
    for (std::size_t i = 0; i < inside.size(); ++i) {
        plain += inside[i];
        i += inside.substr(i, 2) == "}}";
    }
    return plain;
}

void replaceAll(std::string& text, const std::string& part, std::string_view by)
{
    if (part.empty())
        return;
    for (std::size_t at = text.find(part); at != std::string::npos;
         at = text.find(part, at + by.size()))
        text.replace(at, part.size(), by);
}

// A value in braces may hold what else ends a value; a closing brace in it stands twice.
std::string value(const std::string& text)
{
    if (text.find_first_of(";={} ") == std::string::npos)
        return text;
    std::string braced = "{";
    for (const char c : text)
        braced.append(c == '}' ? 2 : 1, c);
    return braced + '}';
}

} // namespace

std::string embeddedConnectString(
    const std::string& driver, const std::string& file, int kind, FileAccess access)
{
    return "Driver=" + value(driver) + ";Database=" + value(file) + ";Dialect="
        + (kind == 2 ? "Oracle" : "Access") + (access == FileAccess::Create ? ";Create=1" : "");
}

std::string withoutSecrets(const std::string& connectString)
{
    std::string shown;
    for (const Part& part : partsOf(connectString)) {
        shown += part.text.substr(0, part.secret);
        shown += part.secret == std::string_view::npos ? "" : kHidden;
        shown += part.ends ? ";" : "";
    }
    return shown;
}

std::string withoutSecretsOf(const std::string& connectString, std::string message)
{
    for (const Part& part : partsOf(connectString)) {
        if (part.secret == std::string_view::npos)
            continue;
        const std::string_view secret = trimmedLeft(trimmedRight(part.text.substr(part.secret)));
        replaceAll(message, std::string(secret), kHidden);
        replaceAll(message, std::string(insideBraces(secret)), kHidden);
        replaceAll(message, singleBraces(insideBraces(secret)), kHidden);
    }
    return withoutSecrets(message);
}
