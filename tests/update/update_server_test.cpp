#include "common/temp_folder.h"
#include "fetch/faulty_server.h"
#include "update/fast_pace.h"
#include "update/secure_server.h"
#include "update/update_download.h"
#include "update/update_look.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <QCryptographicHash>
#include <QTest>

#include <set>

namespace kavela::test {
namespace {

using namespace kavela::update;
using nlohmann::json;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr Version Own{{0, 31, 0}};
constexpr const char* ListPath = "/kavela/newest.json";
constexpr const char* FilePath = "/kavela/kavela_0.32.0_amd64.deb";

QByteArray packageBytes() {
    QByteArray bytes;
    for (int i = 0; i < 100'000; ++i)
        bytes.append(static_cast<char>(i * 7 % 251));
    return bytes;
}

/// A server that has a version to give out, and a program that looks for it.
class UpdateServerTest : public ::testing::Test {
protected:
    [[nodiscard]] updatefile001 file() const {
        return {
            "deb-amd64", server.address(FilePath), package.size(),
            QCryptographicHash::hash(package, QCryptographicHash::Sha256).toHex().toStdString()};
    }

    [[nodiscard]] std::string manifest() const {
        return json{{"version", "0.32.0"},
                    {"date", "2026-11-22"},
                    {"notes", "Better"},
                    {"files",
                     {{{"platform", file().platform},
                       {"address", file().address},
                       {"size", file().size},
                       {"sha256", file().sha256}}}}}
            .dump();
    }

    void serveList(const std::string& content, const std::string& signature) {
        server.add(ListPath, {always(answer("200 OK", {}, QByteArray::fromStdString(content)))});
        server.add(QByteArray(ListPath) + ".sig",
                   {always(answer("200 OK", {}, QByteArray::fromStdString(signature + '\n')))});
    }

    [[nodiscard]] LookResult look(const std::string& address) const {
        std::optional<LookResult> result;
        UpdateLook looking(
            {fetch::parsedAddress(address).value(), parsedPublicKey(keys.publicKey).value()}, Own,
            Fast, nullptr);
        looking.start([&](const LookResult& found) { result = found; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return result.has_value(); }, 20'000));
        return result.value_or(LookResult());
    }
    [[nodiscard]] LookResult look() const { return look(server.address(ListPath)); }

    /// The path of the file, or the reason why there is none.
    std::string download(const updatefile001& wanted) const {
        UpdateDownload loading(Own, Fast, nullptr);
        std::optional<QString> told;
        QObject::connect(&loading, &UpdateDownload::finished, &loading,
                         [&](const QString& path) { told = path; });
        QObject::connect(&loading, &UpdateDownload::failed, &loading,
                         [&](const QString& reason) { told = reason; });
        loading.start(wanted, folder.path());
        EXPECT_TRUE(QTest::qWaitFor([&] { return told.has_value(); }, 20'000));
        return told.value_or(QString()).toStdString();
    }
    std::string download() const { return download(file()); }

    const QByteArray package = packageBytes();
    const KeyPair keys = newKeyPair();
    TempFolder folder;
    FaultyServer server;
};

} // namespace

TEST_F(UpdateServerTest, BelievesASignedListAndTellsTheServerItsVersionAlone) {
    serveList(manifest(), signatureOf(keys.secretKey, manifest()));
    const LookResult result = look();
    ASSERT_TRUE(result.manifest) << result.reason;
    EXPECT_EQ(result.manifest->files.at(0), file());
    ASSERT_EQ(server.asked.size(), 2U);
    const std::set<QByteArray> usual{"host", "connection", "accept-encoding", "content-length"};
    for (const auto& [name, value] : server.asked[0].headers) {
        if (name == "user-agent")
            EXPECT_EQ(value, "Kavela/0.31.0");
        else if (name == "accept-language")
            EXPECT_EQ(value, "*");
        else
            EXPECT_TRUE(usual.contains(name)) << name.toStdString();
    }
}

TEST_F(UpdateServerTest, UsesNoListThatIsNotSignedByItsKey) {
    const std::string good = signatureOf(keys.secretKey, manifest());
    serveList(manifest(), signatureOf(newKeyPair().secretKey, manifest()));
    EXPECT_THAT(look().reason, HasSubstr("somebody else's"));
    std::string changed = manifest();
    changed.replace(changed.find("0.32.0"), 6, "0.33.0");
    serveList(changed, good);
    EXPECT_FALSE(look().manifest);
    serveList(manifest().substr(0, 60), good);
    EXPECT_FALSE(look().manifest);
    server.add(QByteArray(ListPath) + ".sig", {always(answer("404 Not Found"))});
    const LookResult unsignedOne = look();
    EXPECT_THAT(unsignedOne.reason, HasSubstr("not signed"));
    EXPECT_TRUE(unsignedOne.isRefused);
}

TEST_F(UpdateServerTest, TellsWhatIsWrongWithASignedList) {
    json manifestOfHttp = json::parse(manifest());
    manifestOfHttp["files"][0]["address"] = "http://example.org/kavela.deb";
    const std::string text = manifestOfHttp.dump();
    serveList(text, signatureOf(keys.secretKey, text));
    EXPECT_THAT(look().reason, HasSubstr("files[0].address: an https address"));
}

TEST_F(UpdateServerTest, RefusesAHundredMegabytesWhileTheyCome) {
    const QByteArray head = "HTTP/1.1 200 OK\r\nContent-Length: 100000000\r\n\r\n";
    server.add(ListPath, {always(head + QByteArray(100'000'000, ' '))});
    const LookResult result = look();
    EXPECT_THAT(result.reason, HasSubstr("longer than it may be"));
    EXPECT_TRUE(result.isRefused);
    EXPECT_THAT(server.askedFor(QByteArray(ListPath) + ".sig"), IsEmpty());
}

TEST_F(UpdateServerTest, FollowsNobodyToHttpOrToAnotherServer) {
    serveList(manifest(), signatureOf(keys.secretKey, manifest()));
    SecureServer secure;
    secure.reply = answer(
        "302 Found", "Location: " + QByteArray::fromStdString(server.address(ListPath)) + "\r\n");
    EXPECT_THAT(look(secure.address(ListPath)).reason, HasSubstr("from https to http"));
    updatefile001 moved = file();
    moved.address = secure.address(FilePath);
    EXPECT_THAT(download(moved), HasSubstr("from https to http"));
    EXPECT_THAT(server.asked, IsEmpty());

    FaultyServer other;
    server.add(ListPath,
               {always(answer("302 Found",
                              "Location: " + QByteArray::fromStdString(other.address(ListPath)) +
                                  "\r\n"))});
    EXPECT_THAT(look().reason, HasSubstr("another server"));
    EXPECT_THAT(other.asked, IsEmpty());
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(UpdateServerTest, BringsTheFileBesideOneOfTheSameName) {
    (void)folder.add("kavela_0.32.0_amd64.deb", "the coach's own");
    server.add(FilePath, {served(package, "\"a\"")});
    const std::string path = download();
    EXPECT_EQ(path, (folder.path() / "kavela_0.32.0_amd64 (2).deb").string());
    EXPECT_TRUE(contentOf(path) == package.toStdString());
    EXPECT_EQ(contentOf(folder.path() / "kavela_0.32.0_amd64.deb"), "the coach's own");
    EXPECT_EQ(folder.names().size(), 2U) << "no part is left";
    EXPECT_EQ(server.asked.back().headers["user-agent"], "Kavela/0.31.0");
}

TEST_F(UpdateServerTest, GoesOnWhereALineBroke) {
    const auto rest = [this](const Asked& asked) {
        const qsizetype from = asked.headers.at("range").mid(6).chopped(1).toLongLong();
        return answer("206 Partial Content",
                      "Content-Range: bytes " + QByteArray::number(from) + '-' +
                          QByteArray::number(package.size() - 1) + '/' +
                          QByteArray::number(package.size()) + "\r\n",
                      package.mid(from));
    };
    server.add(FilePath, {cut(package, "\"a\"", 40), rest});
    const std::string path = download();
    EXPECT_TRUE(contentOf(path) == package.toStdString()) << path;
}

TEST_F(UpdateServerTest, KeepsNothingOfAFileThatIsNotTheOneOfTheList) {
    QByteArray damaged = package;
    damaged[50'000] = static_cast<char>(damaged[50'000] ^ 1);
    QByteArray endless = package + package;
    // Without a length, so that it is told by what comes.
    endless.prepend("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n");
    struct Fault {
        FaultyServer::Reply reply;
        const char* told;
    };
    const std::vector<Fault> cases{
        {served(damaged, "\"a\""), "damaged, or was changed"},
        {served(package.mid(1), "\"a\""), "not as long"},
        {always(endless), "longer than the list"},
        {cut(package, "\"a\"", 40), "given up after 5 tries"},
        {silence(), "given up after 5 tries"},
        {always(answer("404 Not Found")), "not on the server"},
        {always(answer("206 Partial Content", "Content-Range: bytes 5-9/100000\r\n", "12345")),
         "another part"}};
    for (const Fault& each : cases) {
        server.add(FilePath, {each.reply});
        EXPECT_THAT(download(), HasSubstr(each.told));
        EXPECT_THAT(folder.names(), IsEmpty()) << each.told;
    }
}

TEST_F(UpdateServerTest, LeavesNothingWhenItIsStopped) {
    server.add(FilePath, {cut(package, "\"a\"", 40)});
    UpdateDownload loading(Own, {.silenceMilliseconds = 5'000, .secondMilliseconds = 60'000},
                           nullptr);
    bool hasBegun = false;
    bool hasEnded = false;
    QObject::connect(&loading, &UpdateDownload::progressed, &loading,
                     [&](qint64 held, qint64) { hasBegun = held > 0; });
    QObject::connect(&loading, &UpdateDownload::failed, &loading, [&] { hasEnded = true; });
    loading.start(file(), folder.path());
    ASSERT_TRUE(QTest::qWaitFor([&] { return hasBegun; }, 20'000));
    EXPECT_THAT(folder.names(), ElementsAre(".kavela_0.32.0_amd64.deb.part"));
    loading.stop();
    EXPECT_THAT(folder.names(), IsEmpty());
    EXPECT_FALSE(hasEnded);
}

} // namespace kavela::test
