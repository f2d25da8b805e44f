#include "cli/commands.h"

#include "cli/console.h"
#include "cli/fact_scan.h"
#include "cli/find_text.h"
#include "common/error.h"
#include "common/safe_file.h"
#include "facts/found_text.h"
#include "results/name_likeness.h"

#include <algorithm>
#include <memory>
#include <set>

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
    bool json = false;
};

/// The names that a query asks for and nobody in the files has, with the likest ones.
void tellUnknownAthletes(const Query& query, const FactStore& facts) {
    std::set<std::string> all;
    for (const RunRow& run : facts.runs())
        for (std::string& name : facts.lines(run.names))
            all.insert(std::move(name));
    const std::vector<std::string> names(all.begin(), all.end());
    for (const Condition& condition : query.conditions) {
        const QueryColumn* const column = condition.choices.front().column;
        if (!column || column->name != "athlete" || condition.comparison != Comparison::Equal)
            continue;
        Query alone;
        alone.conditions.push_back(condition);
        if (answer(facts, alone).size() > 0)
            continue;
        constexpr std::size_t MostNames = 3;
        constexpr double LeastLikeness = 0.3;
        std::string line = "Nobody is called \"" + condition.value + "\" in these files.";
        std::size_t told = 0;
        for (const std::size_t at : byLikeness(condition.value, names))
            if (told < MostNames && nameLikeness(condition.value, names[at]) >= LeastLikeness)
                line += (told++ == 0 ? " Like it are: " : ", ") + names[at];
        logLine(line);
    }
}

bool isWritten(const QueryAnswer& found, const std::string& path) {
    if (path.empty())
        return true;
    try {
        writeFileSafely(path, findCsv(found));
        return true;
    } catch (const FileError& error) {
        logLine("Failed to create file");
        logLine("The file " + path + " could not be written: " + error.reason());
        return false;
    }
}

/// Whether the table would be written over a file that is searched.
bool isSearched(const FactStore& facts, const std::string& path) {
    return std::ranges::any_of(facts.files(), [&](const FileRow& file) {
        std::error_code ignored;
        return !path.empty() &&
               std::filesystem::equivalent(std::string(facts.text(file.path)), path, ignored);
    });
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
    if (isSearched(scan.facts, call.csv)) {
        logLine("The table cannot be written over a file that is searched.");
        return WrongCall;
    }
    const QueryAnswer found = answer(scan.facts, query);
    if (found.size() == 0)
        tellUnknownAthletes(query, scan.facts);
    const bool isKept = isWritten(found, call.csv);
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
    command.footer(QueryHelp);
    command.onRun([call, &status] { status = find(*call); });
}

} // namespace kavela::cli
