#include "performance/loss_stretches.h"

#include "analysis/cell_text.h"
#include "common/number_text.h"
#include "performance/loss_counts.h"
#include "performance/loss_rules.h"
#include "splitdata/frame_step.h"
#include "splitdata/run_totals.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <string>

namespace kavela {

namespace {

constexpr std::array<std::string_view, 4> StretchKinds{"upstream", "downstream", "mixed",
                                                       "unknown"};

bool hasUpstreamGate(const LossPair& pair, std::size_t section) {
    const auto upGates = pair.facts.upGatesOf(pair.file);
    const auto gates = pair.facts.definedSection(pair.file, section - 1);
    return std::ranges::find_first_of(gates, upGates) != gates.end();
}

StretchKind kindOfStretch(const LossPair& pair, std::size_t first, std::size_t last) {
    if (!knowsGatesOfSections(pair.facts, pair.file))
        return StretchKind::Unknown;
    if (first != last)
        return StretchKind::Mixed;
    return hasUpstreamGate(pair, first) ? StretchKind::Upstream : StretchKind::Downstream;
}

/// Of a side that somebody paddled.
std::optional<std::int64_t> strokesOf(const LossPair& pair, const LossSide& side, std::size_t first,
                                      std::size_t last) {
    return side.run ? stretchStrokes(pair.facts, *side.run, first, last) : std::nullopt;
}

Stretch stretchBetween(const LossPair& pair, std::size_t first, std::size_t last) {
    Stretch stretch;
    stretch.first = first;
    stretch.last = last;
    stretch.kind = kindOfStretch(pair, first, last);
    stretch.third = static_cast<int>((3 * last + pair.file.sections - 1) / pair.file.sections);
    stretch.time = stretchTime(pair, pair.own, first, last);
    stretch.reference = stretchTime(pair, pair.reference, first, last);
    stretch.loss = stretchLoss(pair, first, last);
    stretch.percent = stretchPercent(pair, first, last);
    stretch.pen = stretchPenalties(pair.facts, *pair.own.run, first, last);
    stretch.strokes = strokesOf(pair, pair.own, first, last);
    stretch.referenceStrokes = strokesOf(pair, pair.reference, first, last);
    return stretch;
}

/// Tells where a side's time of one section comes from.
void tellSection(const LossPair& pair, const LossSide& side, std::size_t section, Why& why) {
    const double time = side.times[section - 1];
    if (side.run) {
        why.input(side.name, time, lossPlace(pair.facts, *side.run, section),
                  markUncertainty(pair.facts, *side.run), HalfFrameTwice);
        return;
    }
    why.input(side.name, time);
    (void)madeSection(pair.facts, side.pool, side.isMedian, section, why.part());
}

/// Tells the two times and not yet what is made of them.
double lossOfTimes(const LossPair& pair, std::size_t first, std::size_t last, Why* why) {
    const double own = stretchTime(pair, pair.own, first, last, why);
    return own - stretchTime(pair, pair.reference, first, last, why);
}

} // namespace

std::string_view kindText(StretchKind kind) {
    return StretchKinds[static_cast<std::size_t>(kind)];
}

std::string sectionsText(std::size_t first, std::size_t last) {
    return first == last ? fmt::format("S{}", last) : fmt::format("S{}-{}", first, last);
}

std::vector<Stretch> stretchesOf(const LossPair& pair) {
    std::vector<Stretch> stretches;
    std::size_t first = 1;
    const std::size_t sections = std::min(pair.own.times.size(), pair.reference.times.size());
    for (std::size_t last = 1; last <= sections; ++last) {
        if (!isTakenTime(pair.own.times[last - 1]) || !isTakenTime(pair.reference.times[last - 1]))
            continue;
        stretches.push_back(stretchBetween(pair, first, last));
        first = last + 1;
    }
    return stretches;
}

double stretchTime(const LossPair& pair, const LossSide& side, std::size_t first, std::size_t last,
                   Why* why) {
    double sum = 0;
    Why* const part = why && first != last ? why->part() : why;
    for (std::size_t section = first; section <= last; ++section) {
        if (!isTakenTime(side.times[section - 1]))
            continue;
        sum += side.times[section - 1];
        if (part)
            tellSection(pair, side, section, *part);
    }
    if (part && part != why) {
        part->result(ruleOf(LossRule::MergedTime), sum, hundredthsText(sum));
        why->input(side.name, sum);
    }
    return sum;
}

double stretchLoss(const LossPair& pair, std::size_t first, std::size_t last, Why* why) {
    const double loss = lossOfTimes(pair, first, last, why);
    if (why) {
        why->result(ruleOf(LossRule::Loss), loss, signedHundredths(loss));
        tellFourMarks(pair, loss, *why);
    }
    return loss;
}

double stretchPercent(const LossPair& pair, std::size_t first, std::size_t last, Why* why) {
    const double reference = stretchTime(pair, pair.reference, first, last);
    const double percent = 100 * lossOfTimes(pair, first, last, why) / reference;
    if (why)
        why->result(ruleOf(LossRule::LossPercent), percent, fmt::format("{:+.1f} %", percent));
    return percent;
}

double lossBetween(const LossPair& pair, const Stretch& stretch, Why* why) {
    const double loss = stretchLoss(pair, stretch.first, stretch.last, why ? why->part() : nullptr);
    double between = loss;
    if (why)
        why->input("loss", loss, lossPlace(pair.facts, *pair.own.run, stretch.last));
    for (const GateLoss& gate : stretch.gates) {
        const double lost = gateLoss(pair, gate.gate, why ? why->part() : nullptr);
        between -= lost;
        if (why)
            why->input("gate " + std::to_string(gate.gate), lost);
    }
    if (why)
        why->result(ruleOf(LossRule::Between), between, signedHundredths(between));
    return between;
}

} // namespace kavela
