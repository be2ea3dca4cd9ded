// tests/app/WellDataTest.cpp
#include "app/shell/CollectedReports.h"
#include "app/shell/TaxonRanges.h"
#include "app/shell/WellLoading.h"
#include "db/ErrorReporter.h"
#include "db/Session.h"
#include "tests/app/ImportRun.h"
#include "tests/support/MessageLog.h"
#include "well/Sample.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class WellData : public testing::Test {
protected:
    WellData()
    {
        IssueLog issues;
        importFiles({{ZONARIS_SOURCE_DIR "/examples/synthetic"}}, issues);
        loaded = std::make_unique<LoadedWell>(1);
    }

    TestDatabase db;
    MessageLog boxes;
    std::unique_ptr<LoadedWell> loaded;
};

TEST_F(WellData, LoadsInTheOrderThatTheLoadersNeedAndKeepsWhatTheyTell)
{
    db.run("INSERT INTO SMPDTL (well_id, samp_id, analy_id) SELECT 1, 9999, analy_id FROM ANALY_HDR"
           " WHERE well_id=1 AND disc_id='N'");
    std::vector<std::string> steps;
    for (const LoadStep& step : loadAll(*loaded)) {
        steps.push_back(step.name + ' ' + std::to_string(step.count));
        for (const std::string& report : step.reports)
            steps.push_back(report);
    }
    EXPECT_THAT(steps,
        ElementsAre("samples 31", "discipline M details 37", "discipline M occurrences 96",
            "discipline N details 19", "Unmatched sample details for sample: 9999",
            "discipline N occurrences 30", "discipline P details 31", "discipline P occurrences 32",
            "events of interpretation 0 12", "sample lithology 0", "cores 2"));
    EXPECT_THAT(boxes.texts(), testing::IsEmpty());
}

TEST_F(WellData, RangesEndWhereTheCoreFindsThem)
{
    loadAll(*loaded);
    for (const char type : {'W', 'O'}) {
        for (const Suspect suspect : {Suspect::Counts, Suspect::Excluded}) {
            Well& well = loaded->well;
            well.type = type;
            TaxonList taxa;
            const auto ranges = taxonRanges(well, 'M', suspect, taxa);
            ASSERT_EQ(5U, ranges.size());
            for (const TaxonRange& range : ranges) {
                const int exclude = suspect == Suspect::Excluded;
                const auto find = [&](int mode) {
                    return well.samples.FindRangeSample(
                        range.taxon->spec_id(), mode, exclude, ~0L, 'M', !exclude, 0, 0, 0, 0, "");
                };
                EXPECT_EQ(find(type == 'O' ? 2 : 1), range.top.sample);
                EXPECT_EQ(find(type == 'O' ? 1 : 2), range.base.sample);
            }
        }
    }
}

TEST(CollectedReports, KeepWhatIsOnlyToldAndShowTheRestInOrder)
{
    MessageLog screen;
    CollectedReports reports;
    reportError("first");
    EXPECT_THAT(reports.take(), ElementsAre("first"));
    reportError("second");
    fatalError = 1;
    zMessage(nullptr, "fatal", "caption", MB_OK);
    fatalError = 0;
    EXPECT_THAT(screen.texts(), ElementsAre("second", "fatal"));
    EXPECT_THAT(reports.take(), testing::IsEmpty());
}

} // namespace
