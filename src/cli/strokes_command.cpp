#include "cli/commands.h"

#include "boatmotion/session_files.h"
#include "boatmotion/strokes/stroke_table.h"
#include "cli/console.h"
#include "cli/strokes_json.h"
#include "cli/strokes_profile.h"
#include "cli/strokes_text.h"
#include "common/safe_file.h"
#include "common/text.h"

#include <memory>

namespace kavela::cli {

namespace {

namespace fs = std::filesystem;

struct StrokesCall {
    std::string file;
    std::string csv;
    StrokesProfile profile;
    bool json = false;
};

/// Writes the table; false, and the reason in the log, when that failed.
bool writeTable(const MotionAnalysis& analysis, const std::string& path) {
    if (path.empty())
        return true;
    try {
        writeFileSafely(path, strokeTableCsv(analysis));
        return true;
    } catch (const FileError& error) {
        logLine("Failed to create file");
        logLine(say("The file {} could not be written: {}", path, error.reason()));
        return false;
    }
}

int showStrokes(const StrokesCall& call) {
    std::error_code ignored;
    if (fs::equivalent(call.file, call.csv, ignored)) {
        logLine("The table cannot be written over the recording itself.");
        return WrongCall;
    }
    try {
        const bmrawdata_v5 session = readRawSession(call.file);
        const MotionProfile profile = call.profile.over(profileOf(session.athleteinfo));
        const MotionAnalysis analysis = analyseMotion(session, profile);
        for (const std::string& note : notesOf(analysis))
            logLine(note);
        const bool isWritten = writeTable(analysis, call.csv);
        const bool isPrinted =
            print(call.json ? strokesJson(analysis, profile) : strokesText(analysis, profile));
        return isWritten && isPrinted ? Done : NotDone;
    } catch (const DecodeError& error) {
        logLine(call.file + ": " + error.what());
    } catch (const MotionError& error) {
        logLine(call.file + ": " + error.what());
    }
    return NotDone;
}

} // namespace

void addStrokes(Command program, int& status) {
    const auto call = std::make_shared<StrokesCall>();
    Command command =
        program.command("strokes", "Finds the strokes and turns of a boat-motion recording");
    command.option("FILE", call->file, "Raw recording (.kvb)").required();
    command.flag("--json", call->json, "Print one JSON document");
    command.option("--csv", call->csv, "File to write: semicolon-separated text");
    addProfileOptions(command, call->profile);
    command.footer(
        "The recording is only read. Phases, force and power are estimates from the "
        "hull's motion. Without other word the mass is the recorded athlete's with 13 kg of boat "
        "and kit, the boat that of the recorded discipline.");
    command.onRun([call, &status] { status = showStrokes(*call); });
}

} // namespace kavela::cli
