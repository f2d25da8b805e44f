#include "results/phase_averages.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace kavela {

namespace {

using Runs = std::vector<const mtPhaseStruct*>;

std::size_t placeOf(const std::string& phase) {
    return static_cast<std::size_t>(std::ranges::find(team::Phases, phase) -
                                    std::begin(team::Phases));
}

/// Percent behind the fastest from the start up to each split; ends before a split that tells none.
std::vector<double> accumulated(const mtPhaseStruct& run) {
    std::vector<double> percentages;
    double own = 0;
    double fastest = 0;
    for (std::size_t i = 0; i < std::min(run.splits.size(), run.pers.size()); ++i) {
        own += run.splits[i];
        fastest += run.splits[i] / (1 + run.pers[i] / 100);
        const double percentage = (own / fastest - 1) * 100;
        if (!std::isfinite(percentage))
            break;
        percentages.push_back(percentage);
    }
    return percentages;
}

/// The mean at each place of lists, over the lists that reach it.
std::vector<double> means(const std::vector<std::vector<double>>& lists) {
    std::vector<double> sums;
    std::vector<double> counts;
    for (const std::vector<double>& list : lists) {
        sums.resize(std::max(sums.size(), list.size()));
        counts.resize(sums.size());
        for (std::size_t i = 0; i < list.size(); ++i) {
            sums[i] += list[i];
            counts[i] += 1;
        }
    }
    for (std::size_t i = 0; i < sums.size(); ++i)
        sums[i] /= counts[i];
    return sums;
}

std::vector<double> penaltyShares(const Runs& runs) {
    constexpr std::array<std::int64_t, 4> Most{0, 2, 4, 48};
    std::vector<double> shares(Most.size() + 1);
    for (const mtPhaseStruct* run : runs)
        shares[static_cast<std::size_t>(std::ranges::lower_bound(Most, run->pen) - Most.begin())] +=
            100.0 / static_cast<double>(runs.size());
    return shares;
}

mtAverageDataStruct averageOf(const std::string& phase, const Runs& runs) {
    std::vector<std::vector<double>> bySplit;
    std::vector<std::vector<double>> accumulatedBySplit;
    std::vector<std::vector<double>> whole;
    for (const mtPhaseStruct* run : runs) {
        bySplit.push_back(run->pers);
        accumulatedBySplit.push_back(accumulated(*run));
        if (const auto& all = accumulatedBySplit.back();
            !all.empty() && all.size() == run->pers.size())
            whole.push_back({all.back()});
    }
    mtAverageDataStruct average{phase, means(bySplit), means(accumulatedBySplit),
                                penaltyShares(runs)};
    for (const double mean : means(whole))
        average.per.push_back(mean);
    return average;
}

} // namespace

std::vector<mtAverageDataStruct> phaseAverages(std::span<const mtRaceStruct> races) {
    std::map<std::pair<std::size_t, std::string>, Runs> phases;
    for (const mtRaceStruct& race : races)
        for (const mtPhaseStruct& run : race.phases)
            phases[{placeOf(run.phase), run.phase}].push_back(&run);
    std::vector<mtAverageDataStruct> averages;
    for (const auto& [phase, runs] : phases)
        averages.push_back(averageOf(phase.second, runs));
    return averages;
}

void recomputeAverages(myTeamStruct& athlete) {
    for (mtCatsStruct& category : athlete.cats) {
        std::vector<mtRaceStruct> all;
        for (mtSeasonStruct& season : category.seasons) {
            season.aves = phaseAverages(season.races);
            all.insert(all.end(), season.races.begin(), season.races.end());
        }
        category.aves = phaseAverages(all);
    }
}

} // namespace kavela
