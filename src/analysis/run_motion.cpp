#include "analysis/run_motion.h"

#include "boatmotion/attachment.h"
#include "common/text.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

constexpr std::size_t SpeedStep = 5;      // of the analysis' fifty values a second
constexpr double LongestSpeedBridge = 5;  // s between two fixes
constexpr double LongestHeartBridge = 15; // s; watches write only now and then
constexpr double GreatestSpeed = 15;      // m/s
constexpr double Step = 0.05;             // s, at which means are taken

/// The sections of a run; times below 0 or no numbers were not timed.
std::vector<SectionMotion> sectionsOf(std::span<const double> times) {
    std::vector<SectionMotion> sections(times.size());
    double at = 0;
    for (std::size_t k = 0; k < times.size(); ++k) {
        sections[k].start = at;
        if (times[k] > 0 && std::isfinite(at + times[k]))
            at += times[k];
        sections[k].end = at;
    }
    return sections;
}

/// The section of a moment; nothing before the start and after the last mark.
std::optional<std::size_t> sectionAt(const RunMotion& motion, double time) {
    if (time < 0)
        return std::nullopt;
    for (std::size_t k = 0; k < motion.sections.size(); ++k)
        if (time >= motion.sections[k].start && time < motion.sections[k].end)
            return k;
    return std::nullopt;
}

/// Values over time, straight between those that are close enough.
class Curve {
public:
    Curve(const std::vector<TimedValue>& values, double longestBridge)
        : m_values(values), m_longestBridge(longestBridge) {}

    [[nodiscard]] std::optional<double> at(double time) const {
        const auto after = std::ranges::lower_bound(m_values, time, {}, &TimedValue::time);
        if (after == m_values.end())
            return std::nullopt;
        if (after->time == time)
            return after->value;
        if (after == m_values.begin())
            return std::nullopt;
        const TimedValue& before = *(after - 1);
        const double length = after->time - before.time;
        if (length > m_longestBridge)
            return std::nullopt;
        return before.value + (time - before.time) / length * (after->value - before.value);
    }

    struct Figures {
        double mean = 0;
        double most = 0;
    };

    /// Of a stretch; nothing unless the values cover half of it.
    [[nodiscard]] std::optional<Figures> over(double start, double end) const {
        const auto count = static_cast<std::size_t>(std::ceil((end - start) / Step));
        Figures figures;
        std::size_t known = 0;
        for (std::size_t i = 0; i < count; ++i) {
            const double part = (static_cast<double>(i) + 0.5) / static_cast<double>(count);
            if (const auto value = at(start + part * (end - start))) {
                figures.mean += *value;
                figures.most = std::max(figures.most, *value);
                ++known;
            }
        }
        if (known == 0 || 2 * known < count)
            return std::nullopt;
        figures.mean /= static_cast<double>(known);
        return figures;
    }

private:
    const std::vector<TimedValue>& m_values;
    double m_longestBridge;
};

template <class Sample, class Moment>
std::optional<RunClock> clockOf(std::span<const Sample> samples, double seconds, Moment moment) {
    std::optional<double> first;
    std::optional<double> last;
    for (const Sample& sample : samples) {
        const double own = moment(sample);
        if (!std::isfinite(own))
            continue;
        first = std::min(first.value_or(own), own);
        last = std::max(last.value_or(own), own);
    }
    return first ? runClock(*first, *last, seconds) : std::nullopt;
}

constexpr auto Stamp = [](const boatmotionrawdata_v5& sample) { return sample.timestamp; };
constexpr auto Date = [](const auto& sample) { return sample.date.seconds; };

/// Values with their dates, on the time of the run.
template <class Sample>
std::vector<TimedValue> timedValuesOf(std::span<const Sample> samples, const RunClock& clock,
                                      double Sample::*value, double least, double most) {
    std::vector<TimedValue> values;
    for (const Sample& sample : samples) {
        const double time = clock.momentOf(sample.date.seconds);
        if (std::isfinite(time) && sample.*value >= least && sample.*value <= most)
            values.push_back({time, sample.*value});
    }
    std::ranges::stable_sort(values, {}, &TimedValue::time);
    return values;
}

/// The date of the boat's first sample: fixes and heart rates were cut at the same moment.
std::optional<ReferenceDate> startDate(const RunArrays& run) {
    std::optional<ReferenceDate> start;
    for (const gpsrawdata& fix : run.gps)
        if (std::isfinite(fix.date.seconds) && (!start || fix.date < *start))
            start = fix.date;
    return start;
}

void placeCover(const MotionCover& cover, RunMotion& motion) {
    const auto place = [&](SectionMotion& section) {
        if (!(section.end > section.start))
            return;
        section.cover = cover.of(section.start, section.end);
        section.covered = cover.secondsOf(section.start, section.end);
    };
    for (SectionMotion& section : motion.sections)
        place(section);
    place(motion.whole);
    motion.coverNotes = cover.notes(motion.seconds);
}

void placeMotion(const MotionAnalysis& analysis, const RunClock& clock, RunMotion& motion) {
    for (std::size_t i = 0; i < analysis.strokes.size(); ++i) {
        const double time = clock.momentOf(analysis.strokes[i].catchTime);
        if (const auto section = sectionAt(motion, time))
            motion.strokes.push_back(
                {time, *section, analysis.strokeRates[i], analysis.strokes[i]});
    }
    for (const Turn& turn : analysis.turns) {
        const double time = clock.momentOf(turn.peak);
        if (const auto section = sectionAt(motion, time))
            motion.turns.push_back({time, *section, turn});
    }
    const MotionSeries& series = analysis.series;
    for (std::size_t i = 0; analysis.hasSpeed && i < series.size(); i += SpeedStep)
        if (series.valid[i])
            motion.speed.push_back({clock.momentOf(series.time[i]), series.speed[i]});
}

/// Strokes, turns and, with fixes, the speed from the boat's samples. Gives how dates lie on the
/// run, where the samples tell it.
std::optional<RunClock> analyseBoat(const RunArrays& run, const MotionProfile& profile,
                                    RunMotion& motion) {
    if (run.bm.empty()) {
        motion.reason = say("No motion of the boat is attached to this run.");
        return std::nullopt;
    }
    const auto clock = clockOf(run.bm, motion.seconds, Stamp);
    if (!clock) {
        motion.reason = say("The attached motion is not as long as the run, so that its moments "
                            "cannot be told.");
        return std::nullopt;
    }
    motion.drift = clock->rate - 1;
    try {
        const MotionAnalysis analysis =
            analyseMotion({run.bm, run.watchmotion, run.gps, startDate(run)}, profile);
        motion.flags = analysis.flags;
        motion.notes = notesOf(analysis);
        motion.isBowKnown = analysis.isBowKnown;
        placeCover(MotionCover(run.bm, *clock), motion);
        placeMotion(analysis, *clock, motion);
        RunClock dates = *clock;
        dates.first += analysis.clockOffset;
        return analysis.hasSpeed ? std::optional(dates) : std::nullopt;
    } catch (const std::exception& error) {
        motion.reason = error.what();
        return std::nullopt;
    }
}

/// Speeds and heart rates, by the relation that the boat's samples give their dates, or else by
/// their own length.
void placeDated(const RunArrays& run, const std::optional<RunClock>& dates, RunMotion& motion) {
    if (motion.speed.empty())
        if (const auto clock = dates ? dates : clockOf(run.gps, motion.seconds, Date))
            motion.speed = timedValuesOf(run.gps, *clock, &gpsrawdata::speed, 0, GreatestSpeed);
    if (const auto clock = dates ? dates : clockOf(run.hr, motion.seconds, Date))
        motion.heart = timedValuesOf(run.hr, *clock, &heartmotiondata::hr, 1, 300);
}

void countStrokes(const RunMotion& motion, SectionMotion& section) {
    std::size_t strokes = 0;
    std::size_t turns = 0;
    double rates = 0;
    for (const RunStroke& stroke : motion.strokes)
        if (stroke.time >= section.start && stroke.time < section.end) {
            ++strokes;
            rates += stroke.rate;
        }
    for (const RunTurn& turn : motion.turns)
        turns += turn.time >= section.start && turn.time < section.end;
    if (section.cover != MotionCover::None) {
        section.strokes = strokes;
        section.turns = turns;
    }
    if (strokes > 0)
        section.strokeRate = rates / static_cast<double>(strokes);
}

void fillMotion(const RunMotion& motion, SectionMotion& section) {
    if (!(section.end > section.start))
        return;
    if (motion.reason.empty())
        countStrokes(motion, section);
    const auto speed = Curve(motion.speed, LongestSpeedBridge).over(section.start, section.end);
    if (speed) {
        section.meanSpeed = speed->mean;
        section.maxSpeed = speed->most;
        section.distance = speed->mean * (section.end - section.start);
    }
    if (const auto heart = Curve(motion.heart, LongestHeartBridge).over(section.start, section.end))
        section.heartRate = heart->mean;
}

MotionProfile profileFor(std::string_view category) {
    MotionProfile profile;
    if (category.starts_with('C') || category.starts_with('c'))
        profile.boat = BoatClass::Canoe;
    return profile;
}

} // namespace

RunMotion runMotion(const RunArrays& run, const MotionProfile& profile) {
    constexpr double LongestRun = 7200; // s
    RunMotion motion;
    motion.sections = sectionsOf(run.times);
    motion.seconds = motion.sections.empty() ? 0 : motion.sections.back().end;
    motion.whole.end = motion.seconds;
    if (!(motion.seconds > 0 && motion.seconds <= LongestRun)) {
        motion.reason = say("The run has no times that the recording could be laid on.");
        return motion;
    }
    placeDated(run, analyseBoat(run, profile, motion), motion);
    for (SectionMotion& section : motion.sections)
        fillMotion(motion, section);
    fillMotion(motion, motion.whole);
    if (motion.whole.cover == MotionCover::Part) {
        motion.whole.strokes.reset();
        motion.whole.turns.reset();
    }
    return motion;
}

RunMotion runMotion(const athletedata031& run, const infodata031& info) {
    return runMotion({run.sectioninfo.times, run.bm, run.watchmotion, run.gps, run.hr},
                     profileFor(run.cat.empty() ? info.category : run.cat));
}

RunMotion runMotion(const analyzerdata& run) {
    return runMotion({run.sectioninfo.times, run.bm, run.watch, run.gps, run.heart},
                     profileFor(run.category));
}

std::optional<RunSpan> runSpan(const athletedata031& run) {
    const sectiondata030& timing = run.sectioninfo;
    const std::vector<SectionMotion> sections = sectionsOf(timing.times);
    for (std::size_t k = 0; k < sections.size() && k < timing.cmtimes.size(); ++k) {
        const bool isTimed = sections[k].end > sections[k].start;
        if (!isTimed || timing.cmtimes[k].empty() || timing.cmtimes[k].front().timescale == 0)
            continue;
        const double start = timing.cmtimes[k].front().seconds() - sections[k].end;
        return RunSpan{start, start + sections.back().end};
    }
    return std::nullopt;
}

} // namespace kavela
