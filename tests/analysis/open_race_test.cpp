#include "analysis/open_race.h"

#include "common/file_size_limit.h"
#include "common/recorders.h"
#include "common/temp_folder.h"

#include <gmock/gmock.h>

#include <fmt/format.h>

namespace kavela::test {

namespace {

namespace fs = std::filesystem;

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;
using testing::UnorderedElementsAre;

ReferenceDate clockAt700Million() {
    return {7e8};
}

/// A folder with a race that an old release wrote.
class OpenRace : public testing::Test {
protected:
    [[nodiscard]] static std::string oldContent() {
        return contentOf(fs::path(KAVELA_TEST_DATA) / "split_versions" / "0.2.kvx");
    }
    std::optional<OpenedRace> open(const fs::path& path) {
        m_recorder = {};
        return openRace(path, m_recorder.log(), m_recorder, clockAt700Million);
    }

    TempFolder m_folder;
    fs::path m_race = m_folder.add("race.kvx", oldContent());
    Recorder m_recorder;
};

} // namespace

TEST_F(OpenRace, KeepsTheOldContentAndRewritesOnce) {
    const auto race = open(m_race);
    ASSERT_TRUE(race);
    EXPECT_EQ(race->foundAs->label, "0.2");
    EXPECT_EQ(race->backup, m_folder.path() / "race_old.kvb");
    EXPECT_TRUE(contentOf(race->backup) == oldContent());
    EXPECT_EQ(race->document.info.lastSavedDate.seconds, 7e8);
    ASSERT_EQ(m_recorder.lines.size(), 24U);
    EXPECT_EQ(m_recorder.lines.front(), "Trying version 0.30");
    EXPECT_EQ(m_recorder.lines.back(), "I am wriwriting in " + m_race.string());

    const std::string rewritten = contentOf(m_race);
    const auto again = open(m_race);
    ASSERT_TRUE(again);
    EXPECT_EQ(again->foundAs->label, "0.31");
    EXPECT_EQ(again->backup, "");
    EXPECT_THAT(m_recorder.lines, IsEmpty());
    EXPECT_EQ(contentOf(m_race), rewritten);
    EXPECT_THAT(m_folder.names(), UnorderedElementsAre("race.kvx", "race_old.kvb"));
}

TEST_F(OpenRace, LeavesBackupNamesAloneThatAreTaken) {
    const fs::path older = m_folder.add("race_old.kvb", "older");
    fs::create_directory(m_folder.path() / "race_old2.kvb");
    const auto race = open(m_race);
    ASSERT_TRUE(race);
    EXPECT_EQ(race->backup.filename(), "race_old3.kvb");
    EXPECT_TRUE(contentOf(race->backup) == oldContent());
    EXPECT_EQ(contentOf(older), "older");
}

TEST_F(OpenRace, DoesNotTakeALinkToTheRaceForItsBackup) {
    fs::create_symlink("race.kvx", m_folder.path() / "race_old.kvb");
    const auto race = open(m_race);
    ASSERT_TRUE(race);
    EXPECT_TRUE(contentOf(race->backup) == oldContent());
}

TEST_F(OpenRace, OpensWithoutRewritingWhereNoBackupCanBeMade) {
    // A name as long as the disk allows leaves no room for the longer one of the backup.
    const std::string name = fmt::format("{:r>251}.kvx", "");
    const fs::path path = m_folder.add(name, oldContent());
    fs::remove(m_race);
    const auto race = open(path);
    ASSERT_TRUE(race);
    EXPECT_EQ(race->backup, "");
    EXPECT_EQ(race->document.info.lastSavedDate.seconds, 7e8);
    ASSERT_EQ(m_recorder.lines.size(), 25U);
    EXPECT_EQ(m_recorder.lines[23], "Failed to create file");
    EXPECT_THAT(m_recorder.lines[24], StartsWith("The file " + path.string()));
    EXPECT_TRUE(contentOf(path) == oldContent());
    EXPECT_THAT(m_folder.names(), ElementsAre(name));
}

TEST_F(OpenRace, UsesTheBackupOfAnAttemptThatCouldNotWrite) {
    {
        const FileSizeLimit limit(100);
        const auto race = open(m_race);
        ASSERT_TRUE(race);
        EXPECT_EQ(race->backup, "");
    }
    EXPECT_THAT(m_recorder.lines, Contains("Failed to create file"));
    EXPECT_TRUE(contentOf(m_race) == oldContent());
    const auto race = open(m_race);
    ASSERT_TRUE(race);
    EXPECT_TRUE(contentOf(race->backup) == oldContent());
    EXPECT_THAT(m_folder.names(), UnorderedElementsAre("race.kvx", "race_old.kvb"));
}

} // namespace kavela::test
