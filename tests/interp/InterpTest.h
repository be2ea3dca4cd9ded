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
        db.run("INSERT INTO LITHDESC (lith_id, descr, abr, cmp) VALUES (999, 'Few', 'F', 'N'),"
               " (1000, 'Sandstone', 'SST', 'N'), (1001, 'Limestone', 'LST', 'N'),"
               " (1002, 'Pyrite', 'PYR', 'A'), (1003, 'Calcareous', 'CAL', 'Y')");
        db.run("INSERT INTO ZRILITH VALUES (7, 150, 200.1, 1001), (7, 100, 150, 1000),"
               " (7, 210, 220, 4444), (8, 5, 6, 1000)");
        db.run("INSERT INTO ZRQLITH VALUES (7, 100, 120, 1002, 'A', 'R', 2.7, 'stored'), (7, 130,"
               " 130, 1002, 'Z', 'L', 1, 'see core'), (7, 140, 150, 4, 'S', NULL, 1, 'stored')");
        db.run("INSERT INTO ENV_SCH VALUES (1, 'marine'), (2, 'Zonal'), (3, 'Zonal')");
        db.run("INSERT INTO ENVSCHMBR VALUES (1, 5, ' Åpen', 4, 5, 6), (1, 1, 'Coast', 1, 2,"
               " 3), (1, 2, 'Shelf', 0, 0, 0), (1, 9, NULL, 9, 9, 9)");
        db.run(
            "INSERT INTO IGD_ENV VALUES (7, NULL, 1, 2, 2, 3, 0, 0, 1, 1, '1998-03-05', 'AB'),"
            " (7, 0, 2, 9, 0, 0, 0, 0, 0, 77, NULL, ''), (7, 6, 1, 3, 3, 0, 0, 0, 8, 1, '', '')");
        db.run("INSERT INTO WELL_IDENT VALUES (7, 'C-7', NULL)");
        db.run("INSERT INTO CASING VALUES (7, 1000, '13 3/8'), (7, 500, '20')");
        db.run("INSERT INTO WELLSMARK VALUES (7, 1000, 'red')");
        db.run("INSERT INTO SURFACE VALUES (1, 1, 30.00005, 'MFS', 3), (2, 1, 66, 'SB', 4)");
        db.run("INSERT INTO SQPICK VALUES (7, 0, 9, 1, NULL, 3, NULL), (7, 0, 3, 2, 'deep', 5,"
               " 'Q'), (7, 0, 1, 1, 'x', 4, NULL), (7, 0, 1, 8, 'y', 3, NULL)");
        db.run("INSERT INTO INTCMMNTS VALUES (7, 0, 20, 30, 'later'), (7, 0, 10, 15, 'one'),"
               " (7, 0, 10, 12, 'two')");
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
