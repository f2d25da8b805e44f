#include "report/planning_season_report.h"
#include "report/planning_week_report.h"
#include "report/run_sheet.h"

#include "cli/program.h"
#include "report/pdf_file.h"
#include "report/pdf_text.h"
#include "sample/planning.h"
#include "sample/races.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>

namespace kavela::test {

namespace {

namespace fs = std::filesystem;

/// The words of each line, without the blanks that place them.
std::string words(const std::string& page) {
    std::string text;
    for (const char c : page) {
        const bool isRepeated = c == ' ' && (text.empty() || text.back() == ' ');
        if (c == '\n' && text.ends_with(' '))
            text.pop_back();
        if (!isRepeated && !(c == '\n' && text.ends_with('\n')))
            text += c;
    }
    return text;
}

std::string textOf(const fs::path& pdf) {
    std::string text;
    for (const std::string& page : pagesOf(pdf))
        text += words(page) + "---- page\n";
    return text;
}

std::string textOf(const report::PagedReport& report) {
    const TempFolder folder;
    writePdf(report, folder.path() / "report.pdf");
    return textOf(folder.path() / "report.pdf");
}

/// What a call of the program writes into an empty folder, file by file.
std::string filesOf(const std::vector<std::string>& arguments,
                    const std::string& preferences = {}) {
    const Program kavela;
    kavela.prefer(preferences);
    const Ending ending = kavela.call(arguments);
    EXPECT_EQ(ending.status, 0) << ending.errors;
    std::vector<std::string> names;
    for (const auto& [name, content] : kavela.everything())
        if (content != "folder")
            names.push_back(name);
    std::string text;
    for (const std::string& name : names) {
        const fs::path path = kavela.folder().path() / name;
        text += "==== " + name + '\n';
        text += path.extension() == ".pdf" ? textOf(path) : contentOf(path);
    }
    return text;
}

std::string example(const char* name) {
    return std::string(KAVELA_EXAMPLES) + '/' + name;
}

const athletesplanning_v6& firstPlanned() {
    static const planningdatac_v6 planning = [] {
        const std::vector<splittakerdata031> races{sample::holdRace(sample::riversideCup())};
        return sample::groupPlanning(races);
    }();
    return planning.athletes.front();
}

struct SampleReport {
    const char* name;
    std::function<std::string()> text;
};

/// What every report and table says of the sample season, word by word. Where a change is meant,
/// this test with KAVELA_WRITE_REPORTS in its environment writes the files anew.
class SampleReports : public testing::TestWithParam<SampleReport> {};

} // namespace

TEST_P(SampleReports, SayWhatTheyAlwaysSaid) {
    const std::string text = GetParam().text();
    const std::string path =
        std::string(KAVELA_TEST_DATA "/sample_reports/") + GetParam().name + ".txt";
    if (std::getenv("KAVELA_WRITE_REPORTS"))
        std::ofstream(path) << text;
    EXPECT_FALSE(text.empty());
    EXPECT_EQ(text, contentOf(path));
}

INSTANTIATE_TEST_SUITE_P(
    Season, SampleReports,
    testing::Values(
        SampleReport{"race",
                     [] {
                         return filesOf({"export", example("races/riverside_cup.kvx"), "--csv",
                                         "table.csv", "--pdf", "report.pdf"});
                     }},
        SampleReport{"training",
                     [] {
                         return filesOf({"export", example("races/spring_opener.kvx"), "--csv",
                                         "table.csv", "--pdf", "report.pdf"},
                                        "colorMode=Training\npenaltiesIncluded=true\n");
                     }},
        SampleReport{"categorization",
                     [] {
                         return filesOf({"team", "categorize", example("team/kavela_team.kvteam"),
                                         "--category", "MK1", "--pdf", "."});
                     }},
        SampleReport{"selection",
                     [] {
                         return filesOf({"selection", "rank",
                                         example("selection/spring_selection.kvsr"), "--pdf", "."});
                     }},
        SampleReport{"athlete",
                     [] {
                         return filesOf({"losses", example("league"), "--athlete",
                                         "Callum Thornwick", "--pdf", "."});
                     }},
        SampleReport{"week",
                     [] {
                         const athletesplanning_v6& athlete = firstPlanned();
                         return textOf(*report::planningWeekReport(
                             athlete.name, athlete.year.back().micros.at(20)));
                     }},
        SampleReport{"season",
                     [] {
                         const athletesplanning_v6& athlete = firstPlanned();
                         return textOf(
                             *report::planningSeasonReport(athlete.name, athlete.year.back()));
                     }},
        SampleReport{
            "run_sheet",
            [] { return textOf(*report::runSheet(sample::holdRace(sample::harbourNight()), 0)); }}),
    [](const auto& report) { return std::string(report.param.name); });

} // namespace kavela::test
