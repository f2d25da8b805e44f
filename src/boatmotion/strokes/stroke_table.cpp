#include "boatmotion/strokes/stroke_table.h"

#include "boatmotion/strokes/filters.h"
#include "boatmotion/strokes/water_tests.h"
#include "common/number_text.h"

#include <algorithm>

namespace kavela {

namespace {

constexpr double Degrees = 180 / std::numbers::pi;

constexpr const char* Headings =
    "Kind;Start s;End s;Hand;Confidence;Rate 1/min;Shown rate 1/min;Water phase s;Air phase s;"
    "Mean acceleration m/s2;Greatest acceleration m/s2;Mean deceleration m/s2;Force N;Impulse Ns;"
    "Power W;Speed m/s;Metres per stroke;Roll deg;End of bout;Steering;Angle deg;"
    "Greatest rotation deg/s;Mean rotation deg/s;Greatest push-out m/s2;Mean push-out m/s2;"
    "Mean roll deg;Mean pitch deg\n";
constexpr std::size_t ColumnsOfStrokes = 20;

class Line {
public:
    explicit Line(const char* kind) : m_text(kind) {}

    Line& number(double value) {
        m_text += ';' + plainText(value);
        return *this;
    }
    Line& numberIf(bool isKnown, double value) { return isKnown ? number(value) : text(""); }
    Line& text(std::string_view value) {
        m_text += ';';
        m_text += value;
        return *this;
    }
    Line& empty(std::size_t count) {
        m_text.append(count, ';');
        return *this;
    }
    [[nodiscard]] std::string done() const { return m_text + '\n'; }

private:
    std::string m_text;
};

std::string strokeLine(const MotionAnalysis& analysis, std::size_t index) {
    const Stroke& stroke = analysis.strokes[index];
    const smartStraight_v3& values = stroke.values;
    const double start = analysis.series.time.front();
    const bool hasBow = analysis.isBowKnown;
    const bool hasForce = analysis.hasForce();
    return Line("stroke")
        .number(stroke.catchTime - start)
        .number(stroke.exitTime - start)
        .text(handText(values.hand))
        .numberIf(hasBow, stroke.confidence)
        .number(values.strokeRate)
        .number(analysis.strokeRates[index])
        .numberIf(hasBow, values.waterPhase)
        .numberIf(hasBow, values.aerealPhase)
        .numberIf(hasBow, values.aveAcce)
        .numberIf(hasBow, values.maxAcce)
        .numberIf(hasBow, values.aveDecce)
        .numberIf(hasForce, values.force)
        .numberIf(hasForce, values.impulse)
        .numberIf(hasForce, values.power)
        .numberIf(analysis.hasSpeed, stroke.speed)
        .numberIf(analysis.hasSpeed, stroke.efficiency.value_or(0))
        .numberIf(hasBow, values.roll * Degrees)
        .text(stroke.endOfBout ? "yes" : "no")
        .text(!hasBow           ? ""
              : stroke.steering ? "yes"
                                : "no")
        .empty(7)
        .done();
}

std::string turnLine(const MotionAnalysis& analysis, const Turn& turn) {
    const double start = analysis.series.time.front();
    const bool hasBow = analysis.isBowKnown;
    return Line("turn")
        .number(turn.start - start)
        .number(turn.end - start)
        .empty(ColumnsOfStrokes - 3)
        .number(turn.angle * Degrees)
        .number(turn.values.rotSpeedPeak * Degrees)
        .number(turn.values.aveRotSpeed * Degrees)
        .numberIf(hasBow, turn.values.pushOutPeak)
        .numberIf(hasBow, turn.values.pushOutAve)
        .numberIf(hasBow, turn.values.aveRoll * Degrees)
        .numberIf(hasBow, turn.values.avePitch * Degrees)
        .done();
}

} // namespace

std::string_view handText(std::int64_t hand) {
    return hand == LeftHand ? "left" : hand == RightHand ? "right" : "";
}

SessionTotals totalsOf(const MotionAnalysis& analysis) {
    const std::vector<double>& time = analysis.series.time;
    const StretchFigures all = figuresBetween(analysis, time.front(), time.back() + strokes::Step);
    SessionTotals totals;
    totals.seconds = time.back() - time.front();
    totals.strokes = analysis.strokes.size();
    std::vector<double> rates;
    double waterPhases = 0;
    std::size_t left = 0;
    for (const Stroke& stroke : analysis.strokes) {
        left += stroke.values.hand == LeftHand;
        totals.bouts += stroke.endOfBout;
        waterPhases += stroke.values.waterPhase;
        rates.push_back(stroke.values.strokeRate);
    }
    if (analysis.isBowKnown) {
        totals.left = left;
        totals.right = totals.strokes - left;
        if (totals.strokes > 0)
            totals.waterPhase = waterPhases / static_cast<double>(totals.strokes);
    }
    totals.medianRate = strokes::percentileOf(rates, 0.5);
    for (const Turn& turn : analysis.turns)
        (turn.angle > 0 ? totals.leftTurns : totals.rightTurns) += 1;
    totals.distance = all.distance;
    totals.meanSpeed = all.speed;
    totals.force = all.force;
    totals.impulse = all.impulse;
    totals.power = all.power;
    if (analysis.hasSpeed)
        totals.topSpeed =
            *std::max_element(analysis.series.speed.begin(), analysis.series.speed.end());
    return totals;
}

std::string strokeTableCsv(const MotionAnalysis& analysis) {
    std::string table = Headings;
    std::size_t turn = 0;
    const auto addTurnsUpTo = [&](double time) {
        for (; turn < analysis.turns.size() && analysis.turns[turn].start < time; ++turn)
            table += turnLine(analysis, analysis.turns[turn]);
    };
    for (std::size_t i = 0; i < analysis.strokes.size(); ++i) {
        addTurnsUpTo(analysis.strokes[i].catchTime);
        table += strokeLine(analysis, i);
    }
    addTurnsUpTo(std::numeric_limits<double>::infinity());
    return table;
}

} // namespace kavela
