#include "cli/commands.h"

#include "cli/console.h"
#include "cli/fact_input.h"
#include "cli/fact_scan.h"
#include "cli/losses_csv.h"
#include "cli/losses_json.h"
#include "cli/losses_text.h"
#include "cli/painting.h"
#include "cli/told_reason.h"
#include "cli/unknown_athlete.h"
#include "common/text.h"
#include "performance/loss_reasons.h"
#include "splitdata/athlete_keys.h"

#include <algorithm>
#include <memory>

namespace kavela::cli {

namespace {

struct LossesCall {
    std::vector<std::string> paths;
    std::string reference = "winner";
    std::string athlete;
    std::string category;
    bool json = false;
    std::string csv;
    std::string why;
    std::string pdf;
};

std::string complaintAboutReference(const std::string& text) {
    return lossReferenceOf(text)
               ? ""
               : "\"" + text + "\" is none of winner, fastest, ideal, median, own and run:3.";
}

LossReference referenceOf(const LossesCall& call) {
    return lossReferenceOf(call.reference).value_or(LossReference{});
}

/// What speaks against a call as a whole; empty when nothing does.
std::string complaintAboutLosses(const LossesCall& call) {
    if (!call.athlete.empty())
        return referenceOf(call).kind == LossReferenceKind::Run && call.paths.size() > 1
                   ? "A run as the reference belongs to one file: run:I and several paths do not "
                     "go together."
                   : "";
    if (!call.pdf.empty())
        return "A page is about one athlete: say --athlete too.";
    if (!call.category.empty())
        return "A category narrows an athlete's season: say --athlete too.";
    return call.paths.size() > 1 ? "Several paths make an athlete's season: say --athlete too."
                                 : "";
}

int tellOutputs(const FactStore& facts, const LossesCall& call, const std::string& table,
                const std::string& output) {
    if (wouldReplaceSource(facts, call.csv)) {
        logLine("The table cannot be written over a file that it is made from.");
        return WrongCall;
    }
    const bool isWritten = isTableWritten(call.csv, table);
    return print(output) && isWritten ? Done : NotDone;
}

int tellFile(const LossesCall& call) {
    const std::optional<FactStore> facts = factsOfFile(call.paths.front());
    if (!facts)
        return NotDone;
    const LossReference reference = referenceOf(call);
    if (reference.kind == LossReferenceKind::Run && reference.run >= facts->runs().size()) {
        logLine(say("There is no run {}: the file has {}, counted from 0.", reference.run,
                    counted(static_cast<std::int64_t>(facts->runs().size()), "run", "runs")));
        return NotDone;
    }
    if (!call.why.empty())
        return tellReason(explainLoss(*facts, reference, call.why), call.why);
    const std::vector<RunLosses> runs = lossesOf(*facts, reference);
    return tellOutputs(*facts, call, call.csv.empty() ? "" : lossesCsv(*facts, runs),
                       call.json ? lossesJson(*facts, reference, runs)
                                 : lossesText(*facts, runs, standardOutput()));
}

int tellSeason(const LossesCall& call, const Painting* painter) {
    const FolderScan input = scanNamed(call.paths);
    if (!hasFiles(input))
        return NotDone;
    const SeasonLossQuery query{crewKey(call.athlete), categoryKey(call.category),
                                referenceOf(call)};
    const std::vector<std::size_t> runs = seasonRuns(input.facts, query);
    if (runs.empty()) {
        logUnknownAthlete(input.facts, call.athlete, call.category);
        return NotDone;
    }
    if (!call.why.empty())
        return tellReason(explainSeasonLoss(input.facts, query, call.why), call.why);
    if (painter && !painter->isAthletePageWritten(input.facts, query, call.pdf))
        return NotDone;
    const SeasonLosses season = seasonLosses(input.facts, query);
    const std::string athlete(input.facts.text(input.facts.runs()[runs.front()].crew));
    const int status =
        tellOutputs(input.facts, call, call.csv.empty() ? "" : seasonLossesCsv(season),
                    call.json ? seasonLossesJson(athlete, query.reference, season)
                              : seasonLossesText(input.facts, athlete, query.reference, season,
                                                 standardOutput()));
    return input.failed.empty() ? status : std::max<int>(status, NotDone);
}

int tellLosses(const LossesCall& call, const Painting* painting) {
    if (const std::string complaint = complaintAboutLosses(call); !complaint.empty()) {
        logLine(complaint);
        return WrongCall;
    }
    const Painting* const painter = neededIf(!call.pdf.empty(), painting);
    return call.athlete.empty() ? tellFile(call) : tellSeason(call, painter);
}

} // namespace

void addLosses(Command program, int& status, const Painting* painting) {
    const auto call = std::make_shared<LossesCall>();
    Command command = program.command("losses", "Tells where runs lose time against one another");
    command
        .option("PATH", call->paths,
                "Split file (.kvx) of any release; with --athlete also folders of them")
        .required();
    command
        .option("--reference", call->reference,
                "winner, fastest, ideal, median, own or run:I; winner without other word")
        .check(complaintAboutReference);
    command.option("--athlete", call->athlete,
                   "The season of an athlete over all the paths; a crew as \"A / B\"");
    command.option("--category", call->category, "Only the athlete's runs of this category");
    command.flag("--json", call->json, "Print one JSON document");
    command.option("--csv", call->csv, "File to write: semicolon-separated text");
    command.option("--pdf", call->pdf,
                   "Folder to write the athlete's page into, named after the athlete");
    command.option(
        "--why", call->why,
        "Explain one number instead: loss/RUN/winner/5, gap/RUN/ideal, total/RUN, place/RUN, "
        "strokes/RUN/5, …");
    command.footer("Runs count from 0, sections and gates from 1. A loss lies between two marks "
                   "that both runs have; an ideal run and a median have no penalties. Files are "
                   "only read.");
    command.onRun([=, &status] { status = tellLosses(*call, painting); });
}

} // namespace kavela::cli
