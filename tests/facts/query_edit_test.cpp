#include "facts/query_edit.h"

#include "facts/found_text.h"
#include "facts/query_completion.h"
#include "facts/small_season.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

/// What a field that is changed makes of a query.
struct Change {
    const char* name;
    const char* query;
    Query (*change)(const Query& query);
    const char* expected;
};

class QueryEdits : public testing::TestWithParam<Change> {};

TEST_P(QueryEdits, ChangeTheirPartAlone) {
    const Query changed = GetParam().change(parsedQuery(GetParam().query));
    EXPECT_EQ(textOf(changed), GetParam().expected);
    EXPECT_EQ(textOf(parsedQuery(textOf(changed))), GetParam().expected) << "it reads back";
}

INSTANTIATE_TEST_SUITE_P(
    All, QueryEdits,
    testing::Values(
        Change{"InItsPlace", "gates up left time<4",
               [](const Query& q) { return withAsked(q, "direction", "right"); },
               "gates up right time<4"},
        Change{"Behind", "gates up", [](const Query& q) { return withAsked(q, "cat", "K1W"); },
               "gates up cat K1W"},
        Change{"Away", "gates cat K1W left", [](const Query& q) { return withAsked(q, "cat", ""); },
               "gates left"},
        Change{"SeveralWords", "runs",
               [](const Query& q) { return withAsked(q, "athlete", "bell \"Anna M\""); },
               "runs athlete bell athlete \"Anna M\""},
        Change{"OtherComparisonsStay", "runs cat!=K1M cat K1W",
               [](const Query& q) { return withAsked(q, "cat", "C1W"); }, "runs cat!=K1M cat C1W"},
        Change{"LabelOfManyColumnsKeepsItsName", "penalties",
               [](const Query& q) { return withAsked(q, "way", "head"); }, "penalties way head"},
        Change{"Limit", "gates time<4 time>2",
               [](const Query& q) { return withLimit(q, "time", Limit::Most, "3.85"); },
               "gates time<=3.85 time>2"},
        Change{"StrictLimit", "gates",
               [](const Query& q) { return withLimit(q, "time", Limit::Least, ">3"); },
               "gates time>3"},
        Change{"GroupsTakeTheSortAway", "gates sort time",
               [](const Query& q) { return withGroups(q, "athlete, cat"); },
               "gates by athlete, cat"},
        Change{"SortOfGroups", "gates by athlete",
               [](const Query& q) { return withSort(q, "count", true); },
               "gates by athlete sort count down"},
        Change{"OtherRows", "gates up cat K1W time<4 by gate sort gate first 3",
               [](const Query& q) { return aboutRows(q, What::Runs); },
               "runs cat K1W time<4 first 3"}),
    [](const auto& change) { return change.param.name; });

} // namespace

TEST(QueryEdit, TellsWhatIsWrongAtItsPlaceInTheField) {
    const Query query = parsedQuery("gates");
    try {
        (void)withAsked(query, "direction", "left rihgt");
        ADD_FAILURE();
    } catch (const QueryError& error) {
        EXPECT_EQ(error.place(), 5U);
        EXPECT_EQ(error.length(), 5U);
        EXPECT_THAT(error.nearest(), Contains("right"));
    }
    EXPECT_THROW((void)withAsked(query, "cat", "K1W, K1M"), QueryError);
    EXPECT_THROW((void)withLimit(query, "time", Limit::Most, "3 left"), QueryError);
    EXPECT_THROW((void)withLimit(query, "time", Limit::Most, ">3"), QueryError);
    EXPECT_THROW((void)withGroups(query, "time"), QueryError);
    EXPECT_THROW((void)withFirst(query, "0"), QueryError);
    EXPECT_EQ(limitText(parsedQuery("gates time<4"), "time", Limit::Most), "<4");
    EXPECT_EQ(askedText(parsedQuery("gates athlete \"A B\" athlete c"), "athlete"), "\"A B\" c");
}

TEST(QueryCompletion, OffersWhatMayStandThere) {
    const ValuesOf values = [](What, const QueryColumn& column) {
        return column.name == "athlete" ? std::vector<std::string>{"Žofie Bell", "Bo"}
                                        : std::vector<std::string>{column.labels ? "left" : "7"};
    };
    const auto words = [&](std::string_view text) {
        return completionAt(text, text.size(), values).words;
    };
    EXPECT_THAT(words("ga"), ElementsAre("gates"));
    EXPECT_THAT(words("gates athlete be"), ElementsAre("\"Žofie Bell\""));
    EXPECT_THAT(words("gates athlete=zof"), ElementsAre("\"Žofie Bell\"")) << "without accents";
    EXPECT_THAT(words("gates athlete \"Žo"), ElementsAre("\"Žofie Bell\"")) << "in an open quote";
    EXPECT_THAT(words("gates athlete bo le"), Contains("left"));
    EXPECT_THAT(words("runs athlete bo le"), IsEmpty()) << "runs have no side";
    EXPECT_THAT(words("gates by athlete, "), Contains("gate"));
    EXPECT_THAT(words("gates by athlete, "), Not(Contains("time")));
    EXPECT_THAT(words("gates best "), Contains("time"));
    EXPECT_THAT(words("gates sort time d"), Contains("down"));
    EXPECT_THAT(words("text "), IsEmpty()) << "anything may be written";
    EXPECT_THAT(words("nonsense ! gates "), testing::SizeIs(testing::Le(MostCompletions)));
    const Completion quoted = completionAt("gates athlete \"Žo x", 17, values);
    EXPECT_EQ(quoted.place, 14U);
    EXPECT_EQ(quoted.length, 3U) << "up to the cursor, in bytes";
    EXPECT_EQ(quotedValue("by"), "\"by\"");
    EXPECT_EQ(quotedValue("a \"b\""), "\"a \"\"b\"\"\"");
}

/// Every group opens to as many rows as it counted, the one of its least value first.
TEST(QueryGroups, OpenToTheirRows) {
    FactStore facts;
    facts.add(smallRace(), "race.kvx");
    for (const char* const text :
         {"gates by athlete", "runs by cat, phase best total", "sections by type",
          "penalties by kind", "runs by rank", "gates time>0 by gate first 1"}) {
        const QueryAnswer groups = answer(facts, parsedQuery(text));
        ASSERT_GT(groups.size(), 0U) << text;
        for (std::size_t group = 0; group < groups.size(); ++group) {
            const QueryAnswer rows = rowsOfGroup(groups, group);
            const std::size_t keys = groups.query().by.size();
            EXPECT_EQ(static_cast<double>(rows.size()), groups.value(group, keys).number) << text;
            ASSERT_GT(rows.size(), 0U) << text;
            EXPECT_EQ(shownPlace(rows, 0), shownPlace(groups, group)) << text;
        }
    }
}

} // namespace kavela::test
