#include "common/text.h"
#include "vision/picture_stream.h"

#include "vision/band.h"
#include "vision/crossing_search.h"
#include "vision/shake.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <limits>

namespace kavela {

namespace {

constexpr int PicturesToLearn = 50;
constexpr double SecondsToLearn = 20;
/// A stretch is searched at once, with so much more on either side as a slow boat needs.
constexpr double StretchSeconds = 24;
constexpr double StretchMargin = SlowestPassage + LongestPile;
constexpr int BandsInMedian = 48;
/// Behind a longer one the film goes on as another: nothing is known of what moved meanwhile.
constexpr double LongestGap = 1;
struct CutBand {
    FrameNumber number;
    double seconds;
    std::vector<std::uint8_t> samples;
};

class StreamSearch {
public:
    StreamSearch(PictureStream& stream, FrameNumber first, FrameNumber last, const SlitLine& line,
                 const BoatBox& boat)
        : m_stream(stream), m_first(first), m_last(last) {
        const FittedBand band = fittedBand(line, boat.width, boat.height);
        m_shape = band.shape;
        m_boat = band.boat;
    }

    [[nodiscard]] std::optional<Crossings>
    run(const std::stop_token& stop, const std::function<void(const BarrierProgress&)>& onProgress);

private:
    [[nodiscard]] ShakeMeter learnShake(const std::stop_token& stop);
    void search(double from, double to, const std::stop_token& stop);
    [[nodiscard]] std::vector<std::vector<std::int8_t>> deviations() const;
    [[nodiscard]] double secondsPerSlot() const;
    [[nodiscard]] FrameNumber frameAtOrBehind(double seconds) const;
    [[nodiscard]] FrameNumber framesPerBand() const;
    void tellHandHeld();

    PictureStream& m_stream;
    FrameNumber m_first;
    FrameNumber m_last;
    BandShape m_shape;
    BandBoat m_boat;
    std::deque<CutBand> m_bands;
    Crossings m_found;
};

ShakeMeter StreamSearch::learnShake(const std::stop_token& stop) {
    std::vector<HalfPlanes> pictures;
    FrameNumber end = m_first;
    while (end < m_last && m_stream.secondsOf(end) - m_stream.secondsOf(m_first) < SecondsToLearn)
        ++end;
    const FrameNumber every = std::max<FrameNumber>((end - m_first) / PicturesToLearn, 1);
    for (FrameNumber number = m_first; number < end && !stop.stop_requested(); number += every)
        if (auto picture = m_stream.picture(number, stop)) {
            picture->blue.clear(); // fifty large pictures are held at once
            picture->red.clear();
            pictures.push_back(std::move(*picture));
        }
    return ShakeMeter(pictures);
}

double StreamSearch::secondsPerSlot() const {
    std::vector<double> intervals;
    for (std::size_t i = 1; i < m_bands.size(); ++i)
        intervals.push_back(m_bands[i].seconds - m_bands[i - 1].seconds);
    const auto middle = intervals.begin() + std::ssize(intervals) / 2;
    std::ranges::nth_element(intervals, middle);
    return std::max(*middle, 1e-4);
}

std::vector<std::vector<std::int8_t>> StreamSearch::deviations() const {
    const std::size_t every = std::max<std::size_t>(m_bands.size() / BandsInMedian, 1);
    std::vector<const std::vector<std::uint8_t>*> some;
    for (std::size_t i = 0; i < m_bands.size(); i += every)
        some.push_back(&m_bands[i].samples);
    const std::vector<std::uint8_t> resting = medianBand(m_shape, some);
    std::vector<std::vector<std::int8_t>> made;
    made.reserve(m_bands.size());
    for (const CutBand& band : m_bands)
        made.push_back(bandDeviation(m_shape, band.samples, resting));
    return made;
}

FrameNumber StreamSearch::frameAtOrBehind(double seconds) const {
    constexpr double Rounding = 1e-6;
    FrameNumber low = m_first;
    FrameNumber high = m_last - 1;
    while (low < high) {
        const FrameNumber middle = low + (high - low) / 2;
        if (m_stream.secondsOf(middle) < seconds - Rounding)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

/// Films of 120 frames a second and more tell no more of when a boat comes than every second frame
/// does, and would fill the memory.
FrameNumber StreamSearch::framesPerBand() const {
    constexpr double MostBandsPerSecond = 60;
    const double seconds = m_stream.secondsOf(m_last - 1) - m_stream.secondsOf(m_first);
    if (!(seconds > 0))
        return 1;
    const double rate = static_cast<double>(m_last - 1 - m_first) / seconds;
    return std::max<FrameNumber>(std::llround(rate / MostBandsPerSecond), 1);
}

/// Searches all bands there are, and keeps what lies from one moment to before another.
void StreamSearch::search(double from, double to, const std::stop_token& stop) {
    constexpr std::size_t Fewest = 20;
    if (m_bands.size() < Fewest)
        return;
    const auto made = deviations();
    BandStretch stretch{m_shape, secondsPerSlot(), {}};
    const double start = m_bands.front().seconds;
    std::size_t band = 0;
    const auto isNearer = [&](double seconds) {
        return band + 1 < m_bands.size() && std::abs(m_bands[band + 1].seconds - seconds) <
                                                std::abs(m_bands[band].seconds - seconds);
    };
    for (double at = start; at <= m_bands.back().seconds + stretch.secondsPerSlot / 2;
         at = start + double(stretch.slots.size()) * stretch.secondsPerSlot) {
        while (isNearer(at))
            ++band;
        stretch.slots.push_back(made[band].data());
    }
    for (const BandCrossing& crossing : searchCrossings(stretch, m_boat, stop)) {
        const double seconds = start + crossing.slot * stretch.secondsPerSlot;
        const double body = start + crossing.bodySlot * stretch.secondsPerSlot;
        if (seconds >= from && seconds < to)
            m_found.proposals.push_back({frameAtOrBehind(seconds), seconds, crossing.confidence,
                                         frameAtOrBehind(body), body});
    }
}

void StreamSearch::tellHandHeld() {
    m_found.isHandHeld = true;
    m_found.notes.push_back(handHeldNote());
}

std::optional<Crossings>
StreamSearch::run(const std::stop_token& stop,
                  const std::function<void(const BarrierProgress&)>& onProgress) {
    ShakeMeter shake = learnShake(stop);
    if (shake.isHandHeld())
        tellHandHeld();
    m_found.frames = m_last - m_first;
    FrameNumber missing = 0;
    double keepFrom = -std::numeric_limits<double>::infinity();
    const FrameNumber every = framesPerBand();
    for (FrameNumber number = m_first; number < m_last; number += every) {
        if (stop.stop_requested())
            return std::nullopt;
        const auto picture = m_stream.picture(number, stop);
        if (!picture) {
            ++missing;
            continue;
        }
        const double now = m_stream.secondsOf(number);
        if (!m_bands.empty() && now - m_bands.back().seconds > LongestGap) {
            search(keepFrom, std::numeric_limits<double>::infinity(), stop);
            m_bands.clear();
            keepFrom = now;
        }
        const CameraShift shift = shake.shiftOf(*picture);
        m_bands.push_back({number, now, cutBand(m_shape, *picture, {shift.x, shift.y})});
        if (now - m_bands.front().seconds >= StretchSeconds + 2 * StretchMargin) {
            search(keepFrom, now - StretchMargin, stop);
            keepFrom = now - StretchMargin;
            while (m_bands.front().seconds < keepFrom - StretchMargin)
                m_bands.pop_front();
        }
        if (onProgress)
            onProgress({number - m_first + 1, m_last - m_first});
    }
    search(keepFrom, std::numeric_limits<double>::infinity(), stop);
    if (stop.stop_requested())
        return std::nullopt;
    if (missing > 0)
        m_found.notes.push_back(sayCount(missing,
                                         "{} frames could not be read and were passed over.",
                                         "{} frames could not be read and were passed over."));
    return std::move(m_found);
}

} // namespace

std::optional<Crossings>
findCrossings(PictureStream& stream, FrameNumber first, FrameNumber last, const SlitLine& halfLine,
              const BoatBox& halfBoat, const std::stop_token& stop,
              const std::function<void(const BarrierProgress&)>& onProgress) {
    return StreamSearch(stream, first, last, halfLine, halfBoat).run(stop, onProgress);
}

} // namespace kavela
