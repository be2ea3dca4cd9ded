// tests/platform/desktopdb/RewriterTest.cpp
#include "platform/desktopdb/Rewriter.h"

#include "platform/desktopdb/Keywords.h"

#include <string>

#include <gtest/gtest.h>

using namespace desktopdb;

namespace {

/// Two tables, WELLS(id, spud DATE, code) and OLD(spud, id).
class SomeDates : public DateColumns {
public:
    bool isDate(std::string_view table, std::string_view column) const override
    {
        return sameWord(table, "WELLS") && sameWord(column, "spud");
    }
    bool isDateAt(std::string_view table, size_t position) const override
    {
        return sameWord(table, "WELLS") && position == 1;
    }
};

struct Lifted {
    std::string sql;
    std::string values; ///< "?1" for the application's first, with L or D for its form
};

std::string valueText(const ParameterSource& source)
{
    if (source.user >= 0) {
        const char* form = source.form == ParameterForm::LikePattern ? "L"
            : source.form == ParameterForm::DayFirstDate             ? "D"
                                                                     : "";
        return "?" + std::to_string(source.user + 1) + form;
    }
    switch (source.literal.kind) {
    case ValueKind::Integer:
        return std::to_string(source.literal.integer);
    case ValueKind::Real:
        return std::to_string(source.literal.real);
    default:
        return "'" + source.literal.bytes + "'";
    }
}

Lifted rewritten(const std::string& sql, RewriteRules rules)
{
    static const SomeDates dates;
    rules.dates = &dates;
    Rewritten result;
    Failure failure;
    if (!rewrite(sql, rules, result, failure))
        return {"!" + failure.state, failure.text};
    Lifted lifted{result.sql, ""};
    for (const ParameterSource& source : result.parameters)
        lifted.values += (lifted.values.empty() ? "" : " ") + valueText(source);
    return lifted;
}

struct RewriteCase {
    const char* rule;
    const char* sql;
    const char* expected;
    const char* values = "";
};

void PrintTo(const RewriteCase& c, std::ostream* out) { *out << c.rule; }

class RewriteAuto : public testing::TestWithParam<RewriteCase> {};
class RewriteAccess : public testing::TestWithParam<RewriteCase> {};
class RewriteOracle : public testing::TestWithParam<RewriteCase> {};
class RewriteDayFirst : public testing::TestWithParam<RewriteCase> {};
class RewriteOwned : public testing::TestWithParam<RewriteCase> {};

void expectRewritten(const RewriteCase& c, const RewriteRules& rules)
{
    const Lifted lifted = rewritten(c.sql, rules);
    EXPECT_EQ(lifted.sql, c.expected);
    if (lifted.sql[0] != '!') {
        EXPECT_EQ(lifted.values, c.values);
    }
}

RewriteRules withDialect(Dialect dialect)
{
    RewriteRules rules;
    rules.dialect = dialect;
    return rules;
}

TEST_P(RewriteAuto, Statement) { expectRewritten(GetParam(), {}); }
TEST_P(RewriteAccess, Statement) { expectRewritten(GetParam(), withDialect(Dialect::Access)); }
TEST_P(RewriteOracle, Statement) { expectRewritten(GetParam(), withDialect(Dialect::Oracle)); }
TEST_P(RewriteDayFirst, Statement)
{
    RewriteRules rules;
    rules.dayFirstDates = true;
    expectRewritten(GetParam(), rules);
}
TEST_P(RewriteOwned, Statement)
{
    RewriteRules rules;
    rules.owner = "GEO";
    expectRewritten(GetParam(), rules);
}

const RewriteCase kOwners[] = {
    {"FROM", "SELECT a FROM GEO.T", "SELECT a FROM T"},
    {"each of a comma list", "SELECT a FROM GEO.T x, GEO.U y", "SELECT a FROM T x, U y"},
    {"a comma of the select list is none", "SELECT a.b, c.d FROM T", "SELECT a.b, c.d FROM T"},
    {"alias.column stays", "SELECT GEO.a FROM T GEO", "SELECT GEO.a FROM T GEO"},
    {"JOIN, and behind its condition", "SELECT 1 FROM GEO.A a JOIN GEO.B b ON a.x=b.x, GEO.C",
        "SELECT 1 FROM A a JOIN B b ON a.x=b.x, C"},
    {"JOIN in brackets", "SELECT 1 FROM (GEO.A LEFT JOIN GEO.B ON A.x=B.x)",
        "SELECT 1 FROM (A LEFT JOIN B ON A.x=B.x)"},
    {"behind a query in the list", "SELECT 1 FROM (SELECT a.x FROM GEO.A a) AS q, GEO.B",
        "SELECT 1 FROM (SELECT a.x FROM A a) AS q, B"},
    {"a query in the condition", "SELECT 1 FROM A WHERE x IN (SELECT b.y FROM GEO.B b)",
        "SELECT 1 FROM A WHERE x IN (SELECT b.y FROM B b)"},
    {"a condition ends the list", "SELECT 1 FROM A a, B b WHERE f(a.x, b.x) ORDER BY a.x, b.x",
        "SELECT 1 FROM A a, B b WHERE f(a.x, b.x) ORDER BY a.x, b.x"},
    {"DISTINCT FROM compares", "SELECT 1 FROM A a WHERE a.x IS DISTINCT FROM a.y",
        "SELECT 1 FROM A a WHERE a.x IS DISTINCT FROM a.y"},
    {"owner.table.column", "SELECT GEO.T.a FROM GEO.T WHERE GEO.T.b=T.c",
        "SELECT T.a FROM T WHERE T.b=T.c"},
    {"quoted names", "SELECT a FROM \"GEO\".\"T\", [GEO].[U]", "SELECT a FROM \"T\", [U]"},
    {"the engine's own databases", "SELECT a FROM main.T, temp.U", "SELECT a FROM main.T, temp.U"},
    {"INSERT", "INSERT INTO GEO.T (a) SELECT b.a FROM GEO.B b",
        "INSERT INTO T (a) SELECT b.a FROM B b"},
    {"UPDATE", "UPDATE GEO.T SET a=b", "UPDATE T SET a=b"},
    {"UPDATE OR", "UPDATE OR IGNORE GEO.T SET a=b", "UPDATE OR IGNORE T SET a=b"},
    {"DELETE", "DELETE FROM GEO.T", "DELETE FROM T"},
    {"CREATE TABLE", "CREATE TABLE IF NOT EXISTS GEO.T (a INTEGER REFERENCES GEO.U(a))",
        "CREATE TABLE IF NOT EXISTS T (a INTEGER REFERENCES U(a))"},
    {"CREATE INDEX", "CREATE UNIQUE INDEX GEO.I ON GEO.T (a)", "CREATE UNIQUE INDEX I ON T (a)"},
    {"CREATE VIEW", "CREATE VIEW GEO.V AS SELECT t.a FROM GEO.T t JOIN GEO.U u ON t.a=u.a",
        "CREATE VIEW V AS SELECT t.a FROM T t JOIN U u ON t.a=u.a"},
    {"a trigger and its body",
        "CREATE TRIGGER GEO.R AFTER UPDATE OF a ON GEO.T BEGIN UPDATE GEO.U SET a=NEW.a; END",
        "CREATE TRIGGER R AFTER UPDATE OF a ON T BEGIN UPDATE U SET a=NEW.a; END"},
    {"DROP and ALTER", "DROP TABLE GEO.T", "DROP TABLE T"},
    {"ALTER TABLE", "ALTER TABLE GEO.T ADD COLUMN b DATE", "ALTER TABLE T ADD COLUMN b DATE"},
};
INSTANTIATE_TEST_SUITE_P(Owners, RewriteAuto, testing::ValuesIn(kOwners));

const RewriteCase kKnownOwner[] = {
    {"in any case", "SELECT a FROM geo.T", "SELECT a FROM T"},
    {"another one stays", "SELECT a FROM XYZ.T", "SELECT a FROM XYZ.T"},
};
INSTANTIATE_TEST_SUITE_P(KnownOwner, RewriteOwned, testing::ValuesIn(kKnownOwner));

const RewriteCase kNames[] = {
    {"a reserved column", "SELECT references FROM T", "SELECT [references] FROM T"},
    {"behind its alias", "SELECT t.references, t.order FROM T t",
        "SELECT t.[references], t.[order] FROM T t"},
    {"in a list of columns", "INSERT INTO T (references, index) VALUES (a, NULL)",
        "INSERT INTO T ([references], [index]) VALUES (a, NULL)"},
    {"in an assignment", "UPDATE T SET references=a", "UPDATE T SET [references]=a"},
    {"order and group by themselves", "SELECT order FROM T GROUP BY group ORDER BY order",
        "SELECT [order] FROM T GROUP BY [group] ORDER BY [order]"},
    {"fair names stay", "SELECT min, text, year, key FROM T", "SELECT min, text, year, key FROM T"},
    {"a definition",
        "CREATE TABLE T (references TEXT, order INTEGER, check INTEGER CHECK (check>0))",
        "CREATE TABLE T ([references] TEXT, [order] INTEGER, [check] INTEGER CHECK (check>0))"},
    {"a constraint is none", "CREATE TABLE T (a INTEGER, PRIMARY KEY (a), UNIQUE (a), CHECK (a>0))",
        "CREATE TABLE T (a INTEGER, PRIMARY KEY (a), UNIQUE (a), CHECK (a>0))"},
    {"an index", "CREATE INDEX I ON T (references)", "CREATE INDEX I ON T ([references])"},
    {"in a view and a trigger", "CREATE VIEW V AS SELECT references FROM T",
        "CREATE VIEW V AS SELECT [references] FROM T"},
    {"the case functions", "SELECT UCASE(a), lcase (b), ucase FROM T",
        "SELECT UPPER(a), LOWER (b), ucase FROM T"},
};
INSTANTIATE_TEST_SUITE_P(Names, RewriteAuto, testing::ValuesIn(kNames));

const RewriteCase kLikes[] = {
    {"a star and a question mark", "SELECT 1 FROM T WHERE a LIKE 'A?B*'",
        "SELECT 1 FROM T WHERE a LIKE 'A_B%'"},
    {"the engine's wildcards are letters then", "SELECT 1 FROM T WHERE a LIKE '50%_*'",
        "SELECT 1 FROM T WHERE a LIKE '50\\%\\_%' ESCAPE '\\'"},
    {"so is the escape character", "SELECT 1 FROM T WHERE a LIKE 'a\\b*'",
        "SELECT 1 FROM T WHERE a LIKE 'a\\\\b%' ESCAPE '\\'"},
    {"a quote inside", "SELECT 1 FROM T WHERE a LIKE 'it''s*'",
        "SELECT 1 FROM T WHERE a LIKE 'it''s%'"},
    {"a star outside of LIKE stays", "SELECT 1 FROM T WHERE a='A*' AND b LIKE 'B*'",
        "SELECT 1 FROM T WHERE a=? AND b LIKE 'B%'", "'A*'"},
    {"NOT LIKE", "SELECT 1 FROM T WHERE a NOT LIKE 'A*' OR b",
        "SELECT 1 FROM T WHERE a NOT LIKE 'A%' OR b"},
    {"a case function of the column", "SELECT 1 FROM T WHERE UCASE(t.a) LIKE 'A*'",
        "SELECT 1 FROM T WHERE t.a LIKE 'A%'"},
    {"on both sides", "SELECT 1 FROM T WHERE (upper(a) NOT LIKE UPPER('a*'))",
        "SELECT 1 FROM T WHERE (a NOT LIKE 'a%')"},
    {"of an expression it stays", "SELECT 1 FROM T WHERE UPPER(a||b) LIKE 'A*'",
        "SELECT 1 FROM T WHERE UPPER(a||b) LIKE 'A%'"},
    {"a parameter", "SELECT 1 FROM T WHERE a LIKE ? AND b=?",
        "SELECT 1 FROM T WHERE a LIKE ? ESCAPE '\\' AND b=?", "?1L ?2"},
    {"a composed pattern", "SELECT 1 FROM T WHERE a LIKE '*' || b || '_' OR c",
        "SELECT 1 FROM T WHERE a LIKE '%' || b || '\\_' ESCAPE '\\' OR c"},
    {"an escape character of its own", "SELECT 1 FROM T WHERE a LIKE 'x!**' ESCAPE '!'",
        "SELECT 1 FROM T WHERE a LIKE 'x!**' ESCAPE '!'"},
    {"at the end of brackets", "SELECT 1 FROM T WHERE (a LIKE '_*')",
        "SELECT 1 FROM T WHERE (a LIKE '\\_%' ESCAPE '\\')"},
    {"LIKE without a pattern", "SELECT 1 FROM T WHERE a LIKE", "SELECT 1 FROM T WHERE a LIKE"},
};
INSTANTIATE_TEST_SUITE_P(Likes, RewriteAuto, testing::ValuesIn(kLikes));
INSTANTIATE_TEST_SUITE_P(Likes, RewriteAccess, testing::ValuesIn(kLikes));

const RewriteCase kEngineLikes[] = {
    {"without star and question mark", "SELECT 1 FROM T WHERE a LIKE 'A_%\\'",
        "SELECT 1 FROM T WHERE a LIKE 'A_%\\'"},
};
INSTANTIATE_TEST_SUITE_P(EngineLikes, RewriteAuto, testing::ValuesIn(kEngineLikes));

const RewriteCase kAccessLikes[] = {
    {"without star and question mark", "SELECT 1 FROM T WHERE a LIKE 'A_'",
        "SELECT 1 FROM T WHERE a LIKE 'A\\_' ESCAPE '\\'"},
};
INSTANTIATE_TEST_SUITE_P(AccessLikes, RewriteAccess, testing::ValuesIn(kAccessLikes));

const RewriteCase kOracleLikes[] = {
    {"all as written", "SELECT 1 FROM T WHERE UPPER(a) LIKE '*?%_' AND b LIKE ?",
        "SELECT 1 FROM T WHERE UPPER(a) LIKE '*?%_' AND b LIKE ?", "?1"},
};
INSTANTIATE_TEST_SUITE_P(OracleLikes, RewriteOracle, testing::ValuesIn(kOracleLikes));

const RewriteCase kDates[] = {
    {"a date literal", "UPDATE T SET a=#1998-03-05#", "UPDATE T SET a=?", "'1998-03-05'"},
    {"short month and day", "SELECT #1998-3-5#", "SELECT '1998-03-05'"},
    {"with a time", "SELECT #1998-03-05 10:11:12#", "SELECT '1998-03-05 10:11:12'"},
    {"a leap day", "SELECT #2000-02-29#", "SELECT '2000-02-29'"},
    {"no leap day", "SELECT #1900-02-29#", "!22007"},
    {"no month", "SELECT #1998-13-05#", "!22007"},
    {"eight digits are nothing special", "UPDATE WELLS SET spud='05031998'",
        "UPDATE WELLS SET spud=?", "'05031998'"},
    {"escapes", "SELECT {d '1998-03-05'}, {fn UCASE(a)} FROM {oj A LEFT JOIN B ON a=b}",
        "SELECT '1998-03-05', UPPER(a) FROM A LEFT JOIN B ON a=b"},
};
INSTANTIATE_TEST_SUITE_P(Dates, RewriteAuto, testing::ValuesIn(kDates));

const RewriteCase kDayFirst[] = {
    {"an assignment", "UPDATE GEO.WELLS SET spud='05031998', code='05031998'",
        "UPDATE WELLS SET spud=?, code=?", "'1998-03-05' '05031998'"},
    {"a comparison", "SELECT 1 FROM WELLS WHERE spud>='05031998' AND code='05031998'",
        "SELECT 1 FROM WELLS WHERE spud>=? AND code=?", "'1998-03-05' '05031998'"},
    {"turned round", "SELECT 1 FROM WELLS WHERE '05031998'<spud",
        "SELECT 1 FROM WELLS WHERE '1998-03-05'<spud"},
    {"by its alias", "SELECT 1 FROM OLD o, WELLS w WHERE w.spud='05031998' AND o.spud='05031998'",
        "SELECT 1 FROM OLD o, WELLS w WHERE w.spud=? AND o.spud=?", "'1998-03-05' '05031998'"},
    {"between", "SELECT 1 FROM WELLS WHERE spud NOT BETWEEN '05031998' AND '06031998'",
        "SELECT 1 FROM WELLS WHERE spud NOT BETWEEN ? AND ?", "'1998-03-05' '1998-03-06'"},
    {"in a list", "SELECT 1 FROM WELLS WHERE spud IN ('05031998','x')",
        "SELECT 1 FROM WELLS WHERE spud IN ('1998-03-05','x')"},
    {"an insert by names", "INSERT INTO WELLS (code, spud) VALUES ('05031998', '05031998')",
        "INSERT INTO WELLS (code, spud) VALUES (?, ?)", "'05031998' '1998-03-05'"},
    {"an insert by place", "INSERT INTO WELLS VALUES ('05031998', '05031998', '05031998')",
        "INSERT INTO WELLS VALUES (?, ?, ?)", "'05031998' '1998-03-05' '05031998'"},
    {"several rows", "INSERT INTO WELLS (spud) VALUES ('05031998'), ('06031998')",
        "INSERT INTO WELLS (spud) VALUES (?), (?)", "'1998-03-05' '1998-03-06'"},
    {"a function's argument is none", "INSERT INTO WELLS (spud) VALUES (f('05031998'))",
        "INSERT INTO WELLS (spud) VALUES (f('05031998'))"},
    {"a parameter", "UPDATE WELLS SET spud=?, code=?", "UPDATE WELLS SET spud=?, code=?", "?1D ?2"},
    {"a parameter of an insert", "INSERT INTO WELLS VALUES (?, ?, ?)",
        "INSERT INTO WELLS VALUES (?, ?, ?)", "?1 ?2D ?3"},
    {"the other forms go on", "UPDATE WELLS SET spud=#1998-03-05#, code=UCASE('x')",
        "UPDATE WELLS SET spud=?, code=UPPER('x')", "'1998-03-05'"},
    {"no such day", "UPDATE WELLS SET spud='31021998'", "!22007"},
    {"seven digits", "UPDATE WELLS SET spud='5031998'", "UPDATE WELLS SET spud=?", "'5031998'"},
    {"another table", "UPDATE OLD SET spud='05031998'", "UPDATE OLD SET spud=?", "'05031998'"},
};
INSTANTIATE_TEST_SUITE_P(DayFirst, RewriteDayFirst, testing::ValuesIn(kDayFirst));

const RewriteCase kLifting[] = {
    {"numbers and texts behind comparisons", "SELECT a FROM T WHERE b=1 AND c<>'x''y' AND d<-2.5",
        "SELECT a FROM T WHERE b=? AND c<>? AND d<-?", "1 'x'y' 2.500000"},
    {"values", "INSERT INTO T VALUES (1, 'a', NULL, f(2), -3)",
        "INSERT INTO T VALUES (?, ?, NULL, f(2), -?)", "1 'a' 3"},
    {"between", "SELECT a FROM T WHERE b BETWEEN 1 AND 2 AND c=3",
        "SELECT a FROM T WHERE b BETWEEN ? AND ? AND c=?", "1 2 3"},
    {"never result columns", "SELECT 1, a=2, 'x' FROM T", "SELECT 1, a=2, 'x' FROM T"},
    {"never ordinals", "SELECT a FROM T WHERE b=1 GROUP BY 1 HAVING c=2 ORDER BY 1, b=3",
        "SELECT a FROM T WHERE b=? GROUP BY 1 HAVING c=? ORDER BY 1, b=3", "1 2"},
    {"never arithmetic, functions and lists", "SELECT a FROM T WHERE b=1+1 AND f(2)=c AND d IN (3)",
        "SELECT a FROM T WHERE b=1+1 AND f(2)=c AND d IN (3)"},
    {"never limits", "SELECT a FROM T LIMIT 5", "SELECT a FROM T LIMIT 5"},
    {"never in definitions", "CREATE TABLE T (a INTEGER DEFAULT 5 CHECK (a=5))",
        "CREATE TABLE T (a INTEGER DEFAULT 5 CHECK (a=5))"},
    {"numbers beyond the safe range stay", "SELECT a FROM T WHERE b=9223372036854775808",
        "SELECT a FROM T WHERE b=9223372036854775808"},
    {"the application's stay in order", "SELECT a FROM T WHERE b=? AND c=1 AND d=?",
        "SELECT a FROM T WHERE b=? AND c=? AND d=?", "?1 1 ?2"},
    {"a digit behind a parameter is kept apart", "SELECT ?1", "SELECT ? 1", "?1"},
    {"comments go, words stay apart", "SELECT/**/a--x\nFROM T", "SELECT a FROM T"},
    {"bytes of a literal stay", "SELECT 'a  --b/*c*/ \"d\" [e] #1998-01-01# UCASE('",
        "SELECT 'a  --b/*c*/ \"d\" [e] #1998-01-01# UCASE('"},
};
INSTANTIATE_TEST_SUITE_P(Lifting, RewriteAuto, testing::ValuesIn(kLifting));

const RewriteCase kRefused[] = {
    {"nothing", "", "!42000"},
    {"a comment alone", " -- x", "!42000"},
    {"a literal left open", "SELECT 'abc", "!42000"},
    {"a character unknown", "SELECT @a", "!42000"},
    {"two statements", "SELECT 1; DELETE FROM T", "!42000"},
    {"one with a final semicolon", "SELECT 1 ; ; ", "SELECT 1"},
    {"another session setting", "ALTER SESSION SET NLS_LANGUAGE='x'", "!42000"},
    {"another date format", "ALTER SESSION SET NLS_DATE_FORMAT='dd-mm-yy'", "!HYC00"},
};
INSTANTIATE_TEST_SUITE_P(Refused, RewriteAuto, testing::ValuesIn(kRefused));

TEST(Rewriter, BracesAreBadWithoutScanning)
{
    RewriteRules rules;
    rules.scanEscapes = false;
    EXPECT_EQ(rewritten("SELECT {d '1998-03-05'}", rules).sql, "!42000");
}

TEST(Rewriter, ManyLiteralsAreNotWorthKeeping)
{
    std::string sql = "INSERT INTO T VALUES (0";
    for (int i = 0; i < 1000; ++i)
        sql += ",1";
    Rewritten result;
    Failure failure;
    ASSERT_TRUE(rewrite(sql + ")", {}, result, failure));
    EXPECT_FALSE(result.cacheable);
    EXPECT_LE(result.parameters.size(), 64u);
}

// Whatever arrives, the rewriter ends and does not read beyond the text.
TEST(Rewriter, TakesHostileText)
{
    const char* const parts[] = {"SELECT", "FROM", "GEO", ".", ",", "(", ")", "LIKE", "'a*'", "?",
        "UPPER", "NOT", "{", "}", "d", "BETWEEN", "AND", "IN", "=", "'05031998'", "INSERT", "INTO",
        "VALUES", "WELLS", "CREATE", "TRIGGER", "ON", "BEGIN", ";", "||", "#1998-01-01#", "UPDATE",
        "SET", "spud", "ALTER", "SESSION", "-", "1", "WITH", "ORDER", "references", "[x]"};
    unsigned state = 1;
    const auto next = [&state] { return (state = state * 1664525u + 1013904223u) >> 16; };
    for (int round = 0; round < 30000; ++round) {
        std::string sql;
        for (unsigned i = next() % 14; i > 0; --i)
            sql += std::string(parts[next() % std::size(parts)]) + (next() % 4 ? " " : "");
        RewriteRules rules;
        rules.dayFirstDates = true;
        rules.dialect = static_cast<Dialect>(next() % 3);
        rewritten(sql, rules);
    }
}

} // namespace
