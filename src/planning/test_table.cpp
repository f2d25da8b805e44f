#include "planning/test_table.h"

#include "common/number_text.h"
#include "planning/test_sections.h"

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

std::string columnNames(const std::string& group) {
    std::string names;
    for (std::size_t i = 1; i <= Columns; ++i)
        names += ';' + group + ' ' + std::to_string(i);
    return names;
}

std::string columnLine() {
    std::string line = "Name;Date" + columnNames("Time") + ";Total";
    for (const char* group : Groups)
        line += columnNames(group);
    return line + '\n';
}

std::string quoted(const std::string& field) {
    if (field.find_first_of(";\"\n\r") == std::string::npos)
        return field;
    std::string text = "\"";
    for (const char c : field) {
        if (c == '"')
            text += '"';
        text += c;
    }
    return text + '"';
}

std::string cell(std::optional<double> value) {
    return value && std::isfinite(*value) ? ';' + shortestText(*value) : ";";
}

template <class Value>
std::string fiveCells(Value valueAt) {
    std::string cells;
    for (std::size_t i = 0; i < Columns; ++i)
        cells += cell(valueAt(i));
    return cells;
}

std::string cellsOf(const std::vector<double>& values) {
    return fiveCells(
        [&](std::size_t i) { return i < values.size() ? std::optional(values[i]) : std::nullopt; });
}

std::string runLine(const testData& run) {
    const std::vector<TestSection> sections = testSections(run);
    const auto cellsBySection = [&](std::optional<double> TestSection::*value) {
        return fiveCells(
            [&](std::size_t i) { return i < sections.size() ? sections[i].*value : std::nullopt; });
    };
    return quoted(run.athlete) + ';' + dayText(run.date) + cellsOf(run.splits) +
           cell(run.totalTime) + cellsBySection(&TestSection::strokeRate) +
           cellsBySection(&TestSection::strokeEfficiency) + cellsOf(run.aveSpeed) +
           cellsBySection(&TestSection::maximumAcceleration) + cellsOf(run.straightTime) +
           cellsOf(run.leftRotations) + cellsOf(run.leftRotationsTime) +
           cellsOf(run.rightRotations) + cellsOf(run.rightRotationsTime) + '\n';
}

} // namespace

std::string testTableCsv(std::span<const testData> runs) {
    std::string table = Titles + columnLine();
    for (const testData& run : runs)
        table += runLine(run);
    return table;
}

} // namespace kavela
