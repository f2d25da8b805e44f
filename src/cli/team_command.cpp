#include "cli/commands.h"

#include "cli/console.h"
#include "cli/painting.h"
#include "cli/team_input.h"
#include "common/display_text.h"
#include "common/json_encode.h"
#include "common/text.h"
#include "results/athlete_summary.h"
#include "results/categorization.h"
#include "results/team_seasons.h"

#include <memory>
#include <optional>

namespace kavela {

BOOST_DESCRIBE_STRUCT(AthleteSummary, (), (medals, championshipMedals, top6, top15))
BOOST_DESCRIBE_STRUCT(CategorizedRace, (), (year, event, location, finalPos))
BOOST_DESCRIBE_STRUCT(Categorization, (),
                      (name, medals, championshipMedals, top6, top15, events, label, lines, races))

namespace cli {

namespace {

struct TeamCall {
    std::string file;
    std::string athlete;
    std::string category;
    std::string pdf;
    bool json = false;
};

std::string categoriesOf(const myTeamStruct& athlete) {
    std::string text;
    for (const mtCatsStruct& category : athlete.cats)
        text += (text.empty() ? "" : ", ") + category.cat;
    return text.empty() ? "none" : text;
}

std::string summaryText(const myTeamStruct& athlete, const TeamCall& call,
                        const AthleteSummary& summary) {
    std::string text = printable(athlete.name) + ", " + printable(call.category) + '\n';
    for (const std::string& line : summaryLines(summary))
        text += "  " + line + '\n';
    return text;
}

int summarize(const TeamCall& call) {
    const auto team = teamOfFile(call.file);
    if (!team)
        return NotDone;
    const myTeamStruct* const athlete = athleteNamed(*team, call.athlete);
    if (!athlete) {
        logLine(say("The team has no athlete {}.", call.athlete));
        return NotDone;
    }
    if (!categoryOf(*athlete, call.category)) {
        logLine(say("{} does not race in {}. Categories: {}.", athlete->name, call.category,
                    categoriesOf(*athlete)));
        return NotDone;
    }
    const AthleteSummary summary = athleteSummary(*athlete, call.category);
    return print(call.json ? encode(summary) + '\n' : summaryText(*athlete, call, summary))
               ? Done
               : NotDone;
}

std::string categorizationText(const std::vector<Categorization>& all, const TeamCall& call) {
    if (all.empty())
        return "No athlete of " + printable(call.category) + " comes into question.\n";
    std::string text;
    for (const Categorization& athlete : all) {
        text += printable(athlete.name) + "\n  " + athlete.label + '\n';
        for (const std::string& line : athlete.lines)
            text += "  " + line + '\n';
        for (const CategorizedRace& race : athlete.races)
            text += "    " + rightAligned(std::to_string(race.finalPos), 3) + "  " +
                    std::to_string(race.year) + "  " + fitted(printable(race.event), 14) + "  " +
                    printable(race.location) + '\n';
        text += '\n';
    }
    return text;
}

int categorize(const TeamCall& call, const Painting* painting) {
    const Painting* const painter = neededIf(!call.pdf.empty(), painting);
    const auto team = teamOfFile(call.file);
    if (!team)
        return NotDone;
    const std::vector<Categorization> all = categorizeTeam(*team, call.category);
    if (painter && !painter->isCategorizationWritten(call.category, all, call.pdf))
        return NotDone;
    return print(call.json ? encode(all) + '\n' : categorizationText(all, call)) ? Done : NotDone;
}

Command addCall(Command team, const char* name, const char* help, TeamCall& call) {
    Command command = team.command(name, help);
    command.option("FILE", call.file, "Team file (.kvteam)").required();
    command
        .option("--category", call.category,
                "Category, letter for letter as in the file: MK1, WK1, MC1, WC1, MX1, WX1")
        .required();
    command.flag("--json", call.json, "Print one JSON document");
    return command;
}

} // namespace

void addTeam(Command program, int& status, const Painting* painting) {
    const auto call = std::make_shared<TeamCall>();
    Command team = program.command("team", "What the athletes of a team reached");
    team.needsCommand();
    Command summary =
        addCall(team, "summary", "Counts an athlete's medals and places of all seasons", *call);
    summary.option("--athlete", call->athlete, "Name of the athlete").required();
    summary.footer("A race without a final position counts as a medal here.");
    summary.onRun([call, &status] { status = summarize(*call); });
    Command categorization =
        addCall(team, "categorize", "Puts athletes into levels by their first two seasons", *call);
    categorization.option("--pdf", call->pdf, "Folder to write \"2025 Categorization.pdf\" into");
    categorization.onRun([=, &status] { status = categorize(*call, painting); });
}

} // namespace cli

} // namespace kavela
