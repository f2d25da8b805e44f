#include "fetch/plan_maker.h"

#include "common/temp_folder.h"
#include "fetch/faulty_server.h"
#include "fetch/test_films.h"

#include <gmock/gmock.h>

#include <QProcess>
#include <QTest>

namespace kavela::test {
namespace {

using namespace kavela::fetch;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class PlanMakerTest : public ::testing::Test {
protected:
    [[nodiscard]] filmsource001 source(const std::string& path) const {
        return {server.address(path), "list.csv", folder.path().string(), "{name} {phase}", {}};
    }

    MadePlan make(const filmsource001& source, std::optional<WebLogin> login = {}) {
        WebRules rules = rulesOf(source, std::move(login));
        rules.pace = {.silenceMilliseconds = 400, .secondMilliseconds = 2};
        PlanMaker maker;
        std::optional<MadePlan> made;
        maker.make(source, {{14, {"Ann Lee"}, "K1W", "Heats", 0}}, rules,
                   [&](const MadePlan& plan) { made = plan; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return made.has_value(); }, 20'000));
        return made.value_or(MadePlan());
    }

    /// What `kavela fetch` reads: the source of a list on the server, and the bibs.
    void writeCall(const std::string& list, const std::string& bibs) const {
        writeSource({server.address(list),
                     folder.add("list.csv", bibs).string(),
                     (folder.path() / "films").string(),
                     "{name} {phase}",
                     {}},
                    folder.path() / "films.json");
    }

    struct Said {
        std::string output;
        std::string errors;
    };

    /// `kavela fetch`, called beside the server that lives in this program.
    [[nodiscard]] Said call(const QStringList& more) const {
        QProcess kavela;
        kavela.start(KAVELA_PROGRAM,
                     QStringList{"fetch", QString::fromStdString(folder.path() / "films.json")} +
                         more);
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return kavela.state() == QProcess::NotRunning; }, 30'000));
        const std::string errors = kavela.readAllStandardError().toStdString();
        EXPECT_EQ(kavela.exitCode(), 0) << errors;
        return {kavela.readAllStandardOutput().toStdString(), errors};
    }

    FaultyServer server;
    TempFolder folder;
};

constexpr const char* Folder =
    R"(<d:multistatus xmlns:d="DAV:"><d:response><d:href>/films/014.mp4</d:href><d:propstat>
    <d:prop><d:getcontentlength>77</d:getcontentlength></d:prop></d:propstat></d:response>
    </d:multistatus>)";

} // namespace

TEST_F(PlanMakerTest, ReadsAFolderAndFallsBackToItsPage) {
    server.add("/films/", {always(answer("207 Multi-Status", {}, Folder))});
    const MadePlan folderPlan = make(source("/films/"));
    ASSERT_THAT(folderPlan.films, SizeIs(1)) << folderPlan.reason;
    EXPECT_EQ(folderPlan.films[0].size, 77);
    EXPECT_EQ(server.asked[0].verb, "PROPFIND");
    EXPECT_EQ(server.asked[0].headers.at("depth"), "1");
    server.add("/page/", {always(answer("405 No")),
                          always(answer("200 OK", {}, "<a href=\"../../x/14.mp4\">"))});
    const MadePlan page = make(source("/page/"));
    ASSERT_THAT(page.films, SizeIs(1)) << page.reason;
    EXPECT_EQ(page.films[0].address.text(), server.address("/x/14.mp4"));
    EXPECT_EQ(page.films[0].name, "Ann Lee Heats.mp4");
}

TEST_F(PlanMakerTest, AsksNobodyForAPattern) {
    ASSERT_THAT(make(source("/{bib:3}.mp4")).films, SizeIs(1));
    EXPECT_THAT(server.asked, IsEmpty());
}

TEST_F(PlanMakerTest, SaysWhyThereIsNoPlan) {
    server.add("/locked.html", {[](const Asked& asked) {
                   return asked.headers.contains("authorization")
                              ? answer("200 OK", {}, "<a href=14.mp4>")
                              : answer("401 No", "WWW-Authenticate: Basic realm=\"x\"\r\n");
               }});
    server.add("/empty.html", {always(answer("200 OK", {}, "<p>No films yet</p>"))});
    server.add("/broken.json", {always(answer("200 OK", {}, "{\"films\":["))});
    EXPECT_TRUE(make(source("/locked.html")).wantsLogin);
    EXPECT_THAT(make(source("/locked.html"), WebLogin{"coach", "rapid"}).films, SizeIs(1));
    EXPECT_THAT(make(source("/empty.html")).reason, HasSubstr("names no film"));
    EXPECT_THAT(make(source("/broken.json")).reason, HasSubstr("no JSON"));
    EXPECT_THAT(make(source("/missing.html")).reason, HasSubstr("no such list"));
}

TEST_F(PlanMakerTest, TheCommandShowsAndFetches) {
    const QByteArray film = testFilm(1);
    server.add("/list.html", {always(answer("200 OK", {}, "<a href=014.mp4><a href=099.mp4>"))});
    server.add("/014.mp4", {served(film, "\"a\"")});
    writeCall("/list.html", "bib;name;phase\n14;Ann Lee;Heats\n15;Eva Roe;Heats\n");
    const std::string shown = call({"--show"}).output;
    EXPECT_THAT(shown, HasSubstr("Ann Lee Heats.mp4"));
    EXPECT_THAT(shown, HasSubstr("no film with this bib"));
    EXPECT_THAT(server.askedFor("/014.mp4"), IsEmpty());
    EXPECT_THAT(call({"--yes"}).output, HasSubstr("Fetched 1 film"));
    EXPECT_TRUE(contentOf(folder.path() / "films" / "Ann Lee Heats.mp4") == film.toStdString());
}

TEST_F(PlanMakerTest, TheCommandSaysNothingOfAServerWithoutWebDav) {
    const FaultyServer::Reply page = [](const Asked& asked) {
        return asked.verb == "PROPFIND" ? answer("501 Unsupported", {}, "<p>No such method</p>")
                                        : answer("200 OK", {}, "<a href=014.mp4>");
    };
    server.add("/films/", {page});
    writeCall("/films/", "bib;name;phase\n14;Ann Lee;Heats\n");
    // The network's complaint depended on which of its threads was faster.
    for (int i = 0; i < 8; ++i) {
        const Said said = call({"--show"});
        EXPECT_THAT(said.output, HasSubstr("Ann Lee Heats.mp4"));
        EXPECT_EQ(said.errors, "");
    }
}

} // namespace kavela::test
