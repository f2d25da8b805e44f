#include "cli/planning_upgrade.h"

#include "cli/console.h"
#include "planning/planning_file.h"

namespace kavela::cli {

namespace {

/// Keeps what a reader shows, for printing in the order of the files.
class LinesOfAlerts : public Alerts {
public:
    explicit LinesOfAlerts(std::vector<std::string>& lines) : m_lines(lines) {}
    void show(const Alert& alert) override { m_lines.push_back(alert.text); }

private:
    std::vector<std::string>& m_lines;
};

} // namespace

PlanningUpgrade upgradePlanningAt(const std::filesystem::path& path) {
    using Outcome = PlanningUpgrade::Outcome;
    PlanningUpgrade result;
    LinesOfAlerts alerts(result.lines);
    const auto log = [&](std::string_view line) { result.lines.emplace_back(line); };
    const RecognisedPlanning planning = recognisePlanningFile(path, log);
    if (planning.isCurrent())
        return result;
    result.outcome = Outcome::Failed;
    if (!planning.version) {
        reportIncompatible(planning, log, alerts);
        return result;
    }
    if (!rewritePlanningFile(planning, path, log))
        return result;
    result.outcome = Outcome::Upgraded;
    result.lines.push_back("The planning was upgraded from version " +
                           std::string(planning.version->label) + ": " + pathText(path));
    if (const std::size_t without = variabilityWithoutPlace(planning); without > 0)
        result.lines.push_back(
            "The highest and lowest values of " +
            counted(static_cast<std::int64_t>(without), "variability measurement",
                    "variability measurements") +
            " have no place in the current version; they stand in the previous file, which was "
            "kept beside it.");
    return result;
}

} // namespace kavela::cli
