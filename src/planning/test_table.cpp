#include "planning/test_table.h"

#include "common/delimited_text.h"
#include "common/number_text.h"
#include "planning/test_sections.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

constexpr std::size_t Columns = 5;

constexpr const char* Titles =
    "Name;Date;Times (s);;;;;Total;Stroke rate (strokes/min);;;;;Stroke efficiency (m/stroke);;;;;"
    "Average speed (m/s);;;;;Max acce;;;;;Straight Time (s);;;;;Left Rotation peak;;;;;"
    "Left Rotation duration;;;;;Right Rotation peak;;;;;Right Rotation duration;;;;\n";

constexpr const char* Groups[] = {"Stroke rate",
                                  "Stroke efficiency",
                                  "Average speed",
                                  "Max acce",
                                  "Straight Time",
                                  "Left Rotation peak",
                                  "Left Rotation duration",
                                  "Right Rotation peak",
                                  "Right Rotation duration"};

std::string line(const std::vector<std::string>& fields) {
    std::string text;
    for (const std::string& field : fields)
        text += csvField(field) + ';';
    text.back() = '\n';
    return text;
}

/// None of the values is ever 0 but for want of an entry.
std::string cell(std::optional<double> value) {
    return value && std::isfinite(*value) && *value != 0 ? shortestText(*value) : "";
}

/// Adds the cells of one group.
template <class Value>
void addFive(std::vector<std::string>& cells, Value valueAt) {
    for (std::size_t i = 0; i < Columns; ++i)
        cells.push_back(cell(valueAt(i)));
}

void addFive(std::vector<std::string>& cells, const std::vector<double>& values) {
    addFive(cells, [&](std::size_t i) {
        return i < values.size() ? std::optional(values[i]) : std::nullopt;
    });
}

} // namespace

std::vector<std::string> testTableColumns() {
    std::vector<std::string> names{"Name", "Date"};
    const auto addGroup = [&](const std::string& group) {
        for (std::size_t i = 1; i <= Columns; ++i)
            names.push_back(group + ' ' + std::to_string(i));
    };
    addGroup("Time");
    names.emplace_back("Total");
    std::ranges::for_each(Groups, addGroup);
    return names;
}

std::vector<std::string> testTableCells(const testData& run) {
    const std::vector<TestSection> sections = testSections(run);
    std::vector<std::string> cells{run.athlete, dayText(run.date)};
    const auto addBySection = [&](std::optional<double> TestSection::*value) {
        addFive(cells, [&](std::size_t i) {
            return i < sections.size() ? sections[i].*value : std::nullopt;
        });
    };
    addFive(cells, run.splits);
    cells.push_back(cell(run.totalTime));
    addBySection(&TestSection::strokeRate);
    addBySection(&TestSection::strokeEfficiency);
    addFive(cells, run.aveSpeed);
    addBySection(&TestSection::maximumAcceleration);
    addFive(cells, run.straightTime);
    addFive(cells, run.leftRotations);
    addFive(cells, run.leftRotationsTime);
    addFive(cells, run.rightRotations);
    addFive(cells, run.rightRotationsTime);
    return cells;
}

std::string testTableCsv(std::span<const testData> runs) {
    std::string table = Titles + line(testTableColumns());
    for (const testData& run : runs)
        table += line(testTableCells(run));
    return table;
}

} // namespace kavela
