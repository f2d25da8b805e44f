#include "cli/commands.h"

#include "cli/console.h"
#include "cli/fact_input.h"
#include "cli/fact_scan.h"
#include "cli/painting.h"
#include "cli/unknown_athlete.h"
#include "cli/user_preferences.h"
#include "common/text.h"
#include "language/languages.h"
#include "page/athlete_page.h"
#include "page/page_films.h"
#include "page/race_files.h"
#include "performance/loss_season.h"
#include "splitdata/athlete_keys.h"

#include <algorithm>
#include <memory>
#include <set>

namespace kavela::cli {

namespace {

struct PageCall {
    std::vector<std::string> paths;
    std::string athlete;
    std::string category;
    std::string phase;
    std::string output;
    std::string mode;
    bool accumulated = false;
    int penaltiesIncluded = 0; ///< above 0 wanted, below 0 not wanted, 0 as the preference says
    int penaltiesVisible = 0;
    bool clips = false;
};

page::PageChoice pageChoiceOf(const PageCall& call, const UserPreferences& preferences) {
    const auto decided = [&](int flag, std::string_view key) {
        return flag == 0 ? preferences.boolean(key) : flag > 0;
    };
    page::PageChoice choice;
    choice.crewKey = crewKey(std::string_view(call.athlete));
    choice.category = call.category;
    choice.phase = call.phase;
    choice.settings.kind = call.accumulated ? ValueKind::Accumulated : ValueKind::Sections;
    choice.settings.penaltiesIncluded = decided(call.penaltiesIncluded, "penaltiesIncluded");
    choice.settings.penaltiesVisible = decided(call.penaltiesVisible, "penaltiesVisible");
    choice.settings.colorMode = call.mode.empty()     ? preferences.string("colorMode")
                                : call.mode == "race" ? "Race"
                                                      : "Training";
    choice.language = languageFor(languageWishes());
    return choice;
}

/// The files with runs of the athlete, each once and in the order of the call.
std::vector<std::filesystem::path> pathsWithRuns(const FactStore& facts,
                                                 const std::vector<std::size_t>& runs) {
    std::set<std::uint32_t> files;
    for (const std::size_t run : runs)
        files.insert(facts.runs()[run].file);
    std::vector<std::filesystem::path> paths;
    for (const std::uint32_t file : files)
        paths.emplace_back(facts.text(facts.files()[file].path));
    return paths;
}

bool isPageWritten(const PageCall& call, const page::PageChoice& choice,
                   std::vector<page::RaceFile> races) {
    const std::vector<page::PageFilm> films = page::filmsBeside(races, call.output);
    const auto text = page::athletePage(std::move(races), choice, films);
    if (!text) {
        logLine(say("No run of \"{}\" is of the phase \"{}\".", pathText(call.athlete),
                    pathText(call.phase)));
        return false;
    }
    return isTableWritten(call.output, *text);
}

int makePage(const PageCall& call, const Painting* painting) {
    if (const std::string complaint = page::complaintAboutPageName(call.output);
        !complaint.empty()) {
        logLine(complaint);
        return WrongCall;
    }
    const Painting* const cutter = neededIf(call.clips, painting);
    const page::PageChoice choice = pageChoiceOf(call, UserPreferences(painting));
    const FolderScan input = scanNamed(call.paths);
    if (!hasFiles(input))
        return NotDone;
    const std::vector<std::size_t> runs = seasonRuns(
        input.facts,
        {choice.crewKey, call.category.empty() ? std::string() : categoryKey(call.category), {}});
    if (runs.empty()) {
        logUnknownAthlete(input.facts, call.athlete, call.category);
        return NotDone;
    }
    if (wouldReplaceSource(input.facts, call.output)) {
        logLine("The page cannot be written over a file that it is made from.");
        return WrongCall;
    }
    page::ReadRaces read = page::readRaces(pathsWithRuns(input.facts, runs));
    for (const page::UnreadRace& race : read.failed)
        logLine(race.reason);
    bool isWhole = input.failed.empty() && read.failed.empty();
    if (cutter)
        isWhole =
            cutter->arePageClipsCut(page::clipOrders(read.races, choice, call.output)) && isWhole;
    return isPageWritten(call, choice, std::move(read.races)) && isWhole ? Done : NotDone;
}

} // namespace

void addPage(Command program, int& status, const Painting* painting) {
    const auto call = std::make_shared<PageCall>();
    Command command =
        program.command("page", "Writes the page of an athlete for a telephone, one HTML file");
    command
        .option("PATH", call->paths,
                "Split files (.kvx) of any release, and folders of them; several make a season")
        .required();
    command.option("--athlete", call->athlete, "Whose page; a crew as \"A / B\"").required();
    command.option("-o,--output", call->output, "File to write, ending in .html").required();
    command.option("--category", call->category, "Only runs of this category");
    command.option("--phase", call->phase, "Only runs of this phase");
    command.option("--mode", call->mode, "Colours: race or training").oneOf({"race", "training"});
    command.flag("--accumulated", call->accumulated, "Times from the start to each split");
    command.flag("--penalties-included,!--no-penalties-included", call->penaltiesIncluded,
                 "Add penalty seconds to the times");
    command.flag("--penalties-visible,!--no-penalties-visible", call->penaltiesVisible,
                 "Show penalty seconds behind the times");
    command.flag("--clips", call->clips,
                 "Cut the athlete's runs out of their films into the folder of the page");
    command.footer(
        "The page needs nothing else to be read. Films play from the folder that is named "
        "as the page without .html: clips of the runs, and what else is put there, such "
        "as comparisons. Split files are only read.");
    command.onRun([=, &status] { status = makePage(*call, painting); });
}

} // namespace kavela::cli
