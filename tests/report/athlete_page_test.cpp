#include "report/athlete_page.h"

#include "analysis/cell_text.h"
#include "cli/program.h"
#include "common/json_encode.h"
#include "performance/loss_races.h"
#include "report/pdf_file.h"
#include "report/pdf_text.h"
#include "sample/races.h"
#include "splitdata/athlete_keys.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::SizeIs;

namespace fs = std::filesystem;

class AthletePage : public testing::Test {
protected:
    AthletePage() {
        (void)m_kavela.folder().add("cup.kvx", encode(sample::holdRace(sample::riversideCup())));
        fs::create_directory(folder());
    }
    [[nodiscard]] fs::path folder() const { return m_kavela.folder().path() / "pages"; }
    [[nodiscard]] Ending page(const char* athlete, const char* into = "pages") {
        return m_kavela.call({"losses", "cup.kvx", "--athlete", athlete, "--pdf", into});
    }
    [[nodiscard]] std::vector<std::string> pages(const char* file) const {
        return pagesOf(folder() / file);
    }

    Program m_kavela;
};

} // namespace

TEST_F(AthletePage, SaysOnOnePageWhatTheCommandSays) {
    const Ending ending = page("Callum Thornwick");
    ASSERT_EQ(ending.status, 0) << ending.errors;
    const std::vector<std::string> found = pages("Callum Thornwick.pdf");
    ASSERT_THAT(found, SizeIs(1));
    EXPECT_THAT(found.front(), AllOf(HasSubstr("Callum Thornwick"), HasSubstr("K1M"),
                                     HasSubstr("winner"), HasSubstr("Where time is lost"),
                                     HasSubstr("What to train"), HasSubstr("Penalties"),
                                     HasSubstr("Tenth of course"), HasSubstr("Page 1 / 1")));
    const FactStore facts = factsOf(sample::holdRace(sample::riversideCup()));
    const SeasonLosses season = seasonLosses(facts, {crewKey("Callum Thornwick"), "", {}});
    ASSERT_FALSE(season.rows.empty());
    for (const SeasonLossRow& row : season.rows) {
        EXPECT_THAT(found.front(), HasSubstr(row.text));
        EXPECT_THAT(found.front(), HasSubstr(signedHundredths(row.loss)));
        EXPECT_THAT(found.front(), HasSubstr(signedHundredths(row.perRun)));
    }
}

TEST_F(AthletePage, ReplacesItsOwnEarlierPageAndNothingElse) {
    ASSERT_EQ(page("Callum Thornwick").status, 0);
    const fs::path written = folder() / "Callum Thornwick.pdf";
    const Ending again = page("Callum Thornwick");
    EXPECT_EQ(again.status, 0) << again.errors;
    ASSERT_EQ(page("Rhys Pentorran").status, 0);
    const fs::path ofAnother = folder() / "Rhys Pentorran.pdf";
    for (const fs::path& foreign : {m_kavela.folder().add("notes.pdf", "my notes"), ofAnother}) {
        fs::copy_file(foreign, written, fs::copy_options::overwrite_existing);
        const std::string before = contentOf(written);
        const Ending refused = page("Callum Thornwick");
        EXPECT_EQ(refused.status, 1);
        EXPECT_THAT(refused.errors, HasSubstr("Callum Thornwick.pdf is there already"));
        EXPECT_EQ(contentOf(written), before);
    }
}

TEST_F(AthletePage, SaysWhyThereIsNone) {
    const auto before = m_kavela.everything();
    EXPECT_THAT(page("Callum Thornwick", "none").errors, HasSubstr("could not be written"));
    EXPECT_THAT(page("Nobody At All").errors, HasSubstr("No run is by"));
    const Ending whole = m_kavela.call({"losses", "cup.kvx", "--pdf", "pages"});
    EXPECT_EQ(whole.status, 2);
    EXPECT_THAT(whole.errors, HasSubstr("--athlete"));
    EXPECT_EQ(m_kavela.everything(), before);
}

TEST(AthletePages, AreNamedAfterTheAthleteAsFileSystemsTakeIt) {
    struct Case {
        std::string athlete;
        std::string file;
    };
    for (const Case& named :
         {Case{"Ondřej Skalboř", "Ondřej Skalboř.pdf"},
          Case{"Adam Vírník / Klára Vírníková", "Adam Vírník & Klára Vírníková.pdf"},
          Case{"../../etc/passwd", "_.._etc_passwd.pdf"}, Case{"a:b*c?", "a_b_c_.pdf"},
          Case{" . ", "athlete.pdf"}, Case{"", "athlete.pdf"}})
        EXPECT_EQ(report::athletePageFileName(named.athlete), named.file);
    std::string longName;
    for (int i = 0; i < 100; ++i)
        longName += "ř";
    const std::string file = report::athletePageFileName(longName);
    EXPECT_LE(file.size(), 124U);
    EXPECT_EQ((file.size() - 4) % 2, 0U) << "no half letter";
}

TEST(AthletePages, SurviveWhateverAFileHolds) {
    splittakerdata031 race = sample::holdRace(sample::harbourNight());
    std::int64_t style = 1000;
    for (athletedata031& run : race.athletes) {
        run.names = {std::string(5000, 'W') + "\xff"};
        run.cat = "C1M";
        for (upstreamdata025& upstream : run.upstreams)
            upstream.style = style++;
    }
    const TempFolder folder;
    const FactStore facts = factsOf(race);
    const std::string key(facts.text(facts.runs().front().crewKey));
    for (const std::string& crew : {key, std::string("nobody")}) {
        writePdf(*report::athletePage(facts, {crew, "", {}}), folder.path() / "page.pdf");
        EXPECT_FALSE(pagesOf(folder.path() / "page.pdf").empty());
    }
}

} // namespace kavela::test
