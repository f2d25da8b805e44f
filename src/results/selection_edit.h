#pragma once

#include "results/selection_ranking.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Editing a selection. These keep the parallel lists of the document in step and recompute
/// nothing: recomputeSelection does that afterwards, when a table is shown anew. Indexes must
/// exist.
namespace kavela {

/// Where a result stands.
struct ResultPlace {
    std::size_t category = 0;
    std::size_t athlete = 0;
    std::size_t race = 0;

    friend bool operator==(const ResultPlace&, const ResultPlace&) = default;
};

/// What is known of an athlete before the first race. Lists shorter than those of the others are
/// filled up: no preselection, no bonus.
struct NewAthlete {
    std::string name; ///< "SURNAME Name"
    std::int64_t birthYear = 0;
    std::string club{};
    std::vector<bool> preselected{};
    std::vector<double> bonuses{};
};

/// Adds a race at the end; nobody has a result in it.
void addRace(selectionracesStruct_v3& document, std::string location);
void removeRace(selectionracesStruct_v3& document, std::size_t race);

/// The index of a category, however it is written ("K1M" is "MK1"); it is added where it is
/// missing.
[[nodiscard]] std::size_t categoryIndex(selectionracesStruct_v3& document, std::string_view label);
void removeCategory(selectionracesStruct_v3& document, std::size_t category);

/// Adds an athlete without results. There must be a race first: false otherwise, and nothing is
/// added; windows then show messages::Careful with messages::AddARaceFirst.
[[nodiscard]] bool addAthlete(selectionracesStruct_v3& document, std::size_t category,
                              NewAthlete athlete);

/// Whether a category has an athlete of this name, however it is written.
[[nodiscard]] bool hasAthlete(const srCategoryStruct_v3& category, std::string_view name);

/// Enters a result and ranks the race; a missing expected time is MissingTime.
void setResult(selectionracesStruct_v3& document, const ResultPlace& place, double time,
               std::int64_t penalty, double expectedTime = MissingTime);

/// Makes a result a missing one; `points` stay.
void clearResult(selectionracesStruct_v3& document, const ResultPlace& place);

/// The results with a time of 0, which windows warn of.
[[nodiscard]] std::vector<ResultPlace> zeroResults(const selectionracesStruct_v3& document);

/// Birth years of the release's age groups.
inline constexpr std::int64_t JuniorYears[] = {2009, 2008, 2007, 2006};
inline constexpr std::int64_t Under23Years[] = {2005, 2004, 2003, 2002, 2001};

/// The age groups to choose from while a birth year is typed: "Senior", and "U23" or "Junior" when
/// the year is of that group. A text that is no whole number leaves "Senior" alone.
[[nodiscard]] std::vector<std::string> ageGroups(std::string_view birthYear);

} // namespace kavela
