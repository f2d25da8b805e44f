#include "ratios.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace kavela::bench {

namespace {

enum class Target { None, AtLeast, AtMost };

/// One line of the table: the first median, divided by the second when there is one.
struct Line {
    std::string_view what;
    std::string_view unit;
    const char* first;
    const char* second = nullptr;
    Target target = Target::None;
    double bound = 0;
};

constexpr std::string_view Times = "x";
constexpr std::string_view Milliseconds = " ms";

constexpr std::array Lines{
    Line{"Decode race, speed of the bare parse", Times, "decode/race/bare_parse",
         "decode/race/kavela", Target::AtLeast, 0.7},
    Line{"  … of a parser warmed by the same file", Times, "decode/race/bare_parse_again",
         "decode/race/kavela"},
    Line{"  … faster than nlohmann-json", Times, "decode/race/nlohmann", "decode/race/kavela"},
    Line{"  … faster than RapidJSON", Times, "decode/race/rapidjson", "decode/race/kavela"},
    Line{"Decode recording, speed of the bare parse", Times, "decode/recording/bare_parse",
         "decode/recording/kavela", Target::AtLeast, 0.7},
    Line{"  … of a parser warmed by the same file", Times, "decode/recording/bare_parse_again",
         "decode/recording/kavela"},
    Line{"  … faster than nlohmann-json", Times, "decode/recording/nlohmann",
         "decode/recording/kavela"},
    Line{"  … faster than RapidJSON", Times, "decode/recording/rapidjson",
         "decode/recording/kavela"},
    Line{"Encode race, faster than nlohmann-json", Times, "encode/race/nlohmann",
         "encode/race/kavela"},
    Line{"  … faster than RapidJSON", Times, "encode/race/rapidjson", "encode/race/kavela"},
    Line{"Encode recording, faster than nlohmann-json", Times, "encode/recording/nlohmann",
         "encode/recording/kavela"},
    Line{"  … faster than RapidJSON", Times, "encode/recording/rapidjson",
         "encode/recording/kavela"},
    Line{"Upgrade 0.2, cost of rewriting a current file", Times, "upgrade/oldest",
         "upgrade/current", Target::AtMost, 1.6},
    Line{"Peak memory of a race, of its file", Times, "memory/race/kavela#times_file", nullptr,
         Target::AtMost, 4},
    Line{"  … of a recording, of its file", Times, "memory/recording/kavela#times_file", nullptr,
         Target::AtMost, 4},
    Line{"  … of the race, bare parse", Times, "memory/race/bare_parse#times_file"},
    Line{"  … of the race, nlohmann-json", Times, "memory/race/nlohmann#times_file"},
    Line{"  … of the race, RapidJSON", Times, "memory/race/rapidjson#times_file"},
    Line{"Season of 1,000 files, one core", Milliseconds, "season/one_core"},
    Line{"  … all cores", Milliseconds, "season/all_cores"},
    Line{"  … gain of all cores", Times, "season/one_core", "season/all_cores"},
    Line{"Coloured table of 500 runs", Milliseconds, "table/sections", nullptr, Target::AtMost, 5},
    Line{"  … of accumulated times", Milliseconds, "table/accumulated", nullptr, Target::AtMost, 5},
    Line{"kavela show, 60 runs, start to end", Milliseconds, "show/kavela", nullptr, Target::AtMost,
         15},
    Line{"  … faster than Python only reads its file", Times, "show/python", "show/kavela",
         Target::AtLeast, 3},
    Line{"Spreadsheet of 5,000 lines opened", Milliseconds, "tables/xlsx_5000", nullptr,
         Target::AtMost, 1000},
    Line{"  … faster than Python only reads its cells", Times, "tables/python", "tables/xlsx_5000"},
    Line{"Losses of 70 runs", Milliseconds, "losses/winner", nullptr, Target::AtMost, 20},
    Line{"  … on the finalists' median", Milliseconds, "losses/median", nullptr, Target::AtMost,
         20},
    Line{"  … faster than Python only reads its file", Times, "losses/python", "losses/winner"},
    Line{"First scan of seasons, 60 runs a file", Milliseconds, "facts/scan"},
    Line{"  … faster than SQLite takes rows that are read", Times, "facts/fill/sqlite",
         "facts/scan"},
    Line{"  … most memory meanwhile, MB", "", "facts/scan#peak_mb", nullptr, Target::AtMost, 600},
    Line{"Start from the cache", Milliseconds, "facts/cache", nullptr, Target::AtMost, 500},
    Line{"  … faster than SQLite takes rows that are read", Times, "facts/fill/sqlite",
         "facts/cache"},
    Line{"  … with twenty changed files", Milliseconds, "facts/changed"},
    Line{"All rows in memory, MB", "", "facts/memory/kavela#mb"},
    Line{"  … smaller than SQLite with what the queries need", Times, "facts/memory/sqlite#mb",
         "facts/memory/kavela#mb"},
    Line{"Gates of one side, fast, of one year", Milliseconds, "facts/gates/kavela", nullptr,
         Target::AtMost, 200},
    Line{"  … faster than SQLite", Times, "facts/gates/sqlite", "facts/gates/kavela"},
    Line{"Best sprint of each athlete", Milliseconds, "facts/best/kavela", nullptr, Target::AtMost,
         200},
    Line{"  … faster than SQLite", Times, "facts/best/sqlite", "facts/best/kavela"},
    Line{"Section times by athlete and category", Milliseconds, "facts/sections/kavela", nullptr,
         Target::AtMost, 200},
    Line{"  … faster than SQLite", Times, "facts/sections/sqlite", "facts/sections/kavela"},
    Line{"Exact seek in a film, 1080p at 59.94", Milliseconds, "video/seek/kavela"},
    Line{"  … faster than OpenCV", Times, "video/seek/opencv", "video/seek/kavela"},
    Line{"  … faster than ffmpeg's command line", Times, "video/seek/ffmpeg", "video/seek/kavela"},
    Line{"  … of which it needs for the first frame", Times, "video/seek/ffmpeg_first",
         "video/seek/kavela"},
    Line{"Jump to where the next split is expected", Milliseconds, "video/expected/kavela"},
    Line{"  … faster than ffmpeg's command line", Times, "video/seek/ffmpeg",
         "video/expected/kavela"},
    Line{"Step forward", Milliseconds, "video/forward/kavela"},
    Line{"  … faster than OpenCV", Times, "video/forward/opencv", "video/forward/kavela"},
    Line{"Ten steps back", Milliseconds, "video/back/kavela"},
    Line{"  … faster than OpenCV", Times, "video/back/opencv", "video/back/kavela"},
    Line{"Frame to picture, 1080p", Milliseconds, "video/picture"},
    Line{"4 s of 2 × 1080p50 side by side, captions", Milliseconds, "compose/side_by_side/kavela"},
    Line{"  … of the frames a second of ffmpeg", Times, "compose/side_by_side/ffmpeg",
         "compose/side_by_side/kavela", Target::AtLeast, 0.8},
    Line{"A second of the preview, 25 pictures", Milliseconds, "compose/preview_second", nullptr,
         Target::AtMost, 1000},
    Line{"Slit picture of a minute of 1080p50", Milliseconds, "slit/1080p50"},
    Line{"  … of the time that the film plays", Times, "slit/1080p50#of_playing", nullptr,
         Target::AtMost, 0.5},
    Line{"  … of the speed at which ffmpeg only decodes", Times, "slit/ffmpeg_decodes",
         "slit/1080p50"},
    Line{"Season of 12 athletes over 200 races", Milliseconds, "season/compared", nullptr,
         Target::AtMost, 100},
    Line{"Places that 30 boats may expect", Milliseconds, "season/places", nullptr, Target::AtMost,
         1000},
    Line{"  … faster than 20,000 races by dice", Times, "season/places_by_dice", "season/places"},
    Line{"200 films listed", Milliseconds, "films/list_200", nullptr, Target::AtMost, 300},
    Line{"First screen of 16 thumbnails, 1080p", Milliseconds, "films/first_screen", nullptr,
         Target::AtMost, 2000},
    Line{"200 thumbnails, 1080p", Milliseconds, "films/thumbnails_200"},
    Line{"The next film, not opened ahead", Milliseconds, "films/next", nullptr, Target::AtMost,
         300},
    Line{"Race day of 300 films, read and matched", Milliseconds, "race_day/300_films/first_look"},
    Line{"  … a later look at them", Milliseconds, "race_day/300_films/later_look"},
    Line{"Strokes of an hour at 100 samples a second", Milliseconds, "motion/analysis"},
    Line{"  … of the time to decode it", Times, "motion/analysis", "motion/decode", Target::AtMost,
         0.15},
};

/// The value of a line from the medians, or from the best ("#best") of the repetitions.
std::optional<double> valueOf(const Line& line, const std::map<std::string, double>& values,
                              const std::string& figure = "") {
    const auto first = values.find(line.first + figure);
    const auto second = line.second ? values.find(line.second + figure) : values.end();
    if (first == values.end() || (line.second && second == values.end()))
        return std::nullopt;
    return line.second ? first->second / second->second : first->second;
}

bool isMissed(const Line& line, double value) {
    return (line.target == Target::AtLeast && value < line.bound) ||
           (line.target == Target::AtMost && value > line.bound);
}

std::string verdict(const Line& line, double value) {
    if (line.target == Target::None)
        return {};
    return fmt::format("{} {}{}: {}", line.target == Target::AtLeast ? "at least" : "at most",
                       line.bound, line.unit, isMissed(line, value) ? "MISSED" : "reached");
}

std::string text(const Line& line, std::optional<double> value) {
    return value ? fmt::format("{:.2f}{}", *value, line.unit) : std::string();
}

} // namespace

bool ValueReporter::ReportContext(const Context& context) {
    fmt::print("{:<40}{:>14}{:>14}{:>14}\n", fmt::format("{} cores", context.cpu_info.num_cpus),
               "median", "best", "p95");
    return true;
}

void ValueReporter::ReportRuns(const std::vector<Run>& runs) {
    const std::string& name = runs.front().run_name.function_name;
    for (const Run& run : runs) {
        if (run.error_occurred) {
            fmt::print("{}: {}\n", name, run.error_message);
            continue;
        }
        const bool byTheClock = run.run_name.time_type == "real_time";
        const double time = byTheClock ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
        if (run.run_type != Run::RT_Aggregate)
            keepTime(name, time);
        else if (run.aggregate_name == "median")
            keepMedian(name, time, run.counters);
    }
    if (m_values.contains(name))
        fmt::print("{:<40}{:>14}{:>14}{:>14}\n", name, fmt::format("{:.2f} ms", m_values[name]),
                   fmt::format("{:.2f} ms", m_values[name + "#best"]),
                   fmt::format("{:.2f} ms", m_values[name + "#p95"]));
}

void ValueReporter::keepTime(const std::string& name, double time) {
    std::vector<double>& times = m_times[name];
    times.insert(std::ranges::upper_bound(times, time), time);
    m_values[name + "#best"] = times.front();
    m_values[name + "#p95"] = times[times.size() * 95 / 100];
}

void ValueReporter::keepMedian(const std::string& name, double time,
                               const benchmark::UserCounters& counters) {
    m_values[name] = time;
    for (const auto& [counter, value] : counters)
        m_values[name + '#' + counter] = value;
}

int printRatios(const std::map<std::string, double>& values) {
    int missed = 0;
    fmt::print("\n{:<46}{:>12}{:>12}{:>12}  target of the median\n", "", "median", "best", "p95");
    for (const Line& line : Lines) {
        const auto value = valueOf(line, values);
        if (!value)
            continue;
        fmt::print("{:<46}{:>12}{:>12}{:>12}  {}\n", line.what, text(line, value),
                   text(line, valueOf(line, values, "#best")),
                   text(line, valueOf(line, values, "#p95")), verdict(line, *value));
        missed += isMissed(line, *value) ? 1 : 0;
    }
    return missed;
}

} // namespace kavela::bench
