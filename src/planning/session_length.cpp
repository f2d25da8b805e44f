#include "planning/session_length.h"

#include "common/folded_text.h"
#include "common/typed_number.h"
#include "planning/interval_timer.h"
#include "splitdata/run_timing.h"

#include <algorithm>
#include <cmath>
#include <regex>
#include <sstream>

namespace kavela {

using std::chrono::minutes;

namespace {

constexpr double MinutesOfHour = 60;
constexpr double LongestMinutes = 24 * MinutesOfHour;

/// Minutes in a line that holds nothing but a length of time; `isNamed` for one behind "Duration:".
struct Line {
    double minutes = 0;
    bool isNamed = false;
};

std::optional<Line> lengthIn(const std::string& text) {
    static const std::regex form(
        R"(\s*(duration\s*:)?\s*(?:(\d+)\s*(?:min|minutes)|)"
        R"((\d+):(\d\d)\s*h|(\d+(?:[.,]\d+)?)\s*h(?:\s*(\d+)\s*(?:min)?)?)\s*)",
        std::regex::icase);
    std::smatch parts;
    if (!std::regex_match(text, parts, form))
        return {};
    const auto number = [&](std::size_t part) {
        return parts[part].matched ? typedReal(parts[part].str()).value_or(0) : 0;
    };
    return Line{number(2) + (number(3) + number(5)) * MinutesOfHour + number(4) + number(6),
                parts[1].matched};
}

/// Several lengths are those of parts of the session, unless one is named.
double writtenMinutes(const std::string& description) {
    std::istringstream lines(description);
    std::vector<double> lengths;
    for (std::string text; std::getline(lines, text);) {
        const auto line = lengthIn(text);
        if (line && line->isNamed)
            return line->minutes;
        if (line)
            lengths.push_back(line->minutes);
    }
    return lengths.size() == 1 ? lengths.front() : 0;
}

double intervalMinutes(const std::string& title,
                       std::span<const favInvervalSessions_v2> intervalSessions) {
    const auto isIt = [&](const favInvervalSessions_v2& session) {
        return !title.empty() && folded(session.title) == folded(title);
    };
    const auto found = std::ranges::find_if(intervalSessions, isIt);
    const auto plan = found == intervalSessions.end() ? std::nullopt : IntervalPlan::of(*found);
    return plan ? std::ceil(plan->sessionTime() / 60) : 0;
}

} // namespace

std::optional<minutes> plannedLength(const sessioninmicro_v5& session,
                                     std::span<const favInvervalSessions_v2> intervalSessions) {
    double length = writtenMinutes(entryOrZero(session.titleanddes, 1));
    if (length == 0)
        length = intervalMinutes(entryOrZero(session.titleanddes, 0), intervalSessions);
    const auto whole = static_cast<std::int64_t>(std::clamp(length, 0.0, LongestMinutes + 1));
    return whole >= 1 && length <= LongestMinutes ? std::optional(minutes(whole)) : std::nullopt;
}

} // namespace kavela
