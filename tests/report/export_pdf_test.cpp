#include "analysis/races.h"
#include "cli/program.h"
#include "common/json_encode.h"
#include "report/pdf_text.h"
#include "sample/races.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::HasSubstr;
using testing::StartsWith;
using testing::UnorderedElementsAre;

namespace fs = std::filesystem;

class ExportPdf : public testing::Test {
protected:
    [[nodiscard]] std::vector<std::string> pages(const char* file) const {
        return pagesOf(m_kavela.folder().path() / file);
    }

    Program m_kavela;
};

} // namespace

TEST_F(ExportPdf, WritesTheRaceReportInTheUsersColours) {
    (void)m_kavela.folder().add("race.kvx", encode(sample::holdRace(sample::harbourNight())));
    m_kavela.prefer("colorMode=Training\npenaltiesIncluded=true\n");
    const Ending ending =
        m_kavela.call({"export", "race.kvx", "--pdf", "race.pdf", "--csv", "race.csv"});
    EXPECT_EQ(ending.status, 0);
    EXPECT_EQ(ending.errors, "");
    EXPECT_THAT(m_kavela.folder().names(),
                UnorderedElementsAre("race.kvx", "race.pdf", "race.csv"));
    const std::vector<std::string> found = pages("race.pdf");
    EXPECT_THAT(found.front(), HasSubstr("Nuit du Vieux-Port"));
    EXPECT_THAT(found.back(), HasSubstr("by tenths of the column"));
    EXPECT_THAT(found.back(), HasSubstr("Penalties are included"));
}

TEST_F(ExportPdf, ReadsAnOldFileWithoutRewritingIt) {
    const std::string old = contentOf(fs::path(KAVELA_TEST_DATA) / "split_versions" / "0.2.kvx");
    (void)m_kavela.folder().add("old.kvx", old);
    EXPECT_EQ(m_kavela.call({"export", "old.kvx", "--pdf", "old.pdf"}).status, 0);
    EXPECT_EQ(m_kavela.everything()["old.kvx"], old);
    EXPECT_FALSE(pages("old.pdf").empty());
}

TEST_F(ExportPdf, SaysWhatWentWrongAndLeavesNothing) {
    (void)m_kavela.folder().add("race.kvx", encode(splittakerdata031()));
    fs::create_directory(m_kavela.folder().path() / "folder");
    const auto before = m_kavela.everything();
    for (const char* target : {"folder", "none/race.pdf"}) {
        const Ending ending = m_kavela.call({"export", "race.kvx", "--pdf", target});
        EXPECT_EQ(ending.status, 1);
        EXPECT_THAT(ending.errors, StartsWith("Failed to create file\nThe file " +
                                              std::string(target) + " could not be written: "));
    }
    using Call = std::vector<std::string>;
    for (const Call& call : {Call{"export", "race.kvx"}, Call{"export", "race.kvx", "--pdf"},
                             Call{"export", "race.kvx", "--pdf", "./race.kvx"},
                             Call{"export", "race.kvx", "--pdf", "a", "--csv", "./a"}}) {
        const Ending ending = m_kavela.call(call);
        EXPECT_EQ(ending.status, 2);
        EXPECT_NE(ending.errors, "");
    }
    EXPECT_EQ(m_kavela.everything(), before);
}

TEST_F(ExportPdf, NeedsNoScreenButAFont) {
    (void)m_kavela.folder().add("race.kvx", encode(raceOf(1, {runOf({1})})));
    ::setenv("DISPLAY", ":4711", 1); // nobody is there
    ::setenv("QT_QPA_PLATFORM", "xcb", 1);
    EXPECT_EQ(m_kavela.call({"export", "race.kvx", "--pdf", "race.pdf"}).status, 0);
    const fs::path noFonts = m_kavela.folder().add("fonts.conf", "<fontconfig></fontconfig>");
    ::setenv("FONTCONFIG_FILE", noFonts.c_str(), 1);
    const Ending ending = m_kavela.call({"export", "race.kvx", "--pdf", "boxes.pdf"});
    for (const char* name : {"DISPLAY", "QT_QPA_PLATFORM", "FONTCONFIG_FILE"})
        ::unsetenv(name);
    EXPECT_EQ(ending.status, 1);
    EXPECT_THAT(ending.errors, HasSubstr("could not be written: no font is installed"));
    EXPECT_FALSE(fs::exists(m_kavela.folder().path() / "boxes.pdf"));
}

} // namespace kavela::test
