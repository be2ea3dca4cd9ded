// platform/desktopdb/Keywords.cpp
#include "platform/desktopdb/Keywords.h"

#include "platform/desktopdb/AsciiText.h"

#include <algorithm>
#include <array>

namespace desktopdb {

namespace {
struct Entry {
    std::string_view text;
    WordFacts facts;
};

// All others are plain names without a meaning.
constexpr Entry kWords[] = {
    {"ADD", {Keyword::Add, true}},
    {"ALL", {Keyword::All, true}},
    {"ALTER", {Keyword::Alter, true}},
    {"AND", {Keyword::And, true}},
    {"AS", {Keyword::As, true}},
    {"AUTOINCREMENT", {Keyword::None, true}},
    {"BEGIN", {Keyword::Begin, false}},
    {"BETWEEN", {Keyword::Between, true}},
    {"BY", {Keyword::By, false}},
    {"CASE", {Keyword::None, true}},
    {"CHECK", {Keyword::Check, true}},
    {"COLLATE", {Keyword::None, true}},
    {"COMMIT", {Keyword::Commit, true}},
    {"CONFLICT", {Keyword::Conflict, false}},
    {"CONSTRAINT", {Keyword::Constraint, true}},
    {"CREATE", {Keyword::Create, true}},
    {"DEFAULT", {Keyword::Default, true}},
    {"DEFERRABLE", {Keyword::None, true}},
    {"DELETE", {Keyword::Delete, true}},
    {"DISTINCT", {Keyword::Distinct, true}},
    {"DO", {Keyword::Do, false}},
    {"DROP", {Keyword::Drop, true}},
    {"ELSE", {Keyword::None, true}},
    {"END", {Keyword::End, false}},
    {"ESCAPE", {Keyword::Escape, true}},
    {"EXCEPT", {Keyword::Except, true}},
    {"EXISTS", {Keyword::Exists, true}},
    {"EXPLAIN", {Keyword::Explain, false}},
    {"FOREIGN", {Keyword::Foreign, true}},
    {"FROM", {Keyword::From, true}},
    {"GROUP", {Keyword::Group, true}},
    {"HAVING", {Keyword::Having, true}},
    {"IF", {Keyword::If, false}},
    {"IN", {Keyword::In, true}},
    {"INDEX", {Keyword::Index, true}},
    {"INSERT", {Keyword::Insert, true}},
    {"INTERSECT", {Keyword::Intersect, true}},
    {"INTO", {Keyword::Into, true}},
    {"IS", {Keyword::Is, true}},
    {"ISNULL", {Keyword::None, true}},
    {"JOIN", {Keyword::Join, true}},
    {"LCASE", {Keyword::Lcase, false}},
    {"LIKE", {Keyword::Like, false}},
    {"LIMIT", {Keyword::Limit, true}},
    {"LOWER", {Keyword::Lower, false}},
    {"NLS_DATE_FORMAT", {Keyword::NlsDateFormat, false}},
    {"NOT", {Keyword::Not, true}},
    {"NOTHING", {Keyword::None, true}},
    {"NOTNULL", {Keyword::None, true}},
    {"NULL", {Keyword::Null, true}},
    {"ON", {Keyword::On, true}},
    {"OR", {Keyword::Or, true}},
    {"ORDER", {Keyword::Order, true}},
    {"PRAGMA", {Keyword::Pragma, false}},
    {"PRIMARY", {Keyword::Primary, true}},
    {"REFERENCES", {Keyword::References, true}},
    {"REPLACE", {Keyword::Replace, false}},
    {"RETURNING", {Keyword::Returning, true}},
    {"ROLLBACK", {Keyword::Rollback, false}},
    {"SELECT", {Keyword::Select, true}},
    {"SESSION", {Keyword::Session, false}},
    {"SET", {Keyword::Set, true}},
    {"TABLE", {Keyword::Table, true}},
    {"THEN", {Keyword::None, true}},
    {"TO", {Keyword::None, true}},
    {"TRANSACTION", {Keyword::None, true}},
    {"TRIGGER", {Keyword::Trigger, false}},
    {"UCASE", {Keyword::Ucase, false}},
    {"UNION", {Keyword::Union, true}},
    {"UNIQUE", {Keyword::Unique, true}},
    {"UPDATE", {Keyword::Update, true}},
    {"UPPER", {Keyword::Upper, false}},
    {"USING", {Keyword::Using, true}},
    {"VALUES", {Keyword::Values, true}},
    {"VIEW", {Keyword::View, false}},
    {"WHEN", {Keyword::None, true}},
    {"WHERE", {Keyword::Where, true}},
    {"WINDOW", {Keyword::Window, false}},
    {"WITH", {Keyword::With, false}},
};

constexpr size_t kLongestWord = 15;
constexpr size_t kBuckets = 128;

// Length and first two letters tell the words apart well enough for short chains.
constexpr size_t bucketOf(std::string_view upper)
{
    const auto first = static_cast<unsigned char>(upper[0]);
    const auto second = static_cast<unsigned char>(upper.size() > 1 ? upper[1] : 0);
    return (first * 5u + second * 11u + upper.size() * 3u) % kBuckets;
}

struct WordIndex {
    std::array<short, kBuckets> head{};
    std::array<short, std::size(kWords)> next{};
};

constexpr WordIndex makeIndex()
{
    WordIndex index;
    index.head.fill(-1);
    for (size_t i = 0; i < std::size(kWords); ++i) {
        const size_t bucket = bucketOf(kWords[i].text);
        index.next[i] = index.head[bucket];
        index.head[bucket] = static_cast<short>(i);
    }
    return index;
}
constexpr WordIndex kIndex = makeIndex();

std::string_view upperInto(char* buffer, std::string_view word)
{
    std::ranges::transform(word, buffer, upperOf);
    return {buffer, word.size()};
}
} // namespace

WordFacts factsOf(std::string_view word)
{
    char buffer[kLongestWord];
    if (word.empty() || word.size() > kLongestWord)
        return {};
    const std::string_view upper = upperInto(buffer, word);
    for (int i = kIndex.head[bucketOf(upper)]; i >= 0; i = kIndex.next[static_cast<size_t>(i)]) {
        if (kWords[i].text == upper)
            return kWords[i].facts;
    }
    return {};
}

bool sameWord(std::string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, {}, upperOf, upperOf);
}

} // namespace desktopdb
