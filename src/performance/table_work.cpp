#include "performance/table_work.h"

#include "common/display_text.h"
#include "common/error.h"
#include "common/json_decode.h"
#include "common/json_encode.h"
#include "tables/table_error.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kavela {

namespace {

/// In the order of TableStep.
constexpr std::array<std::string_view, 9> StepNames{"titles", "kind", "remove", "filter", "sort",
                                                    "group",  "tint", "derive", "pivot"};
static_assert(StepNames.size() == std::variant_size_v<TableStep>);

/// Words and the switch of a step, to be written.
struct StepRecord {
    tablestep001 operator()(const TitlesStep& step) const { return {{}, {}, step.hasTitles}; }
    tablestep001 operator()(const KindStep& step) const {
        return {{}, {step.column, std::string(kindName(step.kind))}};
    }
    tablestep001 operator()(const RemoveStep& step) const { return {{}, {step.column}}; }
    tablestep001 operator()(const FilterStep& step) const {
        return {{}, {step.column, step.text}, step.isWhole};
    }
    tablestep001 operator()(const SortStep& step) const {
        return {{}, {step.column}, step.isDescending};
    }
    tablestep001 operator()(const GroupStep& step) const { return {{}, {step.column}}; }
    tablestep001 operator()(const TintStep& step) const {
        return {{}, {step.column}, step.isTinted};
    }
    tablestep001 operator()(const DerivedColumn& step) const {
        tablestep001 made{
            {}, {std::string(derivationName(step.what)), step.by}, step.isHighestBest};
        made.words.insert(made.words.end(), step.columns.begin(), step.columns.end());
        return made;
    }
    tablestep001 operator()(const Pivot& step) const {
        return {{},
                {step.row, step.column, step.value, std::string(pivotFunctionName(step.function))}};
    }
};

[[noreturn]] void refuseStep(const std::string& what) {
    throw DecodeError(Fault{"steps", what});
}

const std::string& wordAt(const tablestep001& record, std::size_t place) {
    if (place >= record.words.size())
        refuseStep("the step \"" + record.step + "\" lacks words");
    return record.words[place];
}

template <class Value, class NameOf>
Value namedValue(const std::string& word, std::size_t count, NameOf nameOf) {
    for (std::size_t i = 0; i < count; ++i)
        if (nameOf(static_cast<Value>(i)) == word)
            return static_cast<Value>(i);
    refuseStep("\"" + word + "\" means nothing");
}

TableStep derivedStep(const tablestep001& record) {
    constexpr std::size_t Derivations = 6;
    constexpr std::ptrdiff_t WordsBefore = 2;
    DerivedColumn derived;
    derived.what = namedValue<Derivation>(wordAt(record, 0), Derivations, derivationName);
    derived.by = wordAt(record, 1);
    derived.columns = {record.words.begin() + WordsBefore, record.words.end()};
    derived.isHighestBest = record.isOn;
    return derived;
}

TableStep pivotStep(const tablestep001& record) {
    constexpr std::size_t Functions = 6;
    return Pivot{wordAt(record, 0), wordAt(record, 1), wordAt(record, 2),
                 namedValue<PivotFunction>(wordAt(record, 3), Functions, pivotFunctionName)};
}

TableStep kindStep(const tablestep001& record) {
    const auto kind = columnKindNamed(wordAt(record, 1));
    if (!kind)
        refuseStep("\"" + record.words[1] + "\" is no kind of column");
    return KindStep{wordAt(record, 0), *kind};
}

TableStep stepOf(const tablestep001& record) {
    const auto name = std::ranges::find(StepNames, record.step);
    switch (name - StepNames.begin()) {
    case 0:
        return TitlesStep{record.isOn};
    case 1:
        return kindStep(record);
    case 2:
        return RemoveStep{wordAt(record, 0)};
    case 3:
        return FilterStep{wordAt(record, 0), wordAt(record, 1), record.isOn};
    case 4:
        return SortStep{wordAt(record, 0), record.isOn};
    case 5:
        return GroupStep{wordAt(record, 0)};
    case 6:
        return TintStep{wordAt(record, 0), record.isOn};
    case 7:
        return derivedStep(record);
    case 8:
        return pivotStep(record);
    default:
        refuseStep("there is no step \"" + record.step + '"');
    }
}

/// JSON holds no other text; a list in an odd encoding may have been read with some.
std::vector<std::string> validTexts(std::vector<std::string> texts) {
    for (std::string& text : texts)
        text = validUtf8(text);
    return texts;
}

tablelist001 listRecord(const ListGrid& grid) {
    tablelist001 record{
        validUtf8(grid.name), validUtf8(grid.separator), {}, {}, validTexts(grid.notes)};
    for (const GridLine& line : grid.lines)
        record.lines.push_back({line.number, validTexts(line.fields)});
    for (const RefusedCell& cell : grid.refused)
        record.refused.push_back(
            {cell.line, cell.column, validUtf8(cell.text), validUtf8(cell.reason)});
    return record;
}

ListGrid gridOf(tablelist001 record) {
    ListGrid grid;
    grid.name = std::move(record.name);
    grid.separator = std::move(record.separator);
    grid.notes = std::move(record.notes);
    for (tableline001& line : record.lines)
        grid.lines.push_back({line.number, std::move(line.fields)});
    for (tablerefused001& cell : record.refused)
        grid.refused.push_back(
            {cell.line, cell.column, std::move(cell.text), std::move(cell.reason)});
    return grid;
}

void takeAthletes(const tablework001& record, TableWork& work) {
    std::vector<KnownAthlete> athletes;
    for (const tableathlete001& athlete : record.joinedathletes)
        athletes.push_back({athlete.name, athlete.categories});
    const auto count = static_cast<std::int64_t>(athletes.size());
    for (const tableanswer001& answer : record.answers) {
        if (answer.athlete >= count)
            throw DecodeError(Fault{"answers", "there is no such athlete"});
        work.answers[answer.line] = answer.athlete < 0
                                        ? std::nullopt
                                        : std::optional(static_cast<std::size_t>(answer.athlete));
    }
    if (record.isJoined)
        work.athletes = std::make_shared<const std::vector<KnownAthlete>>(std::move(athletes));
}

} // namespace

std::string tableWorkText(const TableWork& work) {
    tablework001 record;
    record.source = validUtf8(work.source);
    record.sourcelist = validUtf8(work.list);
    record.title = validUtf8(work.title);
    record.isJoined = work.athletes != nullptr;
    if (work.steps) {
        record.list = listRecord(work.steps->source());
        for (const TableStep& step : work.steps->steps()) {
            tablestep001 made = std::visit(StepRecord(), step);
            made.step = StepNames.at(step.index());
            made.words = validTexts(std::move(made.words));
            record.steps.push_back(std::move(made));
        }
    }
    if (work.athletes)
        for (const KnownAthlete& athlete : *work.athletes)
            record.joinedathletes.push_back(
                {validUtf8(athlete.name), validTexts(athlete.categories)});
    for (const auto& [line, athlete] : work.answers)
        record.answers.push_back(
            {line, athlete ? static_cast<std::int64_t>(*athlete) : std::int64_t{-1}});
    return encode(record);
}

bool isTableWork(std::string_view bytes) {
    const std::size_t first = bytes.find_first_not_of(" \t\r\n");
    return first != bytes.npos && bytes[first] == '{';
}

TableWork readTableWork(std::string_view text) {
    auto record = decodeText<tablework001>(text);
    TableWork work;
    work.source = record.source;
    work.title = record.title;
    work.list = record.sourcelist;
    takeAthletes(record, work);
    try {
        TableSteps steps(gridOf(std::move(record.list)));
        for (const tablestep001& step : record.steps)
            steps = steps.with(stepOf(step));
        work.steps = std::move(steps);
    } catch (const TableError& error) {
        throw DecodeError(Fault{"steps", error.what()});
    }
    return work;
}

} // namespace kavela
