#include "boatmotion/strokes/motion_analysis.h"

#include "boatmotion/strokes/axes.h"
#include "boatmotion/strokes/filters.h"
#include "boatmotion/strokes/hands.h"
#include "boatmotion/strokes/phases.h"
#include "boatmotion/strokes/slips.h"
#include "boatmotion/strokes/speed.h"
#include "boatmotion/strokes/stroke_values.h"
#include "boatmotion/strokes/turns.h"
#include "boatmotion/strokes/unknown_bow.h"
#include "boatmotion/strokes/watch.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

using namespace strokes;

constexpr std::size_t LeastSamples = 100;

MotionGrid boatGrid(const MotionSamples& samples) {
    MotionGrid grid = gridOf(samples.boat);
    if (grid.samples < LeastSamples)
        throw MotionError("The recording has too few motion samples of the boat to find strokes: " +
                          std::to_string(grid.samples) + " can be used, " +
                          std::to_string(LeastSamples) + " are needed");
    return grid;
}

void checkProfile(const MotionProfile& profile) {
    const auto isWithin = [](double value, double least, double most) {
        return value >= least && value <= most;
    };
    if (!isWithin(profile.mass, 1, 1000))
        throw MotionError("The mass must be a number of kilograms from 1 to 1000");
    if (!isWithin(profile.drag, 0, 100))
        throw MotionError("The drag must be a number from 0 to 100 N·s²/m²");
    if (!isWithin(profile.leastTurnAngle, 0, 1e3) || !isWithin(profile.leastTurnPeak, 0, 1e3))
        throw MotionError("The least angle and yaw rate of a turn must be 0 or above");
}

/// The angle from the trim, from -π to π.
double aboutTrim(double angle, double trim) {
    using std::numbers::pi;
    const double difference = angle - trim;
    if (difference > pi)
        return difference - 2 * pi;
    return difference < -pi ? difference + 2 * pi : difference;
}

/// Puts the motion into boat axes. Roll and pitch are angles of gravity, about the trim.
void fillSeries(MotionGrid& grid, LevelMotion& level, const Bow& bow, MotionSeries& series) {
    const std::size_t size = grid.size();
    series.time = std::move(grid.time);
    series.valid = std::move(grid.valid);
    series.yawRate = std::move(level.yawRate);
    series.roll.resize(size);
    series.pitch.resize(size);
    Vector ahead;
    Vector left;
    for (std::size_t k = 0; k < 3; ++k) {
        ahead[k] = bow.east * level.east[k] + bow.north * level.north[k];
        left[k] = -bow.north * level.east[k] + bow.east * level.north[k];
    }
    for (std::size_t i = 0; i < size; ++i) {
        const Vector down{grid.gravity[0][i], grid.gravity[1][i], grid.gravity[2][i]};
        const double below = -dot(down, level.up);
        series.roll[i] = std::atan2(-dot(down, left), below);
        series.pitch[i] = std::atan2(-dot(down, ahead), below);
    }
    constexpr std::size_t Stride = 16;
    const double rollTrim = sparseMedian(series.roll, Stride);
    const double pitchTrim = sparseMedian(series.pitch, Stride);
    for (std::size_t i = 0; i < size; ++i) {
        series.roll[i] = series.valid[i] ? aboutTrim(series.roll[i], rollTrim) : 0;
        series.pitch[i] = series.valid[i] ? aboutTrim(series.pitch[i], pitchTrim) : 0;
    }
}

/// The series with what is filtered out of them.
struct Filtered {
    std::vector<double> forward6; ///< forward acceleration below 6 Hz
    std::vector<double> yaw3;     ///< yaw rate below 3 Hz
    std::vector<double> yawMean;
};

Filtered filtered(const MotionSeries& series) {
    Filtered result{series.forward, series.yawRate, movingMean(series.yawRate, 1.6)};
    filterBothWays<2>({lowPass(6), lowPass(3)},
                      {std::span(result.forward6), std::span(result.yaw3)});
    return result;
}

void fillForce(const std::vector<double>& forward6, const MotionProfile& profile,
               MotionSeries& series) {
    series.force.resize(series.size());
    for (std::size_t i = 0; i < series.size(); ++i)
        series.force[i] =
            profile.mass * forward6[i] + profile.drag * series.speed[i] * series.speed[i];
}

void decideHandsWithWatch(const StrokeView& view, std::span<const WaterPhase> phases,
                          std::span<const watchmotiondata_v5> watch, MotionAnalysis& analysis) {
    const HandEvidence seen = handEvidence(view, phases);
    std::vector<double> scores = seen.scores;
    if (!watch.empty()) {
        if (auto evidence = watchEvidence(view, phases, scores, gridOf(watch))) {
            scores = std::move(evidence->scores);
            analysis.watchOffset = evidence->offset;
            analysis.usedWatch = true;
        } else {
            analysis.flags.push_back(MotionFlag::WatchIgnored);
        }
    }
    decideHands(seen, scores, analysis.strokes);
}

void findStrokes(std::span<const watchmotiondata_v5> watch, const MotionProfile& profile,
                 const Filtered& motion, MotionAnalysis& analysis) {
    std::vector<double> periods;
    const std::vector<double> signal = detectionSignal(analysis.series.forward, periods);
    const StrokeView view{analysis.series, profile, analysis.hasSpeed, motion.forward6, motion.yaw3,
                          motion.yawMean,  periods};
    const Swings swings = findSwings(signal, analysis.series.valid);
    const std::vector<WaterPhase> phases = waterPhases(view, strokePeaks(view, swings));
    analysis.strokes = measureStrokes(view, phases);
    decideHandsWithWatch(view, phases, watch, analysis);
    analysis.strokeRates = shownRates(analysis.strokes);
}

} // namespace

MotionProfile profileOf(const infoathlete_v5& athlete) {
    constexpr double BoatAndKit = 13; // kg
    MotionProfile profile;
    if (athlete.weight >= 25 && athlete.weight <= 250)
        profile.mass = athlete.weight + BoatAndKit;
    const std::string& discipline = athlete.discipline;
    if (!discipline.empty() && (discipline.front() == 'C' || discipline.front() == 'c'))
        profile.boat = BoatClass::Canoe;
    return profile;
}

bool MotionAnalysis::has(MotionFlag flag) const {
    return std::find(flags.begin(), flags.end(), flag) != flags.end();
}

MotionAnalysis analyseMotion(const MotionSamples& samples, const MotionProfile& profile) {
    checkProfile(profile);
    MotionGrid grid = boatGrid(samples);
    MotionAnalysis analysis;
    const auto flagIf = [&](bool applies, MotionFlag flag) {
        if (applies)
            analysis.flags.push_back(flag);
    };
    const ClockRelation clocks =
        clockRelation(grid.time.front(), grid.time.back(), samples.gps, samples.start);
    analysis.clockOffset = clocks.offset;
    const std::vector<SpeedFix> fixes = speedFixes(samples.gps, clocks.offset);
    analysis.hasSpeed = canTellSpeed(grid, fixes);
    flagIf(!analysis.hasSpeed, MotionFlag::NoPosition);
    flagIf(analysis.hasSpeed && clocks.isGuessed, MotionFlag::GuessedClocks);
    flagIf(grid.hasHoles, MotionFlag::HasHoles);
    flagIf(grid.gravityRebuilt, MotionFlag::GravityRebuilt);

    analysis.slips = straightenSlips(grid, profile.boat);
    flagIf(!analysis.slips.empty(), MotionFlag::PhoneSlipped);

    LevelMotion level = levelMotion(grid);
    const Bow bow = findBow(grid, level, fixes, profile.mount);
    analysis.fixLag = bow.fixLag;
    analysis.bowCertainty = bow.certainty;
    flagIf(bow.isAssumed, MotionFlag::MountAssumed);
    flagIf(!bow.isKnown, MotionFlag::UnknownMount);

    MotionSeries& series = analysis.series;
    series.forward = forwardAcceleration(level, bow);
    if (analysis.hasSpeed)
        series.speed = joinSpeed(grid, series.forward, fixes, bow.fixLag);
    else
        series.speed.assign(grid.size(), 0);
    fillSeries(grid, level, bow, series);
    const Filtered motion = filtered(series);
    fillForce(motion.forward6, profile, series);
    findStrokes(samples.watch, profile, motion, analysis);
    analysis.turns = findTurns(series, motion.yaw3, profile);
    analysis.isBowKnown = bow.isKnown;
    if (!analysis.isBowKnown)
        withholdWhatNeedsTheBow(analysis);
    return analysis;
}

MotionAnalysis analyseMotion(const bmrawdata_v5& session, const MotionProfile& profile) {
    return analyseMotion({session.boatmotion, session.watchmotion, session.gps, session.info.date},
                         profile);
}

} // namespace kavela
