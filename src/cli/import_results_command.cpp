#include "cli/commands.h"

#include "cli/console.h"
#include "cli/split_file_edit.h"
#include "common/display_text.h"
#include "common/json_encode.h"
#include "common/text.h"
#include "splittaking/results_import.h"

#include <memory>

namespace kavela {

BOOST_DESCRIBE_STRUCT(SkippedLine, (), (line, reason))

namespace cli {

namespace {

struct ImportCall {
    std::string file;
    std::string list;
    bool json = false;
};

struct ImportJson {
    std::int64_t imported = 0;
    std::vector<SkippedLine> skipped;
};
BOOST_DESCRIBE_STRUCT(ImportJson, (), (imported, skipped))

std::string importText(const ResultsImport& import) {
    std::string text = counted(import.imported, "result", "results") + " imported";
    if (!import.skipped.empty())
        text += ", " + counted(static_cast<std::int64_t>(import.skipped.size()), "line", "lines") +
                " skipped";
    text += '\n';
    for (const SkippedLine& skipped : import.skipped)
        text += "Line " + std::to_string(skipped.line) + ": " + printable(skipped.reason) + '\n';
    for (const SkippedLine& doubtful : import.doubtful)
        text += "Line " + std::to_string(doubtful.line) + ": " + doubtful.reason +
                ", and was imported as it stands\n";
    return text;
}

/// The JSON tells what was left out; what is odd among the rest goes beside it.
void tellDoubtful(const ResultsImport& import) {
    for (const SkippedLine& doubtful : import.doubtful)
        logLine(say("Line {}: {}, and was imported as it stands.", doubtful.line, doubtful.reason));
}

int importList(const ImportCall& call) {
    auto file = openedSplitFile(call.file);
    if (!file || !isWritable(*file, call.file))
        return NotDone;
    const ResultsImport import = importResults(file->document, call.list, logLine);
    if (import.failure || !isSaved(file->document, call.file))
        return NotDone;
    if (call.json)
        tellDoubtful(import);
    const std::string output =
        call.json ? encode(ImportJson{import.imported, import.skipped}) + '\n' : importText(import);
    return print(output) ? Done : NotDone;
}

} // namespace

void addImportResults(Command program, int& status) {
    const auto call = std::make_shared<ImportCall>();
    Command command =
        program.command("import-results", "Adds an official results list to a split file");
    command.option("FILE", call->file, "Split file (.kvx) of the current version").required();
    command
        .option("LIST", call->list,
                "Semicolon-separated text with a header line: position, bib, name, "
                "nationality, time, penalty")
        .required();
    command.flag("--json", call->json, "Print one JSON document");
    command.footer("The results are added to those that the file has already, and the perfect "
                   "time and the expected times are computed again.");
    command.onRun([call, &status] { status = importList(*call); });
}

} // namespace cli

} // namespace kavela
