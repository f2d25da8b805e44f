#pragma once

#include "splittaking/annotations/film_marks.h"

#include <string_view>

/// Ways of paddling a place, compared by their times. Options and times of a file may be of
/// different lengths: an option exists where one of them reaches. Places are counted from 0; edits
/// throw std::out_of_range for a place that does not exist.
namespace kavela {

struct StrategyOption {
    std::string name;
    double seconds = 0; ///< 0 was not timed
    bool isChosen = false;
    bool isBest = false; ///< the first of the fastest timed ones
};

[[nodiscard]] std::vector<StrategyOption> optionsOf(const strategy001& strategy);

/// Adds an option; the first one is chosen with it. Returns its place.
std::size_t addOption(strategy001& strategy, std::string name, double seconds = 0);

void renameOption(strategy001& strategy, std::size_t option, std::string name);

/// Sets the time of an option, 0 for none. Throws std::invalid_argument for a time below 0 or none
/// at all.
void setOptionSeconds(strategy001& strategy, std::size_t option, double seconds);

/// Sets the time of an option from two marks on one film.
void timeOption(strategy001& strategy, std::size_t option, const CMTime& from, const CMTime& to);

void chooseOption(strategy001& strategy, std::size_t option);

/// Removes an option. The chosen one stays chosen; when it is the one removed, the best of the
/// others takes its place, or the first one without any times.
void removeOption(strategy001& strategy, std::size_t option);

/// Place of the fastest timed option; nothing when none is timed.
[[nodiscard]] std::optional<std::size_t> bestOption(const strategy001& strategy);

/// Seconds that the chosen option costs over the best one; nothing when it is not timed.
[[nodiscard]] std::optional<double> costOfChoice(const strategy001& strategy);

/// Adds a comparison with untimed options to a run. Returns its place.
std::size_t addStrategy(athletedata031& run, std::string title, std::vector<std::string> options);

void removeStrategy(athletedata031& run, std::size_t strategy);

} // namespace kavela
