// tests/app/window/WellListTest.cpp
#include "app/window/WellListPane.h"

#include "tests/app/window/Cells.h"

#include <gmock/gmock.h>

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

#include <ostream>

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

std::vector<WellName> fiveWells()
{
    return {{1, "1/10-1", "240"}, {2, "1/9-2", QString::fromUtf8("Å1001")},
        {3, QString::fromUtf8("Ørnefjell 1"), "ØR-1"}, {4, "O'Brien 2", "ob-2"},
        {5, QString::fromUtf8("Straße"), ""}};
}

class WellList : public testing::Test {
protected:
    WellList()
        : tester_(pane.list().model(), QAbstractItemModelTester::FailureReportingMode::Fatal)
    {
        QObject::connect(
            &pane, &WellListPane::wellChosen, [this](long well) { chosen.push_back(well); });
        pane.setWells(fiveWells());
    }

    std::vector<std::string> rows() const { return shownRows(*pane.list().model()); }
    std::string count() const { return pane.findChild<QLabel*>("wellCount")->text().toStdString(); }
    QLineEdit& field() { return *pane.findChild<QLineEdit*>("wellSearch"); }
    QString marked() const
    {
        const QModelIndexList selected = pane.list().selectionModel()->selectedRows();
        return selected.size() == 1 ? selected.first().data().toString() : QString();
    }
    void search(const char* text) { field().setText(QString::fromUtf8(text)); }

    WellListPane pane;
    std::vector<long> chosen;

private:
    QAbstractItemModelTester tester_;
};

struct SearchCase {
    const char* rule;
    const char* text;
    std::vector<std::string> rows;
};

void PrintTo(const SearchCase& c, std::ostream* out) { *out << c.rule; }

const SearchCase kSearches[] = {
    {"nothing leaves all, counted as people do", "",
        {"1/9-2|Å1001", "1/10-1|240", "O'Brien 2|ob-2", "Ørnefjell 1|ØR-1", "Straße|–"}},
    {"inside a name", "fjell", {"Ørnefjell 1|ØR-1"}},
    {"inside a code", "00", {"1/9-2|Å1001"}},
    {"name or code", "1", {"1/9-2|Å1001", "1/10-1|240", "Ørnefjell 1|ØR-1"}},
    {"letter case is ignored", "BRIEN", {"O'Brien 2|ob-2"}},
    {"in the other direction too", "OB-", {"O'Brien 2|ob-2"}},
    {"beyond ASCII", "ørNE", {"Ørnefjell 1|ØR-1"}},
    {"a letter whose capital is two", "STRASSE", {"Straße|–"}},
    {"an accent typed behind its letter", "a\u030A10", {"1/9-2|Å1001"}},
    {"a blank inside counts", "1 ", {"1/9-2|Å1001", "1/10-1|240", "Ørnefjell 1|ØR-1"}},
    {"blanks around do not", "  brien 2 ", {"O'Brien 2|ob-2"}},
    {"the apostrophe", "o'b", {"O'Brien 2|ob-2"}},
    {"and what it is stored as", "o`b", {"O'Brien 2|ob-2"}},
    {"no pattern", "1.9", {}},
    {"not across name and code", "2ob", {}},
    {"the missing sign is no text", "–", {}},
};

class Search : public WellList, public testing::WithParamInterface<SearchCase> {};

TEST_P(Search, LeavesTheWellsThatContainIt)
{
    search(GetParam().text);
    EXPECT_THAT(rows(), ElementsAreArray(GetParam().rows));
    EXPECT_EQ(count(), std::to_string(GetParam().rows.size()) + " of 5");
}

INSTANTIATE_TEST_SUITE_P(Rules, Search, testing::ValuesIn(kSearches));

TEST_F(WellList, ChoosesTheFirstWellByItself)
{
    EXPECT_THAT(chosen, ElementsAre(2));
    EXPECT_EQ(marked(), "1/9-2");
}

TEST_F(WellList, SearchingChoosesNothing)
{
    search("brien");
    EXPECT_EQ(marked(), "") << "the chosen well is hidden, another one must not look chosen";
    search("1/");
    EXPECT_EQ(marked(), "1/9-2");
    EXPECT_THAT(chosen, ElementsAre(2)) << "nobody chose since";
}

TEST_F(WellList, KeysLeadFromTheSearchToTheWells)
{
    search("brien");
    QTest::keyClick(&field(), Qt::Key_Return);
    EXPECT_THAT(chosen, ElementsAre(2, 4)) << "the well that was found";
    EXPECT_EQ(pane.focusWidget(), &pane.list());
}

TEST_F(WellList, EscapeAndDownWorkOnTheSearch)
{
    pane.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&pane));
    search("brien");
    pane.startSearch();
    QTest::keyClick(&field(), Qt::Key_Down);
    EXPECT_THAT(chosen, ElementsAre(2, 4));
    QTest::keyClick(&pane.list(), Qt::Key_Escape);
    EXPECT_EQ(count(), "5 of 5");
    EXPECT_EQ(marked(), "O'Brien 2");
}

TEST_F(WellList, ReadingAgainKeepsTheChosenWell)
{
    pane.list().setCurrentIndex(pane.list().model()->index(3, 0));
    std::vector<WellName> wells = fiveWells();
    wells.insert(wells.begin(), {6, "0/1", "new"});
    pane.setWells(wells);
    EXPECT_EQ(marked(), QString::fromUtf8("Ørnefjell 1"));
    pane.setWells({{6, "0/1", "new"}});
    EXPECT_EQ(marked(), "0/1") << "the chosen one is gone";
    pane.setWells({});
    EXPECT_THAT(chosen, ElementsAre(2, 3, 3, 6, 0));
}

} // namespace
