#include "results/selection_attach.h"

#include "results/athlete_keys.h"
#include "splitdata/run_timing.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>

namespace kavela {

namespace {

struct TimedRun {
    double time = 0;
    std::int64_t penalty = 0;
    double expectedTime = MissingTime;

    [[nodiscard]] double total() const { return time + static_cast<double>(penalty); }
};

/// What tells whose run it is: category and crew.
using RunKey = std::pair<std::string, std::string>;

/// Whether the times from video tell the whole run; a file may hold no more than the sum.
bool isTimedWhole(const sectiondata030& timing, std::int64_t splits) {
    return timing.times.empty() || splits < 1 || timing.isfullrun ||
           isFullRun(timing.times, splits);
}

std::optional<TimedRun> resultOf(const sectiondata030& timing, std::int64_t splits) {
    TimedRun run;
    if (timing.xTime != 0)
        run.expectedTime = timing.xTime;
    if (timing.realtime != 0) {
        run.time = timing.realtime;
        run.penalty = timing.realpen;
    } else if (timing.totaltime != 0 && isTimedWhole(timing, splits)) {
        run.time = timing.totaltime;
        run.penalty = timing.totalpen;
    } else {
        return std::nullopt;
    }
    return run;
}

/// The best runs of all files.
class Runs {
public:
    Runs(std::span<const splittakerdata031> files, const std::set<RunKey>& wanted,
         std::vector<UnusedRun>& unused)
        : m_wanted(wanted), m_unused(unused) {
        for (const splittakerdata031& file : files)
            for (const athletedata031& run : file.athletes)
                take(run, file.info);
    }

    [[nodiscard]] const TimedRun* bestOf(const RunKey& key) const {
        const auto found = m_best.find(key);
        return found == m_best.end() ? nullptr : &found->second;
    }

    [[nodiscard]] bool hasCategory(const std::string& key) const {
        return m_categories.contains(key);
    }

private:
    void take(const athletedata031& run, const infodata031& info) {
        const std::string& category = run.cat.empty() ? info.category : run.cat;
        const RunKey key{categoryKey(category), crewKey(run.names)};
        m_categories.insert(key.first);
        const auto result = resultOf(run.sectioninfo, info.totalsplits);
        if (!m_wanted.contains(key))
            m_unused.push_back({crewText(run.names), category, "is not in the selection"});
        else if (!result)
            m_unused.push_back({crewText(run.names), category, "did not finish the run"});
        else if (const auto [at, isNew] = m_best.emplace(key, *result);
                 !isNew && result->total() < at->second.total())
            at->second = *result;
    }

    const std::set<RunKey>& m_wanted;
    std::vector<UnusedRun>& m_unused;
    std::map<RunKey, TimedRun> m_best;
    std::set<std::string> m_categories;
};

std::set<RunKey> athletesOf(const selectionracesStruct_v3& document) {
    std::set<RunKey> athletes;
    for (const srCategoryStruct_v3& category : document.categories)
        for (const srAthleteStruct_v3& athlete : category.athletes)
            athletes.insert({categoryKey(category.cat), crewKey(athlete.name)});
    return athletes;
}

void enter(const TimedRun& run, saRaceStruct& result) {
    result.resultTime = run.time;
    result.pen = run.penalty;
    result.xTime = run.expectedTime;
}

} // namespace

Attached attachRace(selectionracesStruct_v3& document, std::size_t race,
                    std::span<const splittakerdata031> files) {
    Attached attached;
    const std::set<RunKey> wanted = athletesOf(document);
    const Runs runs(files, wanted, attached.unused);
    for (std::size_t c = 0; c < document.categories.size(); ++c) {
        srCategoryStruct_v3& category = document.categories[c];
        const std::string categoryText = categoryKey(category.cat);
        for (std::size_t a = 0; a < category.athletes.size(); ++a) {
            srAthleteStruct_v3& athlete = category.athletes[a];
            if (athlete.racedata.size() <= race)
                athlete.racedata.resize(race + 1, missingResult());
            saRaceStruct& result = athlete.racedata[race];
            if (const TimedRun* run = runs.bestOf({categoryText, crewKey(athlete.name)})) {
                enter(*run, result);
                ++attached.results;
            } else if (isZero(result) || runs.hasCategory(categoryText)) {
                clearResult(document, {c, a, race});
                attached.missing.push_back({c, a, race});
            }
        }
    }
    rankRace(document, race);
    return attached;
}

} // namespace kavela
