#include "cli/unknown_athlete.h"

#include "cli/console.h"
#include "results/name_likeness.h"
#include "splitdata/athlete_keys.h"

#include <algorithm>
#include <set>
#include <vector>

namespace kavela::cli {

namespace {

/// The crews of a store as first written, each once, of one category where one is asked for.
std::vector<std::string> crewsOf(const FactStore& facts, const std::string& category) {
    std::set<TextId> known;
    std::vector<std::string> crews;
    for (const RunRow& run : facts.runs())
        if ((category.empty() || facts.text(run.categoryKey) == category) &&
            known.insert(run.crewKey).second)
            crews.emplace_back(facts.text(run.crew));
    return crews;
}

} // namespace

void logUnknownAthlete(const FactStore& facts, const std::string& athlete,
                       const std::string& category) {
    constexpr std::size_t MostOffered = 3;
    const std::vector<std::string> crews =
        crewsOf(facts, category.empty() ? std::string() : categoryKey(category));
    std::string text = "No run is by \"" + pathText(athlete) + '"';
    if (!category.empty())
        text += " in the category \"" + pathText(category) + '"';
    const std::vector<std::size_t> likest = byLikeness(athlete, crews);
    for (std::size_t i = 0; i < std::min(likest.size(), MostOffered); ++i)
        text += (i == 0 ? ". The nearest names: " : ", ") + crews[likest[i]];
    logLine(text + '.');
}

} // namespace kavela::cli
