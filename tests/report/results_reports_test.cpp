#include "report/pdf_file.h"
#include "report/pdf_text.h"
#include "report/selection_report.h"
#include "report/selection_times_report.h"
#include "report/team_report.h"
#include "sample/selection.h"
#include "sample/team.h"

#include <gmock/gmock.h>

#include <QImage>
#include <QPainter>

namespace kavela::test {

namespace {

using report::PagedReport;
using testing::Each;
using testing::HasSubstr;
using testing::Not;

class ResultsReports : public testing::Test {
protected:
    std::vector<std::string> pagesOf(const PagedReport& report) {
        writePdf(report, m_folder.path() / "report.pdf");
        return test::pagesOf(m_folder.path() / "report.pdf");
    }
    std::string textOf(const PagedReport& report) {
        std::string text;
        for (const std::string& page : pagesOf(report))
            text += page;
        return text;
    }

    TempFolder m_folder;
};

Categorization athleteWith(std::vector<std::int64_t> places) {
    Categorization athlete;
    athlete.name = "BROOK Adam";
    athlete.label = "Categorization: Medal ready ";
    athlete.lines = {"Medals: 1", "Top 6: 2", "Top 15: 3", "International events: 4"};
    for (const std::int64_t place : places)
        athlete.races.push_back({2025, "WC1", "Weirton", place});
    return athlete;
}

/// The widths of the runs of coloured pixels below the legend, by colour, where there are any.
std::map<QRgb, int> squaresOn(const PagedReport& report) {
    constexpr int PixelsPerPoint = 4;
    QImage page(report.layout().fullRectPixels(72 * PixelsPerPoint).size(), QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    painter.scale(PixelsPerPoint, PixelsPerPoint);
    report.paintPage(painter, 0);
    painter.end();
    std::map<QRgb, int> widest;
    for (int y = 250 * PixelsPerPoint; y < page.height(); ++y) {
        for (int x = 0; x < page.width();) {
            const QRgb colour = page.pixel(x, y);
            const int start = x;
            while (x < page.width() && page.pixel(x, y) == colour)
                ++x;
            // Runs longer than a letter's and shorter than a rule's.
            if (QColor(colour).saturation() > 60 && x - start >= 7 * PixelsPerPoint &&
                x - start < 20 * PixelsPerPoint)
                widest[colour] = std::max(widest[colour], (x - start) / PixelsPerPoint);
        }
    }
    return widest;
}

std::size_t athletesIn(const selectionracesStruct_v3& document) {
    std::size_t athletes = 0;
    for (const srCategoryStruct_v3& category : document.categories)
        athletes += category.athletes.size();
    return athletes;
}

} // namespace

TEST_F(ResultsReports, TheCategorizationHasABlockForEachAthlete) {
    const auto athletes = categorizeTeam(sample::sampleTeam(), "MK1");
    const std::string text = textOf(*report::categorizationReport("MK1", athletes));
    EXPECT_THAT(text, HasSubstr("2025 Categorization"));
    EXPECT_FALSE(athletes.empty());
    for (const Categorization& athlete : athletes) {
        EXPECT_THAT(text, HasSubstr(athlete.name));
        EXPECT_THAT(text, HasSubstr(athlete.label.substr(0, athlete.label.size() - 1)));
        for (const std::string& line : athlete.lines)
            EXPECT_THAT(text, HasSubstr(line));
    }
    EXPECT_THAT(text, Not(HasSubstr("DUNBROOK"))) << "retired";
    EXPECT_THAT(textOf(*report::categorizationReport("WX1", {})), HasSubstr("No athlete"));
}

TEST_F(ResultsReports, TheCategorizationGoesOnOverPages) {
    const std::vector<Categorization> many(9, athleteWith({1, 5, 8, 12, 15, 16, 3, 4, 9, 10}));
    EXPECT_EQ(countOf(textOf(*report::categorizationReport("MK1", many)), "Medal ready"), 10U)
        << "nine blocks and the count of the heading";
    const std::vector<Categorization> one{athleteWith(std::vector<std::int64_t>(300, 2))};
    const auto pages = pagesOf(*report::categorizationReport("MK1", one));
    EXPECT_GT(pages.size(), 1U);
    EXPECT_THAT(pages, Each(HasSubstr("BROOK Adam")));
    EXPECT_THAT(pages[1], HasSubstr("2025 Categorization"));
}

TEST_F(ResultsReports, RacesHaveSquaresByTheirBandAndNoneAboveFifteen) {
    const auto squares = [](std::int64_t place) {
        std::vector<int> widths;
        for (const auto& [colour, width] :
             squaresOn(*report::categorizationReport("MK1", {athleteWith({place})})))
            widths.push_back(width);
        return widths;
    };
    for (const std::int64_t place : {1, 3, 4, 6, 7, 9})
        EXPECT_THAT(squares(place), testing::ElementsAre(8)) << place;
    for (const std::int64_t place : {10, 15})
        EXPECT_THAT(squares(place), testing::ElementsAre(13)) << place;
    EXPECT_THAT(squares(16), testing::IsEmpty());
    EXPECT_EQ(squaresOn(*report::categorizationReport("MK1", {athleteWith({1, 5, 8, 12})})).size(),
              4U)
        << "one colour each";
}

TEST_F(ResultsReports, TheSelectionListsEveryAthleteOfEveryCategory) {
    selectionracesStruct_v3 document = sample::springSelection();
    recomputeSelection(document, 0);
    const std::string text = textOf(*report::selectionReport(document, 0));
    EXPECT_THAT(text, HasSubstr("Selection races results"));
    EXPECT_THAT(text, HasSubstr("Season 2026"));
    EXPECT_THAT(text, HasSubstr("SURNAME Name"));
    EXPECT_THAT(text, HasSubstr("The three best of four races count."));
    EXPECT_EQ(countOf(text, "Signature"), 1U);
    EXPECT_GE(countOf(text, "P1"), document.categories.size());
    std::size_t found = 0;
    for (const srCategoryStruct_v3& category : document.categories)
        for (const srAthleteStruct_v3& athlete : category.athletes)
            found += text.find(athlete.name) != std::string::npos;
    EXPECT_EQ(found, athletesIn(document));
    EXPECT_EQ(report::selectionTimesFileName(document), "selection_results_2026.pdf");
    const std::string expected = textOf(*report::selectionTimesReport(document, {}));
    EXPECT_THAT(expected, HasSubstr("Selection results xTimes"));
    EXPECT_THAT(expected, HasSubstr("xTime"));
}

TEST_F(ResultsReports, MoreRacesThanAPageIsWideGoOnInAnotherTable) {
    selectionracesStruct_v3 document = sample::springSelection();
    document.categories.resize(1);
    for (int i = 5; i <= 9; ++i)
        document.races.push_back({"Trial " + std::to_string(i), {}, {}});
    recomputeSelection(document, {});
    const std::string text = textOf(*report::selectionReport(document, {}));
    for (const char* part : {"MK1 · races 1 to 4", "MK1 · races 5 to 8", "MK1 · races 9 to 9"})
        EXPECT_EQ(countOf(text, part), 1U) << part;
    EXPECT_EQ(countOf(text, "Trial 9"), 1U);
}

TEST_F(ResultsReports, SurviveWhateverAFileHolds) {
    selectionracesStruct_v3 document;
    EXPECT_FALSE(pagesOf(*report::selectionReport(document, {})).empty());
    document = sample::springSelection();
    document.rules = std::string(100000, 'x') + "\n\xff\n" + std::string(5000, '\n');
    document.races[0].location = std::string(100000, 'W');
    srAthleteStruct_v3& athlete = document.categories[0].athletes[0];
    athlete.name = std::string(100000, 'W') + "\xff";
    athlete.year = INT64_MIN;
    athlete.racedata[0].resultTime = 1e308;
    athlete.racedata[1].pen = INT64_MIN;
    athlete.preselected.assign(1000, true);
    document.categories.back().athletes.clear();
    recomputeSelection(document, 3);
    EXPECT_FALSE(pagesOf(*report::selectionReport(document, 3)).empty());
    EXPECT_FALSE(pagesOf(*report::selectionTimesReport(document, 3)).empty());
    Categorization odd = athleteWith({INT64_MAX, -3});
    odd.name = std::string(100000, 'W');
    odd.races[0].event = "\xff\n";
    EXPECT_FALSE(pagesOf(*report::categorizationReport("\xff", {odd})).empty());
}

} // namespace kavela::test
