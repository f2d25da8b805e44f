#include "sample/tests.h"

#include "common/number_text.h"
#include "planning/eight_test.h"
#include "planning/test_entry.h"
#include "sample/courses.h"
#include "sample/dice.h"

#include <chrono>
#include <cmath>
#include <numbers>

namespace kavela::sample {

namespace {

using namespace std::chrono_literals;
using std::numbers::pi;

struct Tested {
    const char* name;
    const char* category;
    double pace;       ///< 1 for the fastest
    double strokeRate; ///< strokes per minute, fresh
    double mass;       ///< kilograms with boat
};

constexpr Tested TestedGroup[] = {{"THORNWICK Callum", "MK1", 1, 84, 87},
                                  {"PENTORRAN Rhys", "MK1", 1.035, 90, 82},
                                  {"MILLBRACE Freya", "WK1", 1.1, 86, 72},
                                  {"EDDELSTON Benjamin", "MC1", 1.07, 64, 88}};

/// How a day's test went: the form grows over the spring, and fades within a test.
struct Effort {
    const Tested& athlete;
    double form; ///< 1, and below for a better day
    double fade; ///< share of the speed lost from the first second to the last
};

double roundedTo(double value, double scale) {
    return std::round(value * scale) / scale;
}

/// The strokes of a test of so many seconds.
void paddle(testStruct& test, const Effort& effort, double seconds, double metresPerSecond,
            Dice& dice) {
    double at = 0.3;
    while (at < seconds) {
        const double tired = 1 - effort.fade * at / seconds;
        const double rate = effort.athlete.strokeRate / effort.form * tired + dice.bell(2.2);
        const double cycle = 60 / rate;
        const double speed = metresPerSecond * tired + dice.bell(0.04);
        const double push = (2.6 / effort.form) * tired * tired + dice.bell(0.22);
        const double water = cycle * (0.6 + 0.05 * (1 - tired)) + dice.bell(0.012);
        const double force = effort.athlete.mass * push * 0.42 + 5 * speed * speed;
        test.strokeDate.push_back({test.date.seconds + roundedTo(at, 100)});
        test.strokeRate.push_back(roundedTo(rate, 10));
        test.strokeEfficiency.push_back(roundedTo(speed * cycle, 100));
        test.maxAcce.push_back(roundedTo(push, 100));
        test.aveAcce.push_back(roundedTo(push * 0.45, 100));
        test.avedeacce.push_back(roundedTo(-push * 0.52 + dice.bell(0.08), 100));
        test.maxAcceNeg.push_back(roundedTo(-push * 0.9 + dice.bell(0.15), 100));
        test.maxForce.push_back(roundedTo(force * 1.55, 10));
        test.impulses.push_back(roundedTo(force * water, 10));
        test.pow.push_back(roundedTo(force * water * speed / cycle, 10));
        test.waterPhase.push_back(roundedTo(water, 1000));
        test.airPhase.push_back(roundedTo(cycle - water, 1000));
        test.roll.push_back(roundedTo(std::abs(0.11 + 0.05 * (1 - tired) + dice.bell(0.02)), 1000));
        at += cycle;
    }
    for (double second = 0; second <= seconds; second += 1) {
        const double started = 1 - std::exp(-second / 1.4);
        test.speedDate.push_back({test.date.seconds + second});
        const double speed =
            started * (metresPerSecond * (1 - effort.fade * second / seconds) + dice.bell(0.06));
        test.speed.push_back(roundedTo(speed, 100));
    }
}

testStruct newTest(const Tested& athlete, ReferenceDate date) {
    testStruct test;
    test.athlete = athlete.name;
    test.date = date;
    test.location = homeWater().place;
    return test;
}

onWaterTest lapTest(const Effort& effort, ReferenceDate date) {
    Dice dice(std::string("lap test ") + effort.athlete.name + dayText(date));
    onWaterTest made;
    made.test = newTest(effort.athlete, date);
    testStruct& test = made.test;
    for (std::int64_t lap = 0; lap < made.laps; ++lap) {
        const double tired =
            1 + effort.fade * static_cast<double>(lap) / static_cast<double>(made.laps);
        const double time =
            roundedToHundredths(13.1 * effort.athlete.pace * effort.form * tired + dice.bell(0.14));
        const double left = roundedTo(2.35 * tired + dice.bell(0.09), 100);
        const double right = roundedTo(2.5 * tired + dice.bell(0.09), 100);
        test.splits.push_back(time);
        test.totalTime += time;
        test.leftRotationsTime.push_back(left);
        test.rightRotationsTime.push_back(right);
        test.leftRotations.push_back(roundedTo(2.6 / tired + dice.bell(0.12), 100));
        test.rightRotations.push_back(roundedTo(2.4 / tired + dice.bell(0.12), 100));
        test.straightTime.push_back(roundedToHundredths(time - left - right));
        test.aveSpeed.push_back(roundedTo(2 * made.distance / time, 1000));
    }
    test.totalTime = roundedToHundredths(test.totalTime);
    paddle(test, effort, test.totalTime, 2 * made.distance / (test.totalTime / 5), dice);
    return made;
}

onWaterTest sprint(const Effort& effort, ReferenceDate date) {
    Dice dice(std::string("sprint ") + effort.athlete.name + dayText(date));
    onWaterTest made;
    made.kind = water_test::Sprint;
    made.laps = 0;
    made.distance = 0;
    made.test = newTest(effort.athlete, date);
    const double best = 3.75 / effort.athlete.pace / effort.form;
    const double stretch =
        water_test::SprintSeconds / static_cast<double>(water_test::SprintStretches);
    for (std::size_t i = 0; i < water_test::SprintStretches; ++i) {
        const double tired = 1 - effort.fade * static_cast<double>(i) /
                                     static_cast<double>(water_test::SprintStretches);
        made.test.splits.push_back(stretch);
        made.test.straightTime.push_back(stretch);
        made.test.aveSpeed.push_back(
            roundedTo(best * tired * (i == 0 ? 0.86 : 1) + dice.bell(0.03), 1000));
    }
    made.test.totalTime = water_test::SprintSeconds;
    paddle(made.test, {effort.athlete, effort.form * 0.92, effort.fade}, water_test::SprintSeconds,
           best, dice);
    return made;
}

/// Five loops, each a turn to the left and one to the right, with the boat's sway on top.
void turnAround(datafor8& run, ReferenceDate begin, Dice& dice) {
    constexpr double ValuesPerSecond = 4;
    double start = 0;
    for (const double split : splitsOf(run)) {
        const double left = 2.7 + dice.bell(0.18);
        const double right = 2.5 + dice.bell(0.18);
        const double end = start + split;
        while (static_cast<double>(run.date.size()) / ValuesPerSecond < end) {
            const double at = static_cast<double>(run.date.size()) / ValuesPerSecond;
            const double part = (at - start) / split;
            const double turn = std::pow(std::sin(2 * pi * part), 3);
            const double sway = std::sin(2 * pi * 1.3 * at);
            run.date.push_back({begin.seconds + at});
            run.zrotation.push_back(roundedTo((turn > 0 ? left : right) * turn + 0.12 * sway, 100));
            run.xrotation.push_back(roundedTo(0.25 * sway + dice.bell(0.05), 100));
            run.yrotation.push_back(roundedTo(dice.bell(0.1), 100));
            run.xacceleration.push_back(roundedTo(dice.bell(0.04), 100));
            run.yacceleration.push_back(roundedTo(0.16 * sway + dice.bell(0.04), 100));
            run.zacceleration.push_back(roundedTo(dice.bell(0.05), 100));
            run.pitch.push_back(roundedTo(0.04 + dice.bell(0.02), 100));
            run.roll.push_back(roundedTo(-0.2 * turn + dice.bell(0.02), 100));
            run.yaw.push_back(roundedTo(pi * (1 - std::cos(2 * pi * part)) / 2, 100));
            run.xgravity.push_back(roundedTo(-0.2 * turn, 100));
            run.ygravity.push_back(0.04);
            run.zgravity.push_back(-0.98);
        }
        start = end;
    }
}

onWaterEight eightTest(const Effort& effort, ReferenceDate date) {
    Dice dice(std::string("eight test ") + effort.athlete.name);
    onWaterEight made{date, homeWater().place, {}};
    made.run.athlete = effort.athlete.name;
    made.run.cat = effort.athlete.category;
    made.run.phase = "Run 1";
    std::array<double, 5> splits{};
    for (double& split : splits)
        split = roundedToHundredths(14.2 * effort.athlete.pace * effort.form + dice.bell(0.28));
    setSplits(made.run, splits);
    turnAround(made.run, date, dice);
    scoreEightTest(made.run);
    return made;
}

} // namespace

onWaterTests formTests() {
    onWaterTests tests;
    double minute = 0;
    for (const Tested& athlete : TestedGroup) {
        const auto at = [&](std::chrono::year_month_day day, double hour) {
            return referenceDate(day, hour * 3600 + minute * 60);
        };
        tests.tests.push_back(lapTest({athlete, 1.035, 0.13}, at(2026y / 3 / 10, 9)));
        tests.tests.push_back(lapTest({athlete, 1.015, 0.1}, at(2026y / 4 / 14, 9)));
        tests.tests.push_back(lapTest({athlete, 1, 0.08}, at(2026y / 5 / 19, 9)));
        tests.tests.push_back(sprint({athlete, 1.02, 0.16}, at(2026y / 4 / 15, 16)));
        tests.tests.push_back(sprint({athlete, 1, 0.13}, at(2026y / 5 / 20, 16)));
        tests.eights.push_back(eightTest({athlete, 1, 0}, at(2026y / 5 / 21, 10)));
        minute += 8;
    }
    return tests;
}

} // namespace kavela::sample
