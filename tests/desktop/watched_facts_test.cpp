#include "desktop/facts/watched_facts.h"

#include "common/temp_folder.h"

#include <gmock/gmock.h>

#include <QSignalSpy>
#include <QTest>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::WatchedFacts;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class WatchedFactsTest : public ::testing::Test {
protected:
    WatchedFactsTest() { fs::create_directories(races()); }

    [[nodiscard]] fs::path races() const { return m_folder.path() / "races"; }
    [[nodiscard]] static std::string sample(const std::string& name) {
        return contentOf(fs::path(KAVELA_EXAMPLES) / "races" / name);
    }
    /// As a program saves that keeps the old file until the new one is whole.
    void put(const std::string& name, const std::string& content) const {
        fs::create_directories((races() / name).parent_path());
        fs::rename(m_folder.add("new", content), races() / name);
    }
    [[nodiscard]] static QString text(const fs::path& path) {
        return QString::fromStdString(path.string());
    }
    [[nodiscard]] static std::vector<std::string> names(const WatchedFacts& facts) {
        std::vector<std::string> names;
        const auto store = facts.facts();
        for (const FileRow& file : store->files())
            names.push_back(fs::path(store->text(file.path)).filename().string());
        return names;
    }
    [[nodiscard]] bool read(WatchedFacts& facts, const QStringList& paths) const {
        facts.setPaths(paths);
        return facts.isReading() && QTest::qWaitFor([&] { return !facts.isReading(); });
    }

    TempFolder m_folder;
};

} // namespace

TEST_F(WatchedFactsTest, WhatChangesOnTheDiskIsReadAgainByItself) {
    put("a.kvx", sample("riverside_cup.kvx"));
    put("old/b.kvx", sample("spring_opener.kvx"));
    WatchedFacts facts(nullptr, m_folder.path() / "cache");
    ASSERT_TRUE(read(facts, {text(races())}));
    EXPECT_THAT(names(facts), ElementsAre("a.kvx", "b.kvx"));
    EXPECT_THAT(facts.failed(), IsEmpty());
    const auto before = facts.facts();
    const std::size_t runs = before->runs().size();

    put("old/c.kvx", sample("highland_open.kvx"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return names(facts).size() == 3; })) << "one came";
    put("a.kvx", sample("harbour_night.kvx"));
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const auto now = facts.facts();
        return now->text(now->files()[0].title) == "Nuit du Vieux-Port";
    })) << "one was replaced";
    fs::remove(races() / "old/b.kvx");
    EXPECT_TRUE(QTest::qWaitFor([&] { return names(facts).size() == 2; })) << "one went";
    put("2027/heats/d.kvx", sample("riverside_cup.kvx"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return names(facts).size() == 3; })) << "in a new folder";
    put("a.kvx", "no race");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !facts.failed().empty(); }));
    ASSERT_THAT(facts.failed(), SizeIs(1));
    EXPECT_EQ(facts.failed()[0].path, races() / "a.kvx");
    EXPECT_THAT(names(facts), ElementsAre("d.kvx", "c.kvx"));

    EXPECT_THAT(before->runs(), SizeIs(runs)) << "what was handed out stays as it was";
    EXPECT_THAT(before->files(), SizeIs(2));
}

TEST_F(WatchedFactsTest, AFileNamedItselfIsFollowedWhereItIsWrittenInPlaceAndWhenItComesBack) {
    const fs::path file = m_folder.add("one.kvx", sample("riverside_cup.kvx"));
    WatchedFacts facts(nullptr, {});
    ASSERT_TRUE(read(facts, {text(file)}));
    ASSERT_THAT(names(facts), ElementsAre("one.kvx"));
    const std::size_t runs = facts.facts()->runs().size();
    (void)m_folder.add("one.kvx", sample("spring_opener.kvx"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return facts.facts()->runs().size() != runs; }));
    fs::remove(file);
    EXPECT_TRUE(QTest::qWaitFor([&] { return facts.failed().size() == 1; })) << "it is told";
    EXPECT_THAT(names(facts), IsEmpty());
    (void)m_folder.add("one.kvx", sample("riverside_cup.kvx"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return facts.facts()->runs().size() == runs; }));
    EXPECT_THAT(facts.failed(), IsEmpty());
}

TEST_F(WatchedFactsTest, AReadingCanBeCancelledReplacedAndLeft) {
    for (int i = 0; i < 40; ++i)
        put(std::to_string(i) + ".kvx",
            sample("riverside_cup.kvx") + std::string(static_cast<std::size_t>(i), '\n'));
    put("other/z.kvx", sample("spring_opener.kvx"));
    WatchedFacts facts(nullptr, {});
    QSignalSpy changes(&facts, &WatchedFacts::changed);
    facts.setPaths({text(races())});
    facts.cancel();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !facts.isReading(); }));
    EXPECT_TRUE(facts.isIncomplete());
    EXPECT_LT(facts.facts()->files().size(), 41U);
    EXPECT_THAT(changes, SizeIs(1)) << "what came is shown";

    facts.readAgain();
    ASSERT_TRUE(read(facts, {text(races() / "other")})) << "the one before comes to nothing";
    EXPECT_FALSE(facts.isIncomplete());
    EXPECT_THAT(names(facts), ElementsAre("z.kvx"));
    EXPECT_THAT(changes, SizeIs(2));

    auto gone = std::make_unique<WatchedFacts>(nullptr, fs::path());
    QSignalSpy told(gone.get(), &WatchedFacts::changed);
    gone->setPaths({text(races())});
    gone.reset(); // a window that is closed while it reads
    ASSERT_TRUE(read(facts, {text(races())}));
    EXPECT_THAT(names(facts), SizeIs(41));
    EXPECT_THAT(told, IsEmpty());
}

} // namespace kavela::test
