#include "db/CurrentUser.h"
#include "db/Preferences.h"
#include "dict/EventLabels.h"
#include "dict/compStd.h"
#include "tests/support/FaultTable.h"
#include "tests/support/Restore.h"
#include "tests/taxonomy/DictionaryTest.h"

#include <algorithm>
#include <random>
#include <sstream>

namespace {

template <typename... Values> std::string joined(const Values&... values)
{
    std::ostringstream text;
    ((text << values << '|'), ...);
    return text.str();
}

/// A dictionary with events, and standards.
struct Events : Dictionary {
    Events()
    {
        db.run("INSERT INTO EVENTDIC VALUES (1, 100, 'R', 'N', 'Alpha', 'AB', '1998-03-05'),"
               " (2, 100, 'R', 'Y', 'Beta', NULL, NULL), (3, 0, 'S', 'N', 'Alpha', NULL, NULL),"
               " (4, 104, 'S', 'N', 'Alphina alba', 'CD', '1998-04-06')");
        db.run("INSERT INTO EVENTS (ev_id, well_id) VALUES (2, 7), (4, 7)");
        db.run(
            "INSERT INTO CMPSTD VALUES (7, 'Up', 'AB', '1998-03-05', 0, 100, 'Ma'),"
            " (8, 'Down', NULL, NULL, 100, 0, NULL), (9, 'Level', 'x', NULL, 5.00000001, 5, 'm')");
        db.run(
            "INSERT INTO CMPSTDEV VALUES (7, 2, 'L', 20.5), (7, 9, 'F', 10), (7, 1, 'S', 30),"
            " (8, 2, 'F', 20), (8, 1, 'F', 10), (8, 3, 'F', 30), (9, 1, 'F', 2), (9, 2, 'F', 1)");
    }
    EVdictList dictionary;
    const Restore<FixedText<19>> top{eventTopPrefix, "Top"}, base{eventBasePrefix, "Base of "};
};

std::string textOf(const EVdict& e)
{
    return joined(e.ev_id(), e.spec_id, e.ev_type, e.generate, e.name(), e.creator.view(),
        e.created == Date::Today() ? "today" : e.created.isoText());
}

std::string textOf(const compStd& s)
{
    std::string text = joined(s.std_id, s.name, s.creator,
        s.created == Date::Today() ? "today" : s.created.isoText(), s.topcsu, s.basecsu, s.units);
    for (const auto& event : s.events) {
        char label[kEventLabelRoom];
        event->label(label);
        text += joined(event->csu, label);
    }
    return text;
}

Taxon withId(long spec_id)
{
    Taxon taxon;
    taxon.setSpecId(spec_id);
    return taxon;
}

/// The statements of the session about events and standards, bare table names behind "@";
/// reads by identifier are left out.
Texts sentTo(const StatementLog& log)
{
    Texts sent;
    for (std::string statement : log.statements()) {
        for (const char* name : {"EVENT", "CMPSTD"}) {
            const auto at = statement.find(table(name));
            if (at != statement.npos && !statement.starts_with("SELECT spec_id, ev_type"))
                sent.push_back(statement.replace(at, testSettings().prefix.size(), "@"));
        }
    }
    return sent;
}

TEST(Events, AreReadAndNeverAdded)
{
    Events events;
    const Texts read{textOf(EVdict(1L)), textOf(EVdict(9L)), textOf(EVdict("Beta")),
        textOf(EVdict("Alpha", nullptr, 'S', 'N')), textOf(EVdict(104, 'S', 'N')),
        textOf(EVdict(104, 'S', 'Y')), textOf(EVdict("C", "D", nullptr, 'R', 'Y')),
        textOf(EVdict("Beta", nullptr, 'S', 'Y')), textOf(EVdict(99, 'S', 'Y'))};
    EXPECT_EQ((Texts{"1|100|R|N|Alpha|AB|1998-03-05|", "9|0| |N|||today|", "2|100|R|Y|Beta|||",
                  "3|0|S|N|Alpha|||", "4|104|S|N|Alphina alba|CD|1998-04-06|",
                  "4|104|S|Y|Alphina alba|CD|1998-04-06|", "0|0| |N|D||today|",
                  "0|0|S|Y|Beta||today|", "0|99|S|Y|Alphina betana minor||today|"}),
        read);
    EXPECT_EQ((Texts{"Event dictionary with id=0", "Attempt to add event"}), events.screen.texts());
    char paired[EVdict::kTextRoom], single[EVdict::kTextRoom];
    EVdict alpha(1L), bare(3L);
    alpha.describe(paired);
    bare.describe(single);
    EXPECT_EQ("Alpha:   Alphina betana  (paired)|Alpha:   (No taxon)  (single)|FORAM|EV|",
        joined(paired, single, alpha.categoryText(), bare.categoryText()));
}

TEST(Events, AreWritten)
{
    Events events;
    EVdict alpha(1L), beta(2L);
    const StatementLog log;
    EXPECT_EQ((std::vector{1, 0, 0, 0}),
        (std::vector{alpha.setGenerate('Y'), beta.setGenerate('Y'), beta.setGenerate('N'),
            alpha.setGenerate('Y')}));
    Taxon taxon = withId(104);
    EXPECT_EQ("2|104|S|N|It's|||", textOf(EVdict("Beta", "It's", &taxon, 'S', 'N')));
    const std::string longest(99, 'x');
    alpha.rename((longest + "é").c_str());
    EXPECT_EQ(1, EVdict((longest + "é").c_str()).ev_id());
    EVdict(4L).deleteEvent();
    const std::string set = "UPDATE @EVENTDIC SET ",
                      another = "SELECT generate FROM @EVENTDIC WHERE "
                                "spec_id=100 AND ev_type='R' AND name <>'Alpha' AND generate='Y'";
    const std::string byName = "SELECT ev_id, spec_id, creator, created, ev_type, generate FROM "
                               "@EVENTDIC WHERE name='";
    EXPECT_EQ((Texts{another, set + "generate='N' WHERE ev_id=2", another,
                  set + "generate='Y' WHERE ev_id=1", byName + "Beta'",
                  set + "name='It`s',ev_type='S',spec_id=104 WHERE ev_id=2",
                  set + "name='" + longest + "' WHERE ev_id=1", byName + longest + "'",
                  "DELETE FROM @EVENTDIC WHERE ev_id=4", "DELETE FROM @EVENTS WHERE ev_id=4"}),
        sentTo(log));
    dbCommit();
    EXPECT_EQ((Texts{"100|R|Y|" + longest, "104|S|N|It`s", "0|S|N|Alpha"}),
        events.db.rows("SELECT spec_id, ev_type, generate, name FROM EVENTDIC"));
    EXPECT_EQ("2", events.db.value("SELECT group_concat(ev_id) FROM EVENTS"));
}

TEST(CompStd, ListsItsEventsInScaleOrder)
{
    Events events;
    EVdict* beta = findOrRead(events.dictionary, 2);
    const StatementLog log;
    compStd up("Up", events.dictionary);
    const Texts read{textOf(up), textOf(compStd(8L, events.dictionary)),
        textOf(compStd(9L, events.dictionary)), textOf(compStd("None", events.dictionary))};
    EXPECT_EQ((Texts{"7|Up|AB|1998-03-05|0|100|Ma|10|Top |20.5|Base of Beta|30|Alpha|",
                  "8|Down|||100|0||30|Top Alpha|20|Top Beta|10|Top Alpha|",
                  "9|Level|x||5|5|m|1|Top Beta|2|Top Alpha|", "0|None||today|0|0|CSU|"}),
        read);
    EXPECT_EQ(
        (std::vector{0, 1, 1}), (std::vector{up.nameInUse(7), up.nameInUse(8), up.nameInUse(0)}));
    up.loadEvents(events.dictionary);
    EXPECT_EQ(3U, up.events.size());
    EXPECT_EQ(beta, up.events[1]->entry);
    EXPECT_EQ(4, events.dictionary.count());
    Texts sent = sentTo(log);
    sent.resize(2);
    EXPECT_EQ((Texts{"SELECT std_id, creator, created, topcsu, basecsu, units  FROM @CMPSTD WHERE "
                     "name='Up'",
                  "SELECT ev_id, ev_type, csu FROM @CMPSTDEV WHERE std_id=7 ORDER BY csu"}),
        sent);
}

TEST(EventDictionary, InsertsAndFindsAsAWalkWould)
{
    Events events;
    std::vector<EVdict*> plain;
    std::mt19937 random(7);
    for (int i = 0; i < 200; ++i) {
        auto* entry = new EVdict(static_cast<long>(1 + random() % 9));
        if (i % 50 == 20)
            plain[random() % plain.size()]->rename("Bz");
        const auto place = std::find_if(plain.begin(), plain.end(),
            [entry](const EVdict* e) { return e->nameView() > entry->nameView(); });
        const auto examined = place - plain.begin() + (place != plain.end());
        EXPECT_EQ(examined, insertByName(events.dictionary, entry)) << i;
        plain.insert(place, entry);
        const auto first = std::find_if(plain.begin(), plain.end(),
            [entry](const EVdict* e) { return e->ev_id() == entry->ev_id(); });
        EXPECT_EQ(*first, findById(events.dictionary, entry->ev_id())) << i;
    }
    EXPECT_EQ(plain, std::vector<EVdict*>(events.dictionary.begin(), events.dictionary.end()));
}

TEST(EventLabels, BeginWithTheWordsOfTheUser)
{
    Events events;
    char top[kEventLabelRoom], base[kEventLabelRoom];
    for (const auto& [user, labels] : {std::pair(1, "Top of X|Base of X|"),
             {3, "Top X|Sole of the range x X|"}, {4, "X|Base of X|"}}) {
        const Restore<int> current(currentUserId, user);
        if (user > 1)
            prefPut(user, "TOPPFX", user == 3 ? "Top" : "");
        if (user == 3)
            prefPut(user, "BASEPFX", "Sole of the range xy");
        loadEventPrefixes();
        eventLabel(top, 'F', "X");
        eventLabel(base, 'L', "X");
        EXPECT_EQ(labels, joined(top, base));
    }
}

const FaultCase<Events> kFaults[] = {
    {"identifier", [](Events&) { return joined(EVdict(1L).name()); },
        {{1, "SELECT spec_id, ev_type", "|", "|", true}}},
    {"generating",
        [](Events&) {
            EVdict event("Alpha");
            const int result = event.setGenerate('Y');
            return joined(event.ev_id(), result, event.generate);
        },
        {{1, "SELECT ev_id, spec_id", "0|0|Y|", "0|0|Y|", true},
            {2, "SELECT generate", "1|1|N|", "1|0|Y|", true}}},
    {"written",
        [](Events& t) {
            EVdict("Beta", "Beth", nullptr, 'S', 'N').rename("Gamma");
            EVdict(3L).deleteEvent();
            dbCommit();
            return t.db.value("SELECT group_concat(name || ev_type || generate) FROM EVENTDIC "
                              "WHERE ev_id IN (2, 3)");
        },
        {{1, "SELECT ev_id, spec_id", "BetaRY", "BetaRY", true}, {2, "UPDATE", "GammaRY", "", true},
            {3, "UPDATE", "GammaRY", "", true}, {4, "UPDATE", "BetaRY", "", true},
            {6, "DELETE", "BetaRY,AlphaSN", "", true}, {7, "DELETE", "BetaRY,AlphaSN", "", true}}},
    {"taxon", [](Events&) { return textOf(EVdict(104, 'S', 'Y')); },
        {{3, "SELECT ev_id, name", "0|104|S|Y|||today|", "", true},
            {4, "SELECT ev_id, creator", "0|104|S|Y|Alphina alba||today|", "", true}}},
    {"standard", [](Events& t) { return textOf(compStd(8L, t.dictionary)); },
        {{1, "SELECT name", "0|||today|0|0|CSU|", "0|||today|0|0|CSU|"},
            {2, "SELECT ev_id, ev_type", "8|Down|||100|0||", "8|Down|||100|0||"},
            {3, "SELECT spec_id", "8|Down|||100|0||30|Top |", "", true}}},
};

TEST(EventFaults, LeaveWhatWasReadAndAreReported) { expectFaults(kFaults); }
TEST(EventFaults, EndTheProcessWhereTheyAreFatal) { expectEnds(kFaults); }

} // namespace
