#include "cli/commands.h"

#include "cli/console.h"
#include "cli/fact_export.h"
#include "cli/fact_scan.h"
#include "common/error.h"
#include "common/safe_file.h"
#include "common/text.h"

#include <fstream>
#include <memory>

namespace kavela::cli {

namespace {

namespace fs = std::filesystem;

fs::path pathOf(const FactSheet& table, const fs::path& folder) {
    return folder / (table.name + ".csv");
}

/// Whether a table may be written there: over nothing, or over one of its own titles.
bool isOurs(const FactSheet& table, const fs::path& path) {
    if (!isTaken(path))
        return true;
    std::ifstream file(path, std::ios::binary);
    std::string line;
    return std::getline(file, line) && line + '\n' == table.titles();
}

int writeTables(const std::vector<FactSheet>& tables, const fs::path& folder) {
    for (const FactSheet& table : tables)
        if (const fs::path path = pathOf(table, folder); !isOurs(table, path)) {
            logLine(
                say("The file {} is none of these tables and stays as it is. Nothing was written.",
                    pathText(path)));
            return NotDone;
        }
    try {
        fs::create_directories(folder);
        for (const FactSheet& table : tables)
            writeFileSafely(pathOf(table, folder), table.titles() + table.rows);
        return Done;
    } catch (const FileError& error) {
        logLine(
            say("The file {} could not be written: {}", pathText(error.path()), error.reason()));
    } catch (const fs::filesystem_error& error) {
        logLine(
            say("The folder {} could not be made: {}", pathText(folder), error.code().message()));
    }
    return NotDone;
}

struct FactsCall {
    std::vector<std::string> paths;
    std::string folder;
};

int writeFacts(const FactsCall& call) {
    const FolderScan scan = scanNamed(call.paths);
    const std::vector<FactSheet> tables = factSheets(scan.facts);
    if (const int status = writeTables(tables, call.folder); status != Done)
        return status;
    const auto count = [](std::size_t rows) { return static_cast<std::int64_t>(rows); };
    const std::string report = counted(count(tables.size()), "table", "tables") + " of " +
                               counted(count(scan.facts.files().size()), "file", "files") +
                               " with " + counted(count(scan.facts.runs().size()), "run", "runs") +
                               " written to " + pathText(call.folder) + '\n';
    return print(report) && scan.failed.empty() ? Done : NotDone;
}

} // namespace

void addFacts(Command program, int& status) {
    const auto call = std::make_shared<FactsCall>();
    Command command =
        program.command("facts", "Writes what split files say as tables for other programs");
    command.option("PATH", call->paths, "Split files, or folders with them").required();
    command.option("--csv", call->folder, "Folder to write to").required();
    command.footer(
        "Tables of semicolon-separated text: files, courses, runs, sections, gates, penalties, "
        "losses, ways, tags. columns.csv describes every column: table, column, kind, unit, "
        "meaning. The columns of kind \"key\" join the tables: file and run; section and gate. "
        "A file that is not such a table is never written over. Nothing else is changed.");
    command.onRun([call, &status] { status = writeFacts(*call); });
}

} // namespace kavela::cli
