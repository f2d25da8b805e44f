#include "cli/program.h"
#include "common/json_encode.h"
#include "sample/races.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <sstream>

/// The calls that tell where time is lost.
namespace kavela::test {

namespace {

using nlohmann::json;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;

class LossesCalls : public testing::Test {
protected:
    LossesCalls() {
        std::filesystem::create_directory(m_kavela.folder().path() / "races");
        (void)m_kavela.folder().add("cup.kvx", encode(sample::holdRace(sample::riversideCup())));
        (void)m_kavela.folder().add("races/spring.kvx",
                                    encode(sample::holdRace(sample::springOpener())));
    }
    [[nodiscard]] Ending call(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), "losses");
        return m_kavela.call(arguments);
    }
    [[nodiscard]] json printed(std::vector<std::string> arguments) const {
        arguments.emplace_back("--json");
        const Ending ending = call(std::move(arguments));
        EXPECT_EQ(ending.status, 0) << ending.errors;
        return json::parse(ending.output);
    }
    static std::vector<std::string> keysOf(const json& object) {
        std::vector<std::string> keys;
        for (const auto& [key, value] : object.items())
            keys.push_back(key);
        return keys;
    }

    Program m_kavela;
};

} // namespace

TEST_F(LossesCalls, TheJsonOfAFileHasEverythingByName) {
    const json losses = printed({"cup.kvx", "--reference", "ideal"});
    EXPECT_THAT(keysOf(losses),
                testing::ElementsAre("annotated", "file", "reference", "runs", "ways"));
    const json& run = losses["runs"][5];
    EXPECT_THAT(keysOf(run), testing::ElementsAre(
                                 "category", "complete", "explained", "gap", "gatesElsewhere",
                                 "interests", "names", "official", "paddling", "penalties", "phase",
                                 "reference", "run", "shown", "stretches", "timing", "xTimeDiff"));
    EXPECT_EQ(run["run"], 5);
    EXPECT_EQ(run["reference"]["kind"], "ideal");
    EXPECT_TRUE(run["reference"]["run"].is_null());
    EXPECT_EQ(run["shown"].size(), run["stretches"].size() + 2);
    EXPECT_THAT(keysOf(run["stretches"][1]),
                testing::ElementsAre("between", "first", "gates", "kind", "last", "loss", "pen",
                                     "percent", "reference", "referenceStrokes", "strokes", "third",
                                     "time"));
}

TEST_F(LossesCalls, TheExplanationHasTheNumberOfTheJson) {
    const json losses = printed({"cup.kvx"});
    const Ending why = call({"cup.kvx", "--why", "loss/5/winner/5"});
    EXPECT_EQ(why.status, 0);
    EXPECT_THAT(why.output, AllOf(HasSubstr("own"), HasSubstr("cup.kvx · run 5 · split 5"),
                                  HasSubstr(losses["runs"][5]["stretches"][4]["loss"].dump())));
    EXPECT_EQ(call({"cup.kvx", "--why", "loss/5/winner/99"}).status, 1);
}

TEST_F(LossesCalls, ASeasonIsReadFromFoldersAndFiles) {
    const std::string name = printed({"cup.kvx"})["runs"][2]["names"][0];
    const json season = printed({"races", "cup.kvx", "--athlete", name});
    EXPECT_EQ(season["athlete"], name);
    EXPECT_GE(season["runs"], 2);
    EXPECT_EQ(season["gap"]["n"], season["runs"]);
    EXPECT_THAT(keysOf(season["rows"][0]),
                testing::ElementsAre("field", "high", "key", "loss", "low", "perRun", "percent",
                                     "reference", "runs", "share", "verdict"));
}

TEST_F(LossesCalls, AnUnknownAthleteIsOfferedTheNearestNames) {
    const std::string name = printed({"cup.kvx"})["runs"][2]["names"][0];
    const Ending ending = call({"cup.kvx", "--athlete", name.substr(0, name.size() - 2) + "x"});
    EXPECT_EQ(ending.status, 1);
    EXPECT_THAT(ending.output, IsEmpty());
    EXPECT_THAT(ending.errors, HasSubstr("The nearest names: " + name));
}

TEST_F(LossesCalls, WrongCallsSayWhatIsWrong) {
    EXPECT_EQ(call({"cup.kvx", "--reference", "nobody"}).status, 2);
    EXPECT_EQ(call({"cup.kvx", "races"}).status, 2);
    EXPECT_EQ(call({"cup.kvx", "--csv", "cup.kvx"}).status, 2);
    EXPECT_EQ(call({"cup.kvx", "--reference", "run:999"}).status, 1);
    EXPECT_EQ(call({"missing.kvx"}).status, 1);
}

TEST_F(LossesCalls, TheTableHasALineForEachStretch) {
    EXPECT_EQ(call({"cup.kvx", "--csv", "out.csv"}).status, 0);
    const std::string table = contentOf(m_kavela.folder().path() / "out.csv");
    const auto fields = [](const std::string& line) {
        return std::count(line.begin(), line.end(), ';');
    };
    std::istringstream lines(table);
    std::string titles;
    std::getline(lines, titles);
    std::size_t count = 0;
    for (std::string line; std::getline(lines, line); ++count)
        EXPECT_EQ(fields(line), fields(titles)) << line;
    EXPECT_GT(count, 500U);
}

} // namespace kavela::test
