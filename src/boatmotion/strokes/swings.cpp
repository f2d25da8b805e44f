#include "boatmotion/strokes/swings.h"

#include "boatmotion/strokes/cadence.h"
#include "boatmotion/strokes/filters.h"

#include <algorithm>
#include <cmath>

namespace kavela::strokes {

namespace {

constexpr double SlowCutoff = 1.8;      // Hz
constexpr double MiddleCutoff = 2.6;    // Hz
constexpr double FastCutoff = 3.6;      // Hz
constexpr double UnknownCutoff = 3.0;   // Hz
constexpr double CutoffPerRate = 2.6;   // times the stroke frequency
constexpr double Ripple = 0.10;         // m/s²
constexpr double LeastHeight = 0.25;    // m/s²
constexpr double ShareOfTypical = 0.25; // of the usual height, that a stroke must have
constexpr double ShareOfSession = 0.15; // of the session's great ones
constexpr double ShareToFall = 0.22;    // of the usual height, after which a peak is over
constexpr std::size_t PerSecond = 50;

double cutoffFor(double period) {
    return period > 0 ? std::clamp(CutoffPerRate / period, SlowCutoff, FastCutoff) : UnknownCutoff;
}

/// Follows a signal up and down, and tells each rise once it has fallen again by a hysteresis.
class ZigZag {
public:
    /// Forgets what was before a hole.
    void restart() { m_state = State::Unknown; }

    template <class Found>
    void next(std::size_t i, double value, double hysteresis, Found&& found) {
        if (m_state == State::Unknown) {
            m_low = m_high = value;
            m_valley = m_peak = i;
            m_state = State::Falling;
        } else if (m_state == State::Falling) {
            if (value < m_low) {
                m_low = value;
                m_valley = i;
            } else if (value > m_low + hysteresis) {
                m_state = State::Rising;
                m_high = value;
                m_peak = i;
            }
        } else if (value > m_high) {
            m_high = value;
            m_peak = i;
        } else if (value < m_high - hysteresis) {
            found(Swing{m_valley, m_peak, m_high - m_low});
            m_state = State::Falling;
            m_low = value;
            m_valley = i;
        }
    }

private:
    enum class State { Unknown, Falling, Rising };
    State m_state = State::Unknown;
    double m_low = 0;
    double m_high = 0;
    std::size_t m_valley = 0;
    std::size_t m_peak = 0;
};

template <class Hysteresis>
std::vector<Swing> zigZag(std::span<const double> signal, std::span<const std::uint8_t> valid,
                          Hysteresis hysteresis) {
    std::vector<Swing> swings;
    ZigZag follower;
    for (std::size_t i = 0; i < signal.size(); ++i)
        if (valid[i])
            follower.next(i, signal[i], hysteresis(i),
                          [&](const Swing& swing) { swings.push_back(swing); });
        else
            follower.restart();
    return swings;
}

double heightPercentile(std::span<const Swing> swings, double fraction) {
    std::vector<double> heights;
    heights.reserve(swings.size());
    for (const Swing& swing : swings)
        heights.push_back(swing.height);
    return percentileOf(heights, fraction);
}

/// The 75th percentile of the raw heights within 6 s of each second, at most the session's 85th.
std::vector<double> typicalHeights(std::span<const Swing> raw, std::size_t size, double cap) {
    constexpr std::size_t Reach = 6 * PerSecond;
    std::vector<double> typical(size / PerSecond + 1);
    std::size_t begin = 0;
    std::size_t end = 0;
    for (std::size_t second = 0; second < typical.size(); ++second) {
        const std::size_t middle = second * PerSecond;
        while (begin < raw.size() && raw[begin].peak + Reach < middle)
            ++begin;
        while (end < raw.size() && raw[end].peak <= middle + Reach)
            ++end;
        typical[second] =
            std::min(cap, heightPercentile(raw.subspan(begin, std::max(end, begin) - begin), 0.75));
    }
    return typical;
}

} // namespace

std::vector<double> detectionSignal(std::span<const double> forward, std::vector<double>& periods) {
    std::vector<double> slow = movingMean(forward, 3);
    for (std::size_t i = 0; i < slow.size(); ++i)
        slow[i] = forward[i] - slow[i];
    std::vector<double> middle = slow;
    std::vector<double> fast = slow;
    filterBothWays<3>({lowPass(SlowCutoff), lowPass(MiddleCutoff), lowPass(FastCutoff)},
                      {std::span(slow), std::span(middle), std::span(fast)});
    periods = cadence(fast);
    double cutoff = UnknownCutoff;
    for (std::size_t i = 0; i < slow.size(); ++i) {
        // The cutoff follows within a second, without steps in the signal.
        if (i % 5 == 0)
            cutoff += 0.1 * (cutoffFor(cadenceAt(periods, i + PerSecond / 2)) - cutoff);
        const bool isLow = cutoff < MiddleCutoff;
        const double part = isLow ? (cutoff - SlowCutoff) / (MiddleCutoff - SlowCutoff)
                                  : (cutoff - MiddleCutoff) / (FastCutoff - MiddleCutoff);
        const double below = isLow ? slow[i] : middle[i];
        slow[i] = below + part * ((isLow ? middle[i] : fast[i]) - below);
    }
    return slow;
}

Swings findSwings(std::span<const double> signal, std::span<const std::uint8_t> valid) {
    Swings found;
    found.raw = zigZag(signal, valid, [](std::size_t) { return Ripple; });
    const double session = heightPercentile(found.raw, 0.85);
    found.typical = typicalHeights(found.raw, signal.size(), session);
    found.strong = zigZag(signal, valid, [&](std::size_t i) {
        return std::max(Ripple, ShareToFall * typicalAt(found, i));
    });
    std::erase_if(found.strong, [&](const Swing& swing) {
        return swing.height < std::max({LeastHeight, ShareOfTypical * typicalAt(found, swing.peak),
                                        ShareOfSession * session});
    });
    return found;
}

double typicalAt(const Swings& swings, std::size_t index) {
    return swings.typical[std::min((index + PerSecond / 2) / PerSecond, swings.typical.size() - 1)];
}

} // namespace kavela::strokes
