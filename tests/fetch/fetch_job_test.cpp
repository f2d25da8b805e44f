#include "fetch/fetch_job.h"

#include "common/temp_folder.h"
#include "fetch/faulty_server.h"
#include "fetch/part_file.h"
#include "fetch/test_films.h"

#include <gmock/gmock.h>

#include <QCryptographicHash>
#include <QSemaphore>
#include <QSslSocket>
#include <QTcpServer>
#include <QTest>
#include <QThreadPool>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using namespace kavela::fetch;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::UnorderedElementsAre;
using Kind = FilmResult::Kind;

class UntrustedServer : public QTcpServer {
public:
    UntrustedServer() { listen(QHostAddress::LocalHost); }

    int connections = 0;
    bool wasAsked = false;

protected:
    void incomingConnection(qintptr handle) override {
        ++connections;
        auto* const socket = new QSslSocket(this);
        socket->setSocketDescriptor(handle);
        const QString folder = KAVELA_TEST_DATA "/certificates/";
        socket->setLocalCertificate(folder + "untrusted.pem");
        socket->setPrivateKey(folder + "untrusted.key", QSsl::Ec);
        connect(socket, &QSslSocket::readyRead, this, [this] { wasAsked = true; });
        socket->startServerEncryption();
    }
};

/// Fetches from a server that does what servers at races do.
class FetchJobTest : public ::testing::Test {
protected:
    [[nodiscard]] PlannedFilm film(const std::string& path, const std::string& name = "14.mp4",
                                   const std::string& host = "127.0.0.1") const {
        PlannedFilm planned;
        planned.address = parsedAddress(server.address(path, host)).value();
        planned.name = name;
        planned.isPlaylist = path.ends_with(".m3u8");
        return planned;
    }

    [[nodiscard]] WebRules rules(std::set<std::string> sites = {}) const {
        return {.source = parsedAddress(server.address("/")).value(),
                .sites = std::move(sites),
                .pace = {.silenceMilliseconds = 400, .secondMilliseconds = 2}};
    }

    /// What became of each film, in the order of the list.
    std::vector<FilmResult> run(const std::vector<PlannedFilm>& films,
                                std::optional<WebRules> rules = {},
                                std::int64_t most = MostJobBytes) {
        FetchJob job;
        std::vector<FilmResult> results(films.size());
        bool hasEnded = false;
        QObject::connect(
            &job, &FetchJob::filmEnded, &job,
            [&](std::size_t place, const FilmResult& result) { results.at(place) = result; });
        QObject::connect(&job, &FetchJob::ended, &job, [&] { hasEnded = true; });
        job.start(films, folder.path(), rules.value_or(this->rules()), most);
        EXPECT_TRUE(QTest::qWaitFor([&] { return hasEnded; }, 30'000));
        return results;
    }
    FilmResult runOne(const PlannedFilm& film) { return run({film}).front(); }

    /// The film is there, as the server has it, and nothing else is.
    void expectOnly(const QByteArray& bytes, const std::string& name = "14.mp4") {
        EXPECT_THAT(folder.names(), ElementsAre(name));
        EXPECT_TRUE(contentOf(folder.path() / name) == bytes.toStdString());
    }

    const QByteArray body = testFilm(1);
    const QByteArray other = testFilm(2);
    FaultyServer server;
    TempFolder folder;
};

} // namespace

TEST_F(FetchJobTest, GoesOnWhereTheConnectionBrokeOff) {
    server.add("/14.mp4", {cut(body, "\"a\"", 40), served(body, "\"a\"")});
    EXPECT_EQ(runOne(film("/14.mp4")).kind, Kind::Fetched);
    expectOnly(body);
    const std::vector<Asked> asked = server.askedFor("/14.mp4");
    ASSERT_THAT(asked, SizeIs(2));
    EXPECT_FALSE(asked[0].headers.contains("range"));
    EXPECT_EQ(asked[1].headers.at("if-range"), "\"a\"");
    EXPECT_NE(asked[1].headers.at("range"), "bytes=0-");
}

TEST_F(FetchJobTest, TakesTheWholeFilmOfAServerThatIgnoresRanges) {
    server.add("/14.mp4",
               {cut(body, "\"a\"", 40), always(answer("200 OK", "ETag: \"a\"\r\n", body))});
    EXPECT_EQ(runOne(film("/14.mp4")).kind, Kind::Fetched);
    expectOnly(body);
}

/// Both look like the rest of the film to whoever does not read their headers.
TEST_F(FetchJobTest, TakesNoRestFromElsewhereOrOfAnotherState) {
    const QByteArray size = QByteArray::number(body.size());
    const QByteArray last = QByteArray::number(body.size() - 1);
    const QByteArray fromBegin =
        answer("206 Partial Content",
               "ETag: \"a\"\r\nContent-Range: bytes 0-" + last + '/' + size + "\r\n", body);
    server.add("/14.mp4", {cut(body, "\"a\"", 40), always(fromBegin), served(body, "\"a\"")});
    EXPECT_EQ(runOne(film("/14.mp4")).kind, Kind::Fetched);
    expectOnly(body);
    server.add("/15.mp4", {cut(body, "\"a\"", 40),
                           [&](const Asked& asked) {
                               Asked lying = asked;
                               lying.headers["if-range"] = "\"b\"";
                               return served(other, "\"b\"")(lying);
                           },
                           served(other, "\"b\"")});
    EXPECT_EQ(runOne(film("/15.mp4", "15.mp4")).kind, Kind::Fetched);
    EXPECT_TRUE(contentOf(folder.path() / "15.mp4") == other.toStdString());
}

TEST_F(FetchJobTest, TakesTheNewFilmWhereItChangedMeanwhile) {
    server.add("/14.mp4", {cut(body, "\"a\"", 40), served(other, "\"b\"")});
    EXPECT_EQ(runOne(film("/14.mp4")).kind, Kind::Fetched);
    expectOnly(other);
}

TEST_F(FetchJobTest, GoesOnWithWhatAnEarlierProgramLeft) {
    const std::string address = server.address("/14.mp4");
    (void)folder.add("14.mp4.part", body.left(1'000).toStdString());
    (void)folder.add("14.mp4.part.note", R"({"address":")" + address +
                                             R"(","validator":"\"a\"","size":)" +
                                             std::to_string(body.size()) + "}");
    server.add("/14.mp4", {served(body, "\"a\"")});
    EXPECT_EQ(runOne(film("/14.mp4")).kind, Kind::Fetched);
    expectOnly(body);
    EXPECT_EQ(server.askedFor("/14.mp4").at(0).headers.at("range"), "bytes=1000-");
}

/// A sleeping disk, or a stick: the window of the job goes on, and so does the film later.
TEST_F(FetchJobTest, WaitsForTheDiskBesideItsThread) {
    server.add("/14.mp4", {served(body, "\"a\"")});
    QSemaphore disk;
    partPool().start([&disk] { disk.acquire(); });
    {
        FetchJob given;
        given.start({film("/14.mp4")}, folder.path(), rules());
        QTest::qWait(50);
        EXPECT_TRUE(given.isRunning());
        EXPECT_THAT(folder.names(), IsEmpty());
    }
    disk.release();
    EXPECT_EQ(runOne(film("/14.mp4")).kind, Kind::Fetched);
    expectOnly(body);
}

/// What could not be written is told, and what was there before stays.
TEST_F(FetchJobTest, TellsThatTheFolderTakesNoPart) {
    fs::create_directories(folder.path() / "14.mp4.part.note");
    server.add("/14.mp4", {served(body, "\"a\"")});
    const FilmResult result = runOne(film("/14.mp4"));
    EXPECT_EQ(result.kind, Kind::Failed);
    EXPECT_THAT(result.reason, HasSubstr("The folder takes no file: "));
    EXPECT_THAT(folder.names(), ElementsAre("14.mp4.part.note"));
}

/// A part whose note is gone or of another film could be anything.
TEST_F(FetchJobTest, TrustsNoPartWithoutItsNote) {
    (void)folder.add("14.mp4.part", std::string(1'000, 'x'));
    server.add("/14.mp4", {served(body, "\"a\"")});
    EXPECT_EQ(runOne(film("/14.mp4")).kind, Kind::Fetched);
    expectOnly(body);
    EXPECT_FALSE(server.askedFor("/14.mp4").at(0).headers.contains("range"));
}

TEST_F(FetchJobTest, AsksAgainAfterABusyServerAndAfterSilence) {
    server.add("/14.mp4", {always(answer("429 Too Many", "Retry-After: 2\r\n")),
                           always(answer("503 Busy")), silence(), served(body, "\"a\"")});
    EXPECT_EQ(runOne(film("/14.mp4")).kind, Kind::Fetched);
    expectOnly(body);
    EXPECT_THAT(server.askedFor("/14.mp4"), SizeIs(4));
    server.add("/15.mp4", {always(answer("429 Too Many", "Retry-After: 86400\r\n"))});
    EXPECT_EQ(runOne(film("/15.mp4", "15.mp4")).kind, Kind::Failed);
    EXPECT_THAT(server.askedFor("/15.mp4"), SizeIs(1));
}

TEST_F(FetchJobTest, GivesUpAServerThatAnnouncesMoreThanItHas) {
    server.add("/14.mp4", {cut(body, "W/\"weak\"", 40)});
    const FilmResult result = runOne(film("/14.mp4"));
    EXPECT_EQ(result.kind, Kind::Failed);
    EXPECT_THAT(server.askedFor("/14.mp4"), SizeIs(MostTries));
    EXPECT_THAT(folder.names(), UnorderedElementsAre("14.mp4.part", "14.mp4.part.note"));
}

/// A page that says "please pay", or half a film that is announced as a whole one.
TEST_F(FetchJobTest, TakesNothingThatIsNoFilm) {
    server.add("/14.mp4", {always(answer("200 OK", {}, "<html>Sign in first</html>"))});
    server.add("/15.mp4", {always(answer("200 OK", {}, body.left(200)))});
    server.add("/16.mp4", {always(answer("200 OK"))});
    const std::vector<FilmResult> results =
        run({film("/14.mp4"), film("/15.mp4", "15.mp4"), film("/16.mp4", "16.mp4")});
    EXPECT_THAT(results[0].reason, HasSubstr("is no film"));
    EXPECT_THAT(results[1].reason, HasSubstr("is no film"));
    EXPECT_THAT(results[2].reason, HasSubstr("sent nothing"));
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(FetchJobTest, ChecksWhatAChecksumIsGivenFor) {
    const QByteArray hash = QCryptographicHash::hash(body, QCryptographicHash::Sha256);
    const QByteArray digest = "Repr-Digest: sha-256=:" + hash.toBase64() + ":\r\n";
    QByteArray damaged = body;
    damaged[body.size() / 2] = static_cast<char>(damaged[body.size() / 2] ^ 1);
    server.add("/14.mp4",
               {always(answer("200 OK", digest, damaged)), always(answer("200 OK", digest, body))});
    server.add("/15.mp4", {always(answer("200 OK", {}, damaged))});
    server.add("/15.mp4.sha256", {always(answer("200 OK", {}, hash.toHex() + "  15.mp4\n"))});
    const std::vector<FilmResult> results = run({film("/14.mp4"), film("/15.mp4", "15.mp4")});
    EXPECT_EQ(results[0].kind, Kind::Fetched);
    EXPECT_THAT(results[1].reason, HasSubstr("checksum"));
    expectOnly(body);
}

TEST_F(FetchJobTest, NeverReplacesAFile) {
    (void)folder.add("14.mp4", "mine");
    server.add("/14.mp4", {served(body, "\"a\"")});
    EXPECT_EQ(runOne(film("/14.mp4")).name, "14 2.mp4");
    EXPECT_EQ(contentOf(folder.path() / "14.mp4"), "mine");
    EXPECT_TRUE(contentOf(folder.path() / "14 2.mp4") == body.toStdString());
}

TEST_F(FetchJobTest, EndsCirclesAndTellsWhatIsNotThereYet) {
    server.add("/14.mp4", {always(answer("302 Found", "Location: /14.mp4\r\n"))});
    const std::vector<FilmResult> results = run({film("/14.mp4"), film("/99.mp4", "99.mp4")});
    EXPECT_THAT(results[0].reason, HasSubstr("circle"));
    EXPECT_THAT(server.askedFor("/14.mp4"), SizeIs(MostRedirects + 1));
    EXPECT_EQ(results[1].kind, Kind::NotThere);
    EXPECT_THAT(server.askedFor("/99.mp4"), SizeIs(1));
    EXPECT_THAT(folder.names(), IsEmpty());
}

/// "localhost" is another server than "127.0.0.1": it is followed to where it is ticked, and even
/// then it does not hear the password.
TEST_F(FetchJobTest, ShowsThePasswordToNoOtherServer) {
    const std::string otherSite = "localhost:" + std::to_string(server.serverPort());
    const QByteArray location =
        "Location: " + QByteArray::fromStdString(server.address("/b.mp4", "localhost")) + "\r\n";
    server.add("/14.mp4", {always(answer("302 Found", location))});
    server.add("/b.mp4", {served(body, "\"a\"")});
    WebRules login = rules();
    login.login = WebLogin{"coach", "rapid"};
    const FilmResult refused = run({film("/14.mp4")}, login).front();
    EXPECT_EQ(refused.kind, Kind::Failed);
    EXPECT_EQ(refused.otherSite, otherSite);
    EXPECT_THAT(server.askedFor("/b.mp4"), IsEmpty());
    login.sites = {otherSite};
    EXPECT_EQ(run({film("/14.mp4")}, login).front().kind, Kind::Fetched);
    EXPECT_EQ(server.askedFor("/14.mp4").at(0).headers.at("authorization"),
              "Basic " + QByteArray("coach:rapid").toBase64());
    EXPECT_FALSE(server.askedFor("/b.mp4").at(0).headers.contains("authorization"));
    expectOnly(body);
}

/// There is no way round a certificate that nobody vouches for, and no second try.
TEST_F(FetchJobTest, TellsNothingToAServerThatIsNotTrusted) {
    UntrustedServer untrusted;
    PlannedFilm planned = film("/14.mp4");
    planned.address =
        parsedAddress("https://127.0.0.1:" + std::to_string(untrusted.serverPort()) + "/14.mp4")
            .value();
    WebRules login = rules();
    login.source = planned.address;
    login.login = WebLogin{"coach", "rapid"};
    EXPECT_THAT(run({planned}, login).front().reason, HasSubstr("not trusted"));
    EXPECT_LT(untrusted.connections, MostTries);
    EXPECT_FALSE(untrusted.wasAsked);
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(FetchJobTest, WritesNoPasswordAndAsksForOneWhereItIsWanted) {
    server.add("/14.mp4", {cut(body, "\"a\"", 40)});
    server.add("/15.mp4", {always(answer("401 No", "WWW-Authenticate: Basic realm=\"x\"\r\n"))});
    WebRules login = rules();
    login.login = WebLogin{"coach", "very-secret-word"};
    const std::vector<FilmResult> results =
        run({film("/14.mp4"), film("/15.mp4", "15.mp4")}, login);
    EXPECT_TRUE(results[1].wantsLogin);
    EXPECT_THAT(server.askedFor("/15.mp4"), SizeIs(1));
    const std::string note = contentOf(folder.path() / "14.mp4.part.note");
    for (const std::string& secret :
         {std::string("very-secret-word"), std::string("coach"),
          QByteArray("coach:very-secret-word").toBase64().toStdString()})
        EXPECT_EQ(note.find(secret), std::string::npos);
}

TEST_F(FetchJobTest, FetchesThreeAtOnceAndStopsAtOnce) {
    std::vector<PlannedFilm> films;
    for (int bib = 1; bib <= 5; ++bib) {
        const std::string name = std::to_string(bib) + ".mp4";
        server.add(QByteArray::fromStdString('/' + name), {silence()});
        films.push_back(film('/' + name, name));
    }
    FetchJob job;
    std::vector<Kind> kinds;
    QObject::connect(&job, &FetchJob::filmEnded, &job,
                     [&](std::size_t, const FilmResult& result) { kinds.push_back(result.kind); });
    WebRules patient = rules();
    patient.pace.silenceMilliseconds = 20'000;
    job.start(films, folder.path(), patient);
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.asked.size() == FilmsAtOnce; }));
    job.cancel();
    EXPECT_FALSE(job.isRunning());
    EXPECT_THAT(kinds, SizeIs(5));
    EXPECT_THAT(kinds, ::testing::Each(Kind::Cancelled));
    EXPECT_THAT(server.asked, SizeIs(FilmsAtOnce));
}

TEST_F(FetchJobTest, BringsNoMoreThanAJobMay) {
    server.add("/14.mp4", {served(body, "\"a\"")});
    const FilmResult result = run({film("/14.mp4")}, {}, body.size() / 2).front();
    EXPECT_EQ(result.kind, Kind::Failed);
    EXPECT_THAT(result.reason, HasSubstr("20 GB"));
}

TEST_F(FetchJobTest, PutsAFilmInPiecesTogether) {
    for (const auto& [name, bytes] : testPieces())
        server.add("/hls/" + name,
                   {name.endsWith("1.ts") ? cut(bytes, "\"p\"", 50) : served(bytes, "\"p\""),
                    served(bytes, "\"p\"")});
    server.add(
        "/14.m3u8",
        {always(answer("200 OK", {}, "#EXTM3U\n#EXT-X-STREAM-INF:BANDWIDTH=9\nhls/list.m3u8\n"))});
    const FilmResult result = runOne(film("/14.m3u8"));
    EXPECT_EQ(result.kind, Kind::Fetched) << result.reason;
    EXPECT_THAT(folder.names(), ElementsAre("14.mp4"));
    EXPECT_EQ(faultOfFilm(folder.path() / "14.mp4"), std::nullopt);
    EXPECT_EQ(framesIn(folder.path() / "14.mp4"), TestFrames);
}

TEST_F(FetchJobTest, RefusesAFilmInPiecesThatDoesNotEndOrLeadsElsewhere) {
    server.add("/14.m3u8", {always(answer("200 OK", {}, "#EXTM3U\n#EXTINF:4,\na.ts\n"))});
    server.add(
        "/15.m3u8",
        {always(answer("200 OK", {},
                       "#EXTM3U\n#EXTINF:4,\nhttp://cdn.example.net/a.ts\n#EXT-X-ENDLIST\n"))});
    server.add("/16.m3u8",
               {always(answer("200 OK", {}, "#EXTM3U\n#EXT-X-STREAM-INF:BANDWIDTH=9\n16.m3u8\n"))});
    const std::vector<FilmResult> results =
        run({film("/14.m3u8"), film("/15.m3u8", "15.mp4"), film("/16.m3u8", "16.mp4")});
    EXPECT_THAT(results[0].reason, HasSubstr("still growing"));
    EXPECT_EQ(results[1].otherSite, "cdn.example.net");
    EXPECT_THAT(results[2].reason, HasSubstr("without an end"));
    EXPECT_THAT(folder.names(), IsEmpty());
}

} // namespace kavela::test
