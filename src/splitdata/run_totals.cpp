#include "splitdata/run_totals.h"

#include "splitdata/athlete_keys.h"
#include "splitdata/film_marks.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <string>
#include <string_view>
#include <utility>

namespace kavela {

namespace {

bool isPartOfWord(char character) {
    return std::isalnum(static_cast<unsigned char>(character)) != 0 ||
           static_cast<unsigned char>(character) >= 128;
}

bool isSameLetter(char a, char b) {
    return std::toupper(static_cast<unsigned char>(a)) == b;
}

/// The text without the words of a refusal; nothing when it has none.
std::optional<std::string> withoutRefusal(std::string text) {
    bool isFound = false;
    for (const std::string_view word : {"DNS", "DNF", "DSQ"})
        for (auto at = text.begin(); at != text.end();) {
            const auto begin = std::search(at, text.end(), word.begin(), word.end(), isSameLetter);
            const auto end =
                begin == text.end() ? begin : begin + static_cast<std::ptrdiff_t>(word.size());
            at = end;
            const bool isWord = begin != end &&
                                (begin == text.begin() || !isPartOfWord(begin[-1])) &&
                                (end == text.end() || !isPartOfWord(*end));
            if (isWord)
                std::fill(begin, end, ' ');
            isFound = isFound || isWord;
        }
    return isFound ? std::optional(std::move(text)) : std::nullopt;
}

/// The crew's key where a line refuses it.
std::optional<std::string> refusedCrew(const allresultsdata030& line) {
    std::optional<std::string> bare = withoutRefusal(line.name);
    if (!bare && withoutRefusal(line.nationality))
        bare = line.name;
    if (!bare)
        return std::nullopt;
    std::erase_if(*bare, [](char c) { return c == '(' || c == ')'; });
    return crewKey(*bare);
}

} // namespace

bool isTakenTime(double seconds) {
    constexpr double NoResult = 999;
    return seconds > 0 && seconds < NoResult;
}

std::optional<RunTotal> totalOf(const infodata031& info, const athletedata031& run) {
    if (isRefused(info, run))
        return std::nullopt;
    const sectiondata030& timing = run.sectioninfo;
    if (isTakenTime(timing.realtime))
        return RunTotal{timing.realtime, timing.realpen, true};
    if (info.totalsplits < 1 || std::cmp_less(timing.times.size(), info.totalsplits))
        return std::nullopt;
    const auto course = std::span(timing.times).first(static_cast<std::size_t>(info.totalsplits));
    if (!std::ranges::all_of(course, isTakenTime))
        return std::nullopt;
    return RunTotal{std::accumulate(course.begin(), course.end(), 0.0), timing.totalpen, false};
}

bool isRefused(const infodata031& info, const athletedata031& run) {
    return std::ranges::any_of(info.resultsCSVdata, [&](const allresultsdata030& line) {
        const std::optional<std::string> crew = refusedCrew(line);
        return crew && !crew->empty() && *crew == crewKey(run.names);
    });
}

bool isBetweenItsMarks(std::span<const double> times, std::span<const std::vector<CMTime>> marks,
                       std::size_t section) {
    constexpr double SameTime = 1e-6; // marks are frames, times their difference in seconds
    if (section == 0 || section >= times.size() || section >= marks.size() ||
        marks[section - 1].empty() || marks[section].empty())
        return false;
    const CMTime& begin = marks[section - 1].front();
    const CMTime& end = marks[section].front();
    return isTaken(begin) && isTaken(end) &&
           std::abs(secondsFrom(begin, end) - times[section]) < SameTime;
}

bool standsAlone(const athletedata031& run, std::size_t section) {
    const std::vector<double>& times = run.sectioninfo.times;
    return section < times.size() && isTakenTime(times[section]) &&
           (section == 0 || isTakenTime(times[section - 1]) ||
            isBetweenItsMarks(times, run.sectioninfo.cmtimes, section));
}

} // namespace kavela
