#include "planning/test_from_motion.h"

#include "boatmotion/strokes/water_tests.h"
#include "planning/eight_test.h"
#include "planning/test_entry.h"
#include "planning/test_from_run.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

/// Of 50 samples of speed a second every fifth is kept.
constexpr std::size_t SpeedStep = 5;

/// The samples of a series from one moment up to another.
struct SampleRange {
    std::size_t first = 0;
    std::size_t end = 0;
};

SampleRange samplesWithin(const MotionSeries& series, double start, double end) {
    const auto place = [&](double moment) {
        return static_cast<std::size_t>(std::ranges::lower_bound(series.time, moment) -
                                        series.time.begin());
    };
    return {place(start), place(end)};
}

double extremeOf(const std::vector<double>& values, SampleRange range, bool isGreatest) {
    if (range.first >= range.end)
        return 0;
    const auto first = values.begin() + static_cast<std::ptrdiff_t>(range.first);
    const auto end = values.begin() + static_cast<std::ptrdiff_t>(range.end);
    return isGreatest ? *std::max_element(first, end) : *std::min_element(first, end);
}

void addStroke(testStruct& test, const MotionAnalysis& motion, std::size_t index) {
    const Stroke& stroke = motion.strokes[index];
    const smartStraight_v3& values = stroke.values;
    const MotionSeries& series = motion.series;
    const SampleRange water = samplesWithin(series, stroke.catchTime, stroke.exitTime);
    const SampleRange cycle =
        samplesWithin(series, stroke.catchTime, stroke.catchTime + stroke.cycle);
    test.strokeDate.push_back({stroke.catchTime + motion.clockOffset});
    test.strokeRate.push_back(index < motion.strokeRates.size() ? motion.strokeRates[index]
                                                                : values.strokeRate);
    test.strokeEfficiency.push_back(stroke.efficiency.value_or(0));
    test.maxAcce.push_back(values.maxAcce);
    test.aveAcce.push_back(values.aveAcce);
    test.avedeacce.push_back(values.aveDecce);
    test.maxForce.push_back(motion.hasForce() ? std::max(extremeOf(series.force, water, true), 0.0)
                                              : 0);
    test.impulses.push_back(values.impulse);
    test.maxAcceNeg.push_back(
        motion.isBowKnown ? std::min(extremeOf(series.forward, cycle, false), 0.0) : 0);
    test.pow.push_back(values.power);
    test.waterPhase.push_back(values.waterPhase);
    test.airPhase.push_back(values.aerealPhase);
    test.roll.push_back(values.roll);
}

void addStrokes(testStruct& test, const MotionAnalysis& motion, double start, double end) {
    for (std::size_t i = 0; i < motion.strokes.size(); ++i)
        if (motion.strokes[i].catchTime >= start && motion.strokes[i].catchTime < end)
            addStroke(test, motion, i);
}

void addTurns(testStruct& test, const MotionAnalysis& motion, double start, double end) {
    for (const Turn& turn : motion.turns) {
        if (turn.peak < start || turn.peak >= end)
            continue;
        const bool isLeft = turn.angle > 0;
        (isLeft ? test.leftRotations : test.rightRotations).push_back(turn.values.rotSpeedPeak);
        (isLeft ? test.leftRotationsTime : test.rightRotationsTime)
            .push_back(turn.values.rotationTime);
    }
}

void addSpeed(testStruct& test, const MotionAnalysis& motion, double start, double end) {
    if (!motion.hasSpeed)
        return;
    const SampleRange range = samplesWithin(motion.series, start, end);
    for (std::size_t i = range.first; i < range.end; i += SpeedStep) {
        test.speedDate.push_back({motion.series.time[i] + motion.clockOffset});
        test.speed.push_back(motion.series.speed[i]);
    }
}

/// Without position fixes the gates tell how far a lap is.
double speedOf(const onWaterTest& test, const StretchFigures& lap) {
    if (lap.speed)
        return *lap.speed;
    return test.kind == water_test::Lap && lap.seconds > 0 ? 2 * test.distance / lap.seconds : 0;
}

} // namespace

onWaterTest testFromMotion(onWaterTest setUp, const MotionAnalysis& motion, double start,
                           std::span<const double> ends) {
    const testStruct named = std::exchange(setUp.test, {});
    testStruct& test = setUp.test;
    test.athlete = named.athlete;
    test.location = named.location;
    test.date = {start + motion.clockOffset};
    std::vector<double> marks{start};
    marks.insert(marks.end(), ends.begin(), ends.end());
    for (const Lap& lap : lapsBetween(motion, marks)) {
        test.splits.push_back(lap.figures.seconds);
        test.totalTime += lap.figures.seconds;
        test.straightTime.push_back(lap.straight.seconds);
        test.aveSpeed.push_back(speedOf(setUp, lap.figures));
    }
    addStrokes(test, motion, start, marks.back());
    addTurns(test, motion, start, marks.back());
    addSpeed(test, motion, start, marks.back());
    if (setUp.kind == water_test::Lap)
        setUp.laps = static_cast<std::int64_t>(ends.size());
    return setUp;
}

onWaterEight eightFromMotion(const bmrawdata_v5& session, const MotionAnalysis& motion,
                             double start, std::span<const double> ends) {
    onWaterEight eight{{start + motion.clockOffset}, session.info.location, {}};
    eight.run.athlete = session.athleteinfo.name;
    std::array<double, 5> splits{};
    double begin = start;
    for (std::size_t i = 0; i < std::min(ends.size(), splits.size()); ++i) {
        splits[i] = ends[i] - begin;
        begin = ends[i];
    }
    setSplits(eight.run, splits);
    std::vector<boatmotionrawdata_v5> samples;
    std::ranges::copy_if(session.boatmotion, std::back_inserter(samples),
                         [&](const boatmotionrawdata_v5& sample) {
                             return sample.timestamp >= start && sample.timestamp < begin;
                         });
    if (!samples.empty())
        setMotion(eight.run, samples, {samples.front().timestamp + motion.clockOffset});
    scoreEightTest(eight.run);
    return eight;
}

} // namespace kavela
