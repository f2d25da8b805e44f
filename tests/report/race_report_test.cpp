#include "report/race_report.h"

#include "common/error.h"
#include "report/pdf_file.h"
#include "report/pdf_text.h"
#include "sample/races.h"
#include "splittaking/race_day/race_day.h"

#include <gmock/gmock.h>

#include <QImage>
#include <QPainter>

namespace kavela::test {

namespace {

using report::RaceReport;
using report::ReportContent;
using testing::AnyOf;
using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;

RaceReport reportOf(const splittakerdata031& race, ReportContent content,
                    const TableSettings& settings = {}) {
    return {report::reportHeading(race.info), makeRaceSet(race, "a.kvx"), settings, content};
}

class ReportText : public testing::Test {
protected:
    std::vector<std::string> pagesOf(const RaceReport& report) {
        writePdf(report, m_folder.path() / "report.pdf");
        return test::pagesOf(m_folder.path() / "report.pdf");
    }

    TempFolder m_folder;
};

/// A race over so many sections, with short titles that tell them apart.
splittakerdata031 raceOver(std::size_t sections) {
    splittakerdata031 race;
    race.info.title = "Any cup";
    race.info.totalsplits = static_cast<std::int64_t>(sections);
    for (std::size_t i = 1; i <= sections; ++i)
        race.info.splitTitles.push_back("<" + std::to_string(i) + ">");
    race.athletes.resize(3);
    for (athletedata031& run : race.athletes) {
        run.names = {"Ann Lee"};
        run.sectioninfo.times.assign(sections, 10.25);
    }
    return race;
}

bool isLying(const RaceReport& report) {
    return report.layout().orientation() == QPageLayout::Landscape;
}

} // namespace

TEST_F(ReportText, OfARaceNamesItAndTheNumberOnEachPageAndEveryCrew) {
    const splittakerdata031 race = sample::holdRace(sample::springOpener());
    const RaceReport report = reportOf(race, ReportContent::Race);
    const std::vector<std::string> pages = pagesOf(report);
    ASSERT_EQ(pages.size(), static_cast<std::size_t>(report.pageCount()));
    ASSERT_GT(pages.size(), 2U);
    std::string all;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const std::string number =
            std::to_string(i + 1) + " / " + std::to_string(pages.size()) + "\n";
        EXPECT_THAT(pages[i], HasSubstr("Spring Opener"));
        EXPECT_THAT(pages[i], HasSubstr(number));
        all += pages[i];
    }
    for (const char* part :
         {"Mateo Arribalza", "Kuba Zakole / Ola Meandrowska", "Élie Marchevault", "Тарас Криничук",
          "Heats · K1M", "Final · C2X", "Ideal run without penalties · C1W", "Penalties by gate",
          "Split times", "National Cup", "5, 9, 12, 14, 17"})
        EXPECT_THAT(all, HasSubstr(part));
}

/// Who has no run is in no list: the race day knows of them.
TEST_F(ReportText, OfARaceNamesWhoDidNotStartOrNotFinish) {
    RaceDay day;
    day.starts = {{1, 12, "Nova Reed", "K1W", "", NoStartTime, DidNotStart},
                  {2, 13, "Bea Hill", "K1W", "", NoStartTime, ""},
                  {3, 0, "Zora Pike", "", "", NoStartTime, DidNotFinish}};
    const auto file = m_folder.path() / "race.kvx";
    writeRaceDay(day, raceDayPath(file));
    const splittakerdata031 race = raceOver(2);
    const RaceReport report(report::reportHeading(race.info, file), makeRaceSet(race, file), {},
                            ReportContent::Race);
    const std::string first = pagesOf(report).front();
    EXPECT_THAT(first, HasSubstr("DNS: 12 Nova Reed (K1W)"));
    EXPECT_THAT(first, HasSubstr("DNF: Zora Pike"));
    EXPECT_THAT(first, testing::Not(HasSubstr("Bea Hill")));
}

TEST_F(ReportText, OfATableHasEveryRunOnceAndTheHeadAndLegendOnEachPage) {
    const splittakerdata031 race = sample::holdRace(sample::riversideCup());
    TableSettings settings;
    settings.colorMode = "Training";
    settings.penaltiesIncluded = true;
    const std::vector<std::string> pages = pagesOf(reportOf(race, ReportContent::Table, settings));
    ASSERT_GT(pages.size(), 1U);
    EXPECT_THAT(pages, Each(HasSubstr("Weir")));
    EXPECT_THAT(pages, Each(HasSubstr("by tenths of the column")));
    EXPECT_THAT(pages, Each(HasSubstr("Penalties are included")));
    EXPECT_THAT(pages[1], AnyOf(HasSubstr("Heats · K1M, continued"), HasSubstr("Semifinal · K1M")));
    std::string all;
    for (const std::string& page : pages)
        all += page;
    for (const std::string crew : {"Joren Valkenhof", "Diego Quebrachal", "Þórður Kvísldal"}) {
        const auto runs = std::ranges::count_if(
            race.athletes, [&](const athletedata031& run) { return run.names[0] == crew; });
        EXPECT_EQ(countOf(all, crew), static_cast<std::size_t>(runs)) << crew;
    }
}

TEST_F(ReportText, OfATableTooWideForAPageGoesOnBesideTheNames) {
    const std::vector<std::string> pages = pagesOf(reportOf(raceOver(60), ReportContent::Table));
    ASSERT_GT(pages.size(), 1U);
    EXPECT_THAT(pages, Each(HasSubstr("Ann Lee")));
    std::string all;
    for (const std::string& page : pages)
        all += page;
    for (int section = 1; section <= 60; ++section)
        EXPECT_EQ(countOf(all, "<" + std::to_string(section) + ">"), 1U);
    EXPECT_EQ(countOf(all, "Total"), 1U);
}

TEST(RaceReport, LiesWhereTheTableIsWide) {
    EXPECT_FALSE(isLying(reportOf(raceOver(3), ReportContent::Race)));
    EXPECT_TRUE(isLying(reportOf(raceOver(10), ReportContent::Race)));
    const RaceReport cup = reportOf(sample::holdRace(sample::riversideCup()), ReportContent::Table);
    EXPECT_TRUE(isLying(cup));
    EXPECT_EQ(cup.layout().pageSize().id(), QPageSize::A4);
}

TEST(RaceReport, PaintsTheSamePageOnAnyPainterAndLeavesItAsItWas) {
    TableSettings settings;
    settings.colorMode = "Training";
    const RaceReport report = reportOf(raceOver(3), ReportContent::Table, settings);
    QImage page(report.layout().fullRectPixels(72).size(), QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    const QTransform before = painter.worldTransform();
    report.paintPage(painter, 0);
    EXPECT_EQ(painter.worldTransform(), before);
    painter.end();
    std::size_t tinted = 0;
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x)
            tinted += page.pixelColor(x, y) == QColor(0, 255, 0);
    EXPECT_GT(tinted, 500U) << "all are equally fast, and green is their tint";
    EXPECT_EQ(page.pixelColor(5, 5), QColor(Qt::white)) << "margins stay free";
}

TEST_F(ReportText, SurvivesWhateverAFileHolds) {
    splittakerdata031 race = raceOver(3);
    race.info.title = std::string(100000, 'x');
    race.info.place = "\xff\xfe \n\t \u202E";
    race.info.gates = 3;
    race.info.upGates.assign(5000, INT64_MIN);
    race.athletes[0].names = {std::string(100000, 'W'), "محمد", "\U0001F6A3"};
    race.athletes[0].phase = std::string(5000, 'p');
    race.athletes[0].sectioninfo.times = {1e308, -1e308, 1e-300};
    race.athletes[1].sectioninfo.times = {1e308, 1e308, 1e308};
    race.athletes[1].sectioninfo.pens = {INT64_MAX, INT64_MIN, 50};
    race.athletes[1].sectioninfo.totalpen = INT64_MIN;
    race.athletes[2].names = {};
    TableSettings settings;
    settings.penaltiesVisible = true;
    for (const std::int64_t sections : {3L, 0L, -5L, INT64_MAX}) {
        race.info.totalsplits = sections;
        for (const ReportContent content : {ReportContent::Table, ReportContent::Race})
            EXPECT_FALSE(pagesOf(reportOf(race, content, settings)).empty()) << sections;
    }
    EXPECT_THAT(pagesOf(reportOf({}, ReportContent::Race))[0], HasSubstr("no runs"));
}

TEST_F(ReportText, GoesIntoAFileWholeOrNotAtAll) {
    const RaceReport report = reportOf(raceOver(3), ReportContent::Race);
    EXPECT_THROW(writePdf(report, m_folder.path()), FileError);
    EXPECT_THROW(writePdf(report, m_folder.path() / "none" / "report.pdf"), FileError);
    EXPECT_THAT(m_folder.names(), IsEmpty());
}

} // namespace kavela::test
