#include "analysis/races.h"
#include "cli/program.h"
#include "common/json_encode.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <optional>
#include <utility>

namespace kavela::test {

namespace {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using Call = std::vector<std::string>;

/// An entry of the environment for as long as it is needed.
class Environment {
public:
    Environment(const char* name, const std::string& value) : m_name(name) {
        if (const char* const before = std::getenv(name))
            m_before = before;
        ::setenv(name, value.c_str(), 1);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    ~Environment() {
        if (m_before)
            ::setenv(m_name, m_before->c_str(), 1);
        else
            ::unsetenv(m_name);
    }

private:
    const char* m_name;
    std::optional<std::string> m_before;
};

/// A program in the place of `kavela-paint` that tells what it got.
class HandingOn : public testing::Test {
protected:
    HandingOn() {
        const fs::path program =
            m_other.add("kavela-paint", "#!/bin/sh\nfor word; do echo \"<$word>\"; done\ncat\n"
                                        "echo told >&2\nexit 7\n");
        fs::permissions(program, fs::perms::owner_all);
    }

    [[nodiscard]] std::string other() const { return (m_other.path() / "kavela-paint").string(); }
    [[nodiscard]] static std::string race() { return encode(raceOf(1, {runOf({30})})); }

    TempFolder m_other;
    Program m_kavela;
};

/// What names the libraries of painting and films, and those that they bring along.
auto namesHeavyLibraries() {
    return testing::AnyOf(HasSubstr("libQt"), HasSubstr("libav"), HasSubstr("libsw"),
                          HasSubstr("libicu"), HasSubstr("libglib"));
}

} // namespace

TEST_F(HandingOn, LoadsNeitherQtNorFilmsForATable) {
    (void)m_kavela.folder().add("race.kvx", race());
    m_kavela.prefer("colorMode=Training\npenaltiesIncluded=true\n");
    const Environment debug("LD_DEBUG", "files"); // the loader tells what it loads, whenever
    for (const Call& call : {Call{"show", "race.kvx"}, Call{"--version"}, Call{"info", "race.kvx"},
                             Call{"export", "race.kvx", "--csv", "race.csv"}}) {
        const Ending ending = m_kavela.call(call);
        EXPECT_EQ(ending.status, 0) << call.front();
        EXPECT_THAT(ending.errors, AllOf(HasSubstr("libc.so"), Not(namesHeavyLibraries())))
            << call.front();
    }
    const Ending painted = m_kavela.call({"export", "race.kvx", "--pdf", "race.pdf"});
    EXPECT_EQ(painted.status, 0);
    EXPECT_THAT(painted.errors, namesHeavyLibraries()) << "what is loaded is seen at all";
}

TEST_F(HandingOn, KeepsArgumentsInputAndExitStatus) {
    const Environment paint("KAVELA_PAINT", other());
    const fs::path input = m_other.add("input", "two lines\nof input\n");
    const Ending ending = m_kavela.call(
        {"team", "categorize", " a team\n.kvteam", "--category", "", "--pdf", "*  \"x\" $HOME"},
        input.string());
    EXPECT_EQ(ending.status, 7);
    EXPECT_EQ(ending.output, "<team>\n<categorize>\n< a team\n.kvteam>\n<--category>\n<>\n<--pdf>\n"
                             "<*  \"x\" $HOME>\ntwo lines\nof input\n");
    EXPECT_EQ(ending.errors, "told\n");
}

TEST_F(HandingOn, HappensBeforeAnythingIsPrintedOrWritten) {
    const Environment paint("KAVELA_PAINT", other());
    const std::string old = contentOf(fs::path(KAVELA_TEST_DATA) / "split_versions" / "0.2.kvx");
    (void)m_kavela.folder().add("old.kvx", old);
    const auto before = m_kavela.everything();
    for (const Call& call :
         {Call{"export", "old.kvx", "--csv", "out.csv", "--pdf", "out.pdf"},
          Call{"selection", "rank", "missing.kvsr", "--write", "--pdf", "."},
          Call{"team", "categorize", "missing.kvteam", "--category", "MK1", "--pdf", "."},
          Call{"losses", "old.kvx", "--athlete", "Nobody", "--csv", "out.csv", "--pdf", "."},
          Call{"demo", "season"}, Call{"demo", "season", "--videos"}}) {
        const Ending ending = m_kavela.call(call);
        EXPECT_EQ(ending.status, 7) << call.front();
        EXPECT_EQ(ending.errors, "told\n") << call.front();
    }
    m_kavela.prefer("colorMode=\"Training\"\npredeterminatedsplits=\"9\"\n");
    EXPECT_EQ(m_kavela.call({"show", "old.kvx"}).errors, "told\n");
    EXPECT_EQ(m_kavela.call({"collect", ".", "--athlete", "Nobody"}).errors, "told\n");
    EXPECT_EQ(m_kavela.everything(), before);
}

TEST_F(HandingOn, IsForRightCallsOnly) {
    const Environment paint("KAVELA_PAINT", other());
    EXPECT_EQ(m_kavela.call({"export", "race.kvx", "--pdf"}).status, 2);
    EXPECT_EQ(m_kavela.call({"demo", "--videos"}).status, 2);
    EXPECT_EQ(m_kavela.call({"demo", "season", "--videos", "--help"}).status, 0);
    EXPECT_TRUE(m_kavela.everything().empty());
}

TEST_F(HandingOn, NamesTheProgramThatIsMissing) {
    const Environment paint("KAVELA_PAINT", "/nowhere/kavela-paint");
    const Ending ending = m_kavela.call({"demo", "season", "--videos"});
    EXPECT_EQ(ending.status, 1);
    EXPECT_EQ(ending.output, "");
    EXPECT_THAT(ending.errors, HasSubstr("could not be started: /nowhere/kavela-paint\n"));
    EXPECT_TRUE(m_kavela.everything().empty());
}

TEST_F(HandingOn, FindsTheProgramBesideItselfAndElseOnTheSearchPath) {
    const TempFolder alone;
    fs::copy_file(KAVELA_PROGRAM, alone.path() / "kavela");
    const Program moved((alone.path() / "kavela").string());
    const Call call{"demo", "season", "--videos"};
    {
        const Environment path("PATH", "/usr/bin:/bin:" + m_other.path().string());
        EXPECT_EQ(moved.call(call).status, 7);
    }
    const Environment path("PATH", "/usr/bin:/bin");
    const Ending missing = moved.call(call);
    EXPECT_EQ(missing.status, 1);
    EXPECT_THAT(missing.errors, HasSubstr((alone.path() / "kavela-paint").string()));
    fs::copy_file(other(), alone.path() / "kavela-paint");
    EXPECT_EQ(moved.call(call).status, 7);
}

TEST_F(HandingOn, GivesPreferencesThatOnlyTheirStoreReads) {
    (void)m_kavela.folder().add("race.kvx", race());
    const auto band = [&] {
        const Ending ending = m_kavela.call({"show", "race.kvx", "--json"});
        return nlohmann::json::parse(ending.output)["rows"][0]["cells"][0]["band"];
    };
    EXPECT_EQ(band(), nullptr);
    const TempFolder shared;
    fs::create_directory(shared.path() / "Kavela");
    (void)shared.add("Kavela/Kavela.conf", "[General]\ncolorMode=Training\n");
    {
        const Environment everybody("XDG_CONFIG_DIRS", "/nowhere:" + shared.path().string());
        EXPECT_NE(band(), nullptr) << "what an administrator chose for all";
        m_kavela.prefer("colorMode=Race\n");
        EXPECT_EQ(band(), nullptr) << "one's own choice comes first";
    }
    m_kavela.prefer("colorMode=\"Training\"\n");
    EXPECT_NE(band(), nullptr);
}

} // namespace kavela::test
