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
    std::optional<double> aveAcce;
    std::optional<double> maxAcce;
    std::optional<double> force;
    std::optional<double> impulse;
    std::optional<double> power;
    std::optional<double> aveDecce;
    std::optional<double> waterPhase;
    std::optional<double> aerealPhase;
    std::optional<double> roll;
    std::optional<std::int64_t> hand;
    std::optional<double> confidence;
    std::optional<double> speed;
    std::optional<double> metresPerStroke;
    bool endOfBout = false;
    std::optional<bool> steering;
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
    std::optional<double> pushOutPeak;
    std::optional<double> pushOutAve;
    std::optional<double> aveRoll;
    std::optional<double> avePitch;
};
BOOST_DESCRIBE_STRUCT(TurnJson, (),
                      (start, peak, end, angle, rotationTime, rotSpeedPeak, aveRotSpeed,
                       pushOutPeak, pushOutAve, aveRoll, avePitch))

struct TotalsJson {
    double seconds = 0;
    std::int64_t strokes = 0;
    std::optional<std::int64_t> left;
    std::optional<std::int64_t> right;
    std::int64_t bouts = 0;
    std::int64_t leftTurns = 0;
    std::int64_t rightTurns = 0;
    double medianRate = 0;
    std::optional<double> waterPhase;
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

struct SlipJson {
    double time = 0;
    double angle = 0;
};
BOOST_DESCRIBE_STRUCT(SlipJson, (), (time, angle))

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
    bool isBowKnown = false;
    bool usedWatch = false;
    std::vector<std::string> notes;
    std::vector<SlipJson> slips;
    std::vector<StrokeJson> strokes;
    std::vector<TurnJson> turns;
    TotalsJson totals;
};
BOOST_DESCRIBE_STRUCT(AnalysisJson, (),
                      (profile, start, clockOffset, hasSpeed, isBowKnown, usedWatch, notes, slips,
                       strokes, turns, totals))

/// The value; nothing, which is written as null, where it is not known.
template <class T>
std::optional<T> knownIf(bool isKnown, T value) {
    return isKnown ? std::optional(value) : std::nullopt;
}

StrokeJson strokeJson(const MotionAnalysis& analysis, std::size_t index) {
    const Stroke& stroke = analysis.strokes[index];
    const smartStraight_v3& values = stroke.values;
    const bool hasBow = analysis.isBowKnown;
    const bool hasForce = analysis.hasForce();
    return {.start = stroke.catchTime,
            .peak = stroke.peakTime,
            .end = stroke.exitTime,
            .cycle = stroke.cycle,
            .strokeRate = values.strokeRate,
            .shownRate = analysis.strokeRates[index],
            .aveAcce = knownIf(hasBow, values.aveAcce),
            .maxAcce = knownIf(hasBow, values.maxAcce),
            .force = knownIf(hasForce, values.force),
            .impulse = knownIf(hasForce, values.impulse),
            .power = knownIf(hasForce, values.power),
            .aveDecce = knownIf(hasBow, values.aveDecce),
            .waterPhase = knownIf(hasBow, values.waterPhase),
            .aerealPhase = knownIf(hasBow, values.aerealPhase),
            .roll = knownIf(hasBow, values.roll),
            .hand = knownIf(values.hand != UnknownHand, values.hand),
            .confidence = knownIf(values.hand != UnknownHand, stroke.confidence),
            .speed = knownIf(analysis.hasSpeed, stroke.speed),
            .metresPerStroke = stroke.efficiency,
            .endOfBout = stroke.endOfBout,
            .steering = knownIf(hasBow, stroke.steering)};
}

TurnJson turnJson(const Turn& turn, bool isBowKnown) {
    const smartRotation& values = turn.values;
    return {.start = turn.start,
            .peak = turn.peak,
            .end = turn.end,
            .angle = turn.angle,
            .rotationTime = values.rotationTime,
            .rotSpeedPeak = values.rotSpeedPeak,
            .aveRotSpeed = values.aveRotSpeed,
            .pushOutPeak = knownIf(isBowKnown, values.pushOutPeak),
            .pushOutAve = knownIf(isBowKnown, values.pushOutAve),
            .aveRoll = knownIf(isBowKnown, values.aveRoll),
            .avePitch = knownIf(isBowKnown, values.avePitch)};
}

TotalsJson totalsJson(const SessionTotals& totals) {
    const auto count = [](std::size_t value) { return static_cast<std::int64_t>(value); };
    return {.seconds = totals.seconds,
            .strokes = count(totals.strokes),
            .left = totals.left ? std::optional(count(*totals.left)) : std::nullopt,
            .right = totals.right ? std::optional(count(*totals.right)) : std::nullopt,
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
    json.isBowKnown = analysis.isBowKnown;
    json.usedWatch = analysis.usedWatch;
    json.notes = notesOf(analysis);
    for (const PhoneSlip& slip : analysis.slips)
        json.slips.push_back({slip.time, slip.angle});
    for (std::size_t i = 0; i < analysis.strokes.size(); ++i)
        json.strokes.push_back(strokeJson(analysis, i));
    for (const Turn& turn : analysis.turns)
        json.turns.push_back(turnJson(turn, analysis.isBowKnown));
    json.totals = totalsJson(totalsOf(analysis));
    return encode(json) + '\n';
}

} // namespace kavela::cli
