#include "cli/commands.h"

#include "cli/console.h"
#include "cli/fact_scan.h"
#include "cli/find_text.h"
#include "common/error.h"
#include "common/number_text.h"
#include "common/safe_file.h"
#include "facts/found_text.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <functional>
#include <memory>

namespace kavela::cli {

namespace {

namespace fs = std::filesystem;

/// A column of a written table.
struct FactColumn {
    std::string name;
    std::string kind; ///< key, text, number, whole, truth, code
    std::string unit;
    std::string meaning;
};

/// A table of facts: `rows` hands every row's fields to a writer.
struct FactTable {
    std::string name;
    std::vector<FactColumn> columns;
    std::string rows;

    [[nodiscard]] std::string titles() const {
        std::string line;
        for (const FactColumn& column : columns)
            line += (line.empty() ? "" : ";") + column.name;
        return line + '\n';
    }
};

std::string field(double value) {
    return std::isfinite(value) ? plainText(value) : std::string();
}

std::string field(std::int64_t value) {
    return std::to_string(value);
}

std::string field(const std::string& text) {
    return csvField(text);
}

std::string code(std::int32_t value) {
    return value == PenaltyRow::NoCode ? std::string() : std::to_string(value);
}

template <class... Fields>
void addRow(FactTable& table, const Fields&... fields) {
    std::string line;
    ((line += field(fields) + ';'), ...);
    line.back() = '\n';
    table.rows += line;
}

const FactColumn FileKey{"file", "key", "", "number of the file, from 0: joins all tables"};
const FactColumn RunKey{"run", "key", "", "number of the run in its file, from 0: joins with file"};

/// The columns of a table of what belongs to a run.
std::vector<FactColumn> ofRun(std::vector<FactColumn> columns) {
    columns.insert(columns.begin(), {FileKey, RunKey});
    return columns;
}

/// Makes the tables of a store.
class TableMaker {
public:
    explicit TableMaker(const FactStore& facts) : m_facts(facts) {}

    std::vector<FactTable> run() {
        for (std::size_t i = 0; i < m_facts.files().size(); ++i) {
            m_file = static_cast<std::int64_t>(i);
            addFile(m_facts.files()[i]);
            for (const RunRow& run : m_facts.runsOf(m_facts.files()[i]))
                addRun(run);
        }
        return {m_files,     m_courses, m_runs, m_sections, m_gates,
                m_penalties, m_losses,  m_ways, m_tags};
    }

private:
    [[nodiscard]] std::string text(TextId id) const { return std::string(m_facts.text(id)); }

    void addFile(const FileRow& file) {
        addRow(m_files, m_file, text(file.path), text(file.title), text(file.place),
               text(file.session), text(file.event), text(file.category), text(file.water),
               text(file.tags), text(file.comments), file.date, std::int64_t{file.gates},
               std::int64_t{file.sections});
        const auto upGates = m_facts.upGatesOf(file);
        for (std::size_t i = 0; i < m_facts.definedSections(file); ++i)
            for (const std::int64_t gate : m_facts.definedSection(file, i))
                addRow(m_courses, m_file, static_cast<std::int64_t>(i + 1), gate,
                       std::int64_t{std::ranges::count(upGates, gate) > 0});
    }

    void addRun(const RunRow& run) {
        m_run = run.number;
        std::string films;
        for (const TextId film : m_facts.filmsOf(run))
            films += (films.empty() ? "" : "\n") + text(film);
        addRow(m_runs, m_file, m_run, text(run.crew), text(run.category), text(run.phase),
               text(run.hand), std::int64_t{run.pos}, run.total, run.paddling, run.penalty,
               run.realtime, run.realpen, run.totaltime, run.totalpen, run.sprint, run.xTime,
               run.xPer, std::int64_t{run.isComplete}, std::int64_t{run.isOfficial},
               std::int64_t{run.isRefused}, films);
        std::int64_t number = 0;
        for (const SectionRow& row : m_facts.sectionsOf(run))
            addRow(m_sections, m_file, m_run, ++number, row.time, std::int64_t{row.standsAlone},
                   row.end, std::int64_t{row.pen}, std::int64_t{row.left}, std::int64_t{row.right},
                   std::int64_t{row.other});
        addNotes(run);
    }

    void addNotes(const RunRow& run) {
        for (const GateRow& row : m_facts.gatesOf(run))
            addRow(m_gates, m_file, m_run, std::int64_t{row.gate}, std::int64_t{row.direction},
                   std::int64_t{row.style}, row.time, row.entrance, row.exit, row.at);
        for (const PenaltyRow& row : m_facts.penaltiesOf(run))
            addRow(m_penalties, m_file, m_run, code(row.gate), code(row.gatekind),
                   code(row.penkind), code(row.polekind), code(row.penway), code(row.moment),
                   code(row.direction), code(row.style), code(row.eye));
        for (const LossRow& row : m_facts.lossesOf(run))
            addRow(m_losses, m_file, m_run, text(row.versus), row.lost, row.percent, row.at,
                   std::int64_t{row.gateCombination}, std::int64_t{row.gateDetails},
                   std::int64_t{row.style}, std::int64_t{row.waterFeature}, text(row.reasons),
                   text(row.comments));
        for (const WayRow& row : m_facts.waysOf(run))
            for (std::size_t i = 0; i < m_facts.optionsOf(row).size(); ++i) {
                const auto times = m_facts.timesOf(row);
                addRow(m_ways, m_file, m_run, text(row.title), static_cast<std::int64_t>(i),
                       text(m_facts.optionsOf(row)[i]), i < times.size() ? times[i] : NotKnown,
                       std::int64_t{std::cmp_equal(row.chosen, i)}, text(row.comments));
            }
        for (const TagRow& row : m_facts.tagsOf(run))
            addRow(m_tags, m_file, m_run, text(row.tag), std::int64_t{row.film}, row.at,
                   text(row.comments));
    }

    const FactStore& m_facts;
    std::int64_t m_file = 0;
    std::int64_t m_run = 0;
    FactTable m_files{"files",
                      {FileKey,
                       {"path", "text", "", "where the file lies"},
                       {"title", "text", "", "title of the race"},
                       {"place", "text", "", "place of the course"},
                       {"session", "text", "", "Race, Training or Test"},
                       {"event", "text", "", "event"},
                       {"category", "text", "", "category of the race"},
                       {"water", "text", "", "kind of water"},
                       {"tags", "text", "", "one on each line"},
                       {"comments", "text", "", "comments"},
                       {"date", "number", "s", "since 2001-01-01 00:00 UTC"},
                       {"gates", "whole", "", "gates of the course"},
                       {"sections", "whole", "", "sections of the course"}},
                      {}};
    FactTable m_courses{"courses",
                        {FileKey,
                         {"section", "key", "", "from 1: joins with sections"},
                         {"gate", "key", "", "from 1: a gate of the section"},
                         {"upstream", "truth", "", "1 for an upstream gate, else 0"}},
                        {}};
    FactTable m_runs{"runs",
                     ofRun({{"athlete", "text", "", "the crew"},
                            {"cat", "text", "", "category of the run, else of the race"},
                            {"phase", "text", "", "phase"},
                            {"hand", "text", "", "side on which the athlete paddles"},
                            {"pos", "whole", "", "official position; 0 for none"},
                            {"total", "number", "s",
                             "with penalties; empty for a run that is not "
                             "whole"},
                            {"paddling", "number", "s", "the same without penalties"},
                            {"penalty", "whole", "s", "the seconds between them"},
                            {"realtime", "number", "s", "official time as written"},
                            {"realpen", "whole", "s", "official penalty as written"},
                            {"totaltime", "number", "s", "time of the video as written"},
                            {"totalpen", "whole", "s", "penalty of the video as written"},
                            {"sprint", "number", "s", "sprint time; 0 for none"},
                            {"xtime", "number", "s", "expected time; 0 for none"},
                            {"xper", "number", "", "factor of the expected time"},
                            {"complete", "truth", "", "1 with a total"},
                            {"official", "truth", "", "1 where the total is the official one"},
                            {"refused", "truth", "", "1 where the list says DNF, DNS or DSQ"},
                            {"films", "text", "", "one on each line"}}),
                     {}};
    FactTable m_sections{"sections",
                         ofRun({{"section", "key", "", "from 1"},
                                {"time", "number", "s", "as written; 0 was not taken"},
                                {"alone", "truth", "", "1 where both marks were taken"},
                                {"end", "number", "s", "of the first film at the mark"},
                                {"pen", "whole", "s", "penalty in the section"},
                                {"left", "whole", "", "strokes on the left"},
                                {"right", "whole", "", "strokes on the right"},
                                {"other", "whole", "", "strokes of no told side"}}),
                         {}};
    FactTable m_gates{"gates",
                      ofRun({{"gate", "key", "", "upstream gate, from 1"},
                             {"direction", "code", "", "upstream.direction"},
                             {"style", "code", "", "upstream.style"},
                             {"time", "number", "s", "from entrance to exit; 0 was not taken"},
                             {"entrance", "number", "s", "from entrance to the pole line"},
                             {"exit", "number", "s", "from the pole line to the exit"},
                             {"at", "number", "s", "of the first film at the entrance"}}),
                      {}};
    FactTable m_penalties{"penalties",
                          ofRun({{"gate", "key", "", "from 1"},
                                 {"gatekind", "code", "", "penalty.gateKind"},
                                 {"kind", "code", "", "penalty.kind"},
                                 {"pole", "code", "", "penalty.pole"},
                                 {"way", "code", "", "penalty.way"},
                                 {"moment", "code", "", "penalty.moment"},
                                 {"direction", "code", "", "penalty.direction"},
                                 {"style", "code", "", "penalty.style"},
                                 {"eye", "code", "", "penalty.eye"}}),
                          {}};
    FactTable m_losses{"losses",
                       ofRun({{"versus", "text", "", "against whom"},
                              {"lost", "number", "s", "below 0 for time gained; 0 not finished"},
                              {"percent", "number", "%", "of the other run's time"},
                              {"at", "number", "s", "of the run's film where it begins"},
                              {"combination", "code", "", "loss.gateCombination"},
                              {"detail", "code", "", "loss.gateDetails"},
                              {"style", "code", "", "loss.style"},
                              {"feature", "code", "", "loss.waterFeature"},
                              {"reasons", "text", "", "one on each line"},
                              {"comments", "text", "", "comments"}}),
                       {}};
    FactTable m_ways{"ways",
                     ofRun({{"title", "text", "", "what was compared"},
                            {"option", "whole", "", "from 0"},
                            {"name", "text", "", "of the option"},
                            {"time", "number", "s", "of the option"},
                            {"chosen", "truth", "", "1 for the one that was paddled"},
                            {"comments", "text", "", "comments"}}),
                     {}};
    FactTable m_tags{"tags",
                     ofRun({{"tag", "text", "", "the word"},
                            {"film", "whole", "", "of the run's films, from 0"},
                            {"at", "number", "s", "of that film"},
                            {"comments", "text", "", "comments"}}),
                     {}};
};

/// The description of all columns, a table like the others.
FactTable descriptionOf(const std::vector<FactTable>& tables) {
    FactTable description{"columns",
                          {{"table", "text", "", ""},
                           {"column", "text", "", ""},
                           {"kind", "text", "", ""},
                           {"unit", "text", "", ""},
                           {"meaning", "text", "", ""}},
                          {}};
    for (const FactTable& table : tables)
        for (const FactColumn& column : table.columns)
            addRow(description, table.name, column.name, column.kind, column.unit, column.meaning);
    return description;
}

fs::path pathOf(const FactTable& table, const fs::path& folder) {
    return folder / (table.name + ".csv");
}

/// Whether a table may be written there: over nothing, or over one of its own titles.
bool isOurs(const FactTable& table, const fs::path& path) {
    if (!isTaken(path))
        return true;
    std::ifstream file(path, std::ios::binary);
    std::string line;
    return std::getline(file, line) && line + '\n' == table.titles();
}

int writeTables(const std::vector<FactTable>& tables, const fs::path& folder) {
    for (const FactTable& table : tables)
        if (const fs::path path = pathOf(table, folder); !isOurs(table, path)) {
            logLine("The file " + pathText(path) +
                    " is none of these tables and stays as it is. Nothing was written.");
            return NotDone;
        }
    try {
        fs::create_directories(folder);
        for (const FactTable& table : tables)
            writeFileSafely(pathOf(table, folder), table.titles() + table.rows);
        return Done;
    } catch (const FileError& error) {
        logLine("The file " + pathText(error.path()) + " could not be written: " + error.reason());
    } catch (const fs::filesystem_error& error) {
        logLine("The folder " + pathText(folder) + " could not be made: " + error.code().message());
    }
    return NotDone;
}

struct FactsCall {
    std::vector<std::string> paths;
    std::string folder;
};

int writeFacts(const FactsCall& call) {
    const FolderScan scan = scanNamed(call.paths);
    std::vector<FactTable> tables = TableMaker(scan.facts).run();
    tables.push_back(descriptionOf(tables));
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
