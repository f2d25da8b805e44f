#include "boatmotion/session_files.h"

#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/temp_folder.h"

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>

#include <functional>
#include <limits>

namespace kavela::test {

namespace {

using nlohmann::json;
using testing::ElementsAre;

std::filesystem::path session(const std::string& name) {
    return std::filesystem::path(KAVELA_TEST_DATA) / "sessions" / name;
}

json sessionJson(const std::string& name) {
    return json::parse(contentOf(session(name)));
}

/// What a reader says when it refuses a file; empty when it takes it.
std::string refusal(const std::function<void(const std::filesystem::path&)>& reader,
                    const std::filesystem::path& path) {
    try {
        reader(path);
        return {};
    } catch (const DecodeError& error) {
        return error.what();
    }
}

std::string refusal(const std::function<void(const std::filesystem::path&)>& reader,
                    const json& document) {
    const TempFolder folder;
    return refusal(reader, folder.add("session", document.dump()));
}

void readRaw(const std::filesystem::path& path) {
    (void)readRawSession(path);
}
void readSmart(const std::filesystem::path& path) {
    (void)readSmartSession(path);
}
void readTest(const std::filesystem::path& path) {
    (void)readTestSession(path);
}

} // namespace

TEST(SessionFiles, RawSessionKeepsBothTimeBases) {
    const bmrawdata_v5 raw = readRawSession(session("raw_v5.kvb"));
    ASSERT_EQ(raw.boatmotion.size(), 2U);
    EXPECT_EQ(raw.boatmotion[1].timestamp, 1234.145);
    ASSERT_EQ(raw.gps.size(), 1U);
    EXPECT_EQ(raw.gps[0].date.seconds, 736000001.25);
    ASSERT_EQ(raw.heart.size(), 3U);
    EXPECT_EQ(raw.heart[2].date.seconds, 736000004);
    EXPECT_TRUE(raw.watchmotion.empty()) << "nobody has to wear a watch";
}

TEST(SessionFiles, AreWrittenByteForByteAsTheyWereRead) {
    const TempFolder folder;
    const auto copy = folder.path() / "copy";
    saveRawSession(readRawSession(session("raw_v5.kvb")), copy);
    EXPECT_EQ(contentOf(copy), contentOf(session("raw_v5.kvb")));
    saveSmartSession(readSmartSession(session("smart_v4.sbm")), copy);
    EXPECT_EQ(contentOf(copy), contentOf(session("smart_v4.sbm")));
    EXPECT_EQ(encode(readTestSession(session("test.json"))), contentOf(session("test.json")));
}

TEST(SessionFiles, FailedWriteIsReportedAndKeepsTheOldFile) {
    const TempFolder folder;
    smartAlldata_v4 smart = readSmartSession(session("smart_v4.sbm"));
    EXPECT_THROW(saveSmartSession(smart, folder.path()), FileError);
    const auto path = folder.add("run.bms", "old");
    smart.strokesData[0].stroke.power = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THROW(saveSmartSession(smart, path), EncodeError);
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_THAT(folder.names(), ElementsAre("run.bms"));
}

TEST(SessionFiles, AReaderRefusesEverythingButItsOwnRecord) {
    EXPECT_EQ(refusal(readRaw, session("raw_v4.kvb")),
              "this is a recording of version 4; `kavela upgrade` converts it to a new file of the "
              "current version");
    EXPECT_EQ(refusal(readRaw, session("smart_v4.sbm")),
              "this is a smart session of version 4, which is not what is read here");
    EXPECT_EQ(refusal(readSmart, session("test.json")),
              "this is a test session of version 1, which is not what is read here");
    EXPECT_EQ(refusal(readTest, session("raw_v5.kvb")),
              "this is a raw session of version 5, which is not what is read here");

    json raw = sessionJson("raw_v5.kvb");
    raw.erase("watchmotion");
    EXPECT_EQ(refusal(readRaw, raw), "watchmotion: the key is missing")
        << "a missing recording is an empty array, never an absent member";
    raw = sessionJson("raw_v5.kvb");
    raw["boatmotion"][1]["gravity"]["z"] = "0";
    EXPECT_EQ(refusal(readRaw, raw),
              "boatmotion[1].gravity.z: a number was expected, found a string");
    EXPECT_THROW(readRaw(session("missing.kvb")), FileError);
}

TEST(SessionFiles, StrokeDecodesOnlyWithItsMembersSpeltAsTheFormatSpellsThem) {
    json smart = sessionJson("smart_v4.sbm");
    json& stroke = smart["strokesData"][0]["stroke"];
    EXPECT_EQ(readSmartSession(session("smart_v4.sbm")).strokesData[0].stroke.aerealPhase, 0.25);
    stroke["aerialPhase"] = stroke["aerealPhase"];
    stroke.erase("aerealPhase");
    EXPECT_EQ(refusal(readSmart, smart), "strokesData[0].stroke.aerealPhase: the key is missing");
}

TEST(SessionFiles, RecordingOfVersion4IsConvertedMemberByMember) {
    const json old = sessionJson("raw_v4.kvb");
    json expected = old;
    const json& info = old["info"];
    expected["info"] = {{"date", info["date"]},
                        {"location", info["location"]},
                        {"sessionKind", info["sessionKind"]},
                        {"subSessionKind", ""}};
    expected["athleteinfo"] = info;
    for (const char* moved : {"date", "location", "sessionKind"})
        expected["athleteinfo"].erase(moved);
    expected["athleteinfo"].update({{"discipline", ""}, {"boat", 0}, {"athletesinboat", 0}});
    for (const char* samples : {"boatmotion", "watchmotion"}) {
        expected[samples][0]["timestamp"] = old[samples][0]["date"];
        expected[samples][0].erase("date");
    }
    const auto v4 = decode<bmrawdata_v4>(JsonDocument::fromFile(session("raw_v4.kvb")));
    EXPECT_EQ(json::diff(expected, json::parse(encode(upgradedRawSession(v4)))), json::array());
}

TEST(SessionFiles, ConvertedSessionStandsBesideItsRecording) {
    EXPECT_EQ(convertedSessionPath("/water/run.kvb"), "/water/run_postv5.bms");
    EXPECT_EQ(convertedSessionPath("2024.05.11 žába.kvb"), "2024.05.11 žába_postv5.bms");
    EXPECT_EQ(convertedSessionPath("a.b/run"), "a.b/run_postv5.bms");
}

/// The records are told apart by decoding alone, in one order.
TEST(SessionRecognition, FindsTheFirstRecordThatDecodes) {
    const json smart4 = sessionJson("smart_v4.sbm");
    json smart5 = smart4;
    smart5["heart"] = {{{"timestamp", 1.5}, {"hr", 140}, {"speed", 2.5}}};
    json smart3 = smart4;
    smart3["strokesData"][0]["date"] = 10.5;
    smart3["strokesData"][0].erase("timestamp");
    json smart5WithoutHeart = smart5;
    smart5WithoutHeart["heart"] = json::array();
    const json smart1 = {{"info", {{"date", 1}}},
                         {"boatdata", sessionJson("test.json")["test"][0]["boatdata"]},
                         {"sprintdata", sessionJson("test.json")["test"][1]["sprintdata"]}};
    struct Row {
        json document;
        std::string description;
        std::size_t failures;
    };
    for (const Row& row : std::vector<Row>{
             {sessionJson("raw_v5.kvb"),
              "bmrawdata_v5 raw session 5 current boatmotion=2 watchmotion=0 gps=1 heart=3", 0},
             {sessionJson("raw_v4.kvb"),
              "bmrawdata_v4 raw session 4 boatmotion=1 watchmotion=1 gps=1 heart=1", 1},
             {smart4, "smartAlldata_v4 smart session 4 current strokesData=1 heart=1 gps=2", 2},
             {smart5, "smartAlldata_v5 smart session 5 strokesData=1 heart=1 gps=2", 3},
             {smart5WithoutHeart,
              "smartAlldata_v4 smart session 4 current strokesData=1 heart=0 gps=2", 2},
             {smart3, "smartAlldata_v3 smart session 3 strokesData=1 heart=1 gps=2", 4},
             {smart1, "smartAlldata smart session 1 boatdata=1 sprintdata=2", 5},
             {sessionJson("test.json"), "varoTestAlldata test session 1 current test=2", 6},
             {{{"info", nullptr}}, "nothing", 7}}) {
        const auto found = recogniseSession(JsonDocument::fromText(row.document.dump()));
        std::string description = "nothing";
        if (found.version)
            description =
                std::string(found.version->record) + ' ' + std::string(found.version->kind) + ' ' +
                std::string(found.version->label) + (found.version->current ? " current" : "");
        for (const SessionCount& count : found.counts)
            description += ' ' + std::string(count.array) + '=' + std::to_string(count.count);
        EXPECT_EQ(description, row.description);
        EXPECT_EQ(found.failures.size(), row.failures);
    }
}

} // namespace kavela::test
