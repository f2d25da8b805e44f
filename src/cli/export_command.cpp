#include "cli/commands.h"

#include "cli/console.h"
#include "common/safe_file.h"
#include "splitdata/loader.h"
#include "splittaking/table_export.h"

#include <CLI/CLI.hpp>

#include <memory>

namespace kavela::cli {

namespace {

namespace fs = std::filesystem;

struct ExportCall {
    std::string file;
    std::string csv;
};

int exportTable(const ExportCall& call) {
    const RecognisedSplitFile file = recogniseSplitFile(call.file, logLine, systemNow);
    if (!file.version) {
        ConsoleAlerts alerts;
        reportIncompatible(file, logLine, alerts);
        return NotDone;
    }
    std::error_code ignored;
    if (fs::equivalent(call.file, call.csv, ignored)) {
        logLine("The table cannot be written over the split file itself.");
        return WrongCall;
    }
    try {
        writeFileSafely(call.csv, splitTableCsv(file.document));
    } catch (const FileError& error) {
        logLine("Failed to create file");
        logLine("The file " + call.csv + " could not be written: " + error.reason());
        return NotDone;
    }
    return Done;
}

} // namespace

void addExport(CLI::App& app, int& status) {
    const auto call = std::make_shared<ExportCall>();
    CLI::App* command = app.add_subcommand("export", "Writes the split table for a spreadsheet");
    command->add_option("FILE", call->file, "Split file (.kvx) of any release")->required();
    command->add_option("--csv", call->csv, "File to write: semicolon-separated text")->required();
    command->callback([call, &status] { status = exportTable(*call); });
}

} // namespace kavela::cli
