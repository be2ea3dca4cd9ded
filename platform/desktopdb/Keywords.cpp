// platform/desktopdb/Keywords.cpp
#include "platform/desktopdb/Keywords.h"

#include <algorithm>
#include <array>
#include <utility>

namespace desktopdb {

namespace {
using Entry = std::pair<std::string_view, Keyword>;

constexpr Entry kKeywords[] = {
    {"ADD", Keyword::Add},
    {"ALL", Keyword::All},
    {"ALTER", Keyword::Alter},
    {"AND", Keyword::And},
    {"AS", Keyword::As},
    {"BEGIN", Keyword::Begin},
    {"BETWEEN", Keyword::Between},
    {"BY", Keyword::By},
    {"CHECK", Keyword::Check},
    {"COMMIT", Keyword::Commit},
    {"CONFLICT", Keyword::Conflict},
    {"CONSTRAINT", Keyword::Constraint},
    {"CREATE", Keyword::Create},
    {"DEFAULT", Keyword::Default},
    {"DELETE", Keyword::Delete},
    {"DISTINCT", Keyword::Distinct},
    {"DO", Keyword::Do},
    {"DROP", Keyword::Drop},
    {"END", Keyword::End},
    {"ESCAPE", Keyword::Escape},
    {"EXCEPT", Keyword::Except},
    {"EXISTS", Keyword::Exists},
    {"EXPLAIN", Keyword::Explain},
    {"FOREIGN", Keyword::Foreign},
    {"FROM", Keyword::From},
    {"GROUP", Keyword::Group},
    {"HAVING", Keyword::Having},
    {"IF", Keyword::If},
    {"IN", Keyword::In},
    {"INDEX", Keyword::Index},
    {"INSERT", Keyword::Insert},
    {"INTERSECT", Keyword::Intersect},
    {"INTO", Keyword::Into},
    {"IS", Keyword::Is},
    {"JOIN", Keyword::Join},
    {"LCASE", Keyword::Lcase},
    {"LIKE", Keyword::Like},
    {"LIMIT", Keyword::Limit},
    {"LOWER", Keyword::Lower},
    {"NLS_DATE_FORMAT", Keyword::NlsDateFormat},
    {"NOT", Keyword::Not},
    {"NULL", Keyword::Null},
    {"ON", Keyword::On},
    {"OR", Keyword::Or},
    {"ORDER", Keyword::Order},
    {"PRAGMA", Keyword::Pragma},
    {"PRIMARY", Keyword::Primary},
    {"REFERENCES", Keyword::References},
    {"REPLACE", Keyword::Replace},
    {"RETURNING", Keyword::Returning},
    {"ROLLBACK", Keyword::Rollback},
    {"SELECT", Keyword::Select},
    {"SESSION", Keyword::Session},
    {"SET", Keyword::Set},
    {"TABLE", Keyword::Table},
    {"TRIGGER", Keyword::Trigger},
    {"UCASE", Keyword::Ucase},
    {"UNION", Keyword::Union},
    {"UNIQUE", Keyword::Unique},
    {"UPDATE", Keyword::Update},
    {"UPPER", Keyword::Upper},
    {"USING", Keyword::Using},
    {"VALUES", Keyword::Values},
    {"VIEW", Keyword::View},
    {"WHERE", Keyword::Where},
    {"WINDOW", Keyword::Window},
    {"WITH", Keyword::With},
};

// Words that the engine's grammar never takes as a name. Sorted.
constexpr std::string_view kReserved[] = {"ADD", "ALL", "ALTER", "AND", "AS", "AUTOINCREMENT",
    "BETWEEN", "CASE", "CHECK", "COLLATE", "COMMIT", "CONSTRAINT", "CREATE", "DEFAULT",
    "DEFERRABLE", "DELETE", "DISTINCT", "DROP", "ELSE", "ESCAPE", "EXISTS", "FOREIGN", "FROM",
    "GROUP", "HAVING", "IN", "INDEX", "INSERT", "INTERSECT", "INTO", "IS", "ISNULL", "JOIN",
    "LIMIT", "NOT", "NOTHING", "NOTNULL", "NULL", "ON", "OR", "ORDER", "PRIMARY", "REFERENCES",
    "RETURNING", "SELECT", "SET", "TABLE", "THEN", "TO", "TRANSACTION", "UNION", "UNIQUE", "UPDATE",
    "USING", "VALUES", "WHEN", "WHERE"};
static_assert(std::ranges::is_sorted(kReserved));

constexpr size_t kLongestKeyword = 15;
constexpr size_t kLongestReserved = 13;
constexpr size_t kBuckets = 128;

// Length and first two letters tell the keywords apart well enough for short chains.
constexpr size_t bucketOf(std::string_view upper)
{
    const auto first = static_cast<unsigned char>(upper[0]);
    const auto second = static_cast<unsigned char>(upper.size() > 1 ? upper[1] : 0);
    return (first * 5u + second * 11u + upper.size() * 3u) % kBuckets;
}

struct KeywordIndex {
    std::array<signed char, kBuckets> head{};
    std::array<signed char, std::size(kKeywords)> next{};
};

constexpr KeywordIndex makeIndex()
{
    KeywordIndex index;
    index.head.fill(-1);
    for (size_t i = 0; i < std::size(kKeywords); ++i) {
        const size_t bucket = bucketOf(kKeywords[i].first);
        index.next[i] = index.head[bucket];
        index.head[bucket] = static_cast<signed char>(i);
    }
    return index;
}
constexpr KeywordIndex kIndex = makeIndex();

constexpr char upperOf(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; }

std::string_view upperInto(char* buffer, std::string_view word)
{
    std::ranges::transform(word, buffer, upperOf);
    return {buffer, word.size()};
}
} // namespace

Keyword keywordOf(std::string_view word)
{
    char buffer[kLongestKeyword];
    if (word.empty() || word.size() > kLongestKeyword)
        return Keyword::None;
    const std::string_view upper = upperInto(buffer, word);
    for (int i = kIndex.head[bucketOf(upper)]; i >= 0; i = kIndex.next[static_cast<size_t>(i)]) {
        if (kKeywords[i].first == upper)
            return kKeywords[i].second;
    }
    return Keyword::None;
}

bool isReserved(std::string_view word)
{
    char buffer[kLongestReserved];
    return word.size() <= kLongestReserved
        && std::ranges::binary_search(kReserved, upperInto(buffer, word));
}

bool sameWord(std::string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, {}, upperOf, upperOf);
}

} // namespace desktopdb
