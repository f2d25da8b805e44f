#include "cli/strokes_text.h"

#include "boatmotion/strokes/stroke_table.h"
#include "cli/console.h"
#include "common/display_text.h"
#include "common/text.h"

#include <fmt/format.h>

namespace kavela::cli {

namespace {

constexpr double Degrees = 180 / std::numbers::pi;
constexpr int ColumnWidth = 9;

std::string cell(double value, int decimals) {
    return rightAligned(fmt::format("{:.{}f}", value, decimals), ColumnWidth);
}

std::string cellIf(bool isKnown, double value, int decimals) {
    return isKnown ? cell(value, decimals) : rightAligned("–", ColumnWidth);
}

std::string headings(std::initializer_list<const char*> names) {
    std::string line;
    for (const char* name : names)
        line += rightAligned(name, ColumnWidth);
    return line + '\n';
}

std::string strokeLine(const MotionAnalysis& analysis, std::size_t index) {
    const Stroke& stroke = analysis.strokes[index];
    const smartStraight_v3& values = stroke.values;
    const bool hasSpeed = analysis.hasSpeed;
    const bool hasBow = analysis.isBowKnown;
    const bool hasForce = analysis.hasForce();
    const std::string_view hand = handText(values.hand);
    return cell(stroke.catchTime - analysis.series.time.front(), 2) +
           rightAligned(hand.empty() ? "–" : std::string(hand), ColumnWidth) +
           cell(analysis.strokeRates[index], 1) + cellIf(hasBow, values.waterPhase, 2) +
           cellIf(hasBow, values.aerealPhase, 2) + cellIf(hasBow, values.maxAcce, 2) +
           cellIf(hasBow, values.aveDecce, 2) + cellIf(hasForce, values.force, 0) +
           cellIf(hasForce, values.impulse, 1) + cellIf(hasForce, values.power, 0) +
           cellIf(hasSpeed, stroke.speed, 2) + cellIf(hasSpeed, stroke.efficiency.value_or(0), 2) +
           cellIf(hasBow, values.roll * Degrees, 1) + '\n' + (stroke.endOfBout ? "\n" : "");
}

std::string strokeTable(const MotionAnalysis& analysis) {
    if (analysis.strokes.empty())
        return {};
    std::string table =
        headings({"Time", "Hand", "Rate", "Water", "Air", "Greatest", "Slowing", "Force", "Impulse",
                  "Power", "Speed", "Way", "Roll"}) +
        headings({"s", "", "1/min", "s", "s", "m/s²", "m/s²", "N", "N·s", "W", "m/s", "m", "°"});
    for (std::size_t i = 0; i < analysis.strokes.size(); ++i)
        table += strokeLine(analysis, i);
    return table;
}

std::string turnTable(const MotionAnalysis& analysis) {
    if (analysis.turns.empty())
        return {};
    const bool hasBow = analysis.isBowKnown;
    std::string table =
        headings({"Turn", "Time", "Angle", "Peak", "Mean", "Push-out", "Mean", "Lean", "Pitch"}) +
        headings({"s", "s", "°", "°/s", "°/s", "m/s²", "m/s²", "°", "°"});
    for (const Turn& turn : analysis.turns)
        table +=
            cell(turn.start - analysis.series.time.front(), 2) + cell(turn.values.rotationTime, 2) +
            cell(turn.angle * Degrees, 0) + cell(turn.values.rotSpeedPeak * Degrees, 0) +
            cell(turn.values.aveRotSpeed * Degrees, 0) +
            cellIf(hasBow, turn.values.pushOutPeak, 2) + cellIf(hasBow, turn.values.pushOutAve, 2) +
            cellIf(hasBow, turn.values.aveRoll * Degrees, 1) +
            cellIf(hasBow, turn.values.avePitch * Degrees, 1) + '\n';
    return table + '\n';
}

std::string totalLine(const char* label, const std::string& value) {
    constexpr int LabelWidth = 20;
    return fitted(label, LabelWidth) + value + '\n';
}

std::string totalIf(const char* label, std::optional<double> value, int decimals,
                    const char* unit) {
    return totalLine(label, value ? fmt::format("{:.{}f} {}", *value, decimals, unit) : "–");
}

std::string count(std::size_t value) {
    return std::to_string(value);
}

/// How many strokes, of which hand, in how many bouts.
std::string strokeCounts(const SessionTotals& totals) {
    const std::string sides = totals.left && totals.right ? count(*totals.left) + " left, " +
                                                                count(*totals.right) + " right"
                                                          : std::string("left or right not known");
    return count(totals.strokes) + ": " + sides + ", in " +
           counted(static_cast<std::int64_t>(totals.bouts), "bout", "bouts");
}

} // namespace

std::string strokesText(const MotionAnalysis& analysis, const MotionProfile& profile) {
    const SessionTotals totals = totalsOf(analysis);
    return strokeTable(analysis) + turnTable(analysis) +
           totalLine("Strokes", strokeCounts(totals)) +
           totalLine("Turns", count(analysis.turns.size()) + ": " + count(totals.leftTurns) +
                                  " left, " + count(totals.rightTurns) + " right") +
           totalLine("Time", fmt::format("{:.1f} s", totals.seconds)) +
           totalIf("Distance", totals.distance, 0, "m") +
           totalIf("Mean speed", totals.meanSpeed, 2, "m/s") +
           totalIf("Top speed", totals.topSpeed, 2, "m/s") +
           totalLine("Median rate", say("{:.1f} 1/min", totals.medianRate)) +
           totalIf("Mean water phase", totals.waterPhase, 2, "s") +
           totalIf("Mean force", totals.force, 0, "N") +
           totalIf("Mean impulse", totals.impulse, 1, "N·s") +
           totalIf("Mean power", totals.power, 0, "W") +
           totalLine("Reckoned with",
                     say("{:g} kg, drag {:g} N·s²/m², {}; force and power hold on flat "
                         "water only",
                         profile.mass, profile.drag,
                         profile.boat == BoatClass::Canoe ? "canoe" : "kayak"));
}

} // namespace kavela::cli
