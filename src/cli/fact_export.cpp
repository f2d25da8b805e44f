#include "cli/fact_export.h"

#include "common/delimited_text.h"
#include "common/number_text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <span>
#include <type_traits>
#include <utility>

namespace kavela::cli {

namespace {

/// A gate of a defined section.
struct CourseGate {
    std::int64_t section = 0; ///< from 1
    std::int64_t gate = 0;
    bool isUpstream = false;
};

/// One of the ways that were compared.
struct WayOption {
    TextId title = 0;
    std::int64_t option = 0;
    TextId name = 0;
    double time = NotKnown;
    bool isChosen = false;
    TextId comments = 0;
};

/// A row with all that its fields may look at.
template <class Row>
struct SheetRow {
    const FactStore& facts;
    std::int64_t file = 0;  ///< its number
    std::int64_t run = 0;   ///< of the file, where the row belongs to one
    std::int64_t entry = 0; ///< of the run's rows of this kind, from 1
    const Row& row;
};

/// A column with what it writes of a row.
template <class Row>
struct SheetColumn {
    const char* name;
    const char* kind;
    const char* unit;
    const char* meaning;
    std::string (*field)(const SheetRow<Row>& at);
};

template <class Member>
struct OwnerOfMember;
template <class Value, class Owner>
struct OwnerOfMember<Value Owner::*> {
    using Type = Owner;
};
template <auto Member>
using OwnerOf = typename OwnerOfMember<decltype(Member)>::Type;

template <auto Member>
std::string textField(const SheetRow<OwnerOf<Member>>& at) {
    return csvField(at.facts.text(at.row.*Member));
}

/// Empty for a number that is not known and for a code that was not noted.
template <auto Member>
std::string numberField(const SheetRow<OwnerOf<Member>>& at) {
    const auto value = at.row.*Member;
    if constexpr (std::is_floating_point_v<decltype(value)>)
        return std::isfinite(value) ? plainText(value) : std::string();
    else
        return std::cmp_equal(value, PenaltyRow::NoCode) ? std::string() : std::to_string(value);
}

/// std::cmp_equal takes no truth.
template <auto Member>
std::string truthField(const SheetRow<OwnerOf<Member>>& at) {
    return at.row.*Member ? "1" : "0";
}

template <class Row>
std::string fileField(const SheetRow<Row>& at) {
    return std::to_string(at.file);
}

template <class Row>
std::string runField(const SheetRow<Row>& at) {
    return std::to_string(at.run);
}

template <class Row>
std::string entryField(const SheetRow<Row>& at) {
    return std::to_string(at.entry);
}

std::string filmsField(const SheetRow<RunRow>& at) {
    std::string films;
    for (const TextId film : at.facts.filmsOf(at.row))
        films += (films.empty() ? "" : "\n") + std::string(at.facts.text(film));
    return csvField(films);
}

template <class Row>
constexpr SheetColumn<Row> FileKey{"file", "key", "",
                                   "number of the file, from 0: joins all tables", fileField<Row>};
template <class Row>
constexpr SheetColumn<Row> RunKey{
    "run", "key", "", "number of the run in its file, from 0: joins with file", runField<Row>};

constexpr SheetColumn<FileRow> FilesColumns[] = {
    FileKey<FileRow>,
    {"path", "text", "", "where the file lies", textField<&FileRow::path>},
    {"title", "text", "", "title of the race", textField<&FileRow::title>},
    {"place", "text", "", "place of the course", textField<&FileRow::place>},
    {"session", "text", "", "Race, Training or Test", textField<&FileRow::session>},
    {"event", "text", "", "event", textField<&FileRow::event>},
    {"category", "text", "", "category of the race", textField<&FileRow::category>},
    {"water", "text", "", "kind of water", textField<&FileRow::water>},
    {"tags", "text", "", "one on each line", textField<&FileRow::tags>},
    {"comments", "text", "", "comments", textField<&FileRow::comments>},
    {"date", "number", "s", "since 2001-01-01 00:00 UTC", numberField<&FileRow::date>},
    {"gates", "whole", "", "gates of the course", numberField<&FileRow::gates>},
    {"sections", "whole", "", "sections of the course", numberField<&FileRow::sections>},
};

constexpr SheetColumn<CourseGate> CoursesColumns[] = {
    FileKey<CourseGate>,
    {"section", "key", "", "from 1: joins with sections", numberField<&CourseGate::section>},
    {"gate", "key", "", "from 1: a gate of the section", numberField<&CourseGate::gate>},
    {"upstream", "truth", "", "1 for an upstream gate, else 0",
     truthField<&CourseGate::isUpstream>},
};

constexpr SheetColumn<RunRow> RunsColumns[] = {
    FileKey<RunRow>,
    RunKey<RunRow>,
    {"athlete", "text", "", "the crew", textField<&RunRow::crew>},
    {"cat", "text", "", "category of the run, else of the race", textField<&RunRow::category>},
    {"phase", "text", "", "phase", textField<&RunRow::phase>},
    {"hand", "text", "", "side on which the athlete paddles", textField<&RunRow::hand>},
    {"pos", "whole", "", "official position; 0 for none", numberField<&RunRow::pos>},
    {"total", "number", "s", "with penalties; empty for a run that is not whole",
     numberField<&RunRow::total>},
    {"paddling", "number", "s", "the same without penalties", numberField<&RunRow::paddling>},
    {"penalty", "whole", "s", "the seconds between them", numberField<&RunRow::penalty>},
    {"realtime", "number", "s", "official time as written", numberField<&RunRow::realtime>},
    {"realpen", "whole", "s", "official penalty as written", numberField<&RunRow::realpen>},
    {"totaltime", "number", "s", "time of the video as written", numberField<&RunRow::totaltime>},
    {"totalpen", "whole", "s", "penalty of the video as written", numberField<&RunRow::totalpen>},
    {"sprint", "number", "s", "sprint time; 0 for none", numberField<&RunRow::sprint>},
    {"xtime", "number", "s", "expected time; 0 for none", numberField<&RunRow::xTime>},
    {"xper", "number", "", "factor of the expected time", numberField<&RunRow::xPer>},
    {"complete", "truth", "", "1 with a total", truthField<&RunRow::isComplete>},
    {"official", "truth", "", "1 where the total is the official one",
     truthField<&RunRow::isOfficial>},
    {"refused", "truth", "", "1 where the list says DNF, DNS or DSQ",
     truthField<&RunRow::isRefused>},
    {"films", "text", "", "one on each line", filmsField},
};

constexpr SheetColumn<SectionRow> SectionsColumns[] = {
    FileKey<SectionRow>,
    RunKey<SectionRow>,
    {"section", "key", "", "from 1", entryField<SectionRow>},
    {"time", "number", "s", "as written; 0 was not taken", numberField<&SectionRow::time>},
    {"alone", "truth", "", "1 where both marks were taken", truthField<&SectionRow::standsAlone>},
    {"end", "number", "s", "of the first film at the mark", numberField<&SectionRow::end>},
    {"pen", "whole", "s", "penalty in the section", numberField<&SectionRow::pen>},
    {"left", "whole", "", "strokes on the left", numberField<&SectionRow::left>},
    {"right", "whole", "", "strokes on the right", numberField<&SectionRow::right>},
    {"other", "whole", "", "strokes of no told side", numberField<&SectionRow::other>},
};

constexpr SheetColumn<GateRow> GatesColumns[] = {
    FileKey<GateRow>,
    RunKey<GateRow>,
    {"gate", "key", "", "upstream gate, from 1", numberField<&GateRow::gate>},
    {"direction", "code", "", "upstream.direction", numberField<&GateRow::direction>},
    {"style", "code", "", "upstream.style", numberField<&GateRow::style>},
    {"time", "number", "s", "from entrance to exit; 0 was not taken", numberField<&GateRow::time>},
    {"entrance", "number", "s", "from entrance to the pole line", numberField<&GateRow::entrance>},
    {"exit", "number", "s", "from the pole line to the exit", numberField<&GateRow::exit>},
    {"at", "number", "s", "of the first film at the entrance", numberField<&GateRow::at>},
};

constexpr SheetColumn<PenaltyRow> PenaltiesColumns[] = {
    FileKey<PenaltyRow>,
    RunKey<PenaltyRow>,
    {"gate", "key", "", "from 1", numberField<&PenaltyRow::gate>},
    {"gatekind", "code", "", "penalty.gateKind", numberField<&PenaltyRow::gatekind>},
    {"kind", "code", "", "penalty.kind", numberField<&PenaltyRow::penkind>},
    {"pole", "code", "", "penalty.pole", numberField<&PenaltyRow::polekind>},
    {"way", "code", "", "penalty.way", numberField<&PenaltyRow::penway>},
    {"moment", "code", "", "penalty.moment", numberField<&PenaltyRow::moment>},
    {"direction", "code", "", "penalty.direction", numberField<&PenaltyRow::direction>},
    {"style", "code", "", "penalty.style", numberField<&PenaltyRow::style>},
    {"eye", "code", "", "penalty.eye", numberField<&PenaltyRow::eye>},
};

constexpr SheetColumn<LossRow> LossesColumns[] = {
    FileKey<LossRow>,
    RunKey<LossRow>,
    {"versus", "text", "", "against whom", textField<&LossRow::versus>},
    {"lost", "number", "s", "below 0 for time gained; 0 not finished", numberField<&LossRow::lost>},
    {"percent", "number", "%", "of the other run's time", numberField<&LossRow::percent>},
    {"at", "number", "s", "of the run's film where it begins", numberField<&LossRow::at>},
    {"combination", "code", "", "loss.gateCombination", numberField<&LossRow::gateCombination>},
    {"detail", "code", "", "loss.gateDetails", numberField<&LossRow::gateDetails>},
    {"style", "code", "", "loss.style", numberField<&LossRow::style>},
    {"feature", "code", "", "loss.waterFeature", numberField<&LossRow::waterFeature>},
    {"reasons", "text", "", "one on each line", textField<&LossRow::reasons>},
    {"comments", "text", "", "comments", textField<&LossRow::comments>},
};

constexpr SheetColumn<WayOption> WaysColumns[] = {
    FileKey<WayOption>,
    RunKey<WayOption>,
    {"title", "text", "", "what was compared", textField<&WayOption::title>},
    {"option", "whole", "", "from 0", numberField<&WayOption::option>},
    {"name", "text", "", "of the option", textField<&WayOption::name>},
    {"time", "number", "s", "of the option", numberField<&WayOption::time>},
    {"chosen", "truth", "", "1 for the one that was paddled", truthField<&WayOption::isChosen>},
    {"comments", "text", "", "comments", textField<&WayOption::comments>},
};

constexpr SheetColumn<TagRow> TagsColumns[] = {
    FileKey<TagRow>,
    RunKey<TagRow>,
    {"tag", "text", "", "the word", textField<&TagRow::tag>},
    {"film", "whole", "", "of the run's films, from 0", numberField<&TagRow::film>},
    {"at", "number", "s", "of that film", numberField<&TagRow::at>},
    {"comments", "text", "", "comments", textField<&TagRow::comments>},
};

template <class Row, std::size_t Count>
FactSheet sheetOf(const char* name, const SheetColumn<Row> (&columns)[Count]) {
    FactSheet sheet{name, {}, {}};
    for (const SheetColumn<Row>& column : columns)
        sheet.columns.push_back({column.name, column.kind, column.unit, column.meaning});
    return sheet;
}

template <class Row, std::size_t Count>
void addLine(FactSheet& sheet, const SheetColumn<Row> (&columns)[Count], const SheetRow<Row>& at) {
    for (const SheetColumn<Row>& column : columns)
        sheet.rows += column.field(at) + ';';
    sheet.rows.back() = '\n';
}

/// Goes through a store once and writes all its tables.
class SheetMaker {
public:
    explicit SheetMaker(const FactStore& facts) : m_facts(facts) {}

    std::vector<FactSheet> run() {
        for (const FileRow& file : m_facts.files()) {
            m_file = &file - m_facts.files().data();
            add(m_files, FilesColumns, file);
            addCourse(file);
            for (const RunRow& row : m_facts.runsOf(file))
                addRun(row);
        }
        return {m_files,     m_courses, m_runs, m_sections, m_gates,
                m_penalties, m_losses,  m_ways, m_tags};
    }

private:
    template <class Row, std::size_t Count>
    void add(FactSheet& sheet, const SheetColumn<Row> (&columns)[Count], const Row& row,
             std::int64_t entry = 0) {
        addLine(sheet, columns, {m_facts, m_file, m_run, entry, row});
    }

    template <class Row, std::size_t Count>
    void addAll(FactSheet& sheet, const SheetColumn<Row> (&columns)[Count],
                std::span<const Row> rows) {
        std::int64_t entry = 0;
        for (const Row& row : rows)
            add(sheet, columns, row, ++entry);
    }

    void addCourse(const FileRow& file) {
        const auto upGates = m_facts.upGatesOf(file);
        for (std::size_t i = 0; i < m_facts.definedSections(file); ++i)
            for (const std::int64_t gate : m_facts.definedSection(file, i))
                add(m_courses, CoursesColumns,
                    CourseGate{static_cast<std::int64_t>(i + 1), gate,
                               std::ranges::count(upGates, gate) > 0});
    }

    void addRun(const RunRow& run) {
        m_run = run.number;
        add(m_runs, RunsColumns, run);
        addAll(m_sections, SectionsColumns, m_facts.sectionsOf(run));
        addAll(m_gates, GatesColumns, m_facts.gatesOf(run));
        addAll(m_penalties, PenaltiesColumns, m_facts.penaltiesOf(run));
        addAll(m_losses, LossesColumns, m_facts.lossesOf(run));
        addAll(m_tags, TagsColumns, m_facts.tagsOf(run));
        for (const WayRow& way : m_facts.waysOf(run))
            addWay(way);
    }

    void addWay(const WayRow& way) {
        const auto options = m_facts.optionsOf(way);
        const auto times = m_facts.timesOf(way);
        for (std::size_t i = 0; i < options.size(); ++i)
            add(m_ways, WaysColumns,
                WayOption{way.title, static_cast<std::int64_t>(i), options[i],
                          i < times.size() ? times[i] : NotKnown, std::cmp_equal(way.chosen, i),
                          way.comments});
    }

    const FactStore& m_facts;
    std::int64_t m_file = 0;
    std::int64_t m_run = 0;
    FactSheet m_files = sheetOf("files", FilesColumns);
    FactSheet m_courses = sheetOf("courses", CoursesColumns);
    FactSheet m_runs = sheetOf("runs", RunsColumns);
    FactSheet m_sections = sheetOf("sections", SectionsColumns);
    FactSheet m_gates = sheetOf("gates", GatesColumns);
    FactSheet m_penalties = sheetOf("penalties", PenaltiesColumns);
    FactSheet m_losses = sheetOf("losses", LossesColumns);
    FactSheet m_ways = sheetOf("ways", WaysColumns);
    FactSheet m_tags = sheetOf("tags", TagsColumns);
};

/// The description of all columns, a table like the others.
FactSheet descriptionOf(const std::vector<FactSheet>& sheets) {
    FactSheet description{"columns",
                          {{"table", "text", "", ""},
                           {"column", "text", "", ""},
                           {"kind", "text", "", ""},
                           {"unit", "text", "", ""},
                           {"meaning", "text", "", ""}},
                          {}};
    for (const FactSheet& sheet : sheets)
        for (const FactColumn& column : sheet.columns) {
            for (const std::string* const field :
                 {&sheet.name, &column.name, &column.kind, &column.unit, &column.meaning})
                description.rows += csvField(*field) + ';';
            description.rows.back() = '\n';
        }
    return description;
}

} // namespace

std::string FactSheet::titles() const {
    std::string line;
    for (const FactColumn& column : columns)
        line += (line.empty() ? "" : ";") + column.name;
    return line + '\n';
}

std::vector<FactSheet> factSheets(const FactStore& facts) {
    std::vector<FactSheet> sheets = SheetMaker(facts).run();
    sheets.push_back(descriptionOf(sheets));
    return sheets;
}

} // namespace kavela::cli
