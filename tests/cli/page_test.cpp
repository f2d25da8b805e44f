#include "cli/program.h"
#include "common/json_encode.h"
#include "sample/races.h"

#include <gmock/gmock.h>

#include <algorithm>

/// The call that writes the page of an athlete.
namespace kavela::test {

namespace {

using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* Athlete = "Tobias Rennwald";

class PageCalls : public testing::Test {
protected:
    PageCalls() {
        std::filesystem::create_directory(m_kavela.folder().path() / "races");
        (void)m_kavela.folder().add("cup.kvx", encode(sample::holdRace(sample::riversideCup())));
        (void)m_kavela.folder().add("races/spring.kvx",
                                    encode(sample::holdRace(sample::springOpener())));
    }
    [[nodiscard]] Ending call(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), "page");
        return m_kavela.call(arguments);
    }
    [[nodiscard]] std::string written(const std::string& name) const {
        return contentOf(m_kavela.folder().path() / name);
    }

    Program m_kavela;
};

} // namespace

TEST_F(PageCalls, AFileMakesARaceAndFilesWithFoldersASeason) {
    EXPECT_EQ(call({"cup.kvx", "--athlete", "rennwald TOBIAS", "-o", "a.html"}).status, 0);
    EXPECT_THAT(written("a.html"), HasSubstr("<h1><bdi>Tobias Rennwald</bdi></h1>"));
    EXPECT_THAT(written("a.html"), HasSubstr("Riverside Cup"));
    EXPECT_EQ(call({"cup.kvx", "races", "--athlete", Athlete, "-o", "b.html"}).status, 0);
    EXPECT_THAT(written("b.html"), HasSubstr("Spring Opener"));
    EXPECT_THAT(written("b.html"), HasSubstr("Season</title>"));
}

TEST_F(PageCalls, ThePreferencesOfTheAnalyzerSayHowTimesLook) {
    m_kavela.prefer("colorMode=Training\npenaltiesVisible=true\n");
    EXPECT_EQ(call({"cup.kvx", "--athlete", Athlete, "-o", "a.html"}).status, 0);
    EXPECT_THAT(written("a.html"), HasSubstr(" (0)"));
    EXPECT_THAT(written("a.html"), HasSubstr("<td class=k"));
    EXPECT_EQ(call({"cup.kvx", "--athlete", Athlete, "-o", "a.html", "--mode", "race",
                    "--no-penalties-visible"})
                  .status,
              0);
    EXPECT_THAT(written("a.html"), testing::Not(HasSubstr(" (0)")));
    EXPECT_THAT(written("a.html"), HasSubstr("<td class=x>"));
}

TEST_F(PageCalls, AnUnknownAthleteIsOfferedTheNearestNamesAndNothingIsWritten) {
    const Ending ending = call({"cup.kvx", "--athlete", "Tobias Renwalt", "-o", "a.html"});
    EXPECT_EQ(ending.status, 1);
    EXPECT_THAT(ending.errors, HasSubstr("The nearest names: Tobias Rennwald"));
    EXPECT_FALSE(std::filesystem::exists(m_kavela.folder().path() / "a.html"));
    EXPECT_EQ(call({"cup.kvx", "--athlete", Athlete, "--phase", "Round 9", "-o", "a.html"}).status,
              1);
    EXPECT_FALSE(std::filesystem::exists(m_kavela.folder().path() / "a.html"));
}

TEST_F(PageCalls, WrongCallsLeaveEveryFileAsItWas) {
    (void)m_kavela.folder().add("race.html", written("cup.kvx"));
    const auto before = m_kavela.everything();
    EXPECT_EQ(call({"cup.kvx", "--athlete", Athlete, "-o", "page"}).status, 2);
    EXPECT_EQ(call({"race.html", "--athlete", Athlete, "-o", "race.html"}).status, 2);
    EXPECT_EQ(call({"cup.kvx", "--athlete", Athlete, "-o", "none/a.html"}).status, 1);
    EXPECT_NE(call({"cup.kvx", "-o", "a.html"}).status, 0);
    EXPECT_EQ(m_kavela.everything(), before);
}

TEST_F(PageCalls, ClipsWithoutTheirFilmsAreToldAndThePageIsThere) {
    const Ending ending = call({"cup.kvx", "--athlete", Athlete, "-o", "a.html", "--clips"});
    EXPECT_EQ(ending.status, 1);
    EXPECT_THAT(ending.errors, HasSubstr("The film is not there."));
    EXPECT_THAT(written("a.html"), HasSubstr("Tobias Rennwald"));
    EXPECT_THAT(written("a.html"), testing::Not(HasSubstr("<video")));
}

} // namespace kavela::test
