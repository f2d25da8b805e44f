#include "cli/commands.h"

#include "cli/console.h"
#include "cli/fact_input.h"
#include "cli/fact_scan.h"
#include "cli/painting.h"
#include "cli/season_csv.h"
#include "cli/season_json.h"
#include "cli/season_text.h"
#include "cli/team_input.h"
#include "cli/told_reason.h"
#include "common/delimited_text.h"
#include "common/text.h"
#include "performance/season_reasons.h"
#include "results/name_likeness.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <set>

namespace kavela::cli {

namespace {

struct SeasonCall {
    std::string team;
    std::vector<std::string> paths;
    std::string category;
    std::string years;
    std::vector<std::string> field;
    std::string starter;
    bool json = false;
    std::string csv;
    std::string why;
    std::string pdf;
};

struct SeasonYears {
    std::int64_t first = 0;
    std::int64_t last = 0;
};

/// "2024" or "2023-2025".
std::optional<SeasonYears> yearsOf(std::string_view text) {
    const std::size_t dash = text.find('-');
    SeasonYears years;
    if (!parseField(text.substr(0, dash), years.first))
        return std::nullopt;
    years.last = years.first;
    if (dash != text.npos && !parseField(text.substr(dash + 1), years.last))
        return std::nullopt;
    return years.first <= years.last ? std::optional(years) : std::nullopt;
}

std::string complaintAboutYears(const std::string& text) {
    return yearsOf(text) ? ""
                         : "\"" + text + "\" is neither a year nor a range of years: 2023-2025.";
}

SeasonChoice choiceOf(const SeasonCall& call) {
    SeasonChoice choice;
    choice.category = call.category;
    choice.starter = call.starter;
    if (const auto years = yearsOf(call.years)) {
        choice.firstYear = years->first;
        choice.lastYear = years->last;
    }
    return choice;
}

void logUnknownCategory(const myTeamToSaveStruct& team, const std::string& category) {
    std::set<std::string> labels;
    for (const myTeamStruct& athlete : team.realMyTeam)
        for (const mtCatsStruct& known : athlete.cats)
            labels.insert(known.cat);
    std::string text;
    for (const std::string& label : labels)
        text += (text.empty() ? "" : ", ") + label;
    logLine(say("Nobody of the team races in \"{}\". Categories: {}.", pathText(category),
                (text.empty() ? "none" : text)));
}

/// That nobody is called so, with the nearest of the names there are.
void logUnknownName(const SeasonData& data, const std::string& name) {
    constexpr std::size_t MostOffered = 3;
    std::vector<std::string> names;
    for (const SeasonBoat& known : data.boats)
        names.push_back(known.name);
    std::string text = "Nobody is called \"" + pathText(name) + "\" in these races";
    const std::vector<std::size_t> likest = byLikeness(name, names);
    for (std::size_t i = 0; i < std::min(likest.size(), MostOffered); ++i)
        text += (i == 0 ? ". The nearest names: " : ", ") + names[likest[i]];
    logLine(text + '.');
}

/// The boats of a field; nothing, after a message, where one is not known.
std::optional<std::vector<std::size_t>> fieldOf(const SeasonData& data, const SeasonCall& call) {
    std::vector<std::size_t> boats;
    for (const std::string& name : call.field) {
        const auto boat = data.boatNamed(name);
        if (!boat) {
            logUnknownName(data, name);
            return std::nullopt;
        }
        boats.push_back(*boat);
    }
    return boats;
}

/// Of somebody of whom no start is known there are no races: says so, or who may be meant.
bool hasStarts(const SeasonData& data, const myTeamToSaveStruct& team, const FactStore& facts,
               const SeasonCall& call) {
    if (call.starter.empty() || data.starter)
        return true;
    SeasonChoice all = choiceOf(call);
    all.starter.clear();
    const SeasonData everybody = seasonData(team, facts, all);
    if (everybody.boatNamed(call.starter))
        logLine(say("No start of {} is known in these races.", pathText(call.starter)));
    else
        logUnknownName(everybody, call.starter);
    return false;
}

bool isTeamItself(const SeasonCall& call) {
    std::error_code fault;
    return !call.csv.empty() && std::filesystem::equivalent(call.csv, call.team, fault);
}

int tellSeasonOutputs(const Season& season, const FactStore& facts, const SeasonCall& call) {
    if (isTeamItself(call) || wouldReplaceSource(facts, call.csv)) {
        logLine("The table cannot be written over a file that it is made from.");
        return WrongCall;
    }
    const bool isWritten = isTableWritten(call.csv, call.csv.empty() ? "" : teamSeasonCsv(season));
    return print(call.json ? teamSeasonJson(season) : teamSeasonText(season, standardOutput())) &&
                   isWritten
               ? Done
               : NotDone;
}

int tellTeamSeason(const SeasonCall& call, const Painting* painting) {
    const Painting* const painter = neededIf(!call.pdf.empty(), painting);
    const auto team = teamOfFile(call.team);
    if (!team)
        return NotDone;
    const FolderScan input = call.paths.empty() ? FolderScan() : scanNamed(call.paths);
    SeasonData data = seasonData(*team, input.facts, choiceOf(call));
    if (data.members.empty()) {
        logUnknownCategory(*team, call.category);
        return NotDone;
    }
    for (const std::string& twin : data.twins)
        logLine(say("Several athletes of the team are called {}: their runs cannot be told apart.",
                    pathText(twin)));
    if (!hasStarts(data, *team, input.facts, call))
        return NotDone;
    const auto field = fieldOf(data, call);
    if (!field)
        return NotDone;
    const Season season = seasonOf(std::move(data), *field);
    if (!call.why.empty())
        return tellReason(explainSeason(season, input.facts, call.why), call.why);
    if (painter && !painter->areSeasonPagesWritten(season, call.pdf))
        return NotDone;
    const int status = tellSeasonOutputs(season, input.facts, call);
    return input.failed.empty() ? status : std::max<int>(status, NotDone);
}

} // namespace

void addSeason(Command program, int& status, const Painting* painting) {
    const auto call = std::make_shared<SeasonCall>();
    Command command =
        program.command("season", "Tells how the athletes of a team stand over seasons");
    command.option("TEAM", call->team, "Team file (.kvteam)").required();
    command.option("PATH", call->paths,
                   "Split files (.kvx) of any release, or folders of them: they tell the winners "
                   "and the rivals");
    command.option("--category", call->category, "Category: MK1, WK1, MC1, WC1, MX1, WX1")
        .required();
    command.option("--years", call->years, "Only these: 2025, or 2023-2025")
        .check(complaintAboutYears);
    command.option("--field", call->field,
                   "Whose places to expect of one another; the team and those who raced most "
                   "often without it");
    command.option("--starter", call->starter,
                   "Only races in which this athlete starts, in whichever phase");
    command.flag("--json", call->json, "Print one JSON document");
    command.option("--csv", call->csv,
                   "File to write: the runs of the athletes as semicolon-separated text");
    command.option("--pdf", call->pdf,
                   "Folder to write a report of the team and a page for each athlete into");
    command.option(
        "--why", call->why,
        "Explain one number instead: spread, trend/NAME, percent/NAME/2025/WC1/Final, …");
    command.footer("Intervals are 90 %. Percent behind is of the winner of the class, penalties "
                   "included; where the winner is not known, nor is it. Files are only read.");
    command.onRun([=, &status] { status = tellTeamSeason(*call, painting); });
}

} // namespace kavela::cli
