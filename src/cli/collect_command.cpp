#include "cli/commands.h"

#include "cli/console.h"
#include "cli/split_file_edit.h"
#include "cli/user_preferences.h"
#include "common/error.h"
#include "common/text.h"
#include "splittaking/messages.h"
#include "splittaking/training_collection.h"

#include <memory>

namespace kavela::cli {

namespace {

namespace fs = std::filesystem;

struct CollectCall {
    std::string folder;
    std::string athlete;
    bool replace = false;
};

/// Writes the training file; false, after a message, when it cannot be.
bool isCollected(TrainingCollection& collection, const fs::path& target) {
    for (const std::string& film : collection.unusable)
        logLine(say("The film {} is left out: its name is no UTF-8 text.", pathText(film)));
    return isSaved(collection.document, target.string());
}

int collect(const CollectCall& call, const UserPreferences& preferences) {
    const TrainingPlan plan{call.athlete, preferences.integer("predeterminatedsplits"),
                            systemNow()};
    TrainingCollection collection;
    try {
        collection = collectTraining(call.folder, plan);
    } catch (const FileError& error) {
        logLine(say("The folder {} cannot be read: {}", pathText(call.folder), error.reason()));
        return NotDone;
    }
    const auto runs = static_cast<std::int64_t>(collection.document.athletes.size());
    if (runs == 0) {
        logLine(say("No video in {} carries the name {}. Nothing was written.",
                    pathText(call.folder), pathText(call.athlete)));
        return NotDone;
    }
    const fs::path target = fs::path(call.folder) / TrainingFileName;
    if (!call.replace && fs::exists(fs::symlink_status(target))) {
        logLine(say("The file {} exists already. Say --replace to write a new one in its place.",
                    pathText(target)));
        return NotDone;
    }
    if (!isCollected(collection, target))
        return NotDone;
    const std::string report = std::string(messages::Saved) + ": " + pathText(target) + " with " +
                               counted(runs, "video", "videos") + '\n';
    return print(report) ? Done : NotDone;
}

/// What speaks against a name, in the words of a wrong call.
std::string complaintAbout(const std::string& athlete) {
    return isAthleteName(athlete) ? ""
                                  : "The athlete's name must be UTF-8 text with letters in it.";
}

} // namespace

void addCollect(Command program, int& status, const Painting* painting) {
    const auto call = std::make_shared<CollectCall>();
    Command command = program.command(
        "collect", "Makes a training file of the videos that carry an athlete's name");
    command.option("FOLDER", call->folder, "Folder of the videos").required();
    command.option("--athlete", call->athlete, "The athlete's name; a crew as \"A / B\"")
        .required()
        .check(complaintAbout);
    command.flag("--replace", call->replace, "Replace a training file that is there already");
    command.footer("The file is written to the folder as treining.kvx.");
    command.onRun([=, &status] { status = collect(*call, UserPreferences(painting)); });
}

} // namespace kavela::cli
