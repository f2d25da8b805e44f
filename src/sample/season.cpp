#include "sample/season.h"

#include "common/error.h"
#include "common/json_encode.h"
#include "common/safe_file.h"
#include "sample/comparison.h"
#include "sample/course_map.h"
#include "sample/cross.h"
#include "sample/league.h"
#include "sample/older_releases.h"
#include "sample/planning.h"
#include "sample/races.h"
#include "sample/recordings.h"
#include "sample/selection.h"
#include "sample/sprint_camera.h"
#include "sample/team.h"
#include "sample/tests.h"
#include "sample/tracks.h"
#include "sample/training.h"

#include <system_error>
#include <utility>

namespace kavela {

namespace {

using namespace sample;

/// The opener's official list waits beside it to be imported.
void addOpener(std::vector<SampleFile>& files) {
    splittakerdata031 race = holdRace(springOpener());
    const auto results = std::exchange(race.info.resultsCSVdata, {});
    race.info.officialresults = {};
    files.push_back({"races/spring_opener.kvx", encode(race)});
    files.push_back({"races/spring_opener_results.csv", officialList(results)});
}

void addLeague(std::vector<SampleFile>& files) {
    std::size_t number = 0;
    for (const RacePlan& round : leagueRounds())
        files.push_back(
            {"league/round_" + std::to_string(++number) + ".kvx", encode(holdRace(round))});
}

void addPlanning(std::vector<SampleFile>& files) {
    const std::vector<splittakerdata031> runs{holdRace(springOpener()),
                                              holdRace(riversideCup()),
                                              holdRace(highlandOpen()),
                                              holdRace(harbourNight()),
                                              gateLaps(),
                                              formTest()};
    files.push_back({"planning/season.planning", encode(groupPlanning(runs))});
    files.push_back({"planning/season.planinf", encode(groupAccess())});
    files.push_back({"planning/morning_variability.csv", morningVariability()});
    for (OldPlanning& file : oldPlannings())
        files.push_back(
            {"older/planning_v" + std::string(file.version) + ".planning", std::move(file.text)});
}

} // namespace

std::vector<SampleFile> sampleSeason() {
    std::vector<SampleFile> files{{"races/riverside_cup.kvx", encode(holdRace(riversideCup()))}};
    addOpener(files);
    splittakerdata031 highland = holdRace(highlandOpen());
    highland.info.coursedesign = drawnCourse(highland.info);
    files.push_back({"races/highland_open.kvx", encode(highland)});
    const splittakerdata031 night = holdRace(harbourNight());
    constexpr int EightInTheEvening = 20 * 3600;
    files.push_back({"races/harbour_night.kvx", encode(night)});
    files.push_back({"races/harbour_night_start_list.csv", startList(night, EightInTheEvening)});
    files.push_back({"races/compare_final.json", comparisonOfFinal()});
    files.push_back({"races/harbour_cross.kvx", encode(crossRace())});
    addLeague(files);
    files.push_back({"training/gate_laps.kvx", encode(gateLaps())});
    files.push_back({"training/form_test.kvx", encode(formTest())});
    files.push_back({"camera/sprint.kvx", encode(sprintSession())});
    files.push_back({"recordings/upstream_drill.kvb", encode(upstreamDrill())});
    files.push_back({"recordings/sprint_with_watch.kvb", encode(sprintWithWatch())});
    files.push_back({"recordings/old_phone_v4.kvb", encode(oldPhone())});
    files.push_back({"recordings/watch.gpx", watchTrack()});
    files.push_back({"recordings/phone_logger.csv", phoneList()});
    files.push_back({"team/kavela_team.kvteam", encode(sampleTeam())});
    files.push_back({"tests/form_tests.kvtest", encode(formTests())});
    files.push_back({"selection/spring_selection.kvsr", encode(springSelection())});
    for (OldSelection& file : oldSelections())
        files.push_back(
            {"older/selection_v" + std::string(file.version) + ".kvsr", std::move(file.text)});
    addPlanning(files);
    for (OldFile& file : filesOfOldReleases())
        files.push_back(
            {"older/release_" + std::string(file.release) + ".kvx", std::move(file.text)});
    return files;
}

void writeSampleSeason(const std::filesystem::path& folder) {
    for (const SampleFile& file : sampleSeason()) {
        const std::filesystem::path target = folder / file.name;
        if (std::filesystem::exists(target))
            continue;
        std::error_code error;
        std::filesystem::create_directories(target.parent_path(), error);
        if (error)
            throw FileError(target.parent_path(), error.message());
        writeFileSafely(target, file.content);
    }
}

} // namespace kavela
