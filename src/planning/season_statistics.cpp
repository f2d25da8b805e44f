#include "planning/season_statistics.h"

#include "common/folded_text.h"
#include "common/record_convert.h"
#include "planning/add_within.h"
#include "planning/calendar_day.h"
#include "splitdata/run_timing.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace kavela {

namespace {

using Words = std::vector<std::string>;

/// The words of a name in an order of their own, so that it does not matter in which they stand.
Words wordsOf(std::string_view name) {
    Words words;
    std::string word;
    for (const char c : folded(name) + ' ') {
        if (c != ' ' && c != ',') {
            word += c;
        } else if (!word.empty()) {
            words.push_back(std::move(word));
            word.clear();
        }
    }
    std::ranges::sort(words);
    return words;
}

bool isIn(const athletedata031& run, const Words& athlete) {
    return std::ranges::any_of(run.names,
                               [&](const std::string& name) { return wordsOf(name) == athlete; });
}

struct TimeAndPenalty {
    double time = 0;
    std::int64_t penalty = 0;

    [[nodiscard]] double sum() const { return time + static_cast<double>(penalty); }
};

TimeAndPenalty resultOf(const sectiondata030& timing) {
    if (timing.realtime != 0)
        return {timing.realtime, timing.realpen};
    return {timing.totaltime, timing.totalpen};
}

std::vector<history::pendata015> detailsOf(const athletedata031& run) {
    std::vector<history::pendata015> details;
    for (const pendata030& detail : run.sectioninfo.pendetails)
        details.push_back(converted<history::pendata015>(detail));
    return details;
}

/// The runs that a run is compared with: those of its category and phase.
std::vector<const athletedata031*> rivalsOf(const athletedata031& run,
                                            const splittakerdata031& file) {
    std::vector<const athletedata031*> rivals;
    for (const athletedata031& other : file.athletes)
        if (other.cat == run.cat && other.phase == run.phase)
            rivals.push_back(&other);
    return rivals;
}

/// A run that stopped half way is no best one. Where no run was timed over the whole course, their
/// totals are all there is.
TimeAndPenalty bestOf(const std::vector<const athletedata031*>& runs, std::int64_t splits) {
    std::optional<TimeAndPenalty> best;
    bool isBestWhole = false;
    for (const athletedata031* run : runs) {
        const TimeAndPenalty result = resultOf(run->sectioninfo);
        const bool isWhole =
            run->sectioninfo.isfullrun || isFullRun(run->sectioninfo.times, splits);
        if (result.time <= 0 || (isBestWhole && !isWhole))
            continue;
        if (!best || isWhole != isBestWhole || result.sum() < best->sum())
            best = result;
        isBestWhole = isWhole;
    }
    return best.value_or(TimeAndPenalty{});
}

std::vector<double> sectionsBehind(const athletedata031& run,
                                   const std::vector<const athletedata031*>& rivals) {
    std::vector<double> percentages;
    for (std::size_t i = 0; i < run.sectioninfo.times.size(); ++i) {
        const double own = run.sectioninfo.times[i];
        double best = own;
        for (const athletedata031* rival : rivals)
            if (const double time = entryOrZero(rival->sectioninfo.times, i); time > 0)
                best = std::min(best, time);
        const double percentage = (own / best - 1) * 100;
        percentages.push_back(own > 0 && std::isfinite(percentage) ? percentage : 0);
    }
    return percentages;
}

void addRace(racedataplanning_v3& races, const athletedata031& run, const splittakerdata031& file) {
    const auto rivals = rivalsOf(run, file);
    const TimeAndPenalty own = resultOf(run.sectioninfo);
    const TimeAndPenalty best = bestOf(rivals, file.info.totalsplits);
    races.date.push_back(file.info.date);
    races.event.push_back(file.info.event.empty() ? file.info.title : file.info.event);
    races.phase.push_back(run.phase);
    races.location.push_back(file.info.place);
    races.percentajes.push_back(sectionsBehind(run, rivals));
    races.penalties.push_back(run.sectioninfo.pens);
    races.pendetails.push_back(detailsOf(run));
    races.gates.push_back(file.info.gates);
    races.pos.push_back(run.pos);
    races.time.push_back(own.time);
    races.timePen.push_back(own.penalty);
    races.bestTime.push_back(best.time);
    races.bestTimePen.push_back(best.penalty);
}

void addPenalties(penaltydataplanning_v1& penalties, const athletedata031& run,
                  const infodata031& info) {
    penalties.date.push_back(info.date);
    penalties.session.push_back(info.session);
    penalties.event.push_back(info.event.empty() ? info.title : info.event);
    penalties.phase.push_back(run.phase);
    penalties.water.push_back(info.watertype);
    penalties.location.push_back(info.place);
    penalties.gates.push_back(info.gates);
    penalties.touches.push_back(run.totaltouches);
    penalties.fifties.push_back(run.totalfifties);
    penalties.pendetails.push_back(detailsOf(run));
}

double perRun(std::int64_t count, std::int64_t runs) {
    return runs == 0 ? 0 : static_cast<double>(count) / static_cast<double>(runs);
}

} // namespace

statisticsplanning_v3 seasonStatistics(std::string_view name,
                                       std::span<const splittakerdata031> files) {
    std::vector<const splittakerdata031*> ordered;
    for (const splittakerdata031& file : files)
        ordered.push_back(&file);
    std::ranges::stable_sort(ordered, {},
                             [](const splittakerdata031* file) { return file->info.date.seconds; });
    const Words athlete = wordsOf(name);
    statisticsplanning_v3 statistics;
    for (const splittakerdata031* file : ordered) {
        for (const athletedata031& run : file->athletes) {
            if (!isIn(run, athlete))
                continue;
            if (file->info.session == "Race")
                addRace(statistics.racedata, run, *file);
            addPenalties(statistics.pendata, run, file->info);
        }
    }
    return statistics;
}

bool isOfYear(const splittakerdata031& file, std::chrono::year year) {
    const auto day = dayOfMoment(file.info.date);
    return day && std::chrono::year_month_day(*day).year() == year;
}

double PenaltySummary::touchesPerRun() const {
    return perRun(touches, runs);
}

double PenaltySummary::fiftiesPerRun() const {
    return perRun(fifties, runs);
}

PenaltySummary penaltySummary(const penaltydataplanning_v1& penalties) {
    PenaltySummary summary;
    const std::size_t runs = std::max(penalties.touches.size(), penalties.fifties.size());
    for (std::size_t i = 0; i < runs; ++i) {
        const std::int64_t touches = entryOrZero(penalties.touches, i);
        const std::int64_t fifties = entryOrZero(penalties.fifties, i);
        ++summary.runs;
        summary.cleanRuns += touches == 0 && fifties == 0;
        addWithin(summary.gates, entryOrZero(penalties.gates, i));
        addWithin(summary.touches, touches);
        addWithin(summary.fifties, fifties);
    }
    return summary;
}

} // namespace kavela
