#include "common/json_encode.h"
#include "common/temp_folder.h"
#include "facts/cache_bytes.h"
#include "facts/fact_cache.h"
#include "facts/folder_scan.h"
#include "facts/small_season.h"

#include <gmock/gmock.h>

#include <chrono>
#include <numeric>

namespace kavela::test {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Scans : public testing::Test {
protected:
    void write(const std::string& name, const std::string& place) const {
        fs::create_directories((m_season.path() / name).parent_path());
        settle(m_season.add(name, encode(smallRace(place))));
    }

    /// Lets a file look as if it had been written long ago.
    static void settle(const fs::path& path, int minutes = 60) {
        fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::minutes(minutes));
    }

    [[nodiscard]] FolderScan scan() const {
        const std::vector<fs::path> paths{m_season.path()};
        ScanOptions options;
        options.cacheFolder = m_cache.path();
        return scanPaths(paths, options);
    }

    [[nodiscard]] static std::vector<std::string> placesOf(const FolderScan& scan) {
        std::vector<std::string> places;
        for (const FileRow& file : scan.facts.files())
            places.emplace_back(scan.facts.text(file.place));
        return places;
    }

    TempFolder m_season;
    TempFolder m_cache;
};

TEST_F(Scans, OnlyWhatChangedIsReadAgain) {
    write("a.kvx", "Adam");
    write("b/B.KVX", "Brno");
    write("no suffix", "Cork");
    EXPECT_THAT(placesOf(scan()), ElementsAre("Adam", "Brno", "Cork"));
    EXPECT_EQ(scan().read, 0U);
    write("b/B.KVX", "Bled");
    settle(m_season.path() / "b/B.KVX", 30);
    const FolderScan changed = scan();
    EXPECT_EQ(changed.read, 1U);
    EXPECT_THAT(placesOf(changed), ElementsAre("Adam", "Bled", "Cork"));
    EXPECT_EQ(changed.facts.runs()[11].file, 2U);
}

TEST_F(Scans, AFileWrittenJustBeforeTheScanIsReadAgain) {
    write("a.kvx", "Adam");
    fs::last_write_time(m_season.path() / "a.kvx", fs::file_time_type::clock::now());
    (void)scan();
    EXPECT_EQ(scan().read, 1U);
}

TEST_F(Scans, AMovedFileIsKnownAndAVanishedOneForgotten) {
    write("a.kvx", "Adam");
    write("b.kvx", "Brno");
    (void)scan();
    fs::rename(m_season.path() / "a.kvx", m_season.path() / "z.kvx");
    fs::remove(m_season.path() / "b.kvx");
    const FolderScan moved = scan();
    EXPECT_EQ(moved.read, 0U);
    EXPECT_THAT(placesOf(moved), ElementsAre("Adam"));
    EXPECT_EQ(moved.facts.pathOf(moved.facts.runs()[0]), m_season.path() / "z.kvx");
}

TEST_F(Scans, WhatIsNoSplitFileIsToldOnlyWhereOneWasPromised) {
    settle(m_season.add("bad.kvx", "{\"info\":{}}"));
    settle(m_season.add("other.json", "{}"));
    settle(m_season.add("film.mov", "film"));
    for (int times = 0; times < 2; ++times) {
        const FolderScan found = scan();
        ASSERT_EQ(found.failed.size(), 1U);
        EXPECT_EQ(found.failed[0].path, m_season.path() / "bad.kvx");
        EXPECT_THAT(found.failed[0].reason, HasSubstr("info"));
    }
}

TEST_F(Scans, LinksLeadToEachFileOnce) {
    write("a.kvx", "Adam");
    fs::create_directory_symlink(m_season.path(), m_season.path() / "loop");
    fs::create_symlink("a.kvx", m_season.path() / "link.kvx");
    fs::create_symlink("nowhere", m_season.path() / "dead.kvx");
    const FolderScan found = scan();
    EXPECT_THAT(placesOf(found), ElementsAre("Adam"));
    EXPECT_THAT(found.failed, IsEmpty());
}

TEST_F(Scans, ACopyIsNoSecondRaceUntilItIsChanged) {
    write("2026/a.kvx", "Adam");
    write("2026/b.kvx", "Brno");
    write("backup/a.kvx", "Adam");
    for (int times = 0; times < 2; ++times) { // read, then known
        const FolderScan found = scan();
        EXPECT_THAT(placesOf(found), ElementsAre("Adam", "Brno"));
        ASSERT_EQ(found.copies.size(), 1U);
        EXPECT_EQ(found.copies[0].path, m_season.path() / "backup/a.kvx");
        EXPECT_EQ(found.copies[0].of, m_season.path() / "2026/a.kvx");
        EXPECT_EQ(found.hashes.size(), 2U);
    }
    const std::vector<fs::path> apart{m_season.path() / "2026", m_season.path() / "backup"};
    EXPECT_THAT(placesOf(scanPaths(apart)), ElementsAre("Adam", "Brno"));
    write("backup/a.kvx", "Aosta");
    EXPECT_THAT(placesOf(scan()), ElementsAre("Adam", "Brno", "Aosta"));
}

TEST(CacheBytes, ComeBackFromPiecesOfAnySize) {
    for (const std::size_t count : {0U, 1U, 8190U, 8191U, 8192U, 8193U, 100000U}) {
        std::vector<std::uint64_t> rows(count);
        std::iota(rows.begin(), rows.end(), 1);
        const std::string text(count, 't');
        std::string bytes;
        ByteWriter writer([&bytes](std::string_view piece) { bytes.append(piece); });
        writer.putRows(rows);
        writer.putText(text);
        writer.put(count);
        writer.finish();
        ByteReader reader(bytes);
        std::vector<std::uint64_t> rowsAgain;
        std::string_view textAgain;
        std::size_t countAgain = 0;
        ASSERT_TRUE(reader.getRows(rowsAgain) && reader.getText(textAgain) &&
                    reader.get(countAgain) && reader.isAtEnd());
        EXPECT_EQ(rowsAgain, rows);
        EXPECT_EQ(textAgain, text);
        EXPECT_EQ(countAgain, count);
    }
}

TEST_F(Scans, ADamagedCacheCountsAsNone) {
    write("a.kvx", "Adam");
    (void)scan();
    const fs::path cache = *fs::directory_iterator(m_cache.path());
    const std::string whole = contentOf(cache);
    ASSERT_TRUE(decodedCache(whole));
    for (std::size_t length = 0; length < whole.size(); ++length)
        ASSERT_FALSE(decodedCache(std::string_view(whole).substr(0, length))) << length;
    for (std::size_t at = 0; at < whole.size(); ++at) {
        std::string damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ (1 << (at % 8)));
        ASSERT_FALSE(decodedCache(damaged)) << at;
    }
    EXPECT_FALSE(decodedCache(whole + '\0'));
    (void)m_cache.add(cache.filename(), whole.substr(0, 100));
    const FolderScan again = scan();
    EXPECT_EQ(again.read, 1U);
    EXPECT_EQ(scan().read, 0U);
}

TEST_F(Scans, CancellingKeepsWhatIsKnown) {
    write("a.kvx", "Adam");
    std::stop_source stop;
    stop.request_stop();
    const std::vector<fs::path> paths{m_season.path()};
    ScanOptions options{m_cache.path(), {}, stop.get_token()};
    EXPECT_TRUE(scanPaths(paths, options).isCancelled);
    EXPECT_EQ(scan().read, 1U);
}

} // namespace

} // namespace kavela::test
