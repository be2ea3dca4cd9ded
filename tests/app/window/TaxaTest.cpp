// tests/app/window/TaxaTest.cpp
#include "app/window/NameText.h"
#include "taxonomy/TaxonSlots.h"
#include "tests/app/window/Cells.h"
#include "tests/app/window/WindowDesk.h"

#include <gmock/gmock.h>

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <optional>

namespace {

using testing::ElementsAre;

TEST(NameTextHtml, ItalicsAreWhereTheComposerSwitchesThem)
{
    const auto html = [](const char* marked) { return markedName(marked).html().toStdString(); };
    EXPECT_EQ("cf. <i>Alphina alba</i> Gamma 1901", html("cf. \\Alphina alba  \\Gamma 1901"));
    EXPECT_EQ("<i>Alphina</i>", html("\\Alphina ")) << "never switched back";
    EXPECT_EQ("<i>Å</i> (&lt;5 µm) d'O", html("\\Å\\ (<5 µm) d`O")) << "escaped, as people read it";
}

class TaxaPageTest : public testing::Test {
protected:
    TaxaPageTest()
    {
        desk.db.run("INSERT INTO CATEGORY VALUES ('FORAM', 'foraminifera', 'M')");
        desk.db.run("INSERT INTO GENUS (gen_id, cat_mnem, genus, sub_genus) VALUES"
                    " (1, 'FORAM', 'Alphina', NULL), (2, 'FORAM', 'Alphina', 'Deltina'),"
                    " (3, 'FORAM', 'Betina', NULL)");
        desk.db.run("INSERT INTO SPECIES (spec_id, gen_id, q1, species, author, year, alphaCode)"
                    " VALUES (10, 1, 'cf.', 'alba', 'd`Orbigny', 1826, 'A1'),"
                    " (11, 1, NULL, 'major', NULL, NULL, NULL),"
                    " (12, 2, NULL, 'alba', NULL, NULL, NULL),"
                    " (13, 3, NULL, 'alba', NULL, NULL, NULL)");
        desk.db.run("INSERT INTO SYNSCH VALUES (1, 'Scheme one'), (2, 'Scheme two')");
        desk.db.run("INSERT INTO SYNONYMY (spec_id, pref, sch_id) VALUES (11, 13, 2)");
        desk.db.run("INSERT INTO TXNOTES VALUES (10, 'a note')");
        desk.openConnected();
        desk.act("Taxa");
        tester.emplace(table().model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    }

    QTableView& table() { return desk.find<QTableView>("taxonTable"); }
    QLineEdit& field() { return desk.find<QLineEdit>("taxonSearch"); }
    std::vector<std::string> found(const char* typed)
    {
        field().setText(QString::fromUtf8(typed));
        QTest::keyClick(&field(), Qt::Key_Return);
        return shownRows(*table().model());
    }
    std::string slotText(int number)
    {
        return desk.find<QLabel>(("slot" + std::to_string(number)).c_str()).text().toStdString();
    }

    WindowDesk desk;
    std::optional<QAbstractItemModelTester> tester;
};

TEST_F(TaxaPageTest, FindsByBeginningsAndWildcards)
{
    const std::string cf = "Alphina cf. alba d'Orbigny 1826|–|FORAM|A1";
    const std::string major = "Alphina major|–|FORAM|–";
    const std::string subgenus = "Alphina (Deltina) alba|–|FORAM|–";
    const std::string betina = "Betina alba|–|FORAM|–";
    desk.find<QComboBox>("synonymyScheme").setCurrentText("Scheme one");
    EXPECT_THAT(found("bet"), ElementsAre(betina));
    EXPECT_THAT(found(" alph  MAJ "), ElementsAre(major));
    EXPECT_THAT(found("* alb"), testing::UnorderedElementsAre(cf, subgenus, betina));
    EXPECT_THAT(found("(delt"), ElementsAre(subgenus)) << "a bracket not closed yet";
    EXPECT_THAT(found("*ina m%"), ElementsAre(major));
    EXPECT_THAT(found("gamma"), ElementsAre());
    EXPECT_THAT(found("a b c d"), ElementsAre()) << "no name has four parts";
    EXPECT_THAT(found(""), ElementsAre());
}

TEST_F(TaxaPageTest, ShowsTheNameToUseOfTheSchemeAndThePartsOfTheChosen)
{
    EXPECT_THAT(found("alphina maj"), ElementsAre("Alphina major|Betina alba|FORAM|–"));
    desk.find<QComboBox>("synonymyScheme").setCurrentText("Scheme one");
    EXPECT_THAT(shownRows(*table().model()), ElementsAre("Alphina major|–|FORAM|–"));
    found("alphina alb");
    for (int row = 0; row < 2; ++row) {
        table().setCurrentIndex(table().model()->index(row, 0));
        if (slotText(slot::preSpecies) == "cf.")
            break;
    }
    EXPECT_EQ("Alphina", slotText(slot::genus));
    EXPECT_EQ("–", slotText(slot::subgenus));
    EXPECT_EQ("cf.", slotText(slot::preSpecies));
    EXPECT_EQ("d'Orbigny", slotText(slot::author));
    EXPECT_EQ("<i>Alphina</i> cf. <i>alba</i> d'Orbigny 1826",
        desk.find<QLabel>("taxonTitle").text().toStdString());
    desk.act("Read again");
    EXPECT_EQ("cf.", slotText(slot::preSpecies)) << "the chosen one stays";
    EXPECT_THAT(desk.find<QWidget>("taxonPanel").accessibleDescription().toStdString(),
        testing::HasSubstr("Notes\ta note"));
}

TEST_F(TaxaPageTest, KeysAndTypingReachEverything)
{
    desk.window->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(desk.window.get()));
    EXPECT_EQ(desk.window->focusWidget(), &field());
    QTest::keyClicks(&field(), "bet");
    QTRY_COMPARE(table().model()->rowCount(), 1);
    EXPECT_EQ(desk.window->focusWidget(), &field()) << "typing goes on";
    QTest::keyClick(&field(), Qt::Key_Down);
    EXPECT_EQ(desk.window->focusWidget(), &table());
    QTest::keyClick(desk.window.get(), Qt::Key_1, Qt::ControlModifier);
    EXPECT_FALSE(table().isVisible());
    QTest::keyClick(desk.window.get(), Qt::Key_2, Qt::ControlModifier);
    QTest::keyClick(desk.window.get(), Qt::Key_F6);
    QTest::keyClick(desk.window.get(), Qt::Key_F6);
    EXPECT_EQ(desk.window->focusWidget()->objectName(), "taxonPanel");
}

} // namespace
