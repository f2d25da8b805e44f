#include "facts/found_reasons.h"
#include "facts/found_text.h"
#include "facts/groups.h"
#include "facts/query.h"
#include "facts/query_order.h"
#include "facts/small_season.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kavela::test {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Queries : public testing::Test {
protected:
    Queries() { m_facts.add(smallRace(), "race.kvx"); }

    /// Every row's values, those of the named columns apart by blanks.
    [[nodiscard]] std::vector<std::string> found(const std::string& query,
                                                 const std::vector<std::string>& names) const {
        const QueryAnswer answered = answer(m_facts, parsedQuery(query));
        std::vector<std::string> rows;
        for (std::size_t row = 0; row < answered.size(); ++row) {
            std::string line;
            for (const std::string& name : names)
                for (std::size_t i = 0; i < answered.columns().size(); ++i)
                    if (answered.columns()[i].name == name)
                        line += (line.empty() ? "" : "|") + answered.text(row, i);
            rows.push_back(line);
        }
        return rows;
    }

    FactStore m_facts;
};

TEST_F(Queries, TheExamplesOfTheGuide) {
    EXPECT_THAT(found("gates up left cat K1W time<4 year 2026", {"athlete", "gate", "time"}),
                ElementsAre("BELL Anna|3|3.50"));
    EXPECT_THAT(found("runs athlete \"Bell Anna\" place Troja", {"athlete", "total"}),
                ElementsAre("BELL Anna|92.00", "Anna Bell|"));
    EXPECT_THAT(found("best sprint by athlete", {"athlete", "count", "best", "mean"}),
                ElementsAre("BELL Anna|2|8.00|8.50"));
}

TEST_F(Queries, EveryKindOfRows) {
    EXPECT_THAT(found("sections section 2", {"athlete", "time"}),
                ElementsAre("BELL Anna|50.00", "Cole Bea|48.00", "Dún Cy / Eck Di|", "Anna Bell|"));
    EXPECT_THAT(found("sections up time<49", {"athlete", "type"}), ElementsAre("Cole Bea|up"));
    EXPECT_THAT(found("penalties sort gate", {"athlete", "gate", "seconds", "kind"}),
                ElementsAre("Dún Cy / Eck Di|1|50|missed", "BELL Anna|3|2|touch"));
    EXPECT_THAT(found("penalties up", {"gate"}), ElementsAre("3"));
    EXPECT_THAT(found("losses reason wide lost<0", {"versus", "lost"}),
                ElementsAre("Bell Anna|-0.40"));
    EXPECT_THAT(found("tags text boof", {"tag"}), ElementsAre("Late"));
    EXPECT_THAT(found("strokes", {"athlete"}), IsEmpty());
    EXPECT_THAT(found("runs cat MK1", {"athlete"}), IsEmpty());
}

TEST_F(Queries, AValueThatIsNotKnownMeetsNothing) {
    EXPECT_THAT(found("runs total!=1", {"athlete"}), ElementsAre("BELL Anna", "Cole Bea"));
    EXPECT_THAT(found("runs total>0 sort total down", {"athlete", "total"}),
                ElementsAre("BELL Anna|92.00", "Cole Bea|89.00"));
}

TEST_F(Queries, RanksAndDays) {
    EXPECT_THAT(found("runs rank 1", {"athlete", "rank"}), ElementsAre("Cole Bea|1"));
    EXPECT_THAT(found("runs date>=2026-05 date<2026-05-12 first 1", {"date"}),
                ElementsAre("2026-05-11"));
    EXPECT_THAT(found("runs date>2026-05", {"date"}), IsEmpty());
}

TEST_F(Queries, GroupsHaveTheirFigures) {
    EXPECT_THAT(found("sections by section", {"section", "count", "best", "median"}),
                ElementsAre("1|2|40.00|40.50", "2|4|48.00|49.00"));
    EXPECT_THAT(found("runs by cat, phase sort count down first 1", {"cat", "phase", "count"}),
                ElementsAre("K1W|Final|2"));
}

TEST_F(Queries, EveryNumberSaysWhereItStandsAndWhatItIsMadeOf) {
    const QueryAnswer rows = answer(m_facts, parsedQuery("sections section 2 time<49"));
    ASSERT_EQ(rows.size(), 1U);
    std::size_t told = 0;
    for (std::size_t column = 0; column < rows.columns().size(); ++column) {
        const auto reason = explainFound(rows, 0, column);
        EXPECT_EQ(reason.has_value(),
                  isNumber(rows.columns()[column]) && !std::isnan(rows.value(0, column).number));
        if (!reason)
            continue;
        ++told;
        EXPECT_EQ(reason->shown, rows.text(0, column));
        ASSERT_THAT(reason->inputs, testing::SizeIs(1));
        EXPECT_EQ(reason->inputs[0].place->run, 1U);
        EXPECT_EQ(reason->inputs[0].place->split, 2U);
    }
    EXPECT_GT(told, 1U);

    const QueryAnswer groups = answer(m_facts, parsedQuery("sections by section"));
    for (std::size_t group = 0; group < groups.size(); ++group)
        for (std::size_t column = 1; column < groups.columns().size(); ++column) {
            const auto reason = explainFound(groups, group, column);
            ASSERT_TRUE(reason) << groups.columns()[column].name;
            double sum = 0;
            for (const Input& input : reason->inputs)
                sum += input.value;
            const auto count = static_cast<double>(reason->inputs.size());
            if (groups.columns()[column].name == "count") {
                EXPECT_EQ(sum, reason->value);
            } else if (groups.columns()[column].name == "mean") {
                EXPECT_DOUBLE_EQ(sum / count, reason->value);
            }
        }
    EXPECT_FALSE(explainFound(groups, groups.size(), 0));
}

TEST_F(Queries, HundredsOfGroupsAreToldApart) {
    constexpr std::size_t Places = 200;
    for (std::size_t i = 1; i <= Places; ++i)
        m_facts.add(smallRace("Weir " + std::to_string(i)), "more.kvx");
    const auto places = found("sections place weir by place, section", {"place", "count"});
    ASSERT_EQ(places.size(), 2 * Places);
    EXPECT_EQ(places[2 * 8], "Weir 9|2") << "9 stands before 10";
    EXPECT_EQ(places[2 * 9], "Weir 10|2");
    EXPECT_EQ(places.back(), "Weir 200|4");
}

TEST_F(Queries, RowsAreSortedByWhatTheyTell) {
    EXPECT_THAT(found("penalties sort athlete down", {"athlete", "gate"}),
                ElementsAre("Dún Cy / Eck Di|1", "BELL Anna|3"));
    EXPECT_THAT(found("sections section 2 sort time down", {"time"}),
                ElementsAre("50.00", "48.00", "", ""))
        << "what has no time is last either way";
    EXPECT_THAT(found("penalties best seconds", {"gate"}), ElementsAre("3"));
    EXPECT_THAT(found("sections best pen sort time", {"athlete", "time"}),
                ElementsAre("BELL Anna|40.00", "Cole Bea|41.00", "Cole Bea|48.00",
                            "Dún Cy / Eck Di|", "Anna Bell|"));
}

/// Many are put in order another way than few.
TEST(QueryOrder, IsThatOfTheValuesHoweverManyThereAre) {
    for (const std::size_t count : {std::size_t{500}, std::size_t{20000}}) {
        std::vector<double> values;
        for (std::size_t i = 0; i < count; ++i)
            values.push_back(i % 17 == 0 ? NotKnown
                                         : static_cast<double>(i * 7919 % 401) / 8 - 20 +
                                               static_cast<double>(i % 3) * 1e-12);
        for (const bool isDown : {false, true}) {
            std::vector<std::uint32_t> expected(count);
            std::iota(expected.begin(), expected.end(), 0U);
            std::ranges::stable_sort(expected, [&](std::uint32_t a, std::uint32_t b) {
                if (std::isnan(values[a]) || std::isnan(values[b]))
                    return std::isnan(values[b]) && !std::isnan(values[a]);
                return isDown ? values[a] > values[b] : values[a] < values[b];
            });
            EXPECT_EQ(orderOf(values, isDown), expected) << count << isDown;
            auto first = orderOf(values, isDown, 30);
            ASSERT_GE(first.size(), 30U);
            first.resize(30);
            expected.resize(30);
            EXPECT_EQ(first, expected) << count << isDown;
        }
    }
    EXPECT_THAT(orderOf(std::vector{0.0, -0.0, -1.0}, true), ElementsAre(0, 1, 2));
}

TEST_F(Queries, ARowIsSeenOnItsFilm) {
    const QueryAnswer gates = answer(m_facts, parsedQuery("gates left"));
    ASSERT_EQ(gates.size(), 1U);
    EXPECT_EQ(gates.place(0).section, 2U);
    EXPECT_DOUBLE_EQ(gates.place(0).at, 20);
    const QueryAnswer tags = answer(m_facts, parsedQuery("tags"));
    EXPECT_DOUBLE_EQ(tags.place(0).at, 7);
}

TEST_F(Queries, CompetitorsAreOfOneCategoryAndPhase) {
    EXPECT_THAT(groupsOf(m_facts), ElementsAre(ElementsAre(0, 1), ElementsAre(2), ElementsAre(3)));
    EXPECT_THAT(categoriesOf(m_facts), ElementsAre(ElementsAre(0, 1, 3), ElementsAre(2)));
}

struct Wrong {
    const char* query;
    std::size_t place;
    const char* text;
    const char* nearest;
};

class WrongQueries : public testing::TestWithParam<Wrong> {};

TEST_P(WrongQueries, AreToldWithTheirPlace) {
    try {
        (void)parsedQuery(GetParam().query);
        FAIL() << GetParam().query;
    } catch (const QueryError& error) {
        EXPECT_EQ(error.place(), GetParam().place) << GetParam().query;
        EXPECT_THAT(error.what(), HasSubstr(GetParam().text));
        if (*GetParam().nearest) {
            EXPECT_THAT(error.nearest(), Contains(GetParam().nearest));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, WrongQueries,
                         testing::Values(Wrong{"gates leff", 6, "means nothing", "left"},
                                         Wrong{"gatse", 0, "means nothing", "gates"},
                                         Wrong{"runs entrance<2", 5, "but of gates", ""},
                                         Wrong{"runs athlete Bell Anna", 18, "in quotes", ""},
                                         Wrong{"runs place", 10, "needs a value", ""},
                                         Wrong{"runs place<Troja", 10, "by = and !=", ""},
                                         Wrong{"gates time<fast", 11, "no number", ""},
                                         Wrong{"penalties kind tuch", 15, "is no kind", "touch"},
                                         Wrong{"runs date 2026-13", 10, "no day", ""},
                                         Wrong{"runs title \"Cup", 11, "not closed", ""},
                                         Wrong{"runs by total", 8, "of its own", ""},
                                         Wrong{"runs sort mean", 10, "means nothing", ""},
                                         Wrong{"runs first 0", 11, "no number of rows", ""},
                                         Wrong{"runs cat by athlete", 9, "needs a value", ""}));

TEST(QueryText, IsWrittenInOneWayThatReadsBack) {
    for (const auto* const text :
         {"gates up left cat K1W time<4 year 2026", "runs best sprint by athlete, cat",
          "runs text!=\"a \"\"b\"\" c\" sort total down first 3",
          "penalties spin by gate sort count down"})
        EXPECT_EQ(textOf(parsedQuery(text)), text);
    EXPECT_EQ(textOf(parsedQuery("BEST Sprint by athlete by cat category=k1")),
              "runs cat k1 best sprint by athlete, cat");
}

} // namespace

} // namespace kavela::test
