#include "boatmotion/strokes/stroke_values.h"

#include "boatmotion/strokes/cadence.h"
#include "boatmotion/strokes/filters.h"

#include <algorithm>
#include <cmath>

namespace kavela::strokes {

namespace {

constexpr double LongestCycle = 2;        // s
constexpr double LongestDriving = 0.6;    // s, of a water phase that is not for steering
constexpr double UnknownWaterShare = 1.6; // cycle over water phase, where no cycle is known

/// The moment at a fractional index.
double timeAt(const MotionSeries& series, double index) {
    const auto whole = static_cast<std::size_t>(index);
    return series.time[whole] + (index - static_cast<double>(whole)) * Step;
}

bool hasHole(const MotionSeries& series, double from, double to) {
    const auto begin = series.valid.begin() + static_cast<std::ptrdiff_t>(from);
    const auto end = series.valid.begin() + static_cast<std::ptrdiff_t>(to);
    return std::find(begin, end, std::uint8_t{0}) != end;
}

/// What came together over a stretch.
struct Totals {
    double count = 0;
    double acceleration = 0;
    double greatest = 0;
    double drive = 0; ///< positive force, N times values
    double work = 0;  ///< positive force times speed
    double speed = 0;
    double roll = 0; ///< greatest, either way
};

Totals totalsBetween(const StrokeView& view, double from, double to) {
    const MotionSeries& series = view.series;
    const std::size_t begin =
        std::min(static_cast<std::size_t>(std::lround(from)), series.size() - 1);
    const std::size_t end =
        std::clamp(static_cast<std::size_t>(std::lround(to)), begin + 1, series.size());
    Totals totals{.greatest = view.smoothForward[begin]};
    for (std::size_t i = begin; i < end; ++i) {
        const double force = std::max(0.0, series.force[i]);
        totals.count += 1;
        totals.acceleration += view.smoothForward[i];
        totals.greatest = std::max(totals.greatest, view.smoothForward[i]);
        totals.drive += force;
        totals.work += force * series.speed[i];
        totals.speed += series.speed[i];
        totals.roll = std::max(totals.roll, std::abs(series.roll[i]));
    }
    return totals;
}

/// The time that a stroke has to itself.
struct Cycle {
    double seconds = 0;
    bool endsBout = false;
};

/// From catch to next catch; after a bout's last stroke that of the one before.
std::vector<Cycle> cyclesOf(const StrokeView& view, std::span<const WaterPhase> phases) {
    std::vector<Cycle> cycles(phases.size());
    for (std::size_t i = 0; i < phases.size(); ++i) {
        const double from = phases[i].catchAt;
        const bool isLast = i + 1 == phases.size();
        const double to = isLast ? from : phases[i + 1].catchAt;
        const double seconds = timeAt(view.series, to) - timeAt(view.series, from);
        if (!isLast && seconds > 0 && seconds <= LongestCycle && !hasHole(view.series, from, to)) {
            cycles[i] = {seconds, false};
            continue;
        }
        const bool follows = i > 0 && !cycles[i - 1].endsBout;
        const double period = cadenceAt(view.periods, static_cast<std::size_t>(from));
        const double water = (phases[i].exitAt - from) * Step;
        const double alone = std::max(period, UnknownWaterShare * water);
        cycles[i] = {follows ? cycles[i - 1].seconds : alone, true};
    }
    return cycles;
}

/// Impulse, force, power and speed.
void measureDrive(const Totals& water, const Totals& air, Stroke& stroke) {
    smartStraight_v3& values = stroke.values;
    // Whole values were summed; their mean is brought to the exact length of the phase.
    values.force = water.drive / water.count;
    values.impulse = values.force * values.waterPhase;
    values.power = water.work / water.count * values.waterPhase / stroke.cycle;
    stroke.speed = (water.speed + air.speed) / (water.count + air.count);
    stroke.efficiency = stroke.speed * stroke.cycle;
}

Stroke measured(const StrokeView& view, const WaterPhase& phase, const Cycle& cycle) {
    Stroke stroke;
    stroke.catchTime = timeAt(view.series, phase.catchAt);
    stroke.exitTime = timeAt(view.series, phase.exitAt);
    stroke.peakTime = view.series.time[phase.peak];
    stroke.cycle = cycle.seconds;
    stroke.endOfBout = cycle.endsBout;
    smartStraight_v3& values = stroke.values;
    values.waterPhase = (phase.exitAt - phase.catchAt) * Step;
    values.aerealPhase = std::max(0.0, stroke.cycle - values.waterPhase);
    values.strokeRate = 60 / stroke.cycle;
    const Totals water = totalsBetween(view, phase.catchAt, phase.exitAt);
    const Totals air = totalsBetween(view, phase.exitAt, phase.catchAt + stroke.cycle * Rate);
    values.aveAcce = water.acceleration / water.count;
    values.maxAcce = water.greatest;
    values.aveDecce = air.acceleration / air.count;
    values.roll = water.roll;
    stroke.steering = values.waterPhase > LongestDriving;
    if (view.hasSpeed)
        measureDrive(water, air, stroke);
    return stroke;
}

} // namespace

std::vector<Stroke> measureStrokes(const StrokeView& view, std::span<const WaterPhase> phases) {
    const std::vector<Cycle> cycles = cyclesOf(view, phases);
    std::vector<Stroke> strokes;
    strokes.reserve(phases.size());
    for (std::size_t i = 0; i < phases.size(); ++i)
        strokes.push_back(measured(view, phases[i], cycles[i]));
    return strokes;
}

std::vector<double> shownRates(std::span<const Stroke> strokes) {
    std::vector<double> rates(strokes.size());
    for (std::size_t i = 0; i < strokes.size(); ++i) {
        std::size_t begin = i;
        while (begin > 0 && i - begin < 2 && !strokes[begin - 1].endOfBout)
            --begin;
        std::size_t end = i + 1;
        while (end < strokes.size() && end - i < 3 && !strokes[end - 1].endOfBout)
            ++end;
        std::array<double, 5> some{};
        for (std::size_t k = begin; k < end; ++k)
            some[k - begin] = strokes[k].values.strokeRate;
        rates[i] = percentileOf(std::span(some).first(end - begin), 0.5);
    }
    return rates;
}

} // namespace kavela::strokes
