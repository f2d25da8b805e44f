#include "cli/program.h"
#include "common/json_encode.h"
#include "splitdata/document.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <algorithm>

/// The call that rates penalties.
namespace kavela::test {

namespace {

using nlohmann::json;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

std::string raceWithPenalties() {
    splittakerdata031 race;
    race.info.session = "Race";
    race.info.gates = 3;
    race.info.upGates = {2};
    race.info.definedsections = {{1, 2}, {3}};
    race.info.totalsplits = 2;
    for (int i = 0; i < 7; ++i) {
        athletedata031 run;
        run.names = {"Crew " + std::to_string(i)};
        run.cat = "K1W";
        run.phase = "Heats";
        run.sectioninfo.times = {40, i == 6 ? 35.0 : 41.0 + i};
        run.sectioninfo.pens = {0, i < 3 ? 2 : 0, i == 6 ? 50 : 0};
        run.sectioninfo.totalpen = run.sectioninfo.pens[1] + run.sectioninfo.pens[2];
        race.athletes.push_back(run);
    }
    race.athletes[5].sectioninfo.pens = {0, 0}; // by section
    return encode(race);
}

class PenaltyCalls : public testing::Test {
protected:
    PenaltyCalls() {
        std::filesystem::create_directory(m_kavela.folder().path() / "season");
        (void)m_kavela.folder().add("season/cup.kvx", raceWithPenalties());
    }

    [[nodiscard]] Ending call(const std::vector<std::string>& arguments) const {
        return m_kavela.call(arguments);
    }

    Program m_kavela;
};

std::size_t longestLine(const std::string& text) {
    std::size_t longest = 0;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        longest = std::max(longest, end - at);
        at = end + 1;
    }
    return longest;
}

} // namespace

TEST_F(PenaltyCalls, PrintOneDocumentWithAllThatIsKnown) {
    const auto before = m_kavela.everything();
    const Ending ending = call({"penalties", "season/cup.kvx", "--json"});
    ASSERT_EQ(ending.status, 0) << ending.errors;
    const json shown = json::parse(ending.output);
    EXPECT_EQ(shown["by"], "gate");
    EXPECT_EQ(shown["runs"], 6);
    EXPECT_EQ(shown["leftOut"], 1);
    EXPECT_EQ(shown["clean"]["count"], 2);
    EXPECT_EQ(shown["clean"]["of"], 6);
    EXPECT_TRUE(shown["prior"]["strength"].is_number());
    ASSERT_EQ(shown["rows"].size(), 3U);
    const json& row = shown["rows"][0];
    EXPECT_EQ(row["key"], "2");
    EXPECT_EQ(row["touches"]["count"], 3);
    EXPECT_EQ(row["touches"]["rate"], 0.5);
    EXPECT_EQ(row["missed"]["count"], 0);
    for (const char* figure : {"rate", "low", "high", "above"})
        EXPECT_TRUE(row["shrunk"][figure].is_number()) << figure;
    EXPECT_EQ(shown["details"]["noted"], 0);
    EXPECT_EQ(shown["details"]["rows"][0]["code"], nullptr) << "four that nobody noted";
    ASSERT_EQ(shown["costs"].size(), 4U);
    EXPECT_EQ(shown["costs"][2],
              json::parse(R"({"file":"season/cup.kvx","run":2,"gate":2,"section":1,"seconds":2,
                              "rank":4,"without":1,"places":3,"medal":true,"of":7})"));
    EXPECT_EQ(shown["tradeoff"]["rows"].size(), 3U);
    EXPECT_EQ(shown["tradeoff"]["rows"][0]["third"], 1);
    EXPECT_TRUE(shown["tradeoff"]["breakEven"].is_number());
    EXPECT_EQ(m_kavela.everything(), before) << "nothing is written";
}

TEST_F(PenaltyCalls, TellThemPlainlyInAPipe) {
    const Ending ending = call({"penalties", "season", "--by", "type", "--csv", "rates.csv"});
    ASSERT_EQ(ending.status, 0) << ending.errors;
    EXPECT_THAT(ending.output, AllOf(HasSubstr("Penalties by type"), HasSubstr("1 run left out"),
                                     HasSubstr("upstream"), HasSubstr("7th of 7, without 1st"),
                                     HasSubstr("A missed gate also saved paddling"),
                                     HasSubstr("1 % of speed pays for"), Not(HasSubstr("\x1b["))));
    EXPECT_LE(longestLine(ending.output), 110U) << "bytes, dashes count three";
    const std::string csv = contentOf(m_kavela.folder().path() / "rates.csv");
    EXPECT_THAT(csv, AllOf(HasSubstr("type;Passages;Touches;"), HasSubstr("\nup;6;3;0.5;")));
    EXPECT_EQ(std::ranges::count(csv, '\n'), 3);
}

TEST_F(PenaltyCalls, ExplainANumberByItsPassages) {
    const Ending ending = call({"penalties", "season/cup.kvx", "--why", "rate/gate/2"});
    EXPECT_EQ(ending.status, 0) << ending.errors;
    EXPECT_THAT(ending.output, AllOf(HasSubstr("cup.kvx"), HasSubstr("Crew 1")));
    const Ending unknown = call({"penalties", "season/cup.kvx", "--why", "rate/gate/9"});
    EXPECT_EQ(unknown.status, 1);
    EXPECT_THAT(unknown.errors, HasSubstr("\"rate/gate/9\""));
}

TEST_F(PenaltyCalls, SayWhatIsWrong) {
    const Ending category = call({"penalties", "season", "--category", "C1M"});
    EXPECT_EQ(category.status, 1);
    EXPECT_THAT(category.errors, HasSubstr("\"C1M\". There is \"K1W\"."));
    EXPECT_EQ(call({"penalties", "season", "--category", "wk1"}).status, 0);
    EXPECT_EQ(call({"penalties", "season", "--by", "pole"}).status, 2);
    EXPECT_EQ(call({"penalties"}).status, 2);
    const Ending itself = call({"penalties", "season/cup.kvx", "--csv", "season/cup.kvx"});
    EXPECT_EQ(itself.status, 2);
    EXPECT_EQ(contentOf(m_kavela.folder().path() / "season/cup.kvx"), raceWithPenalties());
    (void)m_kavela.folder().add("season/broken.kvx", "{}");
    const Ending broken = call({"penalties", "season"});
    EXPECT_EQ(broken.status, 1);
    EXPECT_THAT(broken.errors, HasSubstr("broken.kvx"));
    EXPECT_THAT(broken.output, HasSubstr("6 runs")) << "the others are counted";
}

} // namespace kavela::test
