#include "common/display_text.h"
#include "common/file_size_limit.h"
#include "common/json_encode.h"
#include "splitdata/version_files.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::StartsWith;

struct AlertRecorder : Alerts {
    std::vector<std::string> texts;
    void show(const Alert& alert) override { texts.push_back(alert.text); }
};

/// One reading of a file, with all that the log and the user were told.
struct Reading {
    LogRecorder log;
    AlertRecorder alerts;
    std::optional<splittakerdata031> document;

    explicit Reading(const std::filesystem::path& path)
        : document(readSplitFile(path, log.log(), alerts, upgradeClock)) {}
};

/// What the log says of a file that no release wrote, but for the reason at its end.
std::vector<std::string> hopelessLines(const std::filesystem::path& path) {
    std::vector<std::string> lines = attemptLines();
    lines.emplace_back("I have no more options, sorry");
    lines.push_back("I could not do " + path.string());
    return lines;
}

void expectRefused(const Reading& reading, const std::filesystem::path& path,
                   const std::string& reason) {
    EXPECT_FALSE(reading.document);
    EXPECT_THAT(reading.alerts.texts,
                ElementsAre("The imported file is not compatible. Be sure you have the latest KV "
                            "version.\n" +
                            path.filename().string() + ": " + printable(reason)));
    std::vector<std::string> lines = hopelessLines(path);
    lines.push_back("The file could not be read: " + reason);
    EXPECT_THAT(reading.log.lines, ElementsAreArray(lines));
}

} // namespace

class SplitFileReading : public EveryRelease {};
INSTANTIATE_TEST_SUITE_P(Releases, SplitFileReading, everyRelease(), releaseName);

TEST_P(SplitFileReading, UpgradesAnOlderFileInPlaceOnce) {
    const TempFolder folder;
    const std::string before = contentOf(versionFile(label()));
    const auto path = folder.add("závod 1.kvx", before);

    const Reading first(path);
    ASSERT_TRUE(first.document);
    EXPECT_EQ(json::diff(currentForm(label()), json::parse(encode(*first.document))),
              json::array());
    std::vector<std::string> lines = attemptLines(label());
    if (label() != "0.31")
        lines.push_back("I am wriwriting in " + path.string());
    EXPECT_THAT(first.log.lines, ElementsAreArray(lines));
    EXPECT_EQ(contentOf(path), encode(*first.document));

    const Reading second(path);
    ASSERT_TRUE(second.document);
    EXPECT_EQ(encode(*second.document), encode(*first.document));
    EXPECT_THAT(second.log.lines, IsEmpty());
    EXPECT_THAT(first.alerts.texts, IsEmpty());
    EXPECT_THAT(folder.names(), ElementsAre("závod 1.kvx"));
}

TEST(SplitFileReading, LeavesACurrentFileAsItStands) {
    const TempFolder folder;
    const std::string spaced = currentForm("0.31").dump(1, '\t') + "\n";
    const auto path = folder.add("a.kvx", spaced);
    EXPECT_TRUE(Reading(path).document);
    LogRecorder log;
    upgradeSplitFile(path, log.log(), upgradeClock);
    EXPECT_THAT(log.lines, IsEmpty());
    EXPECT_EQ(contentOf(path), spaced);
}

TEST(SplitFileReading, RefusesWhatNoReleaseWroteAndLeavesItAlone) {
    const std::string current = contentOf(versionFile("0.31"));
    json nearMiss = json::parse(contentOf(versionFile("0.2")));
    nearMiss["info"].erase("totalsplits");
    struct Row {
        const char* name;
        std::string content;
        const char* reason;
    };
    const std::vector<Row> rows{
        {"empty", "", "the file is empty"},
        {"blank", " \r\n\t", "the file holds nothing but blanks"},
        {"plain text", "hello", "this is no JSON object: it does not begin with {"},
        {"an array", "[" + current + "]", "this is no JSON object: it does not begin with {"},
        {"an empty object", "{}", "info: the key is missing"},
        {"two documents", current + current, "not JSON"},
        {"cut off", current.substr(0, current.size() - 1), "not JSON"},
        {"not UTF-8", "{\"info\":\"\xff\"}", ""},
        {"a near miss of the oldest", nearMiss.dump(), "info.title: the key is missing"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const TempFolder folder;
        const auto path = folder.add("race.kvx", row.content);
        const Reading reading(path);
        ASSERT_FALSE(reading.log.lines.empty());
        const std::string last = reading.log.lines.back();
        EXPECT_THAT(last, StartsWith(std::string("The file could not be read: ") + row.reason));
        expectRefused(reading, path, last.substr(last.find(": ") + 2));
        EXPECT_EQ(contentOf(path), row.content);
        EXPECT_THAT(folder.names(), ElementsAre("race.kvx"));
    }
}

TEST(SplitFileReading, RefusesAMissingFileAndAFolder) {
    const TempFolder folder;
    const auto missing = folder.path() / "missing.kvx";
    expectRefused(Reading(missing), missing, "there is no such file");
    expectRefused(Reading(folder.path()), folder.path(), "this is a folder, not a file");
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST(SplitFileReading, KeepsTheOldFileWhenTheNewOneCannotBeWritten) {
    const TempFolder folder;
    const std::string before = contentOf(versionFile("0.12"));
    const auto path = folder.add("race.kvx", before);
    const auto reading = [&] {
        const FileSizeLimit limit(100);
        return Reading(path);
    }();
    EXPECT_FALSE(reading.document);
    EXPECT_EQ(reading.alerts.texts.size(), 1U);
    const auto attempts = attemptLines("0.12").size();
    ASSERT_GE(reading.log.lines.size(), attempts + 3);
    EXPECT_EQ(reading.log.lines[attempts], "I am wriwriting in " + path.string());
    EXPECT_EQ(reading.log.lines[attempts + 1], "Failed to create file");
    EXPECT_THAT(reading.log.lines[attempts + 2], StartsWith("The file"));
    EXPECT_EQ(contentOf(path), before);
    EXPECT_THAT(folder.names(), ElementsAre("race.kvx"));
}

} // namespace kavela::test
