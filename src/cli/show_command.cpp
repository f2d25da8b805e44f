#include "cli/commands.h"

#include "analysis/analysis_reasons.h"
#include "analysis/split_table.h"
#include "cli/console.h"
#include "cli/show_json.h"
#include "cli/show_text.h"
#include "cli/told_reason.h"
#include "cli/user_preferences.h"
#include "common/text.h"
#include "splitdata/loader.h"

#include <memory>
#include <set>

namespace kavela::cli {

namespace {

struct ShowCall {
    std::string file;
    std::string mode;
    bool accumulated = false;
    int penaltiesIncluded = 0; ///< above 0 wanted, below 0 not wanted, 0 as the preference says
    int penaltiesVisible = 0;
    std::string category;
    std::string phase;
    bool json = false;
    std::string why;
};

TableSettings settingsOf(const ShowCall& call, const UserPreferences& preferences) {
    const auto decided = [&](int flag, std::string_view key) {
        return flag == 0 ? preferences.boolean(key) : flag > 0;
    };
    TableSettings settings;
    settings.kind = call.accumulated ? ValueKind::Accumulated : ValueKind::Sections;
    settings.penaltiesIncluded = decided(call.penaltiesIncluded, "penaltiesIncluded");
    settings.penaltiesVisible = decided(call.penaltiesVisible, "penaltiesVisible");
    settings.colorMode = call.mode.empty()     ? preferences.string("colorMode")
                         : call.mode == "race" ? "Race"
                                               : "Training";
    return settings;
}

/// What the runs hold in one field, for the message when none holds what was asked for.
std::string valuesOf(const RaceSet& set, std::string analyzerdata::*field) {
    std::set<std::string> values;
    for (const analyzerdata& run : set.alldata)
        values.insert(run.*field);
    std::string text;
    for (const std::string& value : values)
        text += (text.empty() ? "\"" : ", \"") + value + '"';
    return text;
}

void filter(RaceSet& set, std::string analyzerdata::*field, const std::string& wanted,
            std::string_view fieldName) {
    if (wanted.empty())
        return;
    const std::string present = valuesOf(set, field);
    set = filteredRaceSet(set, [&](const analyzerdata& run) { return run.*field == wanted; });
    if (set.alldata.empty() && !present.empty())
        logLine(say("No run has the {} \"{}\". There is {}.", fieldName, wanted, present));
}

int show(const ShowCall& call, const Painting* painting) {
    const TableSettings settings = settingsOf(call, UserPreferences(painting));
    RecognisedSplitFile file = recogniseSplitFile(call.file, logLine, systemNow);
    if (!file.version) {
        ConsoleAlerts alerts;
        reportIncompatible(file, logLine, alerts);
        return NotDone;
    }
    const RaceHeading heading = headingOf(file.document.info);
    RaceSet set = makeRaceSet(std::move(file.document), call.file);
    filter(set, &analyzerdata::category, call.category, "category");
    filter(set, &analyzerdata::phase, call.phase, "phase");

    if (!call.why.empty())
        return tellReason(explainRace(set, settings, call.why), call.why);
    const SplitTable table = makeSplitTable(set, settings);
    const std::string output =
        call.json ? tableJson(table) : tableText(heading, table, settings, standardOutput());
    return print(output) ? Done : NotDone;
}

} // namespace

void addShow(Command program, int& status, const Painting* painting) {
    const auto call = std::make_shared<ShowCall>();
    Command command = program.command("show", "Prints the coloured split table of a race");
    command.option("FILE", call->file, "Split file (.kvx) of any release").required();
    command.option("--mode", call->mode, "Colours: race or training").oneOf({"race", "training"});
    command.flag("--accumulated", call->accumulated, "Times from the start to each split");
    command.flag("--penalties-included,!--no-penalties-included", call->penaltiesIncluded,
                 "Add penalty seconds to the times");
    command.flag("--penalties-visible,!--no-penalties-visible", call->penaltiesVisible,
                 "Show penalty seconds behind the times");
    command.option("--category", call->category, "Only runs of this category");
    command.option("--phase", call->phase, "Only runs of this phase");
    command.flag("--json", call->json, "Print one JSON document");
    command.option("--why", call->why,
                   "Tell how a number came about: cell/5/3, band/5/3, ideal/3, ideal/total (runs "
                   "from 0, columns and sections from 1)");
    command.footer("A file of an older release is read without being rewritten.");
    command.onRun([=, &status] { status = show(*call, painting); });
}

} // namespace kavela::cli
