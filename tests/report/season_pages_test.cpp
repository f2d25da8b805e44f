#include "cli/program.h"
#include "common/json_encode.h"
#include "report/pdf_text.h"
#include "results/team_file.h"
#include "sample/league.h"
#include "sample/team.h"

#include <gmock/gmock.h>

/// The season of a team on paper, as the call writes it.
namespace kavela::test {

namespace {

using testing::AllOf;
using testing::Each;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

class SeasonPages : public testing::Test {
protected:
    SeasonPages() {
        (void)m_kavela.folder().add("team.kvteam", encode(sample::sampleTeam()));
        std::filesystem::create_directory(m_kavela.folder().path() / "pages");
    }
    [[nodiscard]] Ending write(const std::vector<std::string>& more = {}) const {
        std::vector<std::string> call{"season", "team.kvteam", "round.kvx", "--category",
                                      "MK1",    "--pdf",       "pages"};
        call.insert(call.end(), more.begin(), more.end());
        return m_kavela.call(call);
    }
    [[nodiscard]] std::vector<std::string> pages(const char* file) const {
        return pagesOf(m_kavela.folder().path() / "pages" / file);
    }

    Program m_kavela;
};

} // namespace

TEST_F(SeasonPages, SayWhatTheCommandSays) {
    (void)m_kavela.folder().add("round.kvx", encode(sample::holdRace(sample::leagueRounds()[5])));
    const Ending ending = write();
    ASSERT_EQ(ending.status, 0) << ending.errors;
    const auto athlete = pages("THORNWICK Callum - season MK1.pdf");
    ASSERT_THAT(athlete, SizeIs(1));
    EXPECT_THAT(athlete.front(),
                AllOf(HasSubstr("Percent behind"), HasSubstr("12 of 24"), HasSubstr("34 to 66"),
                      HasSubstr("Semifinal to final"), HasSubstr("PENTORRAN Rhys"),
                      HasSubstr("What a rank of the final took")));
    const auto team = pages("Season MK1.pdf");
    ASSERT_FALSE(team.empty());
    EXPECT_THAT(team, Each(HasSubstr("Season MK1")));
    EXPECT_THAT(team.front(), AllOf(HasSubstr("DUNBROOK Harvey"), HasSubstr("3 of 22")));
    EXPECT_THAT(team.back(), HasSubstr("Expected places"));
    EXPECT_THAT(team.front(), Not(HasSubstr("Only races")));

    ASSERT_EQ(write({"--starter", "Callum Thornwick"}).status, 0);
    for (const char* const file : {"THORNWICK Callum - season MK1.pdf", "Season MK1.pdf"})
        EXPECT_THAT(pages(file).front(), HasSubstr("Only races in which THORNWICK Callum starts."))
            << file;
}

TEST_F(SeasonPages, ReplaceTheirOwnAndNothingElse) {
    (void)m_kavela.folder().add("round.kvx", encode(sample::holdRace(sample::leagueRounds()[5])));
    (void)m_kavela.folder().add("pages/Season MK1.pdf", "a coach's own notes");
    const Ending ending = write();
    EXPECT_EQ(ending.status, 1);
    EXPECT_THAT(ending.errors, HasSubstr("Season MK1.pdf"));
    EXPECT_EQ(m_kavela.everything().at("pages/Season MK1.pdf"), "a coach's own notes");
    EXPECT_THAT(pages("FENWATER Jude - season MK1.pdf"), SizeIs(1));
}

} // namespace kavela::test
