#pragma once

#include "planning/planning_records.h"

#include <optional>

/// The exercises of a gym session as rows. The arrays of a session may be of different lengths in a
/// file: what is missing in the shorter ones is no entry, and becomes one only when it is set.
namespace kavela::desktop {

struct GymRow {
    std::optional<std::string> exercise;
    std::optional<std::int64_t> sets;
    std::optional<std::int64_t> rep;
    std::optional<double> weight;    ///< kilograms
    std::optional<double> maxweight; ///< kilograms

    friend bool operator==(const GymRow&, const GymRow&) = default;
};

/// As many as the longest array has.
[[nodiscard]] std::size_t gymRowCount(const gymdataplanning_v1& session);
/// A row; without entries behind the last one.
[[nodiscard]] GymRow gymRow(const gymdataplanning_v1& session, std::size_t row);

/// Sets one entry. An array that does not reach that far is filled with empty entries up to it.
template <class Value>
void setGymEntry(std::vector<Value>& array, std::size_t row, Value value) {
    if (row >= array.size())
        array.resize(row + 1);
    array[row] = std::move(value);
}

/// Adds an exercise behind the others to the arrays that are complete; gives its row.
std::size_t addGymRow(gymdataplanning_v1& session);
/// Takes a row out of the arrays that reach it.
void removeGymRow(gymdataplanning_v1& session, std::size_t row);

/// A change of the repetitions or the weight of a row: the maximum follows the estimate where it is
/// 0 or was the estimate of the values before; one that was typed, or is missing, stays.
void setRepetitions(gymdataplanning_v1& session, std::size_t row, std::int64_t repetitions);
void setWeight(gymdataplanning_v1& session, std::size_t row, double weight);
/// The estimate to offer for a row; nothing without repetitions or weight, or where it is no number
/// that a file can hold.
[[nodiscard]] std::optional<double> gymEstimate(const GymRow& row);

struct GymTotals {
    std::size_t exercises = 0;
    double sets = 0;
    double tonnage = 0; ///< sets x repetitions x weight of the rows that have all three, kilograms
};

[[nodiscard]] GymTotals gymTotals(const gymdataplanning_v1& session);

/// What was lifted in an exercise.
struct GymLift {
    ReferenceDate date;
    double weight = 0;    ///< kilograms; 0 for none
    double maxweight = 0; ///< kilograms; 0 for none
};

/// Every time that an athlete did an exercise, in all seasons, by date. Names are compared without
/// regard to case and accents.
[[nodiscard]] std::vector<GymLift> gymHistory(const athletesplanning_v6& athlete,
                                              std::string_view exercise);
/// The exercises of an athlete, each once as it was written last, in the order of people.
[[nodiscard]] std::vector<std::string> exercisesOf(const athletesplanning_v6& athlete);

} // namespace kavela::desktop
