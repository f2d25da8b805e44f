#include "boatmotion/imports/join_recording.h"

#include "boatmotion/strokes/clocks.h"
#include "common/text.h"

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
        return say("{} d {} h", whole / 86400, whole / 3600 % 24);
    if (whole >= 3600)
        return say("{} h {} min", whole / 3600, whole / 60 % 60);
    return say("{} min {} s", whole / 60, whole % 60);
}

/// What there is to say of samples of one kind.
struct SampleTexts {
    std::string_view stay;   ///< those of the recording
    std::string_view after;  ///< the track's begin so much after the recording
    std::string_view before; ///< or before it
    std::string_view afterByZone;
    std::string_view beforeByZone;
};

constexpr SampleTexts Positions{
    .stay = KAVELA_TEXT("The recording has positions of its own, which stay."),
    .after = KAVELA_TEXT("The track's positions begin {} after the recording."),
    .before = KAVELA_TEXT("The track's positions begin {} before the recording."),
    .afterByZone = KAVELA_TEXT("The track's positions begin {} after the recording; perhaps an "
                               "offset of {} h is missing."),
    .beforeByZone = KAVELA_TEXT("The track's positions begin {} before the recording; perhaps an "
                                "offset of {} h is missing.")};

constexpr SampleTexts HeartRates{
    .stay = KAVELA_TEXT("The recording has heart rates of its own, which stay."),
    .after = KAVELA_TEXT("The track's heart rates begin {} after the recording."),
    .before = KAVELA_TEXT("The track's heart rates begin {} before the recording."),
    .afterByZone = KAVELA_TEXT("The track's heart rates begin {} after the recording; perhaps an "
                               "offset of {} h is missing."),
    .beforeByZone = KAVELA_TEXT("The track's heart rates begin {} before the recording; perhaps "
                                "an offset of {} h is missing.")};

/// Why a track does not meet the recording; a clock on the time of another zone is often why.
template <class Sample>
std::string apartText(const std::vector<Sample>& track, const DateSpan& dates, double offset,
                      const SampleTexts& texts) {
    const double ahead = track.front().date.seconds + offset - dates.first;
    const bool isAfter = ahead > 0;
    const double hours = std::round(ahead / 3600);
    if (hours != 0 && std::abs(hours) <= 14)
        return sayMarked(isAfter ? texts.afterByZone : texts.beforeByZone, durationText(ahead),
                         -hours);
    return sayMarked(isAfter ? texts.after : texts.before, durationText(ahead));
}

template <class Sample>
std::size_t countWhereMissing(const std::vector<Sample>& present, const std::vector<Sample>& track,
                              const DateSpan& dates, double offset, const SampleTexts& texts,
                              std::vector<std::string>& notes) {
    if (track.empty())
        return 0;
    if (!present.empty()) {
        notes.emplace_back(translated(texts.stay));
        return 0;
    }
    const auto taken = std::ranges::count_if(
        track, [&](const Sample& sample) { return isRecordedWithin(sample, dates, offset); });
    if (taken == 0)
        notes.push_back(apartText(track, dates, offset, texts));
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
        joined.notes.push_back(say("The recording has no motion samples to join the track to."));
        return joined;
    }
    const DateSpan dates = spanOf(session);
    joined.fixes =
        countWhereMissing(session.gps, track.gps, dates, offset, Positions, joined.notes);
    joined.heart =
        countWhereMissing(session.heart, track.heart, dates, offset, HeartRates, joined.notes);
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
