#include "performance/loss_sum.h"

#include "analysis/cell_text.h"
#include "common/number_text.h"
#include "performance/loss_rules.h"
#include "splitdata/frame_step.h"
#include "statistics/shown_parts.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <string>

namespace kavela {

namespace {

const LossTotal& totalOfSide(const LossSide& side, bool isOfficial) {
    return isOfficial ? *side.official : *side.video;
}

/// Whether both have official totals; nothing when neither kind of total is on both sides.
std::optional<bool> isOfficialOnBothSides(const LossPair& pair) {
    if (pair.own.official && pair.reference.official)
        return true;
    if (pair.own.video && pair.reference.video)
        return false;
    return std::nullopt;
}

std::optional<Place> placeOfSide(const LossPair& pair, const LossSide& side) {
    return side.run ? std::optional(lossPlace(pair.facts, *side.run)) : std::nullopt;
}

void tellTotal(const LossPair& pair, const LossSide& side, bool isOfficial, Why& why) {
    const LossTotal& total = totalOfSide(side, isOfficial);
    why.input(side.name, total.total, placeOfSide(pair, side));
    if (isOfficial)
        return;
    Why& part = *why.part();
    for (std::size_t section = 1; section <= side.times.size(); ++section)
        part.input("section " + std::to_string(section), side.times[section - 1],
                   side.run ? std::optional(lossPlace(pair.facts, *side.run, section))
                            : std::nullopt,
                   side.run ? markUncertainty(pair.facts, *side.run) : 0, HalfFrameTwice);
    part.input("penalties", static_cast<double>(total.penalty), placeOfSide(pair, side));
    part.result(ruleOf(LossRule::VideoTotal), total.total, hundredthsText(total.total));
}

/// A sum of hundredths; those of a damaged file stop at the limit instead of overflowing.
std::int64_t hundredthsOf(double seconds) {
    constexpr double Most = 9e15;
    const double product = std::round(seconds * 100);
    return std::isfinite(product) ? static_cast<std::int64_t>(std::clamp(product, -Most, Most)) : 0;
}

} // namespace

double gapOf(const LossPair& pair, bool isOfficial, Why* why) {
    const double gap =
        totalOfSide(pair.own, isOfficial).total - totalOfSide(pair.reference, isOfficial).total;
    if (why) {
        tellTotal(pair, pair.own, isOfficial, *why);
        tellTotal(pair, pair.reference, isOfficial, *why);
        why->note(isOfficial ? "Both totals are official." : "Both totals are from the video.");
        why->result(ruleOf(LossRule::Gap), gap, signedHundredths(gap));
    }
    return gap;
}

double penaltyGapOf(const LossPair& pair, bool isOfficial, Why* why) {
    const auto own = static_cast<double>(totalOfSide(pair.own, isOfficial).penalty);
    const auto reference = static_cast<double>(totalOfSide(pair.reference, isOfficial).penalty);
    if (why) {
        why->input(pair.own.name, own, placeOfSide(pair, pair.own));
        why->input(pair.reference.name, reference, placeOfSide(pair, pair.reference));
        why->result(ruleOf(LossRule::Penalties), own - reference,
                    signedHundredths(own - reference));
    }
    return own - reference;
}

double paddlingOf(const LossPair& pair, std::span<const Stretch> stretches, Why* why) {
    double sum = 0;
    for (const Stretch& stretch : stretches) {
        sum += stretch.loss;
        if (why)
            why->input(sectionsText(stretch.first, stretch.last), stretch.loss,
                       lossPlace(pair.facts, *pair.own.run, stretch.last));
    }
    if (why)
        why->result(ruleOf(LossRule::Paddling), sum, signedHundredths(sum));
    return sum;
}

double timingOf(const LossPair& pair, std::span<const Stretch> stretches, bool isOfficial,
                Why* why) {
    const double gap = gapOf(pair, isOfficial, why ? why->part() : nullptr);
    const double paddling = paddlingOf(pair, stretches, why ? why->part() : nullptr);
    const double penalties = penaltyGapOf(pair, isOfficial, why ? why->part() : nullptr);
    const double timing = gap - paddling - penalties;
    if (why) {
        why->input("gap", gap);
        why->input("paddling", paddling);
        why->input("penalties", penalties);
        why->result(ruleOf(LossRule::Timing), timing, signedHundredths(timing));
    }
    return timing;
}

std::optional<LossSum> lossSumOf(const LossPair& pair, std::span<const Stretch> stretches) {
    const auto isOfficial = isOfficialOnBothSides(pair);
    if (!isOfficial)
        return std::nullopt;
    return LossSum{gapOf(pair, *isOfficial),
                   paddlingOf(pair, stretches),
                   penaltyGapOf(pair, *isOfficial),
                   timingOf(pair, stretches, *isOfficial),
                   totalOfSide(pair.own, *isOfficial).total,
                   totalOfSide(pair.reference, *isOfficial).total,
                   *isOfficial};
}

ShownLosses shownLosses(std::span<const Stretch> stretches, const std::optional<LossSum>& sum) {
    std::vector<double> parts;
    for (const Stretch& stretch : stretches)
        parts.push_back(stretch.loss);
    const double whole = sum ? sum->gap : std::accumulate(parts.begin(), parts.end(), 0.0);
    if (sum) {
        parts.push_back(sum->penalties);
        parts.push_back(sum->timing);
    }
    ShownLosses shown;
    shown.stretches = shownParts(parts, whole);
    shown.gap = hundredthsOf(whole);
    if (sum) {
        shown.timing = shown.stretches.back();
        shown.stretches.pop_back();
        shown.penalties = shown.stretches.back();
        shown.stretches.pop_back();
    }
    shown.paddling =
        std::accumulate(shown.stretches.begin(), shown.stretches.end(), std::int64_t{0});
    return shown;
}

std::string signedText(std::int64_t hundredths) {
    return signedHundredths(static_cast<double>(hundredths) / 100);
}

} // namespace kavela
