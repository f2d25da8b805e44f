#include "planning/planning_file.h"

#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/temp_folder.h"
#include "planning/planning_access.h"

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>

#include <limits>

namespace kavela::test {

namespace {

namespace fs = std::filesystem;

using nlohmann::json;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

fs::path data(const std::string& name) {
    return fs::path(KAVELA_TEST_DATA) / "plannings" / name;
}

RecognisedPlanning recognised(const std::string& text) {
    return recognisePlanningDocument(JsonDocument::fromText(text), [](std::string_view) {});
}

std::string faultOf(const RecognisedPlanning& planning, std::string_view record) {
    for (const FailedAttempt& failure : planning.failures)
        if (failure.record == record)
            return failure.fault.message();
    return "no attempt";
}

json current() {
    return json::parse(contentOf(data("v6.planning")));
}

/// Every place of a document below its root, first member and first entry of each list: where, and
/// as a reader names it.
void collectPlaces(const json& node, const json::json_pointer& at, const std::string& path,
                   std::vector<std::pair<json::json_pointer, std::string>>& places) {
    if (!path.empty())
        places.emplace_back(at, path);
    if (node.is_array() && !node.empty())
        collectPlaces(node[0], at / 0, path + "[0]", places);
    if (node.is_object())
        for (const auto& [key, value] : node.items())
            collectPlaces(value, at / key, path.empty() ? key : path + '.' + key, places);
}

class PlanningVersions : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(Older, PlanningVersions, testing::Values("1", "2", "4", "5"));

} // namespace

TEST_P(PlanningVersions, AreRecognisedAndBecomeTheirCurrentForm) {
    const std::string name = std::string("v") + GetParam();
    Recorder recorder;
    const RecognisedPlanning found =
        recognisePlanningFile(data(name + ".planning"), recorder.log());
    ASSERT_TRUE(found.version) << found.failures.back().fault.message();
    EXPECT_EQ(found.version->label, GetParam());
    EXPECT_FALSE(found.isCurrent());
    EXPECT_THAT(recorder.lines, ElementsAre("try convertPlanningtoNewVersion"));
    EXPECT_EQ(json::diff(json::parse(contentOf(data(name + ".current.json"))),
                         json::parse(encode(found.document))),
              json::array());
    EXPECT_EQ(variabilityWithoutPlace(found), 1U);
}

/// Every value made another kind, one at a time: the version itself blames exactly that place, and
/// no version takes it for something else than it is.
TEST_P(PlanningVersions, BlameTheDamagedPlace) {
    const json document = json::parse(contentOf(data(std::string("v") + GetParam() + ".planning")));
    std::vector<std::pair<json::json_pointer, std::string>> places;
    collectPlaces(document, json::json_pointer(), "", places);
    ASSERT_GT(places.size(), 100U);
    for (const auto& [place, path] : places) {
        json damaged = document;
        damaged[place] = nullptr;
        const RecognisedPlanning found = recognised(damaged.dump());
        EXPECT_TRUE(!found.version || found.version->label < std::string_view(GetParam())) << path;
        EXPECT_THAT(faultOf(found, std::string("planningdatac_v") + GetParam()),
                    testing::StartsWith(path + ": "));
        EXPECT_THAT(faultOf(found, std::string("planningdatac_v") + GetParam()),
                    HasSubstr("found null"));
    }
}

TEST(CurrentPlanning, IsWrittenByteForByteAsItWasRead) {
    Recorder recorder;
    const RecognisedPlanning found = recognisePlanningFile(data("v6.planning"), recorder.log());
    ASSERT_TRUE(found.isCurrent());
    EXPECT_THAT(recorder.lines, IsEmpty());
    EXPECT_EQ(variabilityWithoutPlace(found), 0U);
    EXPECT_EQ(encode(found.document), contentOf(data("v6.planning")));
}

/// What people and other programs leave in plannings, kept as it stands.
TEST(CurrentPlanning, KeepsOddValues) {
    const struct {
        const char* place;
        json value;
    } rows[] = {
        {"/athletes/0/year", json::array()},
        {"/athletes/0/year/0/micros", json::array()},
        {"/athletes/0/year/0/micros/0/sessions", json::array()},
        {"/athletes/0/year/0/micros/0/monday", 731300001.5},
        {"/athletes/0/year/0/micros/0/monday", -1e300},
        {"/athletes/0/year/0/micros/0/number", -4},
        {"/athletes/0/year/0/micros/0/total", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}},
        {"/athletes/0/year/0/micros/0/sessions/0/dateinInts", {2024, 13, 45}},
        {"/athletes/0/year/0/gymdata/0/weight", {-60, 1e300}},
        {"/athletes/0/year/0/gymdata/0/exercise", json::array()},
        {"/athletes/0/year/0/icfdata/pos", {1, 2, 3}},
        {"/athletes/0/year/0/seasonsubgoalsstatus", json::parse(R"([[],["a","b","c"],[]])")},
    };
    for (const auto& row : rows) {
        json document = current();
        document[json::json_pointer(row.place)] = row.value;
        const RecognisedPlanning found = recognised(document.dump());
        ASSERT_TRUE(found.version) << row.place << ": " << faultOf(found, "planningdatac_v6");
        EXPECT_TRUE(found.isCurrent()) << row.place;
        EXPECT_EQ(json::diff(document, json::parse(encode(found.document))), json::array());
    }
}

TEST(Planning, ThatNoVersionWroteIsToldPlaceByPlace) {
    json document = current();
    document["athletes"][0]["year"][0]["micros"][0]["sessions"][2]["data"][0] = "90";
    const RecognisedPlanning found = recognised(document.dump());
    EXPECT_FALSE(found.version);
    EXPECT_THAT(found.failures, testing::SizeIs(6));
    EXPECT_EQ(faultOf(found, "planningdatac_v6"),
              "athletes[0].year[0].micros[0].sessions[2].data[0]: a number was expected, found a "
              "string");
    EXPECT_EQ(faultOf(found, "planningdatac_v4"),
              "athletes[0].year[0].micros[0].dateinInts: the key is missing");
    EXPECT_EQ(encode(found.document), encode(planningdatac_v6{})) << "nothing of it is left";
}

/// Each change makes of the newest version the newest one that the document still satisfies.
TEST(Planning, IsTheNewestVersionThatDecodes) {
    const auto labelOf = [](const json& document) {
        const RecognisedPlanning found = recognised(document.dump());
        return found.version ? std::string(found.version->label) : "none";
    };
    json document = json::parse(contentOf(data("v4.planning")));
    json& season = document["athletes"][0]["year"][0];
    for (const char* goals :
         {"seasongoalgroups", "seasongoals", "seasonsubgoals", "seasonsubgoalsstatus"}) {
        const json kept = season[goals];
        season.erase(goals);
        EXPECT_EQ(labelOf(document), "2") << goals;
        season[goals] = kept;
    }
    EXPECT_EQ(labelOf(document), "4");
    season["micros"] = json::array();
    EXPECT_EQ(labelOf(document), "5") << "without a week, its measurements are all that is old";
    season["heartdata"]["variability"] = json::array();
    EXPECT_EQ(labelOf(document), "6");
    document.erase("favintses");
    EXPECT_EQ(labelOf(document), "1");
    document.erase("coach");
    EXPECT_EQ(labelOf(document), "none");
}

TEST(PlanningFiles, RewritingKeepsWhatWasThere) {
    const TempFolder folder;
    const std::string old = contentOf(data("v1.planning"));
    const fs::path path = folder.add("group.planning", old);
    (void)folder.add("group_old.planning", "an earlier one");
    Recorder recorder;
    const RecognisedPlanning found = recognisePlanningFile(path, recorder.log());
    EXPECT_TRUE(rewritePlanningFile(found, path, recorder.log()));
    EXPECT_EQ(contentOf(folder.path() / "group_old2.planning"), old);
    EXPECT_EQ(contentOf(folder.path() / "group_old.planning"), "an earlier one");
    EXPECT_TRUE(recognisePlanningFile(path, recorder.log()).isCurrent());
    EXPECT_TRUE(isKeptName("a/group_old2.planning"));
    EXPECT_FALSE(isKeptName("a/group_2024.planning"));
}

TEST(PlanningFiles, FailedWriteIsToldAndKeepsTheOldFile) {
    const TempFolder folder;
    const fs::path path = folder.add("group.planning", "old");
    planningdatac_v6 document;
    document.favintses.resize(1);
    document.favintses[0].volume = std::numeric_limits<double>::infinity();
    Recorder recorder;
    EXPECT_FALSE(savePlanningFile(document, path, recorder.log()));
    EXPECT_FALSE(savePlanningFile({}, folder.path() / "missing" / "a.planning", recorder.log()));
    EXPECT_EQ(recorder.lines[0], "Failed to create file");
    EXPECT_THAT(recorder.lines[1], HasSubstr("favintses[0].volume"));
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_THAT(folder.names(), ElementsAre("group.planning"));
}

TEST(PlanningFiles, ThatCannotBeOpenedAreReported) {
    const TempFolder folder;
    for (const auto& [content, reason] :
         {std::pair{"", "empty"}, {"{", "JSON"}, {"[]", "no JSON object"}}) {
        Recorder recorder;
        const fs::path path = folder.add("broken.planning", content);
        EXPECT_FALSE(openPlanningFile(path, recorder.log(), recorder));
        EXPECT_THAT(recorder.alerts,
                    ElementsAre(testing::AllOf(
                        testing::StartsWith("The imported file is not compatible. Be sure you "
                                            "have the latest KV version.\n"),
                        HasSubstr("broken.planning"), HasSubstr(reason))));
        EXPECT_THAT(recorder.lines, Each(HasSubstr(reason)));
        EXPECT_THAT(recorder.lines, testing::SizeIs(6));
    }
}

TEST(PlanningAccess, TellsWhoAndNeverThePasswords) {
    const TempFolder folder;
    const planninginfo_v1 access = readPlanningAccess(data("access.planinf"));
    const std::vector<PersonWithAccess> people = peopleOf(access);
    ASSERT_EQ(people.size(), 2U);
    EXPECT_EQ(people[0].name + people[0].permission, "Evawrite");
    EXPECT_EQ(people[1].permission, "") << "the array is shorter";

    const fs::path path = folder.path() / "copy.planinf";
    savePlanningAccess(access, path);
    EXPECT_EQ(contentOf(path), contentOf(data("access.planinf")));
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);

    json broken = json::parse(contentOf(path));
    broken["passwords"] = "s3cret-word";
    const RecognisedAccess found = recognisePlanningAccess(JsonDocument::fromText(broken.dump()));
    ASSERT_TRUE(found.failure);
    EXPECT_EQ(found.failure->fault.message(), "passwords: an array was expected, found a string");
}

} // namespace kavela::test
