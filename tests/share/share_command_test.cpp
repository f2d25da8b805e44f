#include "cli/program.h"
#include "fetch/faulty_server.h"
#include "share/sharing_pair.h"
#include "share/told_files.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr const char* Secret = "very-secret-word";

/// `kavela share`, called beside a server that lives in this program.
class ShareCommand : public ::testing::Test {
protected:
    ShareCommand() {
        fs::create_directory(kavela.folder().path() / "mine");
        write("mine/here.kvx", "here");
    }

    void write(const std::string& name, const std::string& content) const {
        (void)kavela.folder().add(name, content);
    }

    Ending share(const std::vector<std::string>& arguments,
                 const std::string& input = "/dev/null") {
        std::vector<std::string> all{"share"};
        all.insert(all.end(), arguments.begin(), arguments.end());
        Ending ending;
        waitBeside([&] { ending = kavela.call(all, input); });
        return ending;
    }

    Ending shareMine(const std::vector<std::string>& more = {}) {
        std::vector<std::string> all{"mine", "--to", server.address("/dav/")};
        all.insert(all.end(), more.begin(), more.end());
        return share(all);
    }

    /// A server with one file of its own, which takes that of the coach or refuses it.
    void serve(const QByteArray& put) {
        server.add("/dav/", {[this](const Asked&) {
                       std::vector<Told> told{{"/dav/"}, {"/dav/there.kvx", 5}};
                       if (hasTaken)
                           told.push_back({"/dav/here.kvx", 4});
                       return listed(told);
                   }});
        server.add("/dav/there.kvx", {[](const Asked& asked) {
                       if (asked.verb == "GET")
                           return answer("200 OK", "ETag: \"1\"\r\n", "there");
                       return listed({{"/dav/there.kvx", 5}});
                   }});
        server.add("/dav/here.kvx", {[this, put](const Asked& asked) {
                       if (asked.verb != "PUT" && hasTaken)
                           return listed({{"/dav/here.kvx", 4}});
                       if (asked.verb != "PUT")
                           return answer("404 No");
                       hasTaken = put.startsWith("HTTP/1.1 201");
                       return put;
                   }});
    }

    /// What became of each file by its path, from the JSON that was printed.
    static std::map<std::string, nlohmann::json> rowsOf(const Ending& ending) {
        std::map<std::string, nlohmann::json> rows;
        const auto told = nlohmann::json::parse(ending.output);
        for (const auto& row : told.at("rows"))
            rows[row.at("path").get<std::string>()] = row;
        return rows;
    }

    FaultyServer server;
    Program kavela;
    bool hasTaken = false;
};

TEST_F(ShareCommand, SharesBothWaysAndRemembersWhereTo) {
    serve(answer("201 Created"));
    const Ending shown = shareMine({"--dry-run"});
    EXPECT_EQ(shown.status, 0) << shown.errors;
    EXPECT_THAT(shown.output, AllOf(HasSubstr("new here"), HasSubstr("new there")));
    EXPECT_FALSE(hasTaken);
    EXPECT_FALSE(fs::exists(kavela.folder().path() / "mine/there.kvx"));

    const Ending shared = share({"mine", "--json"});
    EXPECT_EQ(shared.status, 0) << shared.errors;
    auto rows = rowsOf(shared);
    ASSERT_EQ(rows.size(), 2U) << shared.output;
    EXPECT_EQ(rows["here.kvx"]["change"], "new here");
    EXPECT_EQ(rows["here.kvx"]["result"], "done") << rows["here.kvx"];
    EXPECT_EQ(rows["there.kvx"]["change"], "new there");
    EXPECT_EQ(rows["there.kvx"]["result"], "done") << rows["there.kvx"];
    EXPECT_EQ(contentOf(kavela.folder().path() / "mine/there.kvx"), "there");

    const Ending again = share({"mine"});
    EXPECT_EQ(again.status, 0) << again.errors;
    EXPECT_EQ(again.output, "Both sides are the same.\n");
}

TEST_F(ShareCommand, TellsAFullServerAndTakesWhatIsThere) {
    serve(answer("507 Insufficient Storage"));
    const Ending ending = shareMine({"--json"});
    EXPECT_NE(ending.status, 0);
    auto rows = rowsOf(ending);
    EXPECT_EQ(rows["here.kvx"]["result"], "failed");
    EXPECT_THAT(rows["here.kvx"]["text"].get<std::string>(), HasSubstr("server is full"));
    EXPECT_EQ(rows["there.kvx"]["result"], "done");
    EXPECT_EQ(contentOf(kavela.folder().path() / "mine/here.kvx"), "here");
    EXPECT_THAT(shareMine({"--yes"}).errors,
                AllOf(HasSubstr("here.kvx"), HasSubstr("server is full")));
}

/// Every operation on the coach's folder meets a full disk in turn.
TEST_F(ShareCommand, LeavesNoHalfFileOnAFullDisk) {
    serve(answer("201 Created"));
    const TempFolder reports;
    const fs::path struck = reports.path() / "struck";
    constexpr int MostOperations = 60;
    bool wasFull = false;
    int at = 1;
    for (; at <= MostOperations; ++at) {
        SCOPED_TRACE(at);
        fs::remove(struck);
        const Program env("/usr/bin/env");
        const fs::path mine = env.folder().path() / "mine";
        fs::create_directory(mine);
        Ending ending;
        waitBeside([&] {
            ending = env.call({std::string("LD_PRELOAD=") + KAVELA_FAULT_SHIM,
                               "ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0",
                               "KAVELA_FAULT_FOLDER=" + mine.string(),
                               "KAVELA_FAULT_AT=" + std::to_string(at), "KAVELA_FAULT_KIND=short",
                               "KAVELA_FAULT_LARGE=1", "KAVELA_FAULT_REPORT=" + struck.string(),
                               KAVELA_PROGRAM, "share", "mine", "--to", server.address("/dav/")});
        });
        const bool isWhole = ending.status == 0;
        // What could not be flushed behind its name is whole all the same, and told.
        const bool isThere = fs::exists(mine / "there.kvx");
        EXPECT_TRUE(isThere || !isWhole) << ending.errors;
        if (isThere) {
            EXPECT_EQ(contentOf(mine / "there.kvx"), "there");
        }
        if (!isWhole) {
            EXPECT_THAT(ending.errors,
                        ::testing::AnyOf(HasSubstr("No space left"), HasSubstr("the disk is full"),
                                         HasSubstr("disk does not take")));
        }
        std::string left;
        for (const auto& file : fs::directory_iterator(mine))
            left += file.path().filename().string() + ' ';
        EXPECT_EQ(left, isThere ? "there.kvx " : "");
        wasFull = wasFull || ending.errors.find("The disk does not take") != std::string::npos;
        if (!fs::exists(struck))
            break;
    }
    EXPECT_TRUE(wasFull) << "no film's own bytes met the full disk";
    EXPECT_LE(at, MostOperations) << "the last call is one without a fault";
}

TEST_F(ShareCommand, SaysWhatCannotBeShared) {
    server.add("/page/", {always(answer("200 OK", {}, "<html>Welcome</html>"))});
    server.add("/a.kvx/", {always(listed({{"/a.kvx", 12}}))});
    const struct {
        std::vector<std::string> arguments;
        const char* text;
    } cases[] = {{{"mine", "--to", server.address("/page/")}, "does not speak WebDAV"},
                 {{"mine", "--to", server.address("/a.kvx")}, "that of a file"},
                 {{"mine", "--to", "http://films.example.org/dav/"}, "Only https://"},
                 {{"mine/here.kvx", "--to", server.address("/dav/")}, "A folder is shared"},
                 {{"none", "--to", server.address("/dav/")}, "none"}};
    for (const auto& one : cases) {
        SCOPED_TRACE(one.text);
        const Ending ending = share(one.arguments);
        EXPECT_NE(ending.status, 0);
        EXPECT_THAT(ending.errors, HasSubstr(one.text));
        EXPECT_THAT(ending.output, IsEmpty());
    }
    EXPECT_THAT(server.askedFor("/dav/"), IsEmpty()) << "nobody is asked about what is no folder";
    const Ending unknown = Program().call({"share", "/"});
    EXPECT_THAT(unknown.errors, HasSubstr("--to"));
}

TEST_F(ShareCommand, PrintsAndKeepsNoPasswordWhenTheLoginIsRefused) {
    server.add("/dav/", {always(answer("401 Who", "WWW-Authenticate: Basic realm=\"x\"\r\n"))});
    EXPECT_THAT(shareMine().errors, HasSubstr("--user"));

    const TempFolder typed;
    const Ending ending =
        share({"mine", "--to", server.address("/dav/"), "--user", "coach", "--json"},
              typed.add("typed", std::string(Secret) + '\n').string());
    EXPECT_NE(ending.status, 0);
    EXPECT_THAT(ending.errors, AllOf(HasSubstr("Password of coach"), Not(HasSubstr(Secret)),
                                     Not(HasSubstr("--user"))));
    EXPECT_THAT(ending.output, Not(HasSubstr(Secret)));
    const QByteArray login =
        "Basic " + QByteArray(std::string("coach:").append(Secret).c_str()).toBase64();
    EXPECT_EQ(server.asked.back().headers["authorization"], login) << "it was typed after all";
    const fs::path home = kavela.cache().parent_path().parent_path().parent_path();
    for (const fs::path& kept : {home, kavela.folder().path()})
        for (const auto& entry : fs::recursive_directory_iterator(kept)) {
            if (!entry.is_regular_file())
                continue;
            EXPECT_THAT(contentOf(entry.path()), Not(HasSubstr(Secret))) << entry.path();
        }
}

} // namespace
} // namespace kavela::test
