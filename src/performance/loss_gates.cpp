#include "performance/loss_gates.h"

#include "analysis/cell_text.h"
#include "performance/loss_rules.h"
#include "splitdata/frame_step.h"
#include "splitdata/run_totals.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kavela {

namespace {

/// One of the times of a gate, in a run and in what is put together of runs.
struct GatePart {
    LossRule rule;
    double LossGate::*time;
    double GateRow::*row;
};

constexpr GatePart WholeGate{LossRule::GateLoss, &LossGate::time, &GateRow::time};
constexpr GatePart GateEntrance{LossRule::EntranceLoss, &LossGate::entrance, &GateRow::entrance};
constexpr GatePart GateExit{LossRule::ExitLoss, &LossGate::exit, &GateRow::exit};

const LossGate* gateOfSide(const LossSide& side, std::int32_t gate) {
    const auto found = std::ranges::lower_bound(side.gates, gate, {}, &LossGate::gate);
    return found == side.gates.end() || found->gate != gate ? nullptr : &*found;
}

/// Tells where one side's time of a gate comes from.
void tellGateTime(const LossPair& pair, const LossSide& side, const LossGate& gate,
                  const GatePart& part, Why& why) {
    if (!side.run) {
        why.input(side.name, gate.*part.time);
        (void)madeGateTime(pair.facts, side.pool, side.isMedian, gate.gate, part.row, why.part());
        return;
    }
    Place place = lossPlace(pair.facts, *side.run, lossSectionOf(pair.facts, pair.file, gate.gate));
    place.gate = static_cast<std::size_t>(gate.gate);
    why.input(side.name, gate.*part.time, std::move(place), markUncertainty(pair.facts, *side.run),
              HalfFrameTwice);
}

double lossInGate(const LossPair& pair, std::int32_t number, const GatePart& part, Why* why) {
    const LossGate& own = *gateOfSide(pair.own, number);
    const LossGate& reference = *gateOfSide(pair.reference, number);
    const double loss = own.*part.time - reference.*part.time;
    if (why) {
        tellGateTime(pair, pair.own, own, part, *why);
        tellGateTime(pair, pair.reference, reference, part, *why);
        why->result(ruleOf(part.rule), loss, signedHundredths(loss));
        tellFourMarks(pair, loss, *why);
    }
    return loss;
}

/// Whether both have both parts of a gate.
bool hasBothParts(const LossPair& pair, std::int32_t gate) {
    return std::ranges::all_of(std::array{&pair.own, &pair.reference}, [&](const LossSide* side) {
        const LossGate* const found = gateOfSide(*side, gate);
        return found && isTakenTime(found->entrance) && isTakenTime(found->exit);
    });
}

} // namespace

bool knowsGatesOfSections(const FactStore& facts, const FileRow& file) {
    return file.sections > 0 && facts.definedSections(file) == file.sections;
}

std::optional<std::size_t> lossSectionOf(const FactStore& facts, const FileRow& file,
                                         std::int64_t gate) {
    if (!knowsGatesOfSections(facts, file))
        return std::nullopt;
    for (std::size_t section = 0; section < file.sections; ++section) {
        const auto gates = facts.definedSection(file, section);
        if (std::ranges::find(gates, gate) != gates.end())
            return section + 1;
    }
    return std::nullopt;
}

std::vector<GateLoss> gateLossesOf(const LossPair& pair) {
    std::vector<GateLoss> losses;
    for (const LossGate& own : pair.own.gates) {
        const LossGate* const reference = gateOfSide(pair.reference, own.gate);
        if (!reference || !isTakenTime(own.time) || !isTakenTime(reference->time))
            continue;
        losses.push_back({own.gate, own.direction, own.style, own.time, reference->time,
                          gateLoss(pair, own.gate), entranceLoss(pair, own.gate),
                          exitLoss(pair, own.gate)});
    }
    return losses;
}

double gateLoss(const LossPair& pair, std::int32_t gate, Why* why) {
    return lossInGate(pair, gate, WholeGate, why);
}

std::optional<double> entranceLoss(const LossPair& pair, std::int32_t gate, Why* why) {
    if (!hasBothParts(pair, gate))
        return std::nullopt;
    return lossInGate(pair, gate, GateEntrance, why);
}

std::optional<double> exitLoss(const LossPair& pair, std::int32_t gate, Why* why) {
    if (!hasBothParts(pair, gate))
        return std::nullopt;
    return lossInGate(pair, gate, GateExit, why);
}

} // namespace kavela
