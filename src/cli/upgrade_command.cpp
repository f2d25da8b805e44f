#include "cli/commands.h"

#include "boatmotion/session_files.h"
#include "cli/console.h"
#include "cli/planning_upgrade.h"
#include "cli/progress_bar.h"
#include "cli/upgrade_paths.h"
#include "common/json_decode.h"
#include "common/parallel.h"
#include "planning/planning_file.h"
#include "results/selection_file.h"
#include "splitdata/loader.h"

#include <algorithm>
#include <array>
#include <memory>
#include <new>

namespace kavela::cli {

namespace {

namespace fs = std::filesystem;

enum class Outcome { Current, Upgraded, Failed };

/// What happened to one file, and what there was to say about it.
struct Upgrade {
    Outcome outcome = Outcome::Current;
    std::vector<std::string> lines;
};

/// Keeps what a reader shows, for printing in the order of the files.
class RecordedAlerts : public Alerts {
public:
    explicit RecordedAlerts(std::vector<std::string>& lines) : m_lines(lines) {}
    void show(const Alert& alert) override { m_lines.push_back(alert.text); }

private:
    std::vector<std::string>& m_lines;
};

/// Writes the current version of a recording of version 4 to a file of its own.
Upgrade convertRecording(const JsonDocument& json, const fs::path& target) {
    if (fs::exists(fs::symlink_status(target)))
        return {Outcome::Failed, {"The file " + pathText(target) + " exists already."}};
    try {
        saveRawSession(upgradedRawSession(decode<bmrawdata_v4>(json)), target);
    } catch (const FileError& error) {
        return {Outcome::Failed, {"Failed to create file", error.what()}};
    }
    return {Outcome::Upgraded, {"The recording was converted to " + pathText(target)}};
}

/// Deals with a raw recording; nothing for any other file, readable or not.
std::optional<Upgrade> upgradeRecording(const fs::path& path) {
    try {
        const JsonDocument json = JsonDocument::fromFile(path);
        const auto version = recogniseSession(json).version;
        if (!version || version->kind != "raw session")
            return std::nullopt;
        return version->current ? Upgrade{} : convertRecording(json, upgradedSessionPath(path));
    } catch (const DecodeError&) {
        return std::nullopt;
    } catch (const FileError&) {
        return std::nullopt;
    }
}

Upgrade upgradeSplitFileAt(const fs::path& path) {
    Upgrade result;
    RecordedAlerts alerts(result.lines);
    bool isOld = false;
    const auto log = [&](std::string_view line) {
        isOld = true; // a current file is read in silence
        result.lines.emplace_back(line);
    };
    const bool isReadable = readSplitFile(path, log, alerts, systemNow).has_value();
    if (!isReadable)
        result.outcome = Outcome::Failed;
    else if (isOld)
        result.outcome = Outcome::Upgraded;
    return result;
}

Upgrade upgradeSelectionAt(const fs::path& path) {
    Upgrade result;
    RecordedAlerts alerts(result.lines);
    const auto log = [&](std::string_view line) { result.lines.emplace_back(line); };
    const RecognisedSelectionFile file = recogniseSelectionFile(path);
    if (!file.version)
        reportIncompatible(file, log, alerts);
    else if (file.isCurrent())
        return result;
    else if (rewriteSelectionFile(file, path, log))
        return {Outcome::Upgraded,
                {"The selection races were upgraded from version " +
                 std::string(file.version->label) + ": " + pathText(path)}};
    result.outcome = Outcome::Failed;
    return result;
}

Upgrade upgradePlanning(const fs::path& path) {
    PlanningUpgrade result = upgradePlanningAt(path);
    switch (result.outcome) {
    case PlanningUpgrade::Outcome::Current:
        return {Outcome::Current, std::move(result.lines)};
    case PlanningUpgrade::Outcome::Upgraded:
        return {Outcome::Upgraded, std::move(result.lines)};
    case PlanningUpgrade::Outcome::Failed:
        break;
    }
    return {Outcome::Failed, std::move(result.lines)};
}

Upgrade upgrade(const fs::path& path) {
    try {
        if (smallExtension(path) == ".kvsr")
            return upgradeSelectionAt(path);
        if (smallExtension(path) == PlanningExtension)
            return upgradePlanning(path);
        if (path.extension() == ".kvb")
            if (const auto recording = upgradeRecording(path))
                return *recording;
        return upgradeSplitFileAt(path);
    } catch (const std::bad_alloc&) {
        // The other files may well fit.
        return {Outcome::Failed, {"There is not enough memory for " + pathText(path)}};
    }
}

std::string summary(const std::vector<Upgrade>& upgrades) {
    const auto count = [&](Outcome outcome) {
        return std::to_string(
            std::count_if(upgrades.begin(), upgrades.end(),
                          [&](const Upgrade& u) { return u.outcome == outcome; }));
    };
    return counted(static_cast<std::int64_t>(upgrades.size()), "file", "files") + ": " +
           count(Outcome::Upgraded) + " upgraded, " + count(Outcome::Current) +
           " already current, " + count(Outcome::Failed) + " not opened\n";
}

int upgradeAll(const std::vector<std::string>& paths) {
    const PathsToUpgrade found = filesToUpgrade(paths);
    std::vector<Upgrade> upgrades(found.files.size());
    {
        ProgressBar progress(upgrades.size());
        parallelFor(upgrades.size(), [&](std::size_t i) {
            upgrades[i] = upgrade(found.files[i]);
            progress.step();
        });
    }
    for (const Upgrade& result : upgrades)
        std::for_each(result.lines.begin(), result.lines.end(), logLine);
    std::for_each(found.faults.begin(), found.faults.end(), logLine);
    const bool allOpened = std::none_of(upgrades.begin(), upgrades.end(), [](const Upgrade& u) {
        return u.outcome == Outcome::Failed;
    });
    return print(summary(upgrades)) && allOpened && found.faults.empty() ? Done : NotDone;
}

} // namespace

void addUpgrade(Command program, int& status) {
    const auto paths = std::make_shared<std::vector<std::string>>();
    Command command =
        program.command("upgrade", "Brings files of older releases to the current version");
    command
        .option("PATH", *paths,
                "Split files, selection races, plannings and recordings, or folders")
        .required();
    command.footer("Split files are rewritten in place, safely: on any failure the old file stays "
                   "as it is. So are selection races (.kvsr) and plannings (.planning), whose "
                   "previous file is kept beside them with \"_old\" in its name. A raw recording "
                   "(.kvb) of version 4 is converted to a new file beside it.");
    command.onRun([paths, &status] { status = upgradeAll(*paths); });
}

} // namespace kavela::cli
