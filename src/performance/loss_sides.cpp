#include "performance/loss_sides.h"

#include "common/number_text.h"
#include "common/percentile.h"
#include "performance/loss_rules.h"
#include "splitdata/frame_step.h"
#include "splitdata/run_totals.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace kavela {

namespace {

/// The times of the course's sections; what a run has beyond them is no part of it.
std::vector<double> lossSectionTimes(const FactStore& facts, const RunRow& run) {
    std::vector<double> times(facts.fileOf(run).sections, NotKnown);
    const auto sections = facts.sectionsOf(run);
    for (std::size_t k = 0; k < std::min(times.size(), sections.size()); ++k)
        if (isTakenTime(sections[k].time))
            times[k] = sections[k].time;
    return times;
}

void sortByGate(std::vector<LossGate>& gates) {
    std::ranges::stable_sort(gates, {}, &LossGate::gate);
}

/// The first entry of each gate.
std::vector<LossGate> lossGatesOf(const FactStore& facts, const RunRow& run) {
    std::vector<LossGate> gates;
    for (const GateRow& row : facts.gatesOf(run))
        gates.push_back({row.gate, row.direction, row.style, row.time, row.entrance, row.exit});
    sortByGate(gates);
    const auto again = std::ranges::unique(gates, {}, &LossGate::gate);
    gates.erase(again.begin(), again.end());
    return gates;
}

std::vector<std::int32_t> gatesOfPool(const FactStore& facts, std::span<const std::size_t> pool) {
    std::vector<std::int32_t> numbers;
    for (const std::size_t run : pool)
        for (const GateRow& row : facts.gatesOf(facts.runs()[run]))
            numbers.push_back(row.gate);
    std::ranges::sort(numbers);
    const auto again = std::ranges::unique(numbers);
    numbers.erase(again.begin(), again.end());
    return numbers;
}

/// The least or the median; what went into it is told by whoever collected it.
double madeOf(std::vector<double> times, bool isMedian, Why* why) {
    if (times.empty())
        return NotKnown;
    std::ranges::sort(times);
    const double made = isMedian ? percentile(times, 0.5) : times.front();
    if (why)
        why->result(ruleOf(isMedian ? LossRule::MedianTime : LossRule::IdealTime), made,
                    hundredthsText(made));
    return made;
}

std::optional<LossTotal> videoTotal(const RunRow& run) {
    if (run.isRefused || !std::isfinite(run.sectionSum))
        return std::nullopt;
    return LossTotal{run.sectionSum + static_cast<double>(run.totalpen), run.totalpen};
}

/// The sum of all sections, when all are there.
std::optional<LossTotal> madeTotal(const std::vector<double>& times) {
    double sum = 0;
    for (const double time : times)
        sum += time;
    if (times.empty() || !std::isfinite(sum))
        return std::nullopt;
    return LossTotal{sum, 0};
}

} // namespace

LossSide paddledSide(const FactStore& facts, std::size_t run, std::string name) {
    const RunRow& row = facts.runs()[run];
    LossSide side;
    side.name = std::move(name);
    side.run = run;
    side.times = lossSectionTimes(facts, row);
    side.gates = lossGatesOf(facts, row);
    if (row.isComplete && row.isOfficial)
        side.official = LossTotal{row.total, row.penalty};
    side.video = videoTotal(row);
    return side;
}

LossSide madeSide(const FactStore& facts, std::vector<std::size_t> pool, bool isMedian,
                  std::string name) {
    LossSide side;
    side.name = std::move(name);
    side.isMedian = isMedian;
    if (pool.empty())
        return side;
    const std::size_t sections = facts.fileOf(facts.runs()[pool.front()]).sections;
    side.times.assign(sections, NotKnown);
    for (std::size_t k = 0; k < sections; ++k) {
        side.times[k] = madeSection(facts, pool, isMedian, k + 1);
        if (std::isnan(side.times[k]))
            break;
    }
    for (const std::int32_t gate : gatesOfPool(facts, pool)) {
        LossGate made{.gate = gate};
        made.time = madeGateTime(facts, pool, isMedian, gate, &GateRow::time);
        made.entrance = madeGateTime(facts, pool, isMedian, gate, &GateRow::entrance);
        made.exit = madeGateTime(facts, pool, isMedian, gate, &GateRow::exit);
        side.gates.push_back(made);
    }
    side.video = madeTotal(side.times);
    side.pool = std::move(pool);
    return side;
}

double madeSection(const FactStore& facts, std::span<const std::size_t> pool, bool isMedian,
                   std::size_t section, Why* why) {
    std::vector<double> times;
    for (const std::size_t run : pool) {
        const auto sections = facts.sectionsOf(facts.runs()[run]);
        if (section > sections.size())
            continue;
        const SectionRow& row = sections[section - 1];
        if (!row.standsAlone || !isTakenTime(row.time))
            continue;
        times.push_back(row.time);
        if (why)
            why->input(std::string(facts.text(facts.runs()[run].crew)), row.time,
                       lossPlace(facts, run, section), markUncertainty(facts, run), HalfFrameTwice);
    }
    return madeOf(std::move(times), isMedian, why);
}

double madeGateTime(const FactStore& facts, std::span<const std::size_t> pool, bool isMedian,
                    std::int32_t gate, double GateRow::*time, Why* why) {
    std::vector<double> times;
    for (const std::size_t run : pool) {
        const RunRow& row = facts.runs()[run];
        const GateRow* const entry = firstEntry(facts, row, gate);
        if (!entry || !isTakenTime(entry->*time))
            continue;
        times.push_back(entry->*time);
        if (why) {
            Place place = lossPlace(facts, run);
            place.gate = static_cast<std::size_t>(gate);
            why->input(std::string(facts.text(row.crew)), entry->*time, std::move(place),
                       markUncertainty(facts, run), HalfFrameTwice);
        }
    }
    return madeOf(std::move(times), isMedian, why);
}

const GateRow* firstEntry(const FactStore& facts, const RunRow& run, std::int32_t gate) {
    const auto rows = facts.gatesOf(run);
    const auto found = std::ranges::find(rows, gate, &GateRow::gate);
    return found == rows.end() ? nullptr : &*found;
}

double markUncertainty(const FactStore& facts, std::size_t run) {
    const double frame = facts.runs()[run].frame;
    return std::isfinite(frame) ? frame : 0;
}

void tellFourMarks(const LossPair& pair, double loss, Why& why) {
    if (!pair.own.run || !pair.reference.run)
        return;
    const double own = markUncertainty(pair.facts, *pair.own.run);
    const double reference = markUncertainty(pair.facts, *pair.reference.run);
    if (own == 0 || reference == 0)
        return;
    const auto rounded = [](double seconds) { return std::round(seconds * 1e6) / 1e6; };
    why.uncertain({rounded(loss - own - reference), rounded(loss + own + reference)},
                  "half a frame, four marks");
}

Place lossPlace(const FactStore& facts, std::size_t run, std::optional<std::size_t> section) {
    constexpr std::int32_t Ticks = 90000; // divides the frames of every usual film
    constexpr std::uint32_t Valid = 1;
    const RunRow& row = facts.runs()[run];
    Place place;
    place.file = facts.pathOf(row);
    place.run = row.number;
    place.split = section;
    const auto sections = facts.sectionsOf(row);
    if (section && *section <= sections.size() && std::isfinite(sections[*section - 1].end))
        place.moment = CMTime{std::llround(sections[*section - 1].end * Ticks), Ticks, Valid, 0};
    return place;
}

} // namespace kavela
