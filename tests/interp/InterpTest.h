// tests/interp/InterpTest.h
#pragma once

#include "interp/IGDList.h"
#include "interp/IGDSchemeList.h"
#include "interp/IGDZone.h"
#include "tests/well/WellTest.h"

/// A database with a chronostratigraphic scheme (1), two empty ones, and well 7 with three samples
/// and zones between them. Message boxes are kept.
struct InterpData {
    InterpData()
    {
        db.run("INSERT INTO IGD_SCH VALUES (1, 'beta', 3, '1998-03-05', 'AB'),"
               " (2, 'Zeta', 41, NULL, NULL), (3, 'ZETA', 2, NULL, NULL)");
        db.run("INSERT INTO IGD_DICT VALUES"
               " (10, 1, 3, 3, 'Period', 'P', 0, 66, 1, 2, 3, '1998-04-06', 'CD'),"
               " (11, 1, 3, 7, 'Upper', 'U', 0, 30, 0, 0, 0, NULL, NULL),"
               " (12, 1, 3, 7, 'Lower', 'L', 30, 66, 0, 0, 1, NULL, NULL),"
               " (13, 1, 3, 0, 'Unranked', NULL, 66, 70, NULL, NULL, NULL, NULL, NULL),"
               " (14, 1, 3, 9, 'Nameless', 'X9', 1, 2, 0, 0, 0, NULL, NULL)");
        db.run("INSERT INTO SAMPLES (samp_id, well_id, top_depth, base_depth, type) VALUES"
               " (1, 7, 100, 100, 'CO'), (2, 7, 150, 150, 'CU'), (3, 7, 200, 210, 'LOG')");
        db.run("INSERT INTO IGD (well_id, igd_type, interp_id, hier, top_id, base_id, sch_id,"
               " upp_zone, low_zone, upp_inf, low_inf, sep, q_uzone, top_bnd, base_bnd, modified,"
               " modifier) VALUES (7, 3, 0, 7, 2, 3, 1, 12, -5, 'Lower', 'x', '/ ', 'Y', 1, 2,"
               " '1998-03-05', 'AB'), (7, 3, 0, 7, 1, 2, 1, 11, 11, 'Upper', NULL, NULL, NULL, 3,"
               " 3, NULL, NULL), (7, 3, 0, 8, 1, 9, 0, 0, 0, 'Lost', NULL, NULL, NULL, 3, 3, NULL,"
               " NULL)");
        well.well_id = 7;
        well.well_name = "Seven";
    }

    TestDatabase db;
    MessageLog boxes;
    Well well;
};

class InterpTest : public testing::Test, protected InterpData {};

/// A list of no well.
struct MadeList : IGDList {
    explicit MadeList(int type, char unit = 'M')
        : IGDList(type, 0, 9, nullptr, unit, 0, 0, nullptr)
    {
    }
    IGDZone& add(float top, float base, int rank = 0)
    {
        auto* zone = new IGDZone(igd_type(), top, base, 'N', "", 'N', "");
        zone->setHier(rank);
        insert(zone);
        return *zone;
    }
};
