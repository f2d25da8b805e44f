#include "performance/losses.h"

#include "analysis/cell_text.h"
#include "common/number_text.h"
#include "performance/loss_notes.h"
#include "performance/loss_rules.h"
#include "splitdata/run_totals.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace kavela {

namespace {

/// Hands the recorder to the number that is asked about, and to no other.
class LossAsked {
public:
    LossAsked(const LossQuestion& question, Why* why) : m_question(question), m_why(why) {}

    [[nodiscard]] Why* whether(LossNumber number, std::size_t at = 0) const {
        return m_question.number == number && m_question.at == at ? m_why : nullptr;
    }
    [[nodiscard]] Why* whether(LossNumber number, const Stretch& stretch) const {
        return m_question.number == number && stretch.holds(m_question.at) ? m_why : nullptr;
    }

private:
    LossQuestion m_question;
    Why* m_why;
};

/// Tells a number that is one of the shown parts: its text is the one that makes them add up.
void tellShownPart(Why& why, LossRule rule, double value, std::int64_t hundredths) {
    why.result(ruleOf(rule), value, signedText(hundredths));
    if (std::llround(value * 100) != hundredths)
        why.note("Shown a hundredth apart, so that the parts add up to the shown gap.");
}

/// Puts the gates into their stretches; those of no stretch stand elsewhere.
void placeGates(const LossPair& pair, RunLosses& losses) {
    for (GateLoss& gate : gateLossesOf(pair)) {
        const auto section = lossSectionOf(pair.facts, pair.file, gate.gate);
        const auto stretch = std::ranges::find_if(losses.stretches, [&](const Stretch& candidate) {
            return section && candidate.holds(*section);
        });
        (stretch == losses.stretches.end() ? losses.gatesElsewhere : stretch->gates)
            .push_back(std::move(gate));
    }
    for (Stretch& stretch : losses.stretches)
        stretch.between = lossBetween(pair, stretch);
}

std::optional<double> referenceTotalOf(const LossPair& pair) {
    const LossSide& side = pair.reference;
    if (!side.run)
        return side.video ? std::optional(side.video->total) : std::nullopt;
    const RunRow& row = pair.facts.runs()[*side.run];
    return row.isComplete ? std::optional(row.total) : std::nullopt;
}

/// The part of the paddling that notes explain.
void explainByNotes(const LossPair& pair, RunLosses& losses, Why* why) {
    if (!pair.reference.run)
        return;
    const double noted = notedAgainst(pair.facts, losses.run, *pair.reference.run, why);
    losses.noted = noted;
    if (!losses.sum || !(losses.sum->paddling > 0))
        return;
    losses.explained = noted / losses.sum->paddling;
    if (why) {
        why->input("paddling", losses.sum->paddling);
        (void)paddlingOf(pair, losses.stretches, why->part());
        why->result(ruleOf(LossRule::Explained), *losses.explained,
                    fmt::format("{:.0f} %", *losses.explained * 100));
    }
}

std::optional<double> expectedTimeGap(const FactStore& facts, std::size_t run, Why* why) {
    const RunRow& row = facts.runs()[run];
    if (!row.isComplete || !isTakenTime(row.xTime))
        return std::nullopt;
    const double difference = row.paddling - row.xTime;
    if (why) {
        why->input("time without penalties", row.paddling, lossPlace(facts, run));
        why->input("expected time", row.xTime, lossPlace(facts, run));
        why->result(ruleOf(LossRule::ExpectedTime), difference, signedHundredths(difference));
    }
    return difference;
}

InterestGap interestGap(const FactStore& facts, std::size_t run, double result, Why* why) {
    const RunRow& row = facts.runs()[run];
    if (!row.isComplete)
        return {result, std::nullopt};
    const double gap = row.total - result;
    if (why) {
        why->input("own", row.total, lossPlace(facts, run));
        why->input("result", result);
        why->result(ruleOf(LossRule::Interest), gap, signedHundredths(gap));
    }
    return {result, gap};
}

/// What is known of a run without any reference.
void addOwnFigures(const FactStore& facts, RunLosses& losses, const LossAsked& asked) {
    losses.xTimeDiff = expectedTimeGap(facts, losses.run, asked.whether(LossNumber::ExpectedTime));
    std::size_t number = 0;
    for (const double result : facts.interestsOf(facts.fileOf(facts.runs()[losses.run]))) {
        Why* const why = asked.whether(LossNumber::Interest, number++);
        if (isTakenTime(result))
            losses.interests.push_back(interestGap(facts, losses.run, result, why));
    }
}

/// Tells of the number of a stretch or gate that is asked about.
void tellStretches(const LossPair& pair, const RunLosses& losses, const LossAsked& asked) {
    for (std::size_t i = 0; i < losses.stretches.size(); ++i) {
        const Stretch& stretch = losses.stretches[i];
        if (Why* const why = asked.whether(LossNumber::Loss, stretch)) {
            const double loss = stretchLoss(pair, stretch.first, stretch.last, why);
            tellShownPart(*why, LossRule::Loss, loss, losses.shown.stretches[i]);
        }
        if (Why* const why = asked.whether(LossNumber::Percent, stretch))
            (void)stretchPercent(pair, stretch.first, stretch.last, why);
        if (Why* const why = asked.whether(LossNumber::Between, stretch))
            (void)lossBetween(pair, stretch, why);
    }
}

void tellGates(const LossPair& pair, const std::vector<GateLoss>& gates, const LossAsked& asked) {
    for (const GateLoss& gate : gates) {
        const auto number = static_cast<std::size_t>(gate.gate);
        if (Why* const why = asked.whether(LossNumber::Gate, number))
            (void)gateLoss(pair, gate.gate, why);
        if (Why* const why = asked.whether(LossNumber::Entrance, number))
            (void)entranceLoss(pair, gate.gate, why);
        if (Why* const why = asked.whether(LossNumber::Exit, number))
            (void)exitLoss(pair, gate.gate, why);
    }
}

void tellSum(const LossPair& pair, const RunLosses& losses, const LossAsked& asked) {
    if (!losses.sum)
        return;
    const bool isOfficial = losses.sum->isOfficial;
    if (Why* const why = asked.whether(LossNumber::Gap))
        (void)gapOf(pair, isOfficial, why);
    if (Why* const why = asked.whether(LossNumber::Paddling))
        tellShownPart(*why, LossRule::Paddling, paddlingOf(pair, losses.stretches, why),
                      losses.shown.paddling);
    if (Why* const why = asked.whether(LossNumber::Penalties))
        tellShownPart(*why, LossRule::Penalties, penaltyGapOf(pair, isOfficial, why),
                      losses.shown.penalties);
    if (Why* const why = asked.whether(LossNumber::Timing))
        tellShownPart(*why, LossRule::Timing, timingOf(pair, losses.stretches, isOfficial, why),
                      losses.shown.timing);
}

void tellWhy(const LossPair& pair, const RunLosses& losses, const LossAsked& asked) {
    tellStretches(pair, losses, asked);
    tellGates(pair, losses.gatesElsewhere, asked);
    for (const Stretch& stretch : losses.stretches)
        tellGates(pair, stretch.gates, asked);
    tellSum(pair, losses, asked);
}

} // namespace

RunLosses lossesOf(const FactStore& facts, const LossRivals& rivals, std::size_t run,
                   const LossReference& reference, const LossQuestion& question, Why* why) {
    const LossAsked asked(question, why);
    RunLosses losses;
    losses.run = run;
    losses.reference = reference;
    addOwnFigures(facts, losses, asked);
    std::optional<LossSide> side = referenceSide(facts, rivals, run, reference);
    losses.hasReference = side.has_value();
    if (!side)
        return losses;
    const LossPair pair{facts, facts.fileOf(facts.runs()[run]), paddledSide(facts, run, "own"),
                        std::move(*side)};
    losses.referenceRun = pair.reference.run;
    losses.referenceTotal = referenceTotalOf(pair);
    losses.stretches = stretchesOf(pair);
    placeGates(pair, losses);
    losses.sum = lossSumOf(pair, losses.stretches);
    losses.shown = shownLosses(losses.stretches, losses.sum);
    explainByNotes(pair, losses, asked.whether(LossNumber::Explained));
    if (why)
        tellWhy(pair, losses, asked);
    return losses;
}

std::vector<RunLosses> lossesOf(const FactStore& facts, const LossRivals& rivals,
                                std::span<const std::size_t> runs, const LossReference& reference) {
    std::vector<RunLosses> losses;
    losses.reserve(runs.size());
    for (const std::size_t run : runs)
        losses.push_back(lossesOf(facts, rivals, run, reference));
    return losses;
}

std::vector<RunLosses> lossesOf(const FactStore& facts, const LossReference& reference) {
    std::vector<std::size_t> runs(facts.runs().size());
    std::iota(runs.begin(), runs.end(), std::size_t{0});
    return lossesOf(facts, LossRivals(facts), runs, reference);
}

} // namespace kavela
