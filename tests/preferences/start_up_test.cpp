#include "preferences/start_up.h"

#include "common/recorders.h"
#include "common/temp_folder.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using List = std::vector<std::string>;

struct Default {
    const char* key;
    PreferenceValue value;
};

const std::int64_t Zero = 0;
const std::string Race = "Race";

/// What a fresh installation holds, in the order in which it is created. Only the entries of
/// `planningOnline` are left open.
const std::vector<Default> Defaults{{"planningOnline", List{}},
                                    {"watchedfiles", List{}},
                                    {"autoplaynext", false},
                                    {"startinCMTime", false},
                                    {"playonclick", false},
                                    {"penaltiesVisible", false},
                                    {"penaltiesIncluded", false},
                                    {"colorMode", Race},
                                    {"comtagIndex", Zero},
                                    {"coachswordvisible", true},
                                    {"tagmodeplaysjustpart", true},
                                    {"lastdatatype", Zero},
                                    {"fullscreenBMRoll", true},
                                    {"fullscreenBMPitch", true},
                                    {"fullscreenHR", true},
                                    {"fullscreenBMScatter", false},
                                    {"normalizedBMvalues", false},
                                    {"gaugeImpulse", true},
                                    {"gaugeStrokerate", true},
                                    {"predeterminatedsplits", std::int64_t{7}},
                                    {"savedtags", List{}},
                                    {"savedTLreasons", List{}},
                                    {"autoloadPlanning", false},
                                    {"autoloadPlanningOnline", false},
                                    {"autoloadPlanningURL", PreferenceUrl{}},
                                    {"savetoCSV", false},
                                    {"savetoPDF", false},
                                    {"autoloadMainFolderURL", PreferenceUrl{}},
                                    {"autoloadTestMonitor", false}};

/// A store whose content goes through its file. The file gets another name each time it is read,
/// as the platform remembers what it wrote under the old one.
class Store : public testing::Test {
protected:
    template <class Work>
    void with(Work work) {
        Preferences preferences(m_file);
        work(preferences);
    }
    Preferences reopened() {
        const fs::path next = m_folder.path() / ("store" + std::to_string(++m_number) + ".ini");
        if (fs::exists(m_file))
            fs::copy_file(m_file, next);
        m_file = next;
        return Preferences(m_file);
    }
    /// Starts up once more; gives the log.
    std::vector<std::string> start() {
        Preferences preferences = reopened();
        Recorder recorder;
        m_result = startUp(preferences, m_folder.path(), recorder.log());
        return recorder.lines;
    }

    TempFolder m_folder;
    fs::path m_file = m_folder.path() / "store.ini";
    StartUp m_result;
    int m_number = 0;
};

class StartUpTest : public Store {};

} // namespace

TEST_F(StartUpTest, CreatesEveryKeyOnceAndThenIsSilent) {
    std::vector<std::string> creations;
    for (const Default& entry : Defaults)
        creations.push_back("Creating " + std::string(entry.key));
    EXPECT_THAT(start(), ElementsAreArray(creations));
    EXPECT_THAT(start(), IsEmpty());
    const Preferences preferences = reopened();
    for (const Default& entry : Defaults) {
        EXPECT_TRUE(preferences.contains(entry.key)) << entry.key;
        const bool isOpen = entry.key == std::string("planningOnline");
        EXPECT_TRUE(isOpen || preferences.value(entry.key) == entry.value) << entry.key;
    }
    EXPECT_THAT(preferences.array("planningOnline"), Not(IsEmpty()));
}

TEST_F(StartUpTest, KeepsWhatTheUserChanged) {
    start();
    with([](Preferences& preferences) {
        preferences.set("predeterminatedsplits", std::int64_t{11});
        preferences.set("colorMode", std::string("Training"));
        preferences.set("coachswordvisible", false);
        preferences.set("planningOnline", List{});
    });
    EXPECT_THAT(start(), IsEmpty());
    const Preferences preferences = reopened();
    EXPECT_EQ(preferences.integer("predeterminatedsplits"), 11);
    EXPECT_EQ(preferences.string("colorMode"), "Training");
    EXPECT_FALSE(preferences.boolean("coachswordvisible"));
    EXPECT_THAT(preferences.array("planningOnline"), IsEmpty());
}

TEST_F(StartUpTest, ReadsAValueOfAnotherKindAsTheDefaultAndLeavesIt) {
    const std::string content =
        "[General]\ncoachswordvisible=perhaps\npredeterminatedsplits=seven\n"
        "comtagIndex=3.5\nlastdatatype=99999999999999999999\n"
        "colorMode=Training, Race\nautoloadPlanningURL=no address\n";
    m_file = m_folder.add("by hand.ini", content);
    EXPECT_EQ(start().size(), Defaults.size() - 6);
    const Preferences preferences = reopened();
    EXPECT_TRUE(preferences.boolean("coachswordvisible"));
    EXPECT_EQ(preferences.integer("predeterminatedsplits"), 7);
    EXPECT_EQ(preferences.integer("comtagIndex"), 0);
    EXPECT_EQ(preferences.integer("lastdatatype"), 0);
    EXPECT_EQ(preferences.string("colorMode"), "Race");
    EXPECT_EQ(preferences.url("autoloadPlanningURL"), std::nullopt);
    EXPECT_THAT(contentOf(m_file), HasSubstr("coachswordvisible=perhaps"));
}

TEST_F(StartUpTest, ReadsThePointsOfInterestWhenThereAreAny) {
    EXPECT_THAT(start().back(), HasSubstr("Creating"));
    EXPECT_THAT(m_result.mtPoI, IsEmpty());
    for (const auto& [stored, list] : std::vector<std::pair<std::string, List>>{
             {"[\"České Budějovice\",\"a, \\\"b\\\"\"]", {"České Budějovice", "a, \"b\""}},
             {"[\"Troja\"]", {"Troja"}},
             {"[]", {}}}) {
        with([&, text = stored](Preferences& preferences) { preferences.set("mtPoI", text); });
        EXPECT_THAT(start(), IsEmpty());
        EXPECT_EQ(m_result.mtPoI, list);
    }
    for (const char* damaged : {"", "[\"a\"", "[1]", "{}", "nothing"}) {
        with([&](Preferences& preferences) { preferences.set("mtPoI", std::string(damaged)); });
        EXPECT_THAT(start(), ElementsAre(HasSubstr("mtPoI"))) << damaged;
        EXPECT_THAT(m_result.mtPoI, IsEmpty());
    }
}

TEST_F(StartUpTest, DeletesTheSettingsFilesOfEarlierReleases) {
    start();
    const fs::path old = m_folder.path() / "Kavela";
    fs::create_directory(old);
    for (const char* name : {"Kavela/settings.kvs", "Kavela/settings2020.kvs", "Kavela/other.kvs"})
        (void)m_folder.add(name, "old");
    EXPECT_THAT(start(), IsEmpty());
    EXPECT_FALSE(fs::exists(old / "settings.kvs"));
    EXPECT_FALSE(fs::exists(old / "settings2020.kvs"));
    EXPECT_TRUE(fs::exists(old / "other.kvs"));
    EXPECT_THAT(start(), IsEmpty()) << "absent files are no error";
}

TEST_F(StartUpTest, GoesOnAfterADeleteThatFails) {
    fs::create_directories(m_folder.path() / "Kavela" / "settings2020.kvs" / "not empty");
    const fs::path second = m_folder.add("Kavela/settings.kvs", "old");
    const auto lines = start();
    ASSERT_EQ(lines.size(), Defaults.size() + 1);
    EXPECT_THAT(lines.back(), HasSubstr("settings2020.kvs"));
    EXPECT_FALSE(fs::exists(second));
}

TEST_F(Store, ReadsBackWhatItStored) {
    const std::vector<Default> entries{
        {"savedtags", List{}},
        {"savedtags", List{"one"}},
        {"savedtags", List{"one", "two"}},
        {"savedtags", List{"late, again", "@tag", "a \"b\"; c=d", " x\n", "Šárka", "\\"}},
        {"savedtags", List{"a, b"}},
        {"savedtags", List{""}},
        {"savedtags", List{"", ""}},
        {"comtagIndex", INT64_MIN},
        {"comtagIndex", INT64_MAX},
        {"colorMode", std::string("a, b; @c \"d\"")},
        {"colorMode", std::string("true")},
        {"colorMode", std::string("")},
        {"autoplaynext", true},
        {"autoloadPlanningURL", PreferenceUrl{"file:///home/Jana%20K/pl%C3%A1n.planning"}},
        {"autoloadPlanningURL", PreferenceUrl{"https://example.org/a?b=c,d#e"}},
        {"autoloadPlanningURL", PreferenceUrl{}}};
    for (const Default& entry : entries) {
        with([&](Preferences& preferences) {
            preferences.set(entry.key, entry.value);
            EXPECT_TRUE(preferences.value(entry.key) == entry.value) << entry.key << ", at once";
        });
        EXPECT_TRUE(reopened().contains(entry.key));
        EXPECT_TRUE(reopened().value(entry.key) == entry.value)
            << entry.key << " from " << contentOf(m_file);
    }
}

} // namespace kavela::test
