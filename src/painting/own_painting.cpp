#include "painting/own_painting.h"

#include "painting/composed_film_file.h"
#include "painting/film_fetch.h"
#include "painting/film_tracking.h"
#include "painting/folder_share.h"
#include "painting/offscreen_application.h"
#include "painting/page_clip_files.h"
#include "painting/report_files.h"
#include "painting/season_film_files.h"
#include "painting/slit_files.h"
#include "preferences/preferences.h"
#include "report/athlete_page.h"
#include "report/pdf_file.h"
#include "report/race_report.h"
#include "report/season_page.h"
#include "report/season_team_report.h"
#include "report/selection_report.h"
#include "report/selection_times_report.h"
#include "report/team_report.h"

namespace kavela::painting {

namespace fs = std::filesystem;

PreferenceValue OwnPainting::preference(std::string_view key) const {
    return Preferences().value(key);
}

void OwnPainting::writeRaceReport(splittakerdata031 document, const fs::path& splitFile,
                                  const TableSettings& settings, const fs::path& target) const {
    const OffscreenApplication application;
    const report::ReportHeading heading = report::reportHeading(document.info, splitFile);
    const report::SharedCourse drawn = report::sharedCourse(document.info);
    const RaceSet set = makeRaceSet(std::move(document), splitFile);
    report::writePdf(
        report::RaceReport(heading, set, settings, report::ReportContent::Race, {}, drawn), target);
}

bool OwnPainting::isCategorizationWritten(const std::string& category,
                                          const std::vector<Categorization>& athletes,
                                          const fs::path& folder) const {
    return areReportsWritten({{report::CategorizationFileName,
                               [&] { return report::categorizationReport(category, athletes); }}},
                             folder);
}

bool OwnPainting::isSelectionWritten(const selectionracesStruct_v3& document,
                                     std::optional<std::size_t> bonus,
                                     const fs::path& folder) const {
    return areReportsWritten(
        {{report::SelectionFileName, [&] { return report::selectionReport(document, bonus); }},
         {report::selectionTimesFileName(document),
          [&] { return report::selectionTimesReport(document, bonus); }}},
        folder);
}

bool OwnPainting::isAthletePageWritten(const FactStore& facts, const SeasonLossQuery& query,
                                       const fs::path& folder) const {
    const std::vector<std::size_t> runs = seasonRuns(facts, query);
    const std::string athlete(runs.empty() ? std::string_view(query.crewKey)
                                           : facts.text(facts.runs()[runs.front()].crew));
    return areReportsWritten({{report::athletePageFileName(athlete),
                               [&] { return report::athletePage(facts, query); }, true}},
                             folder);
}

bool OwnPainting::areSeasonPagesWritten(const Season& season, const fs::path& folder) const {
    std::vector<ReportFile> files{{report::seasonTeamFileName(season),
                                   [&] { return report::seasonTeamReport(season); }, true}};
    for (std::size_t i = 0; i < season.athletes.size(); ++i)
        files.push_back({report::seasonPageFileName(season, i),
                         [&season, i] { return report::seasonPage(season, i); }, true});
    return areReportsWritten(files, folder);
}

bool OwnPainting::arePageClipsCut(const std::vector<page::ClipOrder>& clips) const {
    return painting::arePageClipsCut(clips);
}

std::vector<SampleFile> OwnPainting::sampleFiles() const {
    return sampleSeason();
}

int OwnPainting::writeSeasonFilms(const fs::path& folder) const {
    return painting::writeSeasonFilms(folder);
}

int OwnPainting::composeFilm(const fs::path& job, const fs::path& output) const {
    return painting::composeFilm(job, output);
}

int OwnPainting::fetchFilms(const cli::FilmFetchCall& call) const {
    return painting::fetchFilms(call);
}

int OwnPainting::trackFilm(const cli::TrackCall& call) const {
    return painting::trackFilm(call);
}

int OwnPainting::shareFolder(const cli::FolderShareCall& call) const {
    return painting::shareFolder(call);
}

int OwnPainting::writeSlit(const cli::SlitCall& call) const {
    return painting::writeSlit(call);
}

} // namespace kavela::painting
