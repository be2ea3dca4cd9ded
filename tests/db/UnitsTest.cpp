// tests/db/UnitsTest.cpp
#include "db/Units.h"

#include <gtest/gtest.h>

namespace {

TEST(Units, FeetAreConvertedAndNothingElse)
{
    EXPECT_FLOAT_EQ(304.8F, toMetres(1000, 'F'));
    EXPECT_FLOAT_EQ(3280.8398F, fromMetres(1000, 'F'));
    for (const char units : {'M', 'f', '\0', ' '}) {
        EXPECT_EQ(1000.5F, toMetres(1000.5F, units));
        EXPECT_EQ(1000.5F, fromMetres(1000.5F, units));
    }
}

TEST(Units, ShownDepths)
{
    const struct {
        const char* rule;
        float value;
        char units;
        int decimals, stripZeros;
        const char* text;
    } rows[] = {
        {"feet, one decimal", 1234.56F, 'F', 1, 0, "  1234.6'"},
        {"feet, none", 1234.56F, 'F', 0, 0, "    1235'"},
        {"metres, one decimal", 1234.56F, 'M', 1, 0, "  1234.6m"},
        {"any other unit has the feet mark", 12, 'x', 0, 0, "      12'"},
        {"half rounds away from zero", 2.5F, 'M', 0, 0, "       3m"},
        {"negative half too", -2.5F, 'M', 0, 0, "      -3m"},
        {"half of the first decimal", 0.25F, 'M', 1, 0, "     0.3m"},
        {"negative half of it", -0.25F, 'M', 1, 0, "    -0.3m"},
        {"no sign at zero", -0.25F, 'M', 0, 0, "       0m"},
        {"nor with a decimal", -0.01F, 'M', 1, 0, "     0.0m"},
        {"two decimals", 1234.5F, 'M', 2, 0, " 1234.50m"},
        {"stripped decimals", 1234.5F, 'M', 2, 1, " 1234.5m"},
        {"stripped point", 1234, 'M', 2, 1, " 1234m"},
        {"integer zeros stay", 1200, 'M', 0, 1, "    1200m"},
        {"wider than the field", 1234567.5F, 'M', 2, 0, "1234567.50m"},
    };
    for (const auto& row : rows) {
        char out[32];
        formatDepth(out, row.value, row.units, row.decimals, row.stripZeros);
        EXPECT_STREQ(row.text, out) << row.rule;
    }
}

} // namespace
