#include "cli/commands.h"

#include "cli/console.h"
#include "cli/fact_input.h"
#include "cli/fact_scan.h"
#include "cli/penalties_json.h"
#include "cli/penalties_text.h"
#include "cli/told_reason.h"
#include "common/text.h"
#include "performance/penalty_reasons.h"

#include <memory>
#include <set>

namespace kavela::cli {

namespace {

struct PenaltiesCall {
    std::vector<std::string> paths;
    std::string by{nameOf(RateBy::Gate)};
    std::string category;
    std::string csv;
    std::string why;
    bool json = false;

    [[nodiscard]] PenaltyChoice choice() const { return {category}; }
};

/// Whether there are runs of the category; says which ones there are when not.
bool hasCategory(const FactStore& facts, const std::string& category) {
    const ChosenRuns chosen({category});
    std::set<std::string> present;
    for (const RunRow& run : facts.runs()) {
        if (chosen.has(facts, run))
            return true;
        present.insert('"' + std::string(facts.text(run.category)) + '"');
    }
    std::string text;
    for (const std::string& name : present)
        text += (text.empty() ? "" : ", ") + name;
    logLine(say("No run has the category \"{}\".{}", category,
                (text.empty() ? "" : " There is " + text + ".")));
    return false;
}

int tellPenalties(const FactStore& facts, const PenaltiesCall& call) {
    const PenaltyChoice choice = call.choice();
    const PenaltyFindings findings{
        .rates = penaltyRates(facts, rateByOf(call.by).value_or(RateBy::Gate), choice),
        .details = detailShares(facts, choice),
        .costs = penaltyCosts(facts, choice),
        .tradeOff = tradeOff(facts, choice)};
    const bool isWritten = isTableWritten(call.csv, penaltiesCsv(findings.rates));
    const bool isPrinted = print(call.json ? penaltiesJson(facts, findings)
                                           : penaltiesText(facts, findings, standardOutput()));
    return isWritten && isPrinted ? Done : NotDone;
}

int penalties(const PenaltiesCall& call) {
    const FolderScan input = scanNamed(call.paths);
    if (wouldReplaceSource(input.facts, call.csv)) {
        logLine("The table cannot be written over a file that it is made from.");
        return WrongCall;
    }
    if (!hasFiles(input))
        return NotDone;
    if (!call.category.empty() && !hasCategory(input.facts, call.category))
        return NotDone;
    const int status =
        call.why.empty()
            ? tellPenalties(input.facts, call)
            : tellReason(explainPenalty(input.facts, call.why, call.choice()), call.why);
    return input.failed.empty() ? status : NotDone;
}

} // namespace

void addPenalties(Command program, int& status) {
    const auto call = std::make_shared<PenaltiesCall>();
    Command command = program.command(
        "penalties", "Tells how often gates are touched, what it cost, and whether speed pays");
    command.option("PATH", call->paths, "Split files (.kvx) of any release, or folders of them")
        .required();
    command.option("--by", call->by, "What the rates are by; by gate without other word")
        .oneOf({RateByNames.begin(), RateByNames.end()});
    command.option("--category", call->category, "Only runs of this category");
    command.flag("--json", call->json, "Print one JSON document");
    command.option("--csv", call->csv, "File to write the rates to: semicolon-separated text");
    command.option("--why", call->why,
                   "Explain one number instead: rate/gate/7, touches/crew/NAME, cost/RUN/GATE, …");
    command.footer(
        "Runs count from 0. Where several files are read, a gate, a section or a run is named with "
        "its file, as in rate/gate/FILE:7 and cost/FILE:3/7. Touches and missed gates are counted "
        "apart. Files are only read.");
    command.onRun([call, &status] { status = penalties(*call); });
}

} // namespace kavela::cli
