#include "performance/loss_reference.h"

#include "common/delimited_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <span>

namespace kavela {

namespace {

constexpr std::string_view RivalPrefix = "run:";

/// In the order of LossReferenceKind.
constexpr std::array<std::string_view, 6> ReferenceWords{"winner", "fastest", "ideal",
                                                         "median", "own",     "run"};

/// For each run the place of its group; a run in none has the empty group at the end.
std::vector<std::size_t> placesInGroups(const FactStore& facts, std::vector<RivalGroup>& groups) {
    std::vector<std::size_t> places(facts.runs().size(), groups.size());
    for (std::size_t group = 0; group < groups.size(); ++group)
        for (const std::size_t run : groups[group])
            places[run] = group;
    groups.emplace_back();
    return places;
}

/// The first of the runs with the least of a figure, to the hundredth.
std::optional<std::size_t> leastOf(const FactStore& facts, std::span<const std::size_t> runs,
                                   double RunRow::*figure) {
    std::optional<std::size_t> least;
    double best = 0;
    for (const std::size_t run : runs) {
        const RunRow& row = facts.runs()[run];
        if (!row.isComplete || !std::isfinite(row.*figure))
            continue;
        const double hundredths = std::round(row.*figure * 100);
        if (!least || hundredths < best) {
            least = run;
            best = hundredths;
        }
    }
    return least;
}

/// Those of some runs whose totals rank among the first ten.
std::vector<std::size_t> firstTenOf(const FactStore& facts, std::span<const std::size_t> runs) {
    constexpr std::size_t Finalists = 10;
    const auto hundredths = [&](std::size_t run) {
        return std::round(facts.runs()[run].total * 100);
    };
    std::vector<std::size_t> ranked;
    std::vector<double> totals;
    for (const std::size_t run : runs)
        if (facts.runs()[run].isComplete) {
            ranked.push_back(run);
            totals.push_back(hundredths(run));
        }
    if (ranked.size() <= Finalists)
        return ranked;
    std::ranges::nth_element(totals, totals.begin() + (Finalists - 1));
    std::erase_if(ranked, [&](std::size_t run) { return hundredths(run) > totals[Finalists - 1]; });
    return ranked;
}

/// The other runs of a crew in its file and category.
std::vector<std::size_t> otherRunsOf(const FactStore& facts, const LossRivals& rivals,
                                     std::size_t run) {
    std::vector<std::size_t> others;
    for (const std::size_t other : rivals.categoryOf(run))
        if (other != run && facts.runs()[other].crewKey == facts.runs()[run].crewKey)
            others.push_back(other);
    return others;
}

std::optional<std::size_t> runOfFile(const FactStore& facts, std::size_t run, std::size_t number) {
    const RowRange& runs = facts.fileOf(facts.runs()[run]).runs;
    if (number >= runs.count)
        return std::nullopt;
    return runs.first + number;
}

std::optional<std::size_t> paddledReference(const FactStore& facts, const LossRivals& rivals,
                                            std::size_t run, const LossReference& reference) {
    switch (reference.kind) {
    case LossReferenceKind::Winner:
        return leastOf(facts, rivals.groupOf(run), &RunRow::total);
    case LossReferenceKind::Fastest:
        return leastOf(facts, rivals.groupOf(run), &RunRow::paddling);
    case LossReferenceKind::Own:
        return leastOf(facts, otherRunsOf(facts, rivals, run), &RunRow::paddling);
    case LossReferenceKind::Run:
        return runOfFile(facts, run, reference.run);
    case LossReferenceKind::Ideal:
    case LossReferenceKind::Median:
        break;
    }
    return std::nullopt;
}

} // namespace

std::optional<LossReference> lossReferenceOf(std::string_view text) {
    if (text.starts_with(RivalPrefix)) {
        LossReference rival{LossReferenceKind::Run};
        const std::string_view number = text.substr(RivalPrefix.size());
        const bool isNumber = !number.empty() && number.front() >= '0' && number.front() <= '9';
        return isNumber && parseField(number, rival.run) ? std::optional(rival) : std::nullopt;
    }
    const auto found = std::ranges::find(ReferenceWords, text);
    const auto kind = static_cast<LossReferenceKind>(found - ReferenceWords.begin());
    if (found == ReferenceWords.end() || kind == LossReferenceKind::Run)
        return std::nullopt;
    return LossReference{kind};
}

std::string_view kindText(LossReferenceKind kind) {
    return ReferenceWords[static_cast<std::size_t>(kind)];
}

std::string textOf(const LossReference& reference) {
    return reference.kind == LossReferenceKind::Run
               ? std::string(RivalPrefix) + std::to_string(reference.run)
               : std::string(kindText(reference.kind));
}

LossRivals::LossRivals(const FactStore& facts)
    : m_groups(groupsOf(facts)),
      m_categories(categoriesOf(facts)),
      m_groupOf(placesInGroups(facts, m_groups)),
      m_categoryOf(placesInGroups(facts, m_categories)) {}

std::vector<std::size_t> finalistsOf(const FactStore& facts, const LossRivals& rivals,
                                     std::size_t run) {
    std::vector<std::size_t> final;
    for (const std::size_t other : rivals.categoryOf(run))
        if (facts.text(facts.runs()[other].phaseKey) == "Final")
            final.push_back(other);
    const std::vector<std::size_t> finalists = firstTenOf(facts, final);
    return finalists.empty() ? firstTenOf(facts, rivals.groupOf(run)) : finalists;
}

std::optional<LossSide> referenceSide(const FactStore& facts, const LossRivals& rivals,
                                      std::size_t run, const LossReference& reference) {
    std::string name(kindText(reference.kind));
    if (reference.kind == LossReferenceKind::Ideal)
        return madeSide(facts, rivals.groupOf(run), false, std::move(name));
    if (reference.kind == LossReferenceKind::Median) {
        std::vector<std::size_t> finalists = finalistsOf(facts, rivals, run);
        if (finalists.empty())
            return std::nullopt;
        return madeSide(facts, std::move(finalists), true, std::move(name));
    }
    const auto found = paddledReference(facts, rivals, run, reference);
    if (!found)
        return std::nullopt;
    return paddledSide(facts, *found, std::move(name));
}

} // namespace kavela
