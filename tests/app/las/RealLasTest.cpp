#include "app/las/LasFile.h"
#include "app/las/LasWriter.h"
#include "tests/app/ImportRun.h"
#include "tests/app/RealData.h"
#include "well/Well.h"

#include <algorithm>
#include <sstream>

#include <gmock/gmock.h>

namespace {

std::size_t rowsIn(const LasFile& file, const char* title)
{
    const LasSection* section = file.section(title);
    return section ? section->rows.size() : 0;
}

TEST(RealLas, EveryWellKeepsItsZonesAndCores)
{
    if (!std::filesystem::is_directory(kData / "npd_wells"))
        GTEST_SKIP() << "the real data sets are not beside the repository";
    TestDatabase db;
    IssueLog log;
    ASSERT_EQ("", importFiles({{kData / "npd_wells"}, false}, log).failure);
    for (const std::string& number : db.rows("SELECT well_id FROM WELL_IDENT")) {
        Well well(std::stol(number));
        const LasExport made = lasExportOf(well);
        ASSERT_EQ("", made.error) << number;
        std::istringstream in(made.content);
        std::vector<std::string> problems;
        const LasFile file = readLas(in, &problems);
        std::vector<std::string> names;
        if (const LasSection* tops = file.section("Tops_Data"))
            for (const LasRow& row : tops->rows)
                names.push_back(row.fields.at(0) + ' ' + row.fields.at(5));
        std::sort(names.begin(), names.end());
        EXPECT_EQ(db.rows("SELECT upp_inf || ' ' || hier FROM IGD WHERE well_id=" + number
                      + " ORDER BY 1"),
            names);
        EXPECT_EQ(db.value("SELECT count(*) FROM CORES WHERE well_id=" + number),
            std::to_string(rowsIn(file, "Core_Data")));
    }
}

} // namespace
