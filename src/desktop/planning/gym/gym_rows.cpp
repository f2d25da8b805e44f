#include "desktop/planning/gym/gym_rows.h"

#include "common/folded_text.h"
#include "planning/gym_maximum.h"

#include <algorithm>
#include <map>

namespace kavela::desktop {

namespace {

template <class Value>
std::optional<Value> entryAt(const std::vector<Value>& array, std::size_t row) {
    return row < array.size() ? std::optional(array[row]) : std::nullopt;
}

/// Calls for each of the parallel arrays of a session.
template <class Session, class Act>
void forEachArray(Session& session, const Act& act) {
    act(session.exercise);
    act(session.sets);
    act(session.rep);
    act(session.weight);
    act(session.maxweight);
}

/// Changes a row, and its maximum where that follows the estimate.
template <class Change>
void changeLift(gymdataplanning_v1& session, std::size_t row, const Change& change) {
    const GymRow before = gymRow(session, row);
    change();
    const auto offered = gymEstimate(gymRow(session, row));
    const bool follows =
        before.maxweight && (*before.maxweight == 0 || before.maxweight == gymEstimate(before));
    if (follows && offered)
        session.maxweight[row] = *offered;
}

} // namespace

std::size_t gymRowCount(const gymdataplanning_v1& session) {
    std::size_t longest = 0;
    forEachArray(session, [&](const auto& array) { longest = std::max(longest, array.size()); });
    return longest;
}

GymRow gymRow(const gymdataplanning_v1& session, std::size_t row) {
    return {entryAt(session.exercise, row), entryAt(session.sets, row), entryAt(session.rep, row),
            entryAt(session.weight, row), entryAt(session.maxweight, row)};
}

std::size_t addGymRow(gymdataplanning_v1& session) {
    const std::size_t row = gymRowCount(session);
    forEachArray(session, [row](auto& array) {
        if (array.size() == row)
            array.emplace_back();
    });
    return row;
}

void removeGymRow(gymdataplanning_v1& session, std::size_t row) {
    forEachArray(session, [row](auto& array) {
        if (row < array.size())
            array.erase(array.begin() + static_cast<std::ptrdiff_t>(row));
    });
}

void setRepetitions(gymdataplanning_v1& session, std::size_t row, std::int64_t repetitions) {
    changeLift(session, row, [&] { setGymEntry(session.rep, row, repetitions); });
}

void setWeight(gymdataplanning_v1& session, std::size_t row, double weight) {
    changeLift(session, row, [&] { setGymEntry(session.weight, row, weight); });
}

std::optional<double> gymEstimate(const GymRow& row) {
    return row.rep && row.weight ? gymMaximum(*row.rep, *row.weight) : std::nullopt;
}

GymTotals gymTotals(const gymdataplanning_v1& session) {
    GymTotals totals;
    totals.exercises = gymRowCount(session);
    for (std::size_t i = 0; i < totals.exercises; ++i) {
        const GymRow row = gymRow(session, i);
        const auto sets = static_cast<double>(row.sets.value_or(0));
        totals.sets += sets;
        totals.tonnage += sets * static_cast<double>(row.rep.value_or(0)) * row.weight.value_or(0);
    }
    return totals;
}

std::vector<GymLift> gymHistory(const athletesplanning_v6& athlete, std::string_view exercise) {
    const std::string name = folded(exercise);
    std::vector<GymLift> lifts;
    for (const yearsplannings_v6& season : athlete.year)
        for (const gymdataplanning_v1& session : season.gymdata)
            for (std::size_t row = 0; row < session.exercise.size(); ++row)
                if (folded(session.exercise[row]) == name) {
                    const GymRow lift = gymRow(session, row);
                    lifts.push_back(
                        {session.date, lift.weight.value_or(0), lift.maxweight.value_or(0)});
                }
    std::ranges::stable_sort(lifts, {}, [](const GymLift& lift) { return lift.date.seconds; });
    return lifts;
}

std::vector<std::string> exercisesOf(const athletesplanning_v6& athlete) {
    struct Written {
        ReferenceDate date;
        std::string name;
    };
    std::map<std::string, Written> latest;
    for (const yearsplannings_v6& season : athlete.year)
        for (const gymdataplanning_v1& session : season.gymdata)
            for (const std::string& name : session.exercise) {
                const auto [known, isNew] =
                    latest.try_emplace(folded(name), Written{session.date, name});
                if (!isNew && session.date.seconds >= known->second.date.seconds)
                    known->second = {session.date, name};
            }
    latest.erase(std::string());
    std::vector<std::string> names;
    for (auto& [key, written] : latest)
        names.push_back(std::move(written.name));
    std::ranges::sort(names, isNaturallyBefore);
    return names;
}

} // namespace kavela::desktop
