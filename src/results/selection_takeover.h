#pragma once

#include "common/refused_line.h"
#include "results/selection_edit.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Results for one race of a selection, as split files and lists bring them: first found, then
/// looked at and given to athletes by hand where names do not tell, then entered.
namespace kavela {

struct AthletePlace {
    std::size_t category = 0;
    std::size_t athlete = 0; ///< in the category

    friend auto operator<=>(const AthletePlace&, const AthletePlace&) = default;
};

/// A run of a split file, or a line of a list.
struct FoundRun {
    std::string name;      ///< as the file writes it
    std::string category;  ///< likewise
    std::string phase;     ///< empty for a line of a list
    std::int64_t line = 0; ///< of a list; 0 for a run of a split file
    double time = 0;       ///< without penalties; 0 where there is a fault
    std::int64_t penalty = 0;
    std::optional<double> expectedTime{}; ///< none where the file has none
    std::string fault{};                  ///< why it is no result; empty where it is one
    std::optional<AthletePlace> athlete{};
    bool isOfNewAthlete = false; ///< its athlete is added, where it is of nobody

    [[nodiscard]] double total() const { return time + static_cast<double>(penalty); }
    /// Whether it may count as somebody's result.
    [[nodiscard]] bool isTaken() const { return fault.empty() && (athlete || isOfNewAthlete); }
};

struct FoundRuns {
    std::vector<FoundRun> runs;
    std::vector<RefusedLine> refused; ///< lines of a list that are no results
    /// Whether who has no run has no result: not with a list, which may hold some athletes only.
    bool isWholeRace = false;
    std::vector<std::size_t> raced{}; ///< categories of the selection that were raced
    /// Athletes without a run who keep what they have all the same.
    std::vector<AthletePlace> kept{};
};

/// Whose a name is: the athlete of the category, however both are written.
[[nodiscard]] std::optional<AthletePlace> athleteOf(const selectionracesStruct_v3& document,
                                                    const std::string& category,
                                                    const std::string& name);

/// The athletes whom a whole race leaves without a result: those of raced categories without a run,
/// and those whose time is 0; not the ones who keep what they have.
[[nodiscard]] std::vector<AthletePlace> withoutRun(const selectionracesStruct_v3& document,
                                                   std::size_t race, const FoundRuns& found);

/// What entering did.
struct EnteredRuns {
    std::vector<ResultPlace> results;
    std::vector<ResultPlace> missing;      ///< athletes without a run
    std::vector<ResultPlace> keptExpected; ///< whose expected time stays: the file has none
};

/// Enters the runs that are taken; of several of an athlete the best total counts. New athletes are
/// added, in categories that are added where they are missing; one name in one category is one
/// athlete. An expected time stays where the file has none. Places are filled; recompute
/// afterwards.
[[nodiscard]] EnteredRuns enterRuns(selectionracesStruct_v3& document, std::size_t race,
                                    const FoundRuns& found);

} // namespace kavela
