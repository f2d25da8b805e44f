#include "cli/commands.h"

#include "boatmotion/conversion.h"
#include "cli/console.h"

#include <memory>

namespace kavela::cli {

namespace {

struct ConvertCall {
    std::vector<std::string> files;
    std::string name;
};

std::string conversionText(const Conversion& conversion) {
    return pathText(conversion.target) + ": " +
           counted(static_cast<std::int64_t>(conversion.strokes), "stroke", "strokes") + ", " +
           counted(static_cast<std::int64_t>(conversion.turns), "turn", "turns") + '\n';
}

/// Converts one recording; false when it was not.
bool convert(const std::string& file, const std::filesystem::path& target) {
    const Conversion conversion = convertRecording(file, target, logLine);
    if (conversion.outcome == ConversionOutcome::TargetExists)
        logLine("Give another name with --name.");
    if (conversion.outcome != ConversionOutcome::Saved)
        return false;
    for (const std::string& note : conversion.notes)
        logLine(note);
    logLine(conversion.message());
    return print(conversionText(conversion));
}

int convertAll(const ConvertCall& call) {
    if (!call.name.empty() && call.files.size() > 1) {
        logLine("A name goes with one recording only.");
        return WrongCall;
    }
    std::vector<std::filesystem::path> targets;
    try {
        for (const std::string& file : call.files)
            targets.push_back(conversionTarget(file, call.name));
    } catch (const std::invalid_argument& error) {
        logLine(error.what());
        return WrongCall;
    }
    bool areDone = true;
    for (std::size_t i = 0; i < targets.size(); ++i)
        areDone &= convert(call.files[i], targets[i]);
    return areDone ? Done : NotDone;
}

} // namespace

void addConvert(Command program, int& status) {
    const auto call = std::make_shared<ConvertCall>();
    Command command = program.command("convert", "Writes the processed session of raw recordings");
    command.option("FILE", call->files, "Raw recordings (.kvb)").required();
    command.option("--name", call->name, "Name of the new file, for a further one");
    command.footer("run.kvb gives run_postv5.bms beside it. No file is ever overwritten.");
    command.onRun([call, &status] { status = convertAll(*call); });
}

} // namespace kavela::cli
