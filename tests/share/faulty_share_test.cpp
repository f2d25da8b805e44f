#include "fetch/faulty_server.h"
#include "share/sharing_pair.h"
#include "share/told_files.h"

#include <gmock/gmock.h>

#include <QTimer>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using namespace kavela::share;
using Kind = ShareResult::Kind;
using ::testing::Contains;
using ::testing::Each;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class FaultyShare : public ::testing::Test {
protected:
    /// The list of the folder, of one file where there is one, and what a question for it gets.
    void serve(const Told& file, const FaultyServer::Reply& get,
               const QByteArray& put = answer("201 Created")) {
        server.add("/dav/", {always(listed({{"/dav/"}, file}))});
        server.add(file.link, {[=](const Asked& asked) {
                       if (asked.verb == "PROPFIND")
                           return listed({file});
                       return asked.verb == "GET" ? get(asked) : put;
                   }});
    }
    [[nodiscard]] std::string refusal() {
        try {
            (void)coach.compare();
        } catch (const ShareError& error) {
            return error.what();
        }
        return {};
    }

    FaultyServer server;
    SharingCoach coach{server.address("/dav/"), "PC"};
};

TEST_F(FaultyShare, BringsAFilmOverALineThatIsCutAtEvery64KiB) {
    QByteArray film;
    for (int i = 0; i < 200'000; ++i)
        film += QByteArray::number(i);
    constexpr qsizetype Piece = 65'536;
    serve({"/dav/a.mp4", film.size()}, [film](const Asked& asked) {
        const QByteArray whole = served(film, "\"1\"")(asked);
        const qsizetype head = whole.indexOf("\r\n\r\n") + 4;
        return whole.left(head + Piece);
    });
    const auto results = coach.share();
    EXPECT_EQ(results.at("a.mp4").kind, Kind::Done) << results.at("a.mp4").text;
    EXPECT_TRUE(coach.read("a.mp4") == film.toStdString());
    EXPECT_GE(server.askedFor("/dav/a.mp4").size(), std::size_t(film.size() / Piece));
}

TEST_F(FaultyShare, KeepsNothingOfAServerThatLiesAboutLengths) {
    struct {
        const char* name;
        qint64 told;
        QByteArray get;
    } const cases[] = {
        {"less than the list said", 9, answer("200 OK", "ETag: \"1\"\r\n", "short")},
        {"more than the list said", 2, answer("200 OK", "ETag: \"1\"\r\n", "short")},
        {"no end told, and cut", 9, "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\nshort"},
        {"less than the answer said", 9, "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nshort"}};
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        serve({"/dav/a.kvx", one.told}, always(one.get));
        EXPECT_EQ(coach.share().at("a.kvx").kind, Kind::Failed);
        EXPECT_FALSE(coach.has("a.kvx"));
    }
}

TEST_F(FaultyShare, TellsWhatAServerRefusesAndKeepsOnWithTheOthers) {
    const struct {
        const char* status;
        const char* text;
    } cases[] = {{"423 Locked", "locked it"},
                 {"507 Insufficient Storage", "server is full"},
                 {"403 Forbidden", "does not allow"},
                 {"413 Too Large", "no file of this size"},
                 {"409 Conflict", "folder above"}};
    coach.write("a.kvx", "a");
    coach.write("b.kvx", "b");
    for (const auto& one : cases) {
        SCOPED_TRACE(one.status);
        server.asked.clear();
        server.add("/dav/", {always(listed({{"/dav/"}}))});
        for (const char* path : {"/dav/a.kvx", "/dav/b.kvx"})
            server.add(path, {[&](const Asked& asked) {
                           return answer(asked.verb == "PUT" ? one.status : "404 No");
                       }});
        const auto results = coach.share();
        EXPECT_THAT(results.at("a.kvx").text, HasSubstr(one.text));
        EXPECT_THAT(results.at("b.kvx").text, HasSubstr(one.text));
        const bool isFull = QByteArray(one.status).startsWith("507");
        EXPECT_EQ(server.askedFor("/dav/b.kvx").empty(), isFull) << "full for one is full for all";
    }
}

TEST_F(FaultyShare, SendsAgainWhatWasCutAndDoesNotTrustAnAnswerThatWasLost) {
    coach.write("a.kvx", "mine");
    server.add("/dav/", {always(listed({{"/dav/"}}))});
    int puts = 0;
    server.add("/dav/a.kvx", {[&](const Asked& asked) {
                   if (asked.verb == "PROPFIND")
                       return puts == 0 ? answer("404 No") : listed({{"/dav/a.kvx", 4}});
                   if (asked.verb == "GET")
                       return answer("200 OK", "ETag: \"1\"\r\n", "mine");
                   // It took the file, and the line broke before it said so.
                   return ++puts == 1 ? QByteArray("") : answer("412 Is there");
               }});
    EXPECT_EQ(coach.share().at("a.kvx").kind, Kind::Same);
    EXPECT_EQ(puts, 2);
    EXPECT_TRUE(server.askedFor("/dav/a.kvx")[1].headers.contains("if-none-match"));
}

TEST_F(FaultyShare, TakesNoNameThatLeadsOutOfTheFolder) {
    server.add("/dav/", {always(listed({{"/dav/"},
                                        {"/dav/../../etc/a.kvx", 1},
                                        {"/dav/%2e%2e%2fb.kvx", 1},
                                        {"/dav/..%5cc.kvx", 1},
                                        {"/dav/sub/d.kvx", 1},
                                        {"http://localhost:1/dav/e.kvx", 1},
                                        {"/dav/f%0a.kvx", 1},
                                        {"/dav/CON.kvx", 1}}))});
    const ShareSurvey survey = coach.compare();
    ASSERT_THAT(survey.rows, SizeIs(1));
    EXPECT_EQ(survey.rows[0].path, "CON.kvx");
    EXPECT_THAT(survey.rows[0].note, HasSubstr("Windows"));
    EXPECT_THAT(survey.leftOut, SizeIs(4)) << "what is not in this very folder is passed over";
}

TEST_F(FaultyShare, DoesNotWriteThroughALinkThatLeadsOut) {
    const TempFolder outside;
    fs::create_directory_symlink(outside.path(), coach.request.folder / "out");
    server.add("/dav/", {always(listed({{"/dav/"}, {"/dav/out/"}}))});
    server.add("/dav/out/", {always(listed({{"/dav/out/"}, {"/dav/out/a.kvx", 1}}))});
    server.add("/dav/out/a.kvx", {always(answer("200 OK", {}, "x"))});
    EXPECT_THAT(coach.share().at("out/a.kvx").text, HasSubstr("leads out"));
    EXPECT_THAT(outside.names(), IsEmpty());
}

TEST_F(FaultyShare, SaysWhatIsNoWebDav) {
    server.add("/dav/", {always(answer("200 OK", {}, "<html>Welcome</html>"))});
    EXPECT_THAT(refusal(), HasSubstr("does not speak WebDAV"));
    server.add("/dav/", {always(answer("405 No"))});
    EXPECT_THAT(refusal(), HasSubstr("does not speak WebDAV"));
    server.add("/dav/", {always(answer("207 Multi-Status", {}, "<D:multistatus"))});
    EXPECT_THAT(refusal(), HasSubstr("no WebDAV folder"));
    server.add("/dav/", {always(listed({{"/dav", 12}}))});
    EXPECT_THAT(refusal(), HasSubstr("that of a file"));
    server.add("/dav/", {always(answer("301 There", "Location: http://localhost:9/\r\n"))});
    EXPECT_THAT(refusal(), HasSubstr("another one"));
    coach.request.folder /= "file";
    std::ofstream(coach.request.folder) << "x";
    EXPECT_THROW((void)coach.compare(), std::runtime_error);
}

TEST_F(FaultyShare, ShowsThePasswordToNobodyElseAndWritesItNowhere) {
    coach.request.login = fetch::WebLogin{"coach", "very-secret-word"};
    coach.write("a.kvx", "a");
    serve({"/dav/b.kvx", 1}, always(answer("302 There", "Location: http://localhost:9/b\r\n")));
    const auto results = coach.share();
    for (const auto& [path, result] : results)
        EXPECT_EQ(result.text.find("very-secret-word"), std::string::npos);
    EXPECT_THAT(results.at("b.kvx").text, HasSubstr("another one"));
    for (const auto& entry : fs::recursive_directory_iterator(coach.request.caches))
        EXPECT_EQ(contentOf(entry.path()).find("very-secret-word"), std::string::npos);
}

TEST_F(FaultyShare, EndsAtOnceWhenTheCoachWantsNoMore) {
    server.add("/dav/", {silence()});
    std::stop_source stop;
    QTimer::singleShot(50, [&] { stop.request_stop(); });
    EXPECT_THROW(
        waitBeside([&] { (void)compareFolder(coach.request, {.stop = stop.get_token()}); }),
        ShareStopped);
}

} // namespace
} // namespace kavela::test
