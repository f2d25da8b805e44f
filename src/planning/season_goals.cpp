#include "planning/season_goals.h"

#include "common/folded_text.h"
#include "planning/erase_at.h"
#include "splitdata/run_timing.h"

#include <algorithm>

namespace kavela {

namespace {

using Texts = std::vector<std::string>;
using Kind = GoalPlace::Kind;

const Texts NoTexts;

const Texts& textsOf(const std::vector<Texts>& lists, std::size_t group) {
    return group < lists.size() ? lists[group] : NoTexts;
}

/// Entry `index` of a list, which is filled up to it.
template <class T>
T& filledUpTo(std::vector<T>& list, std::size_t index) {
    if (list.size() <= index)
        list.resize(index + 1);
    return list[index];
}

/// Swaps two neighbours; where the list ends between them, the one that is there moves all the
/// same.
template <class T>
void swapAt(std::vector<T>& list, std::size_t a, std::size_t b) {
    if (std::min(a, b) >= list.size())
        return;
    (void)filledUpTo(list, std::max(a, b));
    std::swap(list[a], list[b]);
}

std::size_t countBeside(const yearsplannings_v6& season, const GoalPlace& place) {
    switch (place.kind) {
    case Kind::Group:
        return goalGroupCount(season);
    case Kind::Goal:
        return goalsOf(season, place.group).size();
    case Kind::Subgoal:
        break;
    }
    return subgoalsOf(season, place.group).size();
}

std::size_t indexOf(const GoalPlace& place) {
    return place.kind == Kind::Group ? place.group : place.index;
}

void addSubgoal(yearsplannings_v6& season, std::size_t group, std::string text) {
    Texts& subgoals = filledUpTo(season.seasonsubgoals, group);
    const std::size_t at = subgoals.size();
    subgoals.push_back(std::move(text));
    if (textsOf(season.seasonsubgoalsstatus, group).size() < at)
        return;
    // In front of a status that belongs to no sub-goal, which must not become that of the new one.
    Texts& statuses = filledUpTo(season.seasonsubgoalsstatus, group);
    statuses.insert(statuses.begin() + static_cast<std::ptrdiff_t>(at),
                    std::string(GoalStatuses.front()));
}

} // namespace

int goalStatus(std::string_view status) {
    const std::string text = folded(status);
    const auto same = std::ranges::find(GoalStatuses, text);
    if (same != GoalStatuses.end())
        return static_cast<int>(same - GoalStatuses.begin());
    return text == "done" ? 2 : -1;
}

std::size_t goalGroupCount(const yearsplannings_v6& season) {
    return std::max(
        {season.seasongoalgroups.size(), season.seasongoals.size(), season.seasonsubgoals.size()});
}

std::string goalGroupName(const yearsplannings_v6& season, std::size_t group) {
    return entryOrZero(season.seasongoalgroups, group);
}

const Texts& goalsOf(const yearsplannings_v6& season, std::size_t group) {
    return textsOf(season.seasongoals, group);
}

const Texts& subgoalsOf(const yearsplannings_v6& season, std::size_t group) {
    return textsOf(season.seasonsubgoals, group);
}

std::string subgoalStatus(const yearsplannings_v6& season, std::size_t group, std::size_t subgoal) {
    return entryOrZero(textsOf(season.seasonsubgoalsstatus, group), subgoal);
}

GoalProgress goalProgress(const yearsplannings_v6& season, std::size_t group) {
    GoalProgress progress{0, 0, subgoalsOf(season, group).size()};
    for (std::size_t i = 0; i < progress.count; ++i) {
        const int status = goalStatus(subgoalStatus(season, group, i));
        progress.reached += status == 2;
        progress.givenUp += status == 3;
    }
    return progress;
}

bool hasGoal(const yearsplannings_v6& season, const GoalPlace& place) {
    return indexOf(place) < countBeside(season, place);
}

std::string goalText(const yearsplannings_v6& season, const GoalPlace& place) {
    switch (place.kind) {
    case Kind::Group:
        return goalGroupName(season, place.group);
    case Kind::Goal:
        return entryOrZero(goalsOf(season, place.group), place.index);
    case Kind::Subgoal:
        break;
    }
    return entryOrZero(subgoalsOf(season, place.group), place.index);
}

GoalPlace addGoal(yearsplannings_v6& season, Kind kind, std::size_t group, std::string text) {
    const GoalPlace place = kind == Kind::Group
                                ? GoalPlace{kind, goalGroupCount(season), 0}
                                : GoalPlace{kind, group, countBeside(season, {kind, group, 0})};
    if (kind == Kind::Group)
        filledUpTo(season.seasongoalgroups, place.group) = std::move(text);
    else if (kind == Kind::Goal)
        filledUpTo(season.seasongoals, group).push_back(std::move(text));
    else
        addSubgoal(season, group, std::move(text));
    return place;
}

void renameGoal(yearsplannings_v6& season, const GoalPlace& place, std::string text) {
    if (!hasGoal(season, place))
        return;
    if (place.kind == Kind::Group)
        filledUpTo(season.seasongoalgroups, place.group) = std::move(text);
    else if (place.kind == Kind::Goal)
        season.seasongoals[place.group][place.index] = std::move(text);
    else
        season.seasonsubgoals[place.group][place.index] = std::move(text);
}

void setGoalStatus(yearsplannings_v6& season, std::size_t group, std::size_t subgoal,
                   std::string status) {
    if (hasGoal(season, {Kind::Subgoal, group, subgoal}))
        filledUpTo(filledUpTo(season.seasonsubgoalsstatus, group), subgoal) = std::move(status);
}

void removeGoal(yearsplannings_v6& season, const GoalPlace& place) {
    if (!hasGoal(season, place))
        return;
    if (place.kind == Kind::Group) {
        eraseAt(season.seasongoalgroups, place.group);
        eraseAt(season.seasongoals, place.group);
        eraseAt(season.seasonsubgoals, place.group);
        eraseAt(season.seasonsubgoalsstatus, place.group);
    } else if (place.kind == Kind::Goal) {
        eraseAt(season.seasongoals[place.group], place.index);
    } else {
        eraseAt(season.seasonsubgoals[place.group], place.index);
        if (place.group < season.seasonsubgoalsstatus.size())
            eraseAt(season.seasonsubgoalsstatus[place.group], place.index);
    }
}

GoalPlace moveGoal(yearsplannings_v6& season, const GoalPlace& place, bool isUp) {
    const std::size_t from = indexOf(place);
    const std::size_t to = isUp ? from - 1 : from + 1; // in front of the first is behind every end
    if (!hasGoal(season, place) || to >= countBeside(season, place))
        return place;
    if (place.kind == Kind::Group) {
        swapAt(season.seasongoalgroups, from, to);
        swapAt(season.seasongoals, from, to);
        swapAt(season.seasonsubgoals, from, to);
        swapAt(season.seasonsubgoalsstatus, from, to);
        return {place.kind, to, 0};
    }
    if (place.kind == Kind::Goal) {
        swapAt(season.seasongoals[place.group], from, to);
    } else {
        swapAt(season.seasonsubgoals[place.group], from, to);
        if (place.group < season.seasonsubgoalsstatus.size())
            swapAt(season.seasonsubgoalsstatus[place.group], from, to);
    }
    return {place.kind, place.group, to};
}

} // namespace kavela
