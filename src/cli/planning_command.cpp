#include "cli/commands.h"

#include "cli/console.h"
#include "cli/planning_json.h"
#include "cli/planning_text.h"
#include "cli/planning_upgrade.h"

#include <algorithm>
#include <memory>

namespace kavela::cli {

namespace {

struct PlanningCall {
    std::string file;
    bool json = false;
};

int showPlanning(const PlanningCall& call) {
    const RecognisedPlanning planning = recognisePlanningFile(call.file, logLine);
    if (!planning.version) {
        ConsoleAlerts alerts;
        reportIncompatible(planning, logLine, alerts);
        return NotDone;
    }
    return print(call.json ? planningJson(planning) : planningText(planning.document)) ? Done
                                                                                       : NotDone;
}

/// The same file named twice is upgraded once and current then.
int upgradePlannings(const std::vector<std::string>& files) {
    using Outcome = PlanningUpgrade::Outcome;
    std::int64_t upgraded = 0;
    std::int64_t failed = 0;
    for (const std::string& file : files) {
        const PlanningUpgrade upgrade = upgradePlanningAt(file);
        std::for_each(upgrade.lines.begin(), upgrade.lines.end(), logLine);
        upgraded += upgrade.outcome == Outcome::Upgraded;
        failed += upgrade.outcome == Outcome::Failed;
    }
    const auto count = static_cast<std::int64_t>(files.size());
    const std::string summary = counted(count, "file", "files") + ": " + std::to_string(upgraded) +
                                " upgraded, " + std::to_string(count - upgraded - failed) +
                                " already current, " + std::to_string(failed) + " not opened\n";
    return print(summary) && failed == 0 ? Done : NotDone;
}

void addPlanningShow(Command planning, int& status) {
    const auto call = std::make_shared<PlanningCall>();
    Command command = planning.command("show", "The weeks of each athlete's seasons");
    command.option("FILE", call->file, "Planning (.planning) of any version").required();
    command.flag("--json", call->json, "Print one JSON document");
    command.footer("The file is only read, also one of an older version.");
    command.onRun([call, &status] { status = showPlanning(*call); });
}

void addPlanningUpgrade(Command planning, int& status) {
    const auto files = std::make_shared<std::vector<std::string>>();
    Command command = planning.command("upgrade", "Brings plannings to the current version");
    command.option("FILE", *files, "Plannings (.planning) of any version").required();
    command.footer("The files are rewritten in place, safely. The previous file is kept beside "
                   "each as \"NAME_old.planning\".");
    command.onRun([files, &status] { status = upgradePlannings(*files); });
}

} // namespace

void addPlanning(Command program, int& status) {
    Command planning = program.command("planning", "Shows and upgrades training plannings");
    planning.needsCommand();
    planning.footer("Plannings of every version are read.");
    addPlanningShow(planning, status);
    addPlanningUpgrade(planning, status);
}

} // namespace kavela::cli
