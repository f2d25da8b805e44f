#include "cli/strokes_json.h"

#include "boatmotion/strokes/stroke_table.h"
#include "common/json_encode.h"

namespace kavela::cli {

namespace {

struct StrokeJson {
    double start = 0;
    double peak = 0;
    double end = 0;
    double cycle = 0;
    double strokeRate = 0;
    double shownRate = 0;
    double aveAcce = 0;
    double maxAcce = 0;
    std::optional<double> force;
    std::optional<double> impulse;
    std::optional<double> power;
    double aveDecce = 0;
    double waterPhase = 0;
    double aerealPhase = 0;
    double roll = 0;
    std::int64_t hand = 0;
    double confidence = 0;
    std::optional<double> speed;
    std::optional<double> metresPerStroke;
    bool endOfBout = false;
    bool steering = false;
};
BOOST_DESCRIBE_STRUCT(StrokeJson, (),
                      (start, peak, end, cycle, strokeRate, shownRate, aveAcce, maxAcce, force,
                       impulse, power, aveDecce, waterPhase, aerealPhase, roll, hand, confidence,
                       speed, metresPerStroke, endOfBout, steering))

struct TurnJson {
    double start = 0;
    double peak = 0;
    double end = 0;
    double angle = 0;
    double rotationTime = 0;
    double rotSpeedPeak = 0;
    double aveRotSpeed = 0;
    double pushOutPeak = 0;
    double pushOutAve = 0;
    double aveRoll = 0;
    double avePitch = 0;
};
BOOST_DESCRIBE_STRUCT(TurnJson, (),
                      (start, peak, end, angle, rotationTime, rotSpeedPeak, aveRotSpeed,
                       pushOutPeak, pushOutAve, aveRoll, avePitch))

struct TotalsJson {
    double seconds = 0;
    std::int64_t strokes = 0;
    std::int64_t left = 0;
    std::int64_t right = 0;
    std::int64_t bouts = 0;
    std::int64_t leftTurns = 0;
    std::int64_t rightTurns = 0;
    double medianRate = 0;
    double waterPhase = 0;
    std::optional<double> distance;
    std::optional<double> meanSpeed;
    std::optional<double> topSpeed;
    std::optional<double> force;
    std::optional<double> impulse;
    std::optional<double> power;
};
BOOST_DESCRIBE_STRUCT(TotalsJson, (),
                      (seconds, strokes, left, right, bouts, leftTurns, rightTurns, medianRate,
                       waterPhase, distance, meanSpeed, topSpeed, force, impulse, power))

struct ProfileJson {
    double mass = 0;
    double drag = 0;
    std::string boat;
};
BOOST_DESCRIBE_STRUCT(ProfileJson, (), (mass, drag, boat))

struct AnalysisJson {
    ProfileJson profile;
    double start = 0;       ///< the first sample's moment
    double clockOffset = 0; ///< date = moment + clockOffset
    bool hasSpeed = false;
    bool usedWatch = false;
    std::vector<std::string> notes;
    std::vector<StrokeJson> strokes;
    std::vector<TurnJson> turns;
    TotalsJson totals;
};
BOOST_DESCRIBE_STRUCT(AnalysisJson, (),
                      (profile, start, clockOffset, hasSpeed, usedWatch, notes, strokes, turns,
                       totals))

StrokeJson strokeJson(const MotionAnalysis& analysis, std::size_t index) {
    const Stroke& stroke = analysis.strokes[index];
    const smartStraight_v3& values = stroke.values;
    const auto known = [&](double value) {
        return analysis.hasSpeed ? std::optional(value) : std::nullopt;
    };
    return {.start = stroke.catchTime,
            .peak = stroke.peakTime,
            .end = stroke.exitTime,
            .cycle = stroke.cycle,
            .strokeRate = values.strokeRate,
            .shownRate = analysis.strokeRates[index],
            .aveAcce = values.aveAcce,
            .maxAcce = values.maxAcce,
            .force = known(values.force),
            .impulse = known(values.impulse),
            .power = known(values.power),
            .aveDecce = values.aveDecce,
            .waterPhase = values.waterPhase,
            .aerealPhase = values.aerealPhase,
            .roll = values.roll,
            .hand = values.hand,
            .confidence = stroke.confidence,
            .speed = known(stroke.speed),
            .metresPerStroke = stroke.efficiency,
            .endOfBout = stroke.endOfBout,
            .steering = stroke.steering};
}

TurnJson turnJson(const Turn& turn) {
    const smartRotation& values = turn.values;
    return {turn.start,          turn.peak,           turn.end,           turn.angle,
            values.rotationTime, values.rotSpeedPeak, values.aveRotSpeed, values.pushOutPeak,
            values.pushOutAve,   values.aveRoll,      values.avePitch};
}

TotalsJson totalsJson(const SessionTotals& totals) {
    const auto count = [](std::size_t value) { return static_cast<std::int64_t>(value); };
    return {.seconds = totals.seconds,
            .strokes = count(totals.strokes),
            .left = count(totals.left),
            .right = count(totals.right),
            .bouts = count(totals.bouts),
            .leftTurns = count(totals.leftTurns),
            .rightTurns = count(totals.rightTurns),
            .medianRate = totals.medianRate,
            .waterPhase = totals.waterPhase,
            .distance = totals.distance,
            .meanSpeed = totals.meanSpeed,
            .topSpeed = totals.topSpeed,
            .force = totals.force,
            .impulse = totals.impulse,
            .power = totals.power};
}

} // namespace

std::string strokesJson(const MotionAnalysis& analysis, const MotionProfile& profile) {
    AnalysisJson json;
    json.profile = {profile.mass, profile.drag,
                    profile.boat == BoatClass::Canoe ? "canoe" : "kayak"};
    json.start = analysis.series.time.front();
    json.clockOffset = analysis.clockOffset;
    json.hasSpeed = analysis.hasSpeed;
    json.usedWatch = analysis.usedWatch;
    for (const MotionFlag flag : analysis.flags)
        json.notes.emplace_back(textOf(flag));
    for (std::size_t i = 0; i < analysis.strokes.size(); ++i)
        json.strokes.push_back(strokeJson(analysis, i));
    for (const Turn& turn : analysis.turns)
        json.turns.push_back(turnJson(turn));
    json.totals = totalsJson(totalsOf(analysis));
    return encode(json) + '\n';
}

} // namespace kavela::cli
