#include "facts/query_columns.h"

#include "common/text.h"
#include "facts/query_rows.h"
#include "splitdata/run_totals.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

namespace kavela {

namespace {

constexpr std::uint8_t bit(What what) {
    return static_cast<std::uint8_t>(1U << static_cast<unsigned>(what));
}

constexpr std::uint8_t Run = bit(What::Runs);
constexpr std::uint8_t Sec = bit(What::Sections);
constexpr std::uint8_t Gat = bit(What::Gates);
constexpr std::uint8_t Pen = bit(What::Penalties);
constexpr std::uint8_t Los = bit(What::Losses);
constexpr std::uint8_t Str = bit(What::Strokes);
constexpr std::uint8_t Tag = bit(What::Tags);
constexpr std::uint8_t All = Run | Sec | Gat | Pen | Los | Str | Tag;

constexpr ColumnLevel File = ColumnLevel::File;
constexpr ColumnLevel OfRun = ColumnLevel::Run;
constexpr ColumnLevel Row = ColumnLevel::Row;

constexpr std::array<std::string_view, WhatCount> Words{"runs",   "sections", "gates", "penalties",
                                                        "losses", "strokes",  "tags"};

double taken(double seconds) {
    return isTakenTime(seconds) ? seconds : NotKnown;
}

double counted(std::int64_t number) {
    return number > 0 ? static_cast<double>(number) : NotKnown;
}

double code(std::int64_t code) {
    return code == PenaltyRow::NoCode ? NotKnown : static_cast<double>(code);
}

/// The day of a file's race; NotKnown outside the years that calendars have.
double dayOf(const RowCursor& row) {
    constexpr double SecondsOfDay = 86400;
    constexpr double FirstDay = -719162; // 0001-01-01
    constexpr double LastDay = 2932896;  // 9999-12-31
    const double day = std::floor((row.file->date + SecondsFrom1970To2001) / SecondsOfDay);
    return day >= FirstDay && day <= LastDay ? day : NotKnown;
}

std::optional<std::chrono::year_month_day> calendarDayOf(const RowCursor& row) {
    const double day = dayOf(row);
    if (std::isnan(day))
        return std::nullopt;
    return std::chrono::sys_days(std::chrono::days(static_cast<int>(day)));
}

double yearOf(const RowCursor& row) {
    const auto day = calendarDayOf(row);
    return day ? static_cast<double>(static_cast<int>(day->year())) : NotKnown;
}

double monthOf(const RowCursor& row) {
    const auto day = calendarDayOf(row);
    return day ? static_cast<double>(static_cast<unsigned>(day->month())) : NotKnown;
}

bool isUpstream(const RowCursor& row, std::int64_t gate) {
    const auto upGates = row.facts->upGatesOf(*row.file);
    return std::ranges::find(upGates, gate) != upGates.end();
}

/// Where the course has not as many defined sections as splits, nobody knows which gates are in
/// one.
bool areSectionsDefined(const RowCursor& row) {
    return row.file->sections > 0 && row.file->courses.count == row.file->sections;
}

double wayOfSection(const RowCursor& row) {
    if (row.section == 0 || !areSectionsDefined(row) || row.section > row.file->courses.count)
        return NotKnown;
    const auto gates = row.facts->definedSection(*row.file, row.section - 1);
    return std::ranges::any_of(gates, [&](std::int64_t gate) { return isUpstream(row, gate); });
}

double wayOfPenalty(const RowCursor& row) {
    return row.penalty->gate > 0 ? static_cast<double>(isUpstream(row, row.penalty->gate))
                                 : NotKnown;
}

double sectionOf(const RowCursor& row) {
    std::size_t section = row.section;
    if (section == 0 && (row.gate || row.penalty))
        section =
            sectionOfGate(*row.facts, *row.file, row.gate ? row.gate->gate : row.penalty->gate);
    return section > 0 ? static_cast<double>(section) : NotKnown;
}

double strokesOf(const RowCursor& row) {
    return row.sectionRow->left + row.sectionRow->right + row.sectionRow->other;
}

using Cursor = const RowCursor&;
using enum ColumnKind;

using NumberOf = double (*)(Cursor);
using TextOf = TextId (*)(Cursor);

/// A column of names; `key` is the same for all ways of writing one.
constexpr QueryColumn nameColumn(std::string_view name, std::uint8_t whats, ColumnLevel level,
                                 std::string_view meaning, TextOf text, TextOf key = nullptr) {
    return {name, whats, level, Name, "", meaning, nullptr, text, key};
}

/// A column of the words of a list.
constexpr QueryColumn labelColumn(std::string_view name, std::uint8_t whats,
                                  std::string_view meaning, LabelList labels, NumberOf number) {
    return {name, whats, Row, Label, "", meaning, number, nullptr, nullptr, labels};
}

constexpr std::array Columns{
    nameColumn(
        "athlete", All, OfRun, KAVELA_TEXT("the crew, in whatever order it is written"),
        [](Cursor row) { return row.run->crew; }, [](Cursor row) { return row.run->crewKey; }),
    nameColumn(
        "cat", All, OfRun, KAVELA_TEXT("category, however it is written (K1M, MK1)"),
        [](Cursor row) { return row.run->category; },
        [](Cursor row) { return row.run->categoryKey; }),
    nameColumn(
        "phase", All, OfRun, KAVELA_TEXT("phase of the race"),
        [](Cursor row) { return row.run->phase; }, [](Cursor row) { return row.run->phaseKey; }),
    nameColumn("hand", All, OfRun, KAVELA_TEXT("side on which the athlete paddles"),
               [](Cursor row) { return row.run->hand; }),
    nameColumn("place", All, File, KAVELA_TEXT("place of the course"),
               [](Cursor row) { return row.file->place; }),
    nameColumn("title", All, File, KAVELA_TEXT("title of the race"),
               [](Cursor row) { return row.file->title; }),
    nameColumn("event", All, File, KAVELA_TEXT("event"),
               [](Cursor row) { return row.file->event; }),
    nameColumn("session", All, File, KAVELA_TEXT("Race, Training or Test"),
               [](Cursor row) { return row.file->session; }),
    nameColumn("water", All, File, KAVELA_TEXT("kind of water"),
               [](Cursor row) { return row.file->water; }),
    nameColumn("path", All, File, KAVELA_TEXT("the file"),
               [](Cursor row) { return row.file->path; }),
    QueryColumn{"date", All, File, Day, "day", KAVELA_TEXT("2026-05-11; also 2026-05 or 2026"),
                dayOf},
    QueryColumn{"year", All, File, Number, "", KAVELA_TEXT("year of the date"), yearOf},
    QueryColumn{"month", All, File, Number, "", KAVELA_TEXT("month of the date, 1 to 12"), monthOf},
    QueryColumn{"total", All, OfRun, Measure, "s", KAVELA_TEXT("of the run, with penalties"),
                [](Cursor row) { return row.run->total; }},
    QueryColumn{"paddling", All, OfRun, Measure, "s", KAVELA_TEXT("of the run, without penalties"),
                [](Cursor row) { return row.run->paddling; }},
    QueryColumn{"penalty", All, OfRun, Number, "s", KAVELA_TEXT("penalty seconds of the run"),
                [](Cursor row) {
                    return row.run->isComplete ? static_cast<double>(row.run->penalty) : NotKnown;
                }},
    QueryColumn{"rank", All, OfRun, Number, "", KAVELA_TEXT("place among the runs that compete"),
                [](Cursor row) { return row.rank ? static_cast<double>(*row.rank) : NotKnown; }},
    QueryColumn{"pos", All, OfRun, Number, "", KAVELA_TEXT("position in the official list"),
                [](Cursor row) { return counted(row.run->pos); }},
    QueryColumn{"run", All, OfRun, Number, "", KAVELA_TEXT("number of the run in its file, from 0"),
                [](Cursor row) { return static_cast<double>(row.run->number); }},
    QueryColumn{"sprint", Run, OfRun, Measure, "s", KAVELA_TEXT("sprint time"),
                [](Cursor row) { return taken(row.run->sprint); }},
    QueryColumn{"xtime", Run, OfRun, Measure, "s", KAVELA_TEXT("expected time"),
                [](Cursor row) { return taken(row.run->xTime); }},
    QueryColumn{"time", Run, OfRun, Measure, "s", KAVELA_TEXT("of the run, without penalties"),
                [](Cursor row) { return row.run->paddling; }},
    QueryColumn{"time", Sec | Str, Row, Measure, "s",
                KAVELA_TEXT("of the section, where both its marks were taken"),
                [](Cursor row) {
                    return row.sectionRow->standsAlone ? taken(row.sectionRow->time) : NotKnown;
                }},
    QueryColumn{"time", Gat, Row, Measure, "s", KAVELA_TEXT("from entrance to exit"),
                [](Cursor row) { return taken(row.gate->time); }},
    QueryColumn{"entrance", Gat, Row, Measure, "s", KAVELA_TEXT("from entrance to the pole line"),
                [](Cursor row) { return taken(row.gate->entrance); }},
    QueryColumn{"exit", Gat, Row, Measure, "s", KAVELA_TEXT("from the pole line to the exit"),
                [](Cursor row) { return taken(row.gate->exit); }},
    QueryColumn{"gate", Gat, Row, Number, "", KAVELA_TEXT("number of the gate"),
                [](Cursor row) { return static_cast<double>(row.gate->gate); }},
    QueryColumn{"gate", Pen, Row, Number, "", KAVELA_TEXT("number of the gate"),
                [](Cursor row) { return code(row.penalty->gate); }},
    QueryColumn{"section", Sec | Gat | Pen | Str, Row, Number, "",
                KAVELA_TEXT("number of the section, from 1"), sectionOf},
    QueryColumn{"type", Sec | Str, Row, Way, "",
                KAVELA_TEXT("up for a section with an upstream gate, or down"), wayOfSection},
    QueryColumn{"type", Gat, Row, Way, "",
                KAVELA_TEXT("up: only upstream gates are timed by themselves"),
                [](Cursor) { return 1.0; }},
    QueryColumn{"type", Pen, Row, Way, "", KAVELA_TEXT("up for an upstream gate, or down"),
                wayOfPenalty},
    QueryColumn{"pen", Sec | Str, Row, Number, "s", KAVELA_TEXT("penalty seconds in the section"),
                [](Cursor row) { return static_cast<double>(row.sectionRow->pen); }},
    QueryColumn{"left", Sec | Str, Row, Number, "", KAVELA_TEXT("strokes on the left"),
                [](Cursor row) { return static_cast<double>(row.sectionRow->left); }},
    QueryColumn{"right", Sec | Str, Row, Number, "", KAVELA_TEXT("strokes on the right"),
                [](Cursor row) { return static_cast<double>(row.sectionRow->right); }},
    QueryColumn{"strokes", Sec | Str, Row, Number, "", KAVELA_TEXT("strokes marked in the section"),
                strokesOf},
    labelColumn("direction", Gat, KAVELA_TEXT("side to which the boat turns"),
                LabelList::UpstreamDirection,
                [](Cursor row) { return static_cast<double>(row.gate->direction); }),
    labelColumn("style", Gat, KAVELA_TEXT("how the gate is paddled"), LabelList::UpstreamStyle,
                [](Cursor row) { return static_cast<double>(row.gate->style); }),
    QueryColumn{"seconds", Pen, Row, Number, "s", KAVELA_TEXT("of the penalty"),
                [](Cursor row) { return counted(row.seconds); }},
    labelColumn("kind", Pen, KAVELA_TEXT("touch, or how the gate was missed"),
                LabelList::PenaltyKind, [](Cursor row) { return code(row.penalty->penkind); }),
    labelColumn("gatekind", Pen, KAVELA_TEXT("kind of gate"), LabelList::PenaltyGateKind,
                [](Cursor row) { return code(row.penalty->gatekind); }),
    labelColumn("pole", Pen, KAVELA_TEXT("which pole"), LabelList::PenaltyPole,
                [](Cursor row) { return code(row.penalty->polekind); }),
    labelColumn("way", Pen, KAVELA_TEXT("what touched, or how the gate was missed"),
                LabelList::PenaltyWay, [](Cursor row) { return code(row.penalty->penway); }),
    labelColumn("moment", Pen, KAVELA_TEXT("where in the gate"), LabelList::PenaltyMoment,
                [](Cursor row) { return code(row.penalty->moment); }),
    labelColumn("direction", Pen, KAVELA_TEXT("how the boat was moving"),
                LabelList::PenaltyDirection,
                [](Cursor row) { return code(row.penalty->direction); }),
    labelColumn("style", Pen, KAVELA_TEXT("how the gate was paddled"), LabelList::PenaltyStyle,
                [](Cursor row) { return code(row.penalty->style); }),
    labelColumn("eye", Pen, KAVELA_TEXT("where the athlete looked"), LabelList::PenaltyEye,
                [](Cursor row) { return code(row.penalty->eye); }),
    QueryColumn{"lost", Los, Row, Measure, "s", KAVELA_TEXT("below 0 for time gained"),
                [](Cursor row) {
                    return row.loss->lost == 0 || !std::isfinite(row.loss->lost) ? NotKnown
                                                                                 : row.loss->lost;
                }},
    QueryColumn{"percent", Los, Row, Measure, "%", KAVELA_TEXT("of the other run's time"),
                [](Cursor row) {
                    return row.loss->lost == 0 || !std::isfinite(row.loss->percent)
                               ? NotKnown
                               : row.loss->percent;
                }},
    nameColumn("versus", Los, Row, KAVELA_TEXT("against whom"),
               [](Cursor row) { return row.loss->versus; }),
    nameColumn("reason", Los, Row, KAVELA_TEXT("reasons noted"),
               [](Cursor row) { return row.loss->reasons; }),
    labelColumn("combination", Los, KAVELA_TEXT("combination of gates"),
                LabelList::LossGateCombination,
                [](Cursor row) { return static_cast<double>(row.loss->gateCombination); }),
    labelColumn("detail", Los, KAVELA_TEXT("part of the gate"), LabelList::LossGateDetails,
                [](Cursor row) { return static_cast<double>(row.loss->gateDetails); }),
    labelColumn("style", Los, KAVELA_TEXT("how the stretch was paddled"), LabelList::LossStyle,
                [](Cursor row) { return static_cast<double>(row.loss->style); }),
    labelColumn("feature", Los, KAVELA_TEXT("the water there"), LabelList::LossWaterFeature,
                [](Cursor row) { return static_cast<double>(row.loss->waterFeature); }),
    nameColumn("tag", Tag, Row, KAVELA_TEXT("the word of a mark"),
               [](Cursor row) { return row.tag->tag; }),
};

constexpr std::array<std::string_view, 8> RunColumns{"athlete", "cat",   "phase",    "date",
                                                     "place",   "total", "paddling", "penalty"};
constexpr std::array<std::string_view, 8> SectionColumns{"athlete", "cat",     "phase", "date",
                                                         "place",   "section", "time",  "pen"};
constexpr std::array<std::string_view, 9> GateColumns{
    "athlete", "cat", "phase", "date", "place", "gate", "direction", "style", "time"};
constexpr std::array<std::string_view, 10> PenaltyColumns{
    "athlete", "cat", "phase", "date", "place", "gate", "seconds", "kind", "pole", "moment"};
constexpr std::array<std::string_view, 9> LossColumns{
    "athlete", "cat", "phase", "date", "place", "versus", "combination", "lost", "reason"};
constexpr std::array<std::string_view, 9> StrokeColumns{
    "athlete", "cat", "phase", "date", "place", "section", "left", "right", "strokes"};
constexpr std::array<std::string_view, 6> TagColumns{"athlete", "cat",   "phase",
                                                     "date",    "place", "tag"};

} // namespace

std::string_view wordOf(What what) {
    return Words[static_cast<std::size_t>(what)];
}

std::optional<What> whatOf(std::string_view word) {
    const auto found = std::ranges::find(Words, word);
    return found == Words.end() ? std::nullopt
                                : std::optional(static_cast<What>(found - Words.begin()));
}

std::span<const QueryColumn> queryColumns() {
    return Columns;
}

const QueryColumn* columnNamed(What what, std::string_view name) {
    const auto found = std::ranges::find_if(Columns, [&](const QueryColumn& column) {
        return column.name == name && column.isOf(what);
    });
    return found == Columns.end() ? nullptr : &*found;
}

std::span<const std::string_view> shownColumns(What what) {
    switch (what) {
    case What::Runs:
        return RunColumns;
    case What::Sections:
        return SectionColumns;
    case What::Gates:
        return GateColumns;
    case What::Penalties:
        return PenaltyColumns;
    case What::Losses:
        return LossColumns;
    case What::Strokes:
        return StrokeColumns;
    case What::Tags:
        break;
    }
    return TagColumns;
}

const QueryColumn* measuredColumn(What what) {
    switch (what) {
    case What::Runs:
        return columnNamed(what, "total");
    case What::Sections:
    case What::Gates:
        return columnNamed(what, "time");
    case What::Penalties:
        return columnNamed(what, "seconds");
    case What::Losses:
        return columnNamed(what, "lost");
    case What::Strokes:
        return columnNamed(what, "strokes");
    case What::Tags:
        break;
    }
    return nullptr;
}

std::string valueWord(const QueryColumn& column, double value) {
    if (column.kind == ColumnKind::Way)
        return value != 0 ? "up" : "down";
    const auto entry = static_cast<std::int64_t>(value);
    const std::span<const kavela::Label> labels = labelsOf(*column.labels);
    if (entry < 0 || std::cmp_greater_equal(entry, labels.size()))
        return std::to_string(entry);
    return std::string(labels[static_cast<std::size_t>(entry)].id);
}

} // namespace kavela
