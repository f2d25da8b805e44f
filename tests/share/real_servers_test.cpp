#include "share/real_server.h"
#include "share/sharing_pair.h"

#include <gmock/gmock.h>

#include <QDateTime>

#include <algorithm>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using namespace kavela::share;
using Kind = ShareResult::Kind;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

Change changeIn(const ShareSurvey& survey, const std::string& path) {
    const auto row = std::ranges::find(survey.rows, path, &ShareRow::path);
    return row == survey.rows.end() ? Change::None : row->change;
}

/// Two coaches share a folder over each of the servers.
class RealServers : public ::testing::TestWithParam<RealServer::Kind> {
protected:
    void SetUp() override {
        ASSERT_TRUE(server.isThere()) << server.faults();
        // Within a second a server may call its marks weak ones, which is waited for.
        for (SharingCoach* const coach : {&jana, &petr})
            coach->request.pace.secondMilliseconds = 500;
    }

    /// Everything was done, and nothing is left to do.
    static void expectShared(SharingCoach& coach) {
        for (const auto& [path, result] : coach.share())
            EXPECT_NE(result.kind, Kind::Failed) << path << ": " << result.text;
        EXPECT_THAT(coach.compare().rows, IsEmpty());
    }

    RealServer server{GetParam()};
    SharingCoach jana{server.address(), "JANA", server.login()};
    SharingCoach petr{server.address(), "PETR", server.login()};
};

TEST_P(RealServers, BringFilesFromOneCoachToTheOtherAndBack) {
    const std::string film(700'000, 'f');
    jana.write("Race.kvx", "splits");
    jana.write("films/Čunovo 2026/a b#1?%.mp4", film);
    jana.write("empty.txt", "");
    expectShared(jana);
    expectShared(petr);
    EXPECT_EQ(petr.read("Race.kvx"), "splits");
    EXPECT_TRUE(petr.read("films/Čunovo 2026/a b#1?%.mp4") == film);
    EXPECT_EQ(petr.read("empty.txt"), "");
    petr.write("Race.kvx", "splits, corrected");
    expectShared(petr);
    EXPECT_EQ(changeIn(jana.compare(), "Race.kvx"), Change::ChangedThere);
    expectShared(jana);
    EXPECT_EQ(jana.read("Race.kvx"), "splits, corrected");
    for (const auto& entry : fs::recursive_directory_iterator(petr.request.folder))
        EXPECT_THAT(entry.path().string(), ::testing::Not(HasSubstr(".part")));
}

TEST_P(RealServers, KeepBothWhereBothChanged) {
    jana.write("Race.kvx", "first");
    expectShared(jana);
    expectShared(petr);
    jana.write("Race.kvx", "Jana's");
    petr.write("Race.kvx", "Petr's own");
    expectShared(jana);
    const auto results = petr.share();
    ASSERT_TRUE(results.contains("Race.kvx"));
    EXPECT_EQ(results.at("Race.kvx").kind, Kind::BothKept) << results.at("Race.kvx").text;
    EXPECT_THAT(results.at("Race.kvx").text, HasSubstr("Race (from PETR, "));
    EXPECT_EQ(petr.read("Race.kvx"), "Jana's");
    expectShared(jana);
    std::vector<std::string> contents;
    for (const auto& entry : fs::directory_iterator(jana.request.folder))
        contents.push_back(contentOf(entry.path()));
    EXPECT_THAT(contents, ::testing::UnorderedElementsAre("Jana's", "Petr's own"));
}

TEST_P(RealServers, OverwriteNothingThatChangedSinceItWasSeen) {
    jana.write("Race.kvx", "first");
    jana.write("New.kvx", "mine");
    expectShared(jana);
    jana.write("Race.kvx", "Jana's");
    jana.write("Other.kvx", "Jana's other");
    (void)jana.compare();
    server.put("Race.kvx", "a colleague's work");
    server.put("Other.kvx", "a colleague's other");
    waitBeside([&] {
        FolderExchange exchange(jana.request, jana.survey, {});
        for (const ShareRow& row : jana.survey.rows)
            EXPECT_EQ(exchange.carryOut(row).kind, Kind::BothKept) << row.path;
    });
    EXPECT_EQ(contentOf(server.files() / "Race.kvx"), "a colleague's work");
    EXPECT_EQ(contentOf(server.files() / "Other.kvx"), "a colleague's other");
    EXPECT_THAT(jana.compare().rows, IsEmpty());
}

TEST_P(RealServers, DeleteOnlyWhatIsAgreedToAndUnchanged) {
    for (const char* name : {"a.kvx", "b.kvx", "c.kvx"})
        jana.write(name, name);
    expectShared(jana);
    expectShared(petr);
    fs::remove(jana.request.folder / "a.kvx");
    fs::remove(jana.request.folder / "b.kvx");
    (void)jana.share();
    EXPECT_TRUE(fs::exists(server.files() / "a.kvx")) << "nobody agreed";
    (void)jana.compare();
    petr.write("b.kvx", "changed by Petr");
    expectShared(petr);
    waitBeside([&] {
        FolderExchange exchange(jana.request, jana.survey, {});
        for (const ShareRow& row : jana.survey.rows)
            (void)exchange.carryOut(row);
    });
    EXPECT_FALSE(fs::exists(server.files() / "a.kvx"));
    EXPECT_EQ(contentOf(server.files() / "b.kvx"), "changed by Petr");
    EXPECT_EQ(changeIn(petr.compare(), "a.kvx"), Change::DeletedThere);
    (void)petr.share();
    EXPECT_TRUE(petr.has("a.kvx"));
    (void)petr.share(true);
    EXPECT_FALSE(petr.has("a.kvx"));
    EXPECT_TRUE(petr.has("c.kvx"));
}

TEST_P(RealServers, LoseNothingWithTheStateFile) {
    jana.write("Same.kvx", "same");
    jana.write("Other.kvx", "here");
    expectShared(jana);
    jana.loseState();
    jana.write("Other.kvx", "here, changed");
    fs::remove(jana.request.folder / "Same.kvx");
    petr.write("Same.kvx", "same");
    const auto results = petr.share();
    EXPECT_EQ(results.at("Same.kvx").kind, Kind::Same);
    (void)jana.share(true);
    EXPECT_EQ(jana.read("Same.kvx"), "same") << "what nobody remembers was not deleted";
    EXPECT_EQ(contentOf(server.files() / "Other.kvx"), "here");
    EXPECT_EQ(jana.read("Other.kvx"), "here") << "its own stands beside it";
    expectShared(jana);
}

TEST_P(RealServers, SayThatThePasswordIsWrongAndMakeAFolderThatIsNotThere) {
    jana.request.login->password = "wrong-word";
    try {
        (void)jana.compare();
        ADD_FAILURE() << "nobody was refused";
    } catch (const ShareError& error) {
        EXPECT_TRUE(error.wantsLogin());
        EXPECT_THAT(error.what(), HasSubstr("user name or the password"));
    }
    petr.request.address += "new/club";
    petr.write("a.kvx", "a");
    EXPECT_THAT(petr.share().at("a.kvx").text, HasSubstr("folder above"));
    petr.request.address = server.address() + "new";
    expectShared(petr);
    EXPECT_EQ(contentOf(server.files() / "new" / "a.kvx"), "a");
    petr.request.address += "/a.kvx";
    EXPECT_THROW((void)petr.compare(), ShareError) << "it is a file";
}

INSTANTIATE_TEST_SUITE_P(Kinds, RealServers,
                         ::testing::Values(RealServer::Kind{"lighttpd"},
                                           RealServer::Kind{"lighttpdWithLocks", false, true},
                                           RealServer::Kind{"apache", true}),
                         [](const auto& kind) { return kind.param.name; });

TEST(RealServer, IsAskedLittleAboutAThousandUnchangedFiles) {
    RealServer server({"lighttpd"});
    ASSERT_TRUE(server.isThere()) << server.faults();
    SharingCoach jana(server.address(), "JANA", server.login());
    for (int i = 0; i < 1'000; ++i)
        server.put("films/run " + std::to_string(i) + ".kvx", std::to_string(i));
    const auto results = jana.share();
    EXPECT_THAT(results, SizeIs(1'000));
    EXPECT_EQ(jana.read("films/run 999.kvx"), "999");
    EXPECT_THAT(jana.compare().rows, IsEmpty());
    EXPECT_LT(jana.survey.asked, 2 * 5);
}

TEST(RealServer, WithACertificateThatEndedYesterdayIsNotAsked) {
    const std::string yesterday =
        QDateTime::currentDateTimeUtc().addDays(-1).toString("yyyyMMddHHmmss").toStdString();
    RealServer server({"apache", true, true, yesterday + 'Z'});
    ASSERT_TRUE(server.isThere()) << server.faults();
    SharingCoach coach(server.address(), "PC", server.login());
    coach.write("a.kvx", "a");
    try {
        (void)coach.compare();
        ADD_FAILURE() << "it was trusted";
    } catch (const ShareError& error) {
        EXPECT_THAT(error.what(), HasSubstr("certificate of the server is not trusted"));
        EXPECT_THAT(error.what(), HasSubstr("expired"));
    }
    EXPECT_TRUE(fs::is_empty(server.files()));
}

} // namespace
} // namespace kavela::test
