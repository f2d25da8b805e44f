#include "performance/penalty_passages.h"

#include "performance/penalty_rules.h"
#include "splitdata/athlete_keys.h"
#include "splitdata/run_totals.h"

#include <algorithm>
#include <utility>

namespace kavela {

namespace {

/// How many sections an unfinished run came through: up to the last that was timed.
std::size_t sectionsReached(const FactStore& facts, const RunRow& run) {
    const auto sections = facts.sectionsOf(run);
    std::size_t reached = 0;
    for (std::size_t i = 0; i < sections.size(); ++i)
        if (isTakenTime(sections[i].time))
            reached = i + 1;
    return std::min(reached, facts.definedSections(facts.fileOf(run)));
}

std::vector<bool> gatesReached(const FactStore& facts, const RunRow& run) {
    const auto pens = facts.pensOf(run);
    std::vector<bool> isReached(pens.size(), run.isComplete);
    if (run.isComplete)
        return isReached;
    const std::size_t sections = sectionsReached(facts, run);
    for (std::size_t section = 0; section < sections; ++section)
        for (const std::int64_t gate : facts.definedSection(facts.fileOf(run), section))
            if (gate >= 1 && std::cmp_less_equal(gate, pens.size()))
                isReached[static_cast<std::size_t>(gate - 1)] = true;
    // Whoever was penalized at a gate came to it, timed or not.
    for (std::size_t i = 0; i < pens.size(); ++i)
        if (pens[i] > 0)
            isReached[i] = true;
    return isReached;
}

bool isClean(const FactStore& facts, const RunRow& run) {
    return std::ranges::none_of(facts.pensOf(run), [](std::int64_t pen) { return pen > 0; });
}

} // namespace

CourseGates::CourseGates(const FactStore& facts, const FileRow& file) {
    for (const std::int64_t gate : facts.upGatesOf(file))
        m_upGates.insert(gate);
    for (std::size_t section = 0; section < facts.definedSections(file); ++section)
        for (const std::int64_t gate : facts.definedSection(file, section))
            m_sections.try_emplace(gate, section + 1);
}

std::optional<std::size_t> CourseGates::sectionOf(std::int64_t gate) const {
    const auto found = m_sections.find(gate);
    return found == m_sections.end() ? std::nullopt : std::optional(found->second);
}

ChosenRuns::ChosenRuns(const PenaltyChoice& choice)
    : m_categoryKey(categoryKey(choice.category)),
      m_phaseKey(choice.phaseKey),
      m_crewKey(choice.crewKey) {}

bool ChosenRuns::has(const FactStore& facts, const RunRow& run) const {
    const auto isIt = [&](const std::string& wanted, TextId key) {
        return wanted.empty() || facts.text(key) == wanted;
    };
    return isIt(m_categoryKey, run.categoryKey) && isIt(m_phaseKey, run.phaseKey) &&
           isIt(m_crewKey, run.crewKey);
}

bool isKnownByGate(const FactStore& facts, const RunRow& run) {
    const auto pens = facts.pensOf(run);
    return !pens.empty() && std::cmp_equal(pens.size(), facts.fileOf(run).gates);
}

std::vector<GatePassage> passagesOf(const FactStore& facts, std::size_t run) {
    const RunRow& row = facts.runs()[run];
    const auto pens = facts.pensOf(row);
    const std::vector<bool> isReached = gatesReached(facts, row);
    std::vector<GatePassage> passages;
    for (std::size_t i = 0; i < pens.size(); ++i)
        if (isReached[i])
            passages.push_back(
                {run, static_cast<std::int64_t>(i + 1), std::max<std::int64_t>(pens[i], 0)});
    return passages;
}

CountedPassages countedPassages(const FactStore& facts, const PenaltyChoice& choice) {
    const ChosenRuns chosen(choice);
    CountedPassages counted;
    for (std::size_t i = 0; i < facts.runs().size(); ++i) {
        const RunRow& run = facts.runs()[i];
        if (!chosen.has(facts, run))
            continue;
        if (!isKnownByGate(facts, run)) {
            ++counted.leftOut;
            continue;
        }
        ++counted.runs;
        if (counted.files.empty() || counted.files.back() != run.file)
            counted.files.push_back(run.file);
        if (run.isComplete)
            counted.whole.push_back(i);
        const auto passages = passagesOf(facts, i);
        counted.passages.insert(counted.passages.end(), passages.begin(), passages.end());
    }
    return counted;
}

std::optional<RateOf> cleanRuns(const FactStore& facts, const CountedPassages& counted, Why* why) {
    std::size_t clean = 0;
    for (const std::size_t run : counted.whole) {
        if (!isClean(facts, facts.runs()[run]))
            continue;
        ++clean;
        if (why)
            why->input(
                "clean run", static_cast<double>(facts.runs()[run].number),
                Place{facts.pathOf(facts.runs()[run]), facts.runs()[run].number, {}, {}, {}, {}});
    }
    const auto rate = rateOf(clean, counted.whole.size());
    if (why && rate) {
        tellRate(*why, penalty_rules::Clean, *rate);
        if (counted.leftOut > 0)
            why->note(leftOutText(counted.leftOut));
        if (counted.runs > counted.whole.size())
            why->note(
                "Unfinished runs are not counted: nobody knows whether they would have stayed "
                "clean.");
    }
    return rate;
}

Place placeOf(const FactStore& facts, const GatePassage& passage) {
    const RunRow& run = facts.runs()[passage.run];
    Place place;
    place.file = facts.pathOf(run);
    place.run = run.number;
    place.gate = static_cast<std::size_t>(passage.gate);
    return place;
}

} // namespace kavela
