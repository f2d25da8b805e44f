#include "common/temp_folder.h"
#include "fetch/faulty_server.h"
#include "update/fast_pace.h"
#include "update/update_download.h"
#include "update/update_look.h"
#include "update/update_rules.h"

#include <gmock/gmock.h>

#include <QProcess>
#include <QTest>

#include <sys/stat.h>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using namespace kavela::update;
using ::testing::HasSubstr;

struct Ended {
    int status = -1;
    std::string out;
    std::string errors;
};

Ended runProgram(const char* program, const std::vector<std::string>& arguments) {
    QProcess process;
    QStringList list;
    for (const std::string& argument : arguments)
        list.append(QString::fromStdString(argument));
    process.start(program, list);
    process.waitForFinished(60'000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput().trimmed().toStdString(),
            process.readAllStandardError().toStdString()};
}

/// A working tree of git with one commit, which has a tag.
class CommittedSources {
public:
    CommittedSources() {
        (void)folder.add("main.cpp", "int main() {}\n");
        git({"init", "--quiet"});
        git({"add", "."});
        commit();
        git({"tag", "v0.32.0"});
    }

    void git(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(),
                         {"-C", path(), "-c", "user.name=A", "-c", "user.email=a@localhost", "-c",
                          "commit.gpgsign=false"});
        const Ended ended = runProgram("git", arguments);
        ASSERT_EQ(ended.status, 0) << ended.errors;
    }

    void commit() const { git({"commit", "--quiet", "--allow-empty", "--message", "A step"}); }

    [[nodiscard]] std::string path() const { return folder.path().string(); }

    TempFolder folder;
};

/// What who gives a version out has at hand: sources, a build, a key, and notes.
class ReleaseTest : public ::testing::Test {
protected:
    ReleaseTest() {
        publicKey = runProgram(KAVELA_SIGN_PROGRAM, {"key", key.string()}).out;
        setBuiltInKey(publicKey);
        (void)folder.add("notes.txt", "Better than before.\n");
        package = folder.add("kavela_0.32.0_amd64.deb", "a package");
        bundle = folder.add("kavela-0.32.0-amd64.tar.zst", "a folder");
    }

    void setBuiltInKey(const std::string& digits) const {
        (void)folder.add("CMakeCache.txt", "CMAKE_PROJECT_VERSION:STATIC=0.32.0\n"
                                           "CMAKE_HOME_DIRECTORY:INTERNAL=" +
                                               sources.path() +
                                               "\nKAVELA_UPDATE_KEY:STRING=" + digits + '\n');
    }

    [[nodiscard]] Ended release() const {
        return runProgram(KAVELA_RELEASE_SCRIPT,
                          {folder.path().string(), "--key", key.string(), "--base",
                           server.address("/kavela"), "--notes",
                           (folder.path() / "notes.txt").string(), "--sign", KAVELA_SIGN_PROGRAM,
                           "--out", out.string(), package.string(), bundle.string()});
    }

    void serveReleased() {
        for (const auto& entry : fs::directory_iterator(out)) {
            const std::string name = entry.path().filename().string();
            server.add(QByteArray::fromStdString("/kavela/" + name),
                       {served(QByteArray::fromStdString(contentOf(entry.path())), "\"a\"")});
        }
    }

    CommittedSources sources;
    TempFolder folder;
    fs::path key = folder.path() / "secret.key";
    fs::path out = folder.path() / "out";
    fs::path package;
    fs::path bundle;
    std::string publicKey;
    FaultyServer server;
};

} // namespace

TEST_F(ReleaseTest, IsFoundBelievedAndBroughtByTheProgram) {
    const Ended made = release();
    ASSERT_EQ(made.status, 0) << made.errors;
    serveReleased();
    std::optional<LookResult> found;
    UpdateLook looking({fetch::parsedAddress(server.address("/kavela/newest.json")).value(),
                        parsedPublicKey(publicKey).value()},
                       {{0, 31, 0}}, Fast, nullptr);
    looking.start([&](const LookResult& result) { found = result; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return found.has_value(); }, 20'000));
    ASSERT_TRUE(found->manifest) << found->reason;
    EXPECT_EQ(found->manifest->notes, "Better than before.\n");
    const Verdict verdict =
        verdictOn(*found->manifest, {.own = {{0, 31, 0}}}, "bundle-amd64", false);
    ASSERT_TRUE(verdict.file);

    const TempFolder downloads;
    QString path;
    UpdateDownload loading({{0, 31, 0}}, Fast, nullptr);
    QObject::connect(&loading, &UpdateDownload::finished, &loading,
                     [&](const QString& brought) { path = brought; });
    loading.start(*verdict.file, downloads.path());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !path.isEmpty(); }, 20'000));
    EXPECT_EQ(contentOf(path.toStdString()), "a folder");
}

TEST_F(ReleaseTest, KeepsItsSecretAndNeverWritesOverOne) {
    struct ::stat about {};
    ASSERT_EQ(::stat(key.c_str(), &about), 0);
    EXPECT_EQ(about.st_mode & 0777U, 0600U);
    const std::string before = contentOf(key);
    EXPECT_NE(runProgram(KAVELA_SIGN_PROGRAM, {"key", key.string()}).status, 0);
    EXPECT_EQ(contentOf(key), before);
    EXPECT_EQ(publicKey.size(), 64U);
}

TEST_F(ReleaseTest, IsNotMadeWhereNobodyWouldBelieveIt) {
    setBuiltInKey(newKeyPair().publicKey);
    const Ended other = release();
    EXPECT_NE(other.status, 0);
    EXPECT_THAT(other.errors, HasSubstr("another key"));
    setBuiltInKey(publicKey);
    package = folder.add("kavela_0.31.0_amd64.deb", "an old package");
    const Ended old = release();
    EXPECT_NE(old.status, 0);
    EXPECT_THAT(old.errors, HasSubstr("kavela_0.31.0_amd64.deb"));
    EXPECT_FALSE(fs::exists(out / "newest.json"));
}

TEST_F(ReleaseTest, IsMadeOfTheCommitThatItsTagNamesAlone) {
    const fs::path stray = sources.folder.add("stray.cpp", "");
    EXPECT_THAT(release().errors, HasSubstr("stray.cpp"));
    fs::remove(stray);
    sources.commit();
    EXPECT_THAT(release().errors, HasSubstr("The tag v0.32.0 belongs to another commit"));
    sources.git({"tag", "--delete", "v0.32.0"});
    EXPECT_THAT(release().errors, HasSubstr("There is no tag v0.32.0"));
    EXPECT_FALSE(fs::exists(out));
    sources.git({"tag", "--annotate", "--message", "As given out", "v0.32.0"});
    EXPECT_EQ(release().status, 0);
}

TEST_F(ReleaseTest, IsBuiltOfTheSourcesAsTheyStand) {
    const auto become = [&](const std::string& version) {
        (void)sources.folder.add("CMakeLists.txt",
                                 "cmake_minimum_required(VERSION 3.25)\nproject(kavela VERSION " +
                                     version +
                                     " LANGUAGES NONE)\nadd_custom_target(programs ALL COMMAND "
                                     "${CMAKE_COMMAND} -E touch programs)\n");
        sources.git({"add", "."});
        sources.commit();
    };
    become("0.32.0");
    const fs::path build = folder.path() / "build";
    ASSERT_EQ(
        runProgram("cmake", {"-G", "Ninja", "-S", sources.path(), "-B", build.string()}).status, 0);
    become("0.33.0");
    const auto releaseBuild = [&] {
        return runProgram(KAVELA_RELEASE_SCRIPT, {build.string(), "--key", key.string(), "--base",
                                                  server.address("/kavela"), "--notes",
                                                  (folder.path() / "notes.txt").string(), "--sign",
                                                  KAVELA_SIGN_PROGRAM, "--out", out.string()});
    };
    EXPECT_THAT(releaseBuild().errors, HasSubstr("There is no tag v0.33.0"));
    EXPECT_FALSE(fs::exists(build / "programs"));
    sources.git({"tag", "v0.33.0"});
    // Nothing of it can be packed.
    EXPECT_NE(releaseBuild().status, 0);
    EXPECT_TRUE(fs::exists(build / "programs"));
}

} // namespace kavela::test
