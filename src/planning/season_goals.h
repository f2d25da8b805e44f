#pragma once

#include "planning/planning_records.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// The goals of a season: groups, their goals, their sub-goals with a status each. A file may have
/// these lists at different lengths. An edit changes nothing but what it is about: it fills up no
/// more than the one list that it needs longer, with empty texts.
namespace kavela {

/// The status of a sub-goal in short words; a file may have any other text.
inline constexpr std::array<std::string_view, 4> GoalStatuses{"open", "on the way", "reached",
                                                              "given up"};

/// What a status says, however it is written: which of GoalStatuses, or -1 for any other text.
[[nodiscard]] int goalStatus(std::string_view status);

/// How many groups there are to show, named or not.
[[nodiscard]] std::size_t goalGroupCount(const yearsplannings_v6& season);

[[nodiscard]] std::string goalGroupName(const yearsplannings_v6& season, std::size_t group);
[[nodiscard]] const std::vector<std::string>& goalsOf(const yearsplannings_v6& season,
                                                      std::size_t group);
[[nodiscard]] const std::vector<std::string>& subgoalsOf(const yearsplannings_v6& season,
                                                         std::size_t group);
/// Empty where the file has none.
[[nodiscard]] std::string subgoalStatus(const yearsplannings_v6& season, std::size_t group,
                                        std::size_t subgoal);

struct GoalProgress {
    std::size_t reached = 0;
    std::size_t givenUp = 0;
    std::size_t count = 0; ///< sub-goals
};
[[nodiscard]] GoalProgress goalProgress(const yearsplannings_v6& season, std::size_t group);

/// An entry of the goals; the group itself, one of its goals or one of its sub-goals.
struct GoalPlace {
    enum class Kind { Group, Goal, Subgoal };

    Kind kind = Kind::Group;
    std::size_t group = 0;
    std::size_t index = 0; ///< of the goal or sub-goal within its group

    friend bool operator==(const GoalPlace&, const GoalPlace&) = default;
};

[[nodiscard]] bool hasGoal(const yearsplannings_v6& season, const GoalPlace& place);
[[nodiscard]] std::string goalText(const yearsplannings_v6& season, const GoalPlace& place);

/// Adds an entry behind those of its kind and gives its place. A sub-goal is open, unless those
/// before it have no status either. `group` must be there for a goal or sub-goal.
GoalPlace addGoal(yearsplannings_v6& season, GoalPlace::Kind kind, std::size_t group,
                  std::string text);

// Each does nothing for a place that is not there.

void renameGoal(yearsplannings_v6& season, const GoalPlace& place, std::string text);
void setGoalStatus(yearsplannings_v6& season, std::size_t group, std::size_t subgoal,
                   std::string status);
void removeGoal(yearsplannings_v6& season, const GoalPlace& place);
/// Changes places with the entry before it or behind it, of the same kind, with all that belongs to
/// the two; gives the new place, which is the old one where there is no such entry.
GoalPlace moveGoal(yearsplannings_v6& season, const GoalPlace& place, bool isUp);

} // namespace kavela
