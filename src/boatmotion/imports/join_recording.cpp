#include "boatmotion/imports/join_recording.h"

#include "boatmotion/strokes/clocks.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

constexpr double Around = 60; // s

template <class Sample>
bool isRecordedWithin(const Sample& sample, const DateSpan& dates, double offset) {
    const double date = sample.date.seconds + offset;
    return date >= dates.first - Around && date <= dates.last + Around;
}

template <class Sample>
void join(std::vector<Sample>& present, const std::vector<Sample>& track, const DateSpan& dates,
          double offset) {
    for (Sample sample : track)
        if (isRecordedWithin(sample, dates, offset)) {
            sample.date.seconds += offset;
            present.push_back(sample);
        }
}

std::string durationText(double seconds) {
    const auto whole = static_cast<long long>(std::min(std::abs(seconds), 1e12));
    if (whole >= 86400)
        return fmt::format("{} d {} h", whole / 86400, whole / 3600 % 24);
    if (whole >= 3600)
        return fmt::format("{} h {} min", whole / 3600, whole / 60 % 60);
    return fmt::format("{} min {} s", whole / 60, whole % 60);
}

/// Why a track does not meet the recording; a clock on the time of another zone is often why.
template <class Sample>
std::string apartText(const std::vector<Sample>& track, const DateSpan& dates, double offset,
                      const char* what) {
    const double ahead = track.front().date.seconds + offset - dates.first;
    std::string text = fmt::format("The track's {} begin {} {} the recording", what,
                                   durationText(ahead), ahead > 0 ? "after" : "before");
    const double hours = std::round(ahead / 3600);
    if (hours != 0 && std::abs(hours) <= 14)
        text += fmt::format("; perhaps an offset of {} h is missing", -hours);
    return text + '.';
}

template <class Sample>
std::size_t countWhereMissing(const std::vector<Sample>& present, const std::vector<Sample>& track,
                              const DateSpan& dates, double offset, const char* what,
                              std::vector<std::string>& notes) {
    if (track.empty())
        return 0;
    if (!present.empty()) {
        notes.push_back(fmt::format("The recording has {} of its own, which stay.", what));
        return 0;
    }
    const auto taken = std::ranges::count_if(
        track, [&](const Sample& sample) { return isRecordedWithin(sample, dates, offset); });
    if (taken == 0)
        notes.push_back(apartText(track, dates, offset, what));
    return static_cast<std::size_t>(taken);
}

} // namespace

DateSpan spanOf(const bmrawdata_v5& session) {
    const auto& samples = session.boatmotion;
    const auto [first, last] =
        std::minmax_element(samples.begin(), samples.end(),
                            [](const auto& a, const auto& b) { return a.timestamp < b.timestamp; });
    const double offset =
        strokes::clockRelation(first->timestamp, last->timestamp, session.gps, session.info.date)
            .offset;
    return {first->timestamp + offset, last->timestamp + offset};
}

DateSpan spanOf(const ImportedTrack& track) {
    DateSpan span{HUGE_VAL, -HUGE_VAL};
    const auto take = [&](const auto& samples) {
        for (const auto& sample : samples) {
            span.first = std::min(span.first, sample.date.seconds);
            span.last = std::max(span.last, sample.date.seconds);
        }
    };
    take(track.gps);
    take(track.heart);
    return span;
}

JoinedTrack joinable(const bmrawdata_v5& session, const ImportedTrack& track, double offset) {
    JoinedTrack joined;
    if (session.boatmotion.empty()) {
        joined.notes.push_back("The recording has no motion samples to join the track to.");
        return joined;
    }
    const DateSpan dates = spanOf(session);
    joined.fixes =
        countWhereMissing(session.gps, track.gps, dates, offset, "positions", joined.notes);
    joined.heart =
        countWhereMissing(session.heart, track.heart, dates, offset, "heart rates", joined.notes);
    return joined;
}

JoinedTrack joinRecording(bmrawdata_v5& session, const ImportedTrack& track, double offset) {
    const JoinedTrack joined = joinable(session, track, offset);
    if (session.boatmotion.empty())
        return joined;
    const DateSpan dates = spanOf(session); // as it is before it has the fixes of the track
    if (joined.fixes > 0)
        join(session.gps, track.gps, dates, offset);
    if (joined.heart > 0)
        join(session.heart, track.heart, dates, offset);
    return joined;
}

} // namespace kavela
