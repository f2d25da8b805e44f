#include "cli/commands.h"

#include "cli/console.h"
#include "cli/user_preferences.h"
#include "common/safe_file.h"
#include "common/text.h"
#include "splitdata/loader.h"
#include "splittaking/table_export.h"

#include <functional>
#include <memory>

namespace kavela::cli {

namespace {

namespace fs = std::filesystem;

struct ExportCall {
    std::string file;
    std::string csv;
    std::string pdf;
};

/// The table's settings, as the user left them.
TableSettings preferredSettings(const UserPreferences& preferences) {
    TableSettings settings;
    settings.penaltiesIncluded = preferences.boolean("penaltiesIncluded");
    settings.penaltiesVisible = preferences.boolean("penaltiesVisible");
    settings.colorMode = preferences.string("colorMode");
    return settings;
}

void writeReport(splittakerdata031 document, const ExportCall& call, const Painting& painting) {
    painting.writeRaceReport(std::move(document), call.file,
                             preferredSettings(UserPreferences(&painting)), call.pdf);
}

/// Writes one of the files; false, and the reason in the log, when that failed.
bool isWritten(const std::string& path, const std::function<void()>& write) {
    try {
        write();
        return true;
    } catch (const FileError& error) {
        logLine("Failed to create file");
        logLine(say("The file {} could not be written: {}", path, error.reason()));
        return false;
    }
}

/// What is wrong with the call, or nothing.
std::string complaint(const ExportCall& call) {
    std::error_code ignored;
    if (call.csv.empty() && call.pdf.empty())
        return "Say what to write: --csv OUT, --pdf OUT or both.";
    if (fs::equivalent(call.file, call.csv, ignored))
        return "The table cannot be written over the split file itself.";
    if (fs::equivalent(call.file, call.pdf, ignored))
        return "The report cannot be written over the split file itself.";
    if (fs::path(call.csv).lexically_normal() == fs::path(call.pdf).lexically_normal())
        return "The table and the report cannot be written to the same file.";
    return {};
}

int exportRace(const ExportCall& call, const Painting* painting) {
    const Painting* const painter = neededIf(!call.pdf.empty(), painting);
    if (const std::string text = complaint(call); !text.empty()) {
        logLine(text);
        return WrongCall;
    }
    RecognisedSplitFile file = recogniseSplitFile(call.file, logLine, systemNow);
    if (!file.version) {
        ConsoleAlerts alerts;
        reportIncompatible(file, logLine, alerts);
        return NotDone;
    }
    bool isDone = true;
    if (!call.csv.empty())
        isDone =
            isWritten(call.csv, [&] { writeFileSafely(call.csv, splitTableCsv(file.document)); });
    if (painter)
        isDone &=
            isWritten(call.pdf, [&] { writeReport(std::move(file.document), call, *painter); });
    return isDone ? Done : NotDone;
}

} // namespace

void addExport(Command program, int& status, const Painting* painting) {
    const auto call = std::make_shared<ExportCall>();
    Command command =
        program.command("export", "Writes the split table for a spreadsheet, or a report");
    command.option("FILE", call->file, "Split file (.kvx) of any release").required();
    command.option("--csv", call->csv, "File to write: semicolon-separated text");
    command.option("--pdf", call->pdf, "File to write: the race report, on A4 pages");
    command.footer("At least one of the two is written. A file of an older release is read without "
                   "being rewritten.");
    command.onRun([=, &status] { status = exportRace(*call, painting); });
}

} // namespace kavela::cli
