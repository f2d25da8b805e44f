#include "cli/commands.h"

#include "cli/console.h"
#include "cli/fact_input.h"
#include "cli/split_file_edit.h"
#include "cli/table_print.h"
#include "cli/told_reason.h"
#include "common/error.h"
#include "common/text.h"
#include "common/text_file.h"
#include "performance/race_tables.h"
#include "performance/table_work.h"
#include "results/team_file.h"
#include "tables/list_source.h"
#include "tables/table_error.h"
#include "tables/table_reasons.h"
#include "tables/table_text.h"

#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

namespace kavela::cli {

namespace {

struct TableCall {
    std::string file;
    std::vector<std::string> derive;
    std::string pivot;
    std::string team;
    std::string sheet;
    std::string csv;
    std::string why;
    bool json = false;
};

/// What is wrong with a text that `parse` reads.
template <class Parse>
std::string tableComplaint(const std::string& text, Parse parse) {
    try {
        (void)parse(text);
        return {};
    } catch (const TableError& error) {
        return error.what();
    }
}

/// The list that a split file carries: the one that is named, else the first of those there are.
ListGrid listOfRace(const infodata031& info, const std::string& path, const std::string& sheet) {
    const std::vector<std::string> names = raceTableNames(info);
    if (names.empty())
        throw TableError("The split file carries no results list.");
    for (const std::string& name : names)
        if (name == sheet)
            return chosenList(raceTableLists(info, name), "");
    std::string others;
    for (std::size_t i = 1; i < names.size(); ++i)
        others += (others.empty() ? "" : ", ") + names[i];
    if (!others.empty())
        logLine(say("{}: this is its {}; it carries {} too (--sheet).", pathText(path),
                    names.front(), others));
    return chosenList(raceTableLists(info, names.front()), sheet);
}

/// What was made of a list and saved, with all its steps.
TableSteps savedSteps(std::string_view text) {
    try {
        return *readTableWork(text).steps;
    } catch (const DecodeError& error) {
        throw TableError(say("this table is damaged: {}", error.what()));
    }
}

/// The list that a call means; nothing, after a message, when no release can have written the file.
std::optional<TableSteps> listOfCall(const TableCall& call) {
    if (std::filesystem::path(call.file).extension() != ".kvx") {
        std::string bytes = readListBytes(call.file);
        return isTableWork(bytes) ? savedSteps(bytes)
                                  : TableSteps(chosenList(readLists(std::move(bytes)), call.sheet));
    }
    const auto race = openedSplitFile(call.file);
    if (!race)
        return std::nullopt;
    return TableSteps(listOfRace(race->document.info, call.file, call.sheet));
}

TableSteps stepsOfCall(const TableCall& call, TableSteps steps) {
    for (const std::string& text : call.derive)
        steps = steps.with(parsedDerivedColumn(text));
    if (!call.pivot.empty())
        steps = steps.with(parsedPivot(call.pivot));
    return steps;
}

/// The unsure rows, which only a coach can tell.
void tellUnsure(const ListTable& table, std::span<const KnownAthlete> athletes,
                std::span<const JoinedRow> joined) {
    for (const JoinedRow& row : joined) {
        if (row.certainty != JoinCertainty::Unsure)
            continue;
        std::string names;
        for (const std::size_t athlete : row.athletes)
            names += (names.empty() ? "" : " or ") + athletes[athlete].name;
        logLine(say("Line {}, {}: perhaps {}; not joined.", table.lines[row.row],
                    crewOfRow(table, row.row).value_or(std::string()), names));
    }
}

int tellTable(const TableCall& call, TableSteps list) {
    const TableSteps steps = stepsOfCall(call, std::move(list));
    if (!call.why.empty())
        return tellReason(explainTable(steps, call.why, call.file), call.why);
    const ListTable& table = steps.table();
    for (const std::string& note : table.notes)
        logLine(note);
    std::vector<KnownAthlete> athletes;
    std::vector<JoinedRow> joined;
    if (!call.team.empty()) {
        athletes = knownAthletes(readTeamFile(call.team));
        joined = joinedRows(table, athletes);
        tellUnsure(table, athletes, joined);
    }
    const bool isWritten = isTableWritten(call.csv, call.csv.empty() ? "" : tableCsv(table));
    const TablePrint content{table, athletes, joined};
    const bool isPrinted =
        print(call.json ? tableJson(content) : tableText(content, standardOutput()));
    return isWritten && isPrinted ? Done : NotDone;
}

bool wouldReplaceList(const TableCall& call) {
    std::error_code ignored;
    const auto isSame = [&](const std::string& path) {
        return !path.empty() && std::filesystem::equivalent(path, call.csv, ignored);
    };
    return !call.csv.empty() && (isSame(call.file) || isSame(call.team));
}

int showTable(const TableCall& call) {
    if (wouldReplaceList(call)) {
        logLine("The table cannot be written over a file that it is made from.");
        return WrongCall;
    }
    try {
        auto list = listOfCall(call);
        return list ? tellTable(call, std::move(*list)) : NotDone;
    } catch (const TableError& error) {
        logLine(pathText(call.file) + ": " + error.what());
    } catch (const FileError& error) {
        logLine(error.what());
    } catch (const DecodeError& error) {
        logLine(say("{}: this is no team: {}", pathText(call.team), error.what()));
    }
    return NotDone;
}

} // namespace

void addTable(Command program, int& status) {
    const auto call = std::make_shared<TableCall>();
    Command command =
        program.command("table", "Shows any list of results as a table, with columns reckoned");
    command
        .option("FILE", call->file,
                "A list: text (CSV, tabs, columns of blanks), a spreadsheet (.xlsx, .ods), a split "
                "file (.kvx) that carries one, or a saved table (.kvtable)")
        .required();
    command
        .option("--derive", call->derive,
                "A column to add: total:Time,Pen, rank:Total, gap, percent, percentile, "
                "difference:Run 2,Run 1; with \"by Category\" within each category, with \"down\" "
                "the highest first")
        .check([](const std::string& text) { return tableComplaint(text, parsedDerivedColumn); });
    command
        .option("--pivot", call->pivot,
                "ROW,COL,VALUE,FN as in Nation,Category,Time,mean; FN is count, sum, mean, median, "
                "least or most")
        .check([](const std::string& text) { return tableComplaint(text, parsedPivot); });
    command.option("--team", call->team, "Team (.kvteam) whose athletes are looked for");
    command.option("--sheet", call->sheet,
                   "The sheet, where there are several; of a split file which of its lists");
    command.flag("--json", call->json, "Print one JSON document");
    command.option("--csv", call->csv, "File to write the table to: semicolon-separated text");
    command.option("--why", call->why,
                   "Explain one number instead: cell/ROW/COLUMN, the row counted from 0 as in "
                   "--json, as in cell/0/rank");
    command.footer(
        "Columns are named by their titles or by their numbers from 1; names with a "
        "comma stand in quotes. Cells that are none of their column's kind are told with "
        "line and column. Files are only read.");
    command.onRun([call, &status] { status = showTable(*call); });
}

} // namespace kavela::cli
