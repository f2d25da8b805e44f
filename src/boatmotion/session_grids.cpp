#include "boatmotion/session_table.h"
#include "boatmotion/strokes/stroke_table.h"
#include "common/number_text.h"
#include "common/text.h"

#include <cmath>
#include <numbers>

namespace kavela {

namespace {

constexpr double DegreesPerRadian = 180 / std::numbers::pi;
constexpr double ExportPlaces = 1e4;
constexpr double LargestRounded = 1e11; // has no place for four decimals

Cell cell(std::optional<double> value) {
    return value ? Cell(*value) : Cell();
}

Cell cellIf(bool isKnown, double value) {
    return isKnown ? Cell(value) : Cell();
}

/// 0 stands for what is not known.
Cell unlessZero(double value) {
    return value != 0 ? Cell(value) : Cell();
}

std::string numberText(double value) {
    if (!(std::abs(value) < LargestRounded))
        return plainText(value);
    return plainText(std::round(value * ExportPlaces) / ExportPlaces + 0.0);
}

std::string fieldOf(const Cell& cell) {
    if (const double* const number = std::get_if<double>(&cell))
        return numberText(*number);
    const std::string* const text = std::get_if<std::string>(&cell);
    return text ? *text : std::string();
}

SessionGrid::Row strokeRow(const EditedSession& edited, const SessionFigures& figures,
                           const StrokeFigures& stroke) {
    const smartBMdata_v4& entry = edited.session.strokesData[stroke.entry];
    const smartStraight_v3& values = entry.stroke;
    const bool hasBow = edited.isBowKnown;
    const std::string hand(handText(values.hand));
    return {stroke.time,
            stroke.entry,
            {stroke.time - figures.moments.from, static_cast<double>(entry.segment),
             hand.empty() ? Cell() : Cell(hand), stroke.rate, values.strokeRate, cell(stroke.force),
             cell(stroke.impulse), cell(stroke.power), cellIf(hasBow, values.waterPhase),
             cellIf(hasBow, values.aerealPhase), cellIf(hasBow, values.aveAcce),
             cellIf(hasBow, values.maxAcce), cellIf(hasBow, values.aveDecce),
             cellIf(hasBow, values.roll * DegreesPerRadian), cell(stroke.speed), cell(stroke.way),
             cell(stroke.heartRate)}};
}

SessionGrid::Row turnRow(const EditedSession& edited, const SessionFigures& figures,
                         const TurnFigures& turn, std::size_t number) {
    const smartBMdata_v4& entry = edited.session.strokesData[turn.entry];
    const smartRotation& values = entry.rotation;
    const bool hasBow = edited.isBowKnown;
    return {turn.time,
            turn.entry,
            {static_cast<double>(number), turn.time - figures.moments.from,
             static_cast<double>(entry.segment), values.rotationTime,
             values.rotationTime * values.aveRotSpeed * DegreesPerRadian,
             values.rotSpeedPeak * DegreesPerRadian, values.aveRotSpeed * DegreesPerRadian,
             cellIf(hasBow, values.pushOutPeak), cellIf(hasBow, values.pushOutAve),
             cellIf(hasBow, values.aveRoll * DegreesPerRadian),
             cellIf(hasBow, values.avePitch * DegreesPerRadian), cell(turn.heartRate)}};
}

} // namespace

SessionGrid strokeGrid(const EditedSession& edited, const SessionFigures& figures) {
    SessionGrid grid;
    grid.columns = {{KAVELA_TEXT("Time"), "s", 2},
                    {KAVELA_TEXT("Segment"), "", 0},
                    {KAVELA_TEXT("Hand"), "", 0},
                    {KAVELA_TEXT("Stroke rate"), "1/min", 0},
                    {KAVELA_TEXT("Single rate"), "1/min", 1},
                    {KAVELA_TEXT("Force"), "N", 0},
                    {KAVELA_TEXT("Impulse"), "N·s", 1},
                    {KAVELA_TEXT("Power"), "W", 0},
                    {KAVELA_TEXT("Water phase"), "s", 2},
                    {KAVELA_TEXT("Aerial phase"), "s", 2},
                    {KAVELA_TEXT("Mean acceleration"), "m/s²", 2},
                    {KAVELA_TEXT("Max acceleration"), "m/s²", 2},
                    {KAVELA_TEXT("Mean deceleration"), "m/s²", 2},
                    {KAVELA_TEXT("Roll"), "°", 1},
                    {KAVELA_TEXT("Speed"), "m/s", 2},
                    {KAVELA_TEXT("Metres per stroke"), "m", 2},
                    {KAVELA_TEXT("Heart rate"), "1/min", 0}};
    for (const StrokeFigures& stroke : figures.strokes)
        grid.rows.push_back(strokeRow(edited, figures, stroke));
    return grid;
}

SessionGrid turnGrid(const EditedSession& edited, const SessionFigures& figures) {
    SessionGrid grid;
    grid.columns = {{KAVELA_TEXT("Turn"), "", 0},
                    {KAVELA_TEXT("Time"), "s", 2},
                    {KAVELA_TEXT("Segment"), "", 0},
                    {KAVELA_TEXT("Duration"), "s", 2},
                    {KAVELA_TEXT("Angle"), "°", 0},
                    {KAVELA_TEXT("Peak rotation"), "°/s", 0},
                    {KAVELA_TEXT("Mean rotation"), "°/s", 0},
                    {KAVELA_TEXT("Peak push out"), "m/s²", 2},
                    {KAVELA_TEXT("Mean push out"), "m/s²", 2},
                    {KAVELA_TEXT("Roll"), "°", 1},
                    {KAVELA_TEXT("Pitch"), "°", 1},
                    {KAVELA_TEXT("Heart rate"), "1/min", 0}};
    for (std::size_t i = 0; i < figures.turns.size(); ++i)
        grid.rows.push_back(turnRow(edited, figures, figures.turns[i], i + 1));
    return grid;
}

SessionGrid segmentGrid(const SessionFigures& figures) {
    SessionGrid grid;
    grid.columns = {{KAVELA_TEXT("Segment"), "", 0},   {KAVELA_TEXT("Stroke rate"), "1/min", 1},
                    {KAVELA_TEXT("Power"), "W", 0},    {KAVELA_TEXT("Force"), "N", 0},
                    {KAVELA_TEXT("Strokes"), "", 0},   {KAVELA_TEXT("Time"), "s", 1},
                    {KAVELA_TEXT("Distance"), "m", 0}, {KAVELA_TEXT("Speed"), "m/s", 2}};
    for (const StretchOfSession& segment : figures.segments) {
        const Cell number = segment.averages.segment == 0
                                ? Cell(std::string(figures.segments.size() == 1 ? "all" : "rest"))
                                : Cell(static_cast<double>(segment.averages.segment));
        grid.rows.push_back(
            {segment.from,
             std::nullopt,
             {number, segment.averages.strokerate, unlessZero(segment.averages.power),
              unlessZero(segment.averages.force), static_cast<double>(segment.strokes),
              segment.seconds, cell(segment.distance), cell(segment.speed)}});
    }
    return grid;
}

SessionGrid metersGrid(const std::vector<MetersRow>& meters) {
    SessionGrid grid;
    grid.columns = {{KAVELA_TEXT("Distance"), "m", 0}, {KAVELA_TEXT("Stroke rate"), "1/min", 1},
                    {KAVELA_TEXT("Power"), "W", 0},    {KAVELA_TEXT("Force"), "N", 0},
                    {KAVELA_TEXT("Drag"), "N", 1},     {KAVELA_TEXT("Impulse"), "N·s", 1},
                    {KAVELA_TEXT("Speed"), "m/s", 2},  {KAVELA_TEXT("Metres per stroke"), "m", 2}};
    for (const MetersRow& row : meters) {
        const smartMetersData& values = row.values;
        grid.rows.push_back(
            {row.from,
             std::nullopt,
             {values.distance, unlessZero(values.strokerate), unlessZero(values.power),
              unlessZero(values.force), unlessZero(values.drag), unlessZero(values.impulse),
              unlessZero(values.speed), unlessZero(values.mstr)}});
    }
    return grid;
}

std::string csvOf(const SessionGrid& grid) {
    std::string csv;
    const auto addField = [&csv](std::size_t column, const std::string& field) {
        if (column > 0)
            csv += ';';
        csv += field;
    };
    for (std::size_t i = 0; i < grid.columns.size(); ++i) {
        const SessionColumn& column = grid.columns[i];
        addField(i, column.unit.empty() ? column.title : column.title + " (" + column.unit + ')');
    }
    csv += '\n';
    for (const SessionGrid::Row& row : grid.rows) {
        for (std::size_t i = 0; i < row.cells.size(); ++i)
            addField(i, fieldOf(row.cells[i]));
        csv += '\n';
    }
    return csv;
}

} // namespace kavela
