#include "splittaking/race_day/day_lines.h"

#include "common/text.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

StartState stateOfStart(const DayStart& start, bool isTimed, bool isFilmed) {
    if (isTimed)
        return StartState::Timed;
    if (start.out == DidNotStart)
        return StartState::NotStarted;
    if (start.out == DidNotFinish)
        return StartState::NotFinished;
    return isFilmed ? StartState::Filmed : StartState::Waiting;
}

/// "40 s", "3 min", "2 h 5 min"
std::string waitText(double seconds) {
    const auto whole = std::llround(seconds);
    if (whole < 120)
        return std::to_string(whole) + " s";
    const auto minutes = whole / 60;
    if (minutes < 60)
        return std::to_string(minutes) + " min";
    return std::to_string(minutes / 60) + " h " + std::to_string(minutes % 60) + " min";
}

} // namespace

std::string_view nameOf(StartState state) {
    switch (state) {
    case StartState::Waiting:
        return "waiting";
    case StartState::Filmed:
        return "filmed";
    case StartState::Timed:
        return "timed";
    case StartState::NotStarted:
        return DidNotStart;
    case StartState::NotFinished:
        return DidNotFinish;
    }
    return {};
}

std::vector<DayLine> dayLines(const RaceDay& day, const DayMatching& matching,
                              const std::set<std::int64_t>& timed) {
    std::vector<DayLine> lines;
    for (const DayStart& start : day.starts) {
        const auto match = std::ranges::find(matching.matches, start.id, &DayMatch::start);
        const bool isFilmed = match != matching.matches.end();
        lines.push_back({start, stateOfStart(start, timed.contains(start.id), isFilmed),
                         isFilmed ? std::optional(*match) : std::nullopt});
    }
    return lines;
}

std::optional<std::size_t> nextUntimed(std::span<const DayLine> lines, std::int64_t behind) {
    const auto here =
        std::ranges::find_if(lines, [&](const DayLine& line) { return line.start.id == behind; });
    const std::size_t first =
        here == lines.end() ? 0 : static_cast<std::size_t>(here - lines.begin()) + 1;
    for (std::size_t step = 0; step < lines.size(); ++step)
        if (const std::size_t place = (first + step) % lines.size();
            lines[place].state == StartState::Filmed)
            return place;
    return std::nullopt;
}

std::string glanceText(std::span<const DayLine> lines, double now) {
    const auto waiting = std::ranges::count(lines, StartState::Filmed, &DayLine::state);
    std::optional<double> next;
    for (const DayLine& line : lines)
        if (line.start.starttime >= now && line.state != StartState::NotStarted &&
            line.start.starttime < next.value_or(line.start.starttime + 1))
            next = line.start.starttime;
    const std::string text = waiting == 0 ? say("No run waiting")
                                          : sayCount(waiting, "{} run waiting", "{} runs waiting");
    return next ? say("{}, the next starts in {}", text, waitText(*next - now)) : text;
}

} // namespace kavela
