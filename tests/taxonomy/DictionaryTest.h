// tests/taxonomy/DictionaryTest.h
#pragma once

#include "db/Session.h"
#include "tests/support/MessageLog.h"
#include "tests/support/TestDatabase.h"
#include "tests/taxonomy/TaxonOf.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

using Texts = std::vector<std::string>;

/// A table name as statements carry it in this process.
inline std::string table(const std::string& name) { return testSettings().prefix + name; }

/// A statement as it arrives at the driver: the session writes the functions of the desktop kinds,
/// and their wildcard.
inline std::string sent(std::string sql)
{
    if (testSettings().kind == 2)
        return sql;
    const auto replaceAll = [&sql](const std::string& from, const std::string& to) {
        for (auto at = sql.find(from); at != std::string::npos; at = sql.find(from, at))
            sql.replace(at, from.size(), to);
    };
    replaceAll("upper(", "UCASE(");
    replaceAll("lower(", "LCASE(");
    replaceAll("%", "*");
    return sql;
}

/// A small dictionary with the session on it. Message boxes are kept.
struct Dictionary {
    Dictionary()
    {
        db.run("PRAGMA synchronous = OFF");
        db.run("INSERT INTO CATEGORY VALUES ('FORAM', 'planktonic FORAMINIFERA', 'M'),"
               " ('NANNO', 'nannofossils', 'N')");
        db.run("INSERT INTO GENUS (gen_id, cat_mnem, q1, genus, q2, q3, sub_genus, q4) VALUES"
               " (9, 'FORAM', NULL, 'Alphina', NULL, NULL, 'Deltina', NULL),"
               " (10, 'FORAM', NULL, 'Alphina', '', ' ', NULL, NULL),"
               " (11, 'FORAM', NULL, 'Alphina', '?', NULL, NULL, NULL),"
               " (13, 'FORAM', 'cf.', 'Betina', 'grp.', 'aff.', 'Etina', 'sl.'),"
               " (14, 'NANNO', NULL, 'Alphina', NULL, NULL, NULL, NULL)");
        db.run("INSERT INTO SPECIES (spec_id, gen_id, q1, species, q2, q3, sub_spec, q4, author,"
               " year, alphaCode) VALUES"
               " (99, 10, NULL, 'betana', NULL, NULL, 'minor', NULL, 'Delta', 1950, 'CD:1'),"
               " (100, 10, NULL, 'betana', NULL, NULL, NULL, NULL, 'Gamma', 1901, 'AB:12'),"
               " (101, 10, NULL, 'betana', 'ss.', NULL, NULL, NULL, NULL, NULL, NULL),"
               " (103, 13, 'cf.', 'Gammana', '?', 'var.', 'Major', 'sensu', 'Eta', 1999, 'X'),"
               " (104, 14, NULL, 'alba', NULL, NULL, NULL, NULL, NULL, 0, NULL)");
        db.run("INSERT INTO SYNONYMY (spec_id, pref, sch_id) VALUES"
               " (99, 100, 5), (99, 103, 6), (100, 104, 5), (101, 100, 5)");
        db.run("INSERT INTO SYNSCH VALUES (5, 'Scheme five')");
        db.run("INSERT INTO SIPMCODE VALUES (100, 1, 12345678), (103, 1, 5), (100, 2, 70)");
        db.run("INSERT INTO SIPMDICT (ccode, text) VALUES (2, 'Second')");
        db.run("INSERT INTO TXREFS VALUES (100, 'a reference'), (101, NULL)");
        db.run("INSERT INTO TXNOTES VALUES (100, 'a note')");
    }

    TestDatabase db;
    MessageLog screen;
};

class DictionaryTest : public testing::Test, protected Dictionary {
protected:
    void TearDown() override
    {
        const short free = dbExecute("SELECT 1");
        EXPECT_EQ(1, free) << "an open cursor was left";
        dbCloseCursor(free);
    }
};
