#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kavela::page {

/// The end of a stretch of the course in a line of gaps.
struct GapPoint {
    std::string name;    ///< of the stretch, as short as it gets: "3"
    double at = 0;       ///< the other's time there, s: a stretch is as wide as it lasts
    double gap = 0;      ///< with penalties, s; above 0 is behind
    double paddling = 0; ///< without, s
    std::string mark;    ///< what happened in the stretch: "+2"; empty for nothing
};

/// A gap along the course, as far as both were timed.
struct GapLine {
    std::string label; ///< what is drawn, for those who cannot see it
    std::vector<GapPoint> points;
};

/// The picture as inline SVG that takes the colours of the page; empty for fewer than two
/// stretches.
[[nodiscard]] std::string gapPicture(const GapLine& line);

/// A dot of a season: how far behind the winner a run was.
struct SeasonDot {
    double day = 0;      ///< of any calendar
    double percent = 0;  ///< behind the winner
    std::string title;   ///< what it is
    bool isLast = false; ///< of its race, such as the final: drawn filled
};

/// The way through a season as inline SVG; empty for fewer than two dots.
[[nodiscard]] std::string seasonPicture(const std::vector<SeasonDot>& dots);

} // namespace kavela::page
