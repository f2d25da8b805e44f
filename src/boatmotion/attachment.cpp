#include "boatmotion/attachment.h"

#include "boatmotion/motion_cover.h"
#include "boatmotion/strokes/clocks.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

/// Beyond these distances of its neighbours, in seconds, the value between them is not known, as
/// beyond LongestMotionBridge for the boat's samples.
constexpr double LongestFixBridge = 5;
constexpr double LongestHeartBridge = 10;

constexpr double SameMoment = 1e-9; // s

struct Range {
    double first = 0;
    double last = 0;
};

double momentOf(const boatmotionrawdata_v5& sample) {
    return sample.timestamp;
}
double momentOf(const watchmotiondata_v5& sample) {
    return sample.timestamp;
}
double momentOf(const gpsrawdata& fix) {
    return fix.date.seconds;
}
double momentOf(const heartmotiondata& heart) {
    return heart.date.seconds;
}

double valueBetween(double a, double b, double part) {
    return a + part * (b - a);
}

template <class Axes>
Axes axesBetween(const Axes& a, const Axes& b, double part) {
    return {valueBetween(a.x, b.x, part), valueBetween(a.y, b.y, part),
            valueBetween(a.z, b.z, part)};
}

/// Attitudes jump where an angle has gone round, so that of the nearer sample is taken.
boatmotionrawdata_v5 valueBetween(const boatmotionrawdata_v5& a, const boatmotionrawdata_v5& b,
                                  double part) {
    return {valueBetween(a.timestamp, b.timestamp, part),
            axesBetween(a.acceleration, b.acceleration, part),
            axesBetween(a.rotationRate, b.rotationRate, part), part < 0.5 ? a.attitude : b.attitude,
            axesBetween(a.gravity, b.gravity, part)};
}

gpsrawdata valueBetween(const gpsrawdata& a, const gpsrawdata& b, double part) {
    const bool isSpeedKnown = a.speed >= 0 && b.speed >= 0;
    return {{valueBetween(a.date.seconds, b.date.seconds, part)},
            isSpeedKnown ? valueBetween(a.speed, b.speed, part) : -1,
            valueBetween(a.latitude, b.latitude, part),
            valueBetween(a.longitude, b.longitude, part)};
}

heartmotiondata valueBetween(const heartmotiondata& a, const heartmotiondata& b, double part) {
    return {{valueBetween(a.date.seconds, b.date.seconds, part)}, valueBetween(a.hr, b.hr, part)};
}

/// A sample that says that nothing is known.
boatmotionrawdata_v5 unknownAt(double moment, const boatmotionrawdata_v5& nearest) {
    return {moment, {}, {}, nearest.attitude, nearest.gravity};
}
gpsrawdata unknownAt(double moment, const gpsrawdata& nearest) {
    return {{moment}, -1, nearest.latitude, nearest.longitude};
}
heartmotiondata unknownAt(double moment, const heartmotiondata& /*nearest*/) {
    return {{moment}, 0};
}

/// The sample at exactly a moment, made from those around it. `samples` is not empty.
template <class Sample>
Sample sampleAt(std::span<const Sample> samples, double moment, double longestBridge) {
    const Sample* before = nullptr;
    const Sample* after = nullptr;
    for (const Sample& sample : samples) {
        const double own = momentOf(sample);
        if (own <= moment && (!before || own > momentOf(*before)))
            before = &sample;
        if (own >= moment && (!after || own < momentOf(*after)))
            after = &sample;
    }
    if (!before || !after)
        return unknownAt(moment, before ? *before : after ? *after : samples.front());
    const double length = momentOf(*after) - momentOf(*before);
    if (length > longestBridge)
        return unknownAt(moment, moment - momentOf(*before) < length / 2 ? *before : *after);
    Sample made =
        valueBetween(*before, *after, length > 0 ? (moment - momentOf(*before)) / length : 0);
    return made;
}

void setMoment(boatmotionrawdata_v5& sample, double moment) {
    sample.timestamp = moment;
}
void setMoment(gpsrawdata& fix, double moment) {
    fix.date.seconds = moment;
}
void setMoment(heartmotiondata& heart, double moment) {
    heart.date.seconds = moment;
}

template <class Sample>
std::vector<Sample> within(std::span<const Sample> samples, const Range& range) {
    std::vector<Sample> found;
    for (const Sample& sample : samples)
        if (momentOf(sample) >= range.first && momentOf(sample) <= range.last)
            found.push_back(sample);
    return found;
}

/// The samples from the beginning of a range to its end, one on each edge; none when none lies
/// in the run itself.
template <class Sample>
std::vector<Sample> cutSamples(const std::vector<Sample>& samples, const Range& range,
                               const Range& run, double longestBridge) {
    const std::span<const Sample> all(samples);
    if (within(all, run).empty())
        return {};
    std::vector<Sample> part = within(all, range);
    const auto hasAt = [&](double moment) {
        return std::ranges::any_of(part, [&](const Sample& sample) {
            return std::abs(momentOf(sample) - moment) <= SameMoment;
        });
    };
    const auto edge = [&](double moment) {
        Sample made = sampleAt(all, moment, longestBridge);
        setMoment(made, moment);
        return made;
    };
    if (!hasAt(range.first))
        part.insert(part.begin(), edge(range.first));
    if (!hasAt(range.last))
        part.push_back(edge(range.last));
    return part;
}

/// date = stamp + offset.
double dateOffset(const bmrawdata_v5& session, std::vector<std::string>& notes) {
    if (session.boatmotion.empty())
        return 0;
    const auto [first, last] =
        std::ranges::minmax_element(session.boatmotion, {}, [](const boatmotionrawdata_v5& sample) {
            return sample.timestamp;
        });
    const strokes::ClockRelation relation =
        strokes::clockRelation(first->timestamp, last->timestamp, session.gps, session.info.date);
    if (relation.isGuessed && !session.gps.empty())
        notes.emplace_back("The recording's date does not fit its positions; positions and motion "
                           "were taken to begin together.");
    return relation.offset;
}

/// Least squares about the middle of the events.
ClockFit bestFit(std::span<const EventPair> events) {
    ClockFit fit{{0, 0}, 1};
    const auto count = static_cast<double>(events.size());
    for (const EventPair& event : events) {
        fit.anchor.video += event.video / count;
        fit.anchor.stamp += event.stamp / count;
    }
    double product = 0;
    double square = 0;
    for (const EventPair& event : events) {
        const double video = event.video - fit.anchor.video;
        product += video * (event.stamp - fit.anchor.stamp);
        square += video * video;
    }
    fit.rate = product / square;
    return fit;
}

} // namespace

ClockFit clockFit(std::span<const EventPair> events) {
    if (events.empty())
        throw ClockError("An event that both the video and the recording show is needed.");
    for (const EventPair& event : events)
        if (!std::isfinite(event.video) || !std::isfinite(event.stamp))
            throw ClockError("The moment of an event is no number.");
    if (events.size() == 1)
        return {events.front(), 1};
    const auto [first, last] = std::ranges::minmax_element(events, {}, &EventPair::video);
    if (last->video - first->video < LeastEventDistance)
        throw ClockError(fmt::format("The events are {:.1f} s apart; to tell how the clocks drift "
                                     "they have to be at least {:.0f} s apart.",
                                     last->video - first->video, LeastEventDistance));
    const ClockFit fit = bestFit(events);
    if (!(std::abs(fit.rate - 1) <= GreatestDrift))
        throw ClockError(fmt::format("The recording's clock would run {:.1f} % {} than the "
                                     "video's, and no clock is as wrong "
                                     "as that: the events are not the same ones.",
                                     std::abs(fit.rate - 1) * 100,
                                     fit.rate > 1 ? "faster" : "slower"));
    return fit;
}

AttachedPart partOf(const bmrawdata_v5& session, const ClockFit& fit, double runStart,
                    double runEnd) {
    if (!(runEnd > runStart) || !std::isfinite(runEnd - runStart))
        throw ClockError("The run has no marks from a start to an end.");
    const Range run{fit.stampAt(runStart), fit.stampAt(runEnd)};
    const Range range{fit.stampAt(runStart - AttachMargin), fit.stampAt(runEnd + AttachMargin)};
    AttachedPart part;
    part.bm = cutSamples(session.boatmotion, range, run, LongestMotionBridge);
    if (!session.boatmotion.empty())
        part.notes =
            MotionCover(session.boatmotion, runClock(fit, runStart)).notes(runEnd - runStart);
    if (!session.boatmotion.empty() && part.bm.empty())
        return part;
    part.watchmotion = within(std::span<const watchmotiondata_v5>(session.watchmotion),
                              {range.first - WatchMargin, range.last + WatchMargin});
    const double offset = dateOffset(session, part.notes);
    const Range dates{range.first + offset, range.last + offset};
    const Range runDates{run.first + offset, run.last + offset};
    part.gps = cutSamples(session.gps, dates, runDates, LongestFixBridge);
    part.hr = cutSamples(session.heart, dates, runDates, LongestHeartBridge);
    if (part.isEmpty())
        part.notes.emplace_back("The recording does not reach into this run.");
    return part;
}

std::optional<RunClock> runClock(double first, double last, double seconds) {
    if (!(seconds > 0) || !std::isfinite(first) || !std::isfinite(last))
        return std::nullopt;
    const double length = last - first;
    const RunClock bare{first, 0, length / seconds};
    const RunClock wide{first, AttachMargin, length / (seconds + 2 * AttachMargin)};
    const RunClock& nearer = std::abs(wide.rate - 1) <= std::abs(bare.rate - 1) ? wide : bare;
    // An array cut bare by whole samples is short by up to two of them.
    const double tolerance = GreatestDrift + 0.05 / seconds;
    if (!(std::abs(nearer.rate - 1) <= tolerance))
        return std::nullopt;
    return nearer;
}

} // namespace kavela
