#pragma once

#include "analysis/race_set.h"

#include <vector>

/// The columns in which the runs of a race are compared. They are rebuilt on each use, so that a
/// changed preference shows at once.
namespace kavela {

/// Columns are counted from 1: ten sections, whatever the course has, then these.
inline constexpr int SectionColumns = 10;
inline constexpr int TotalColumn = 11;
inline constexpr int SprintColumn = 12;
inline constexpr int RealColumn = 13;

/// The values of one column; column 11 of the section columns has an entry for each full run only.
using Column = std::vector<double>;

/// Ten section columns, the totals of the full runs, sprint and real times: thirteen columns, or
/// none for an empty race set. Included penalties are added to the sections and, by position over
/// all runs, to the totals.
[[nodiscard]] std::vector<Column> sectionColumns(const RaceSet& set, bool penaltiesIncluded);

/// The sums after each of ten sections and the totals of every run: eleven columns, never with
/// penalties, or none for an empty race set.
[[nodiscard]] std::vector<Column> accumulatedColumns(const RaceSet& set);

} // namespace kavela
