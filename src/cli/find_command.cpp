#include "cli/commands.h"

#include "cli/console.h"
#include "cli/fact_input.h"
#include "cli/fact_scan.h"
#include "cli/find_text.h"
#include "cli/told_reason.h"
#include "common/display_text.h"
#include "facts/found_reasons.h"
#include "facts/found_text.h"
#include "performance/unknown_names.h"

#include <memory>

namespace kavela::cli {

namespace {

constexpr const char* QueryHelp =
    "A query names rows (runs, sections, gates, penalties, losses, strokes, tags; runs where it "
    "names none) and conditions on their columns:\n"
    "    gates up left cat K1W time<4 year 2026\n"
    "    runs athlete \"Bell Anna\" place Troja\n"
    "    best sprint by athlete\n"
    "A condition is a column, one of = != < <= > >= (= where there is none) and a value; values of "
    "several words stand in quotes. Labels such as left or touch, and up and down, may stand "
    "alone. "
    "\"text\" looks at all that is written about a row. \"by COLUMN[, COLUMN]\" gives a row for "
    "each "
    "group, \"best COLUMN\" the least value, \"sort COLUMN [down]\" and \"first N\" order and end "
    "the list. A word that means nothing is told with what is near it.\n"
    "Files of every release are read, none is changed. What was read is kept in the user's cache, "
    "so that the next call reads only what changed.";

struct FindCall {
    std::vector<std::string> words; ///< the paths, and last the query
    std::string csv;
    std::string why;
    bool json = false;
};

/// The names that a query asks for and nobody in the files has, with the likest ones.
void tellUnknownAthletes(const Query& query, const FactStore& facts) {
    for (const UnknownName& unknown : unknownNames(query, facts)) {
        std::string line = "Nobody is called \"" + printable(unknown.name) + "\" in these files.";
        for (const std::string& name : unknown.likeIt)
            line += (&name == unknown.likeIt.data() ? " Like it are: " : ", ") + printable(name);
        logLine(line);
    }
}

int find(const FindCall& call) {
    if (call.words.size() < 2) {
        logLine("A search needs a file or folder and, last, the query in quotes.");
        return WrongCall;
    }
    const std::string& text = call.words.back();
    Query query;
    try {
        query = parsedQuery(text);
    } catch (const QueryError& error) {
        logLine(faultText(error, text));
        return WrongCall;
    }
    const FolderScan scan = scanNamed({call.words.begin(), call.words.end() - 1});
    if (wouldReplaceSource(scan.facts, call.csv)) {
        logLine("The table cannot be written over a file that is searched.");
        return WrongCall;
    }
    const QueryAnswer found = answer(scan.facts, query);
    if (!call.why.empty())
        return tellReason(explainFound(found, call.why), call.why);
    if (found.size() == 0)
        tellUnknownAthletes(query, scan.facts);
    const bool isKept = isTableWritten(call.csv, call.csv.empty() ? "" : findCsv(found));
    const bool isPrinted =
        print(call.json ? findJson(found, text, scan) : findText(found, standardOutput()));
    return isKept && isPrinted && scan.failed.empty() ? Done : NotDone;
}

} // namespace

void addFind(Command program, int& status) {
    const auto call = std::make_shared<FindCall>();
    Command command = program.command("find", "Searches split files: a season in one question");
    command
        .option("PATH", call->words, "Split files, or folders with them; last the query, in quotes")
        .required();
    command.flag("--json", call->json, "Print one JSON document");
    command.option("--csv", call->csv, "File to write: semicolon-separated text");
    command.option("--why", call->why,
                   "Explain one number instead: cell/ROW/COLUMN, the row counted from 0 as in "
                   "--json, as in cell/0/time");
    command.footer(QueryHelp);
    command.onRun([call, &status] { status = find(*call); });
}

} // namespace kavela::cli
