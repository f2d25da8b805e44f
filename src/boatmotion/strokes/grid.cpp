#include "boatmotion/strokes/grid.h"

#include "boatmotion/strokes/filters.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kavela::strokes {

namespace {

constexpr double StandardGravity = 9.80665; // m/s²
constexpr double LongestBridge = 0.30;      // s, over which values are interpolated
constexpr double LongestHole = 2.0;         // s, that is kept at its length
constexpr double ShortestStretch = 0.2;     // s, of samples without a hole
constexpr std::size_t FewestSamples = 5;    // in it
constexpr double GreatestAcceleration = 50; // g
constexpr double GreatestRotation = 100;    // rad/s
constexpr double GreatestStamp = 1e11;      // s, three thousand years
constexpr double LeastGravity = 0.1;        // g; below it there is none

bool isWithin(double x, double y, double z, double limit) {
    // Written so that a value that is no number is outside.
    return std::abs(x) <= limit && std::abs(y) <= limit && std::abs(z) <= limit;
}

template <class Sample>
bool isUsable(const Sample& s) {
    constexpr double GreatestAngle = 1e3; // rad; attitudes may wind up
    return std::abs(s.timestamp) <= GreatestStamp &&
           isWithin(s.acceleration.x, s.acceleration.y, s.acceleration.z, GreatestAcceleration) &&
           isWithin(s.rotationRate.x, s.rotationRate.y, s.rotationRate.z, GreatestRotation) &&
           isWithin(s.gravity.x, s.gravity.y, s.gravity.z, GreatestAcceleration) &&
           isWithin(s.attitude.pitch, s.attitude.roll, s.attitude.yaw, GreatestAngle);
}

/// Orders by the stamps, keeping the order of equal ones. Few samples of a recording are out of
/// order, and those by little, so each is first let sink to its place.
template <class Sample>
void orderByStamp(std::vector<const Sample*>& samples) {
    const auto isEarlier = [](const Sample* a, const Sample* b) {
        return a->timestamp < b->timestamp;
    };
    std::size_t steps = 0;
    for (std::size_t i = 1; i < samples.size() && steps <= samples.size(); ++i)
        for (std::size_t k = i; k > 0 && isEarlier(samples[k], samples[k - 1]); --k, ++steps) {
            if (steps > samples.size())
                break;
            std::swap(samples[k], samples[k - 1]);
        }
    if (steps > samples.size())
        std::stable_sort(samples.begin(), samples.end(), isEarlier);
}

template <class Sample>
std::vector<const Sample*> usableInOrder(std::span<const Sample> samples) {
    std::vector<const Sample*> usable;
    usable.reserve(samples.size());
    for (const Sample& sample : samples)
        if (isUsable(sample))
            usable.push_back(&sample);
    orderByStamp(usable);
    return usable;
}

/// How gravity is to be read, the same for the whole recording.
struct GravityReading {
    bool isMissing = false;
    double sign = 1; ///< -1 where the device gives it upward
};

Vector gravityFromAttitude(const attitudeCodable& attitude) {
    const double c = std::cos(attitude.pitch);
    return {c * std::sin(attitude.roll), -std::sin(attitude.pitch), -c * std::cos(attitude.roll)};
}

template <class Sample>
GravityReading gravityReading(std::span<const Sample* const> samples) {
    // Some hundred samples tell the convention of the device as well as all.
    const std::size_t stride = samples.size() / 500 + 1;
    std::size_t looked = 0;
    std::size_t missing = 0;
    double agreement = 0;
    for (std::size_t i = 0; i < samples.size(); i += stride, ++looked) {
        const auto& s = *samples[i];
        missing += isWithin(s.gravity.x, s.gravity.y, s.gravity.z, LeastGravity);
        const bool hasAttitude = s.attitude.pitch != 0 || s.attitude.roll != 0;
        if (hasAttitude)
            agreement -= s.gravity.z * std::cos(s.attitude.pitch) * std::cos(s.attitude.roll);
    }
    return {2 * missing > looked, agreement < 0 ? -1.0 : 1.0};
}

/// The sum of the samples that fall on one value of the grid.
struct Bin {
    std::int64_t number = 0;
    double count = 0;
    std::array<double, 9> sum{};

    [[nodiscard]] double mean(std::size_t channel) const { return sum[channel] / count; }
};

/// Writes bins into a grid, with what lies between them.
class GridWriter {
public:
    GridWriter(MotionGrid& grid, std::size_t room) : m_grid(grid) {
        m_grid.time.reserve(room);
        m_grid.valid.reserve(room);
        for (std::size_t c = 0; c < 9; ++c)
            channel(c).reserve(room);
    }

    /// Values are counted from this moment on.
    void startAt(double time) {
        if (m_grid.size() > 0)
            cutHole(time);
        m_start = time;
        m_last = {.number = -1};
    }

    [[nodiscard]] std::int64_t numberOf(double time) const {
        return static_cast<std::int64_t>(std::floor((time - m_start) * Rate + 0.5));
    }

    /// A bin that follows the last one closely, so that values between them are interpolated.
    void bridge(const Bin& bin) {
        for (std::int64_t n = m_last.number + 1; m_last.number >= 0 && n < bin.number; ++n) {
            const double part = static_cast<double>(n - m_last.number) /
                                static_cast<double>(bin.number - m_last.number);
            for (std::size_t c = 0; c < 9; ++c)
                channel(c).push_back(m_last.mean(c) + part * (bin.mean(c) - m_last.mean(c)));
            finish(timeOf(n), 1);
        }
        put(bin);
    }

    /// A bin after a hole.
    void leap(const Bin& bin) {
        for (std::int64_t n = m_last.number + 1; n < bin.number; ++n)
            putHole(timeOf(n));
        put(bin);
    }

private:
    [[nodiscard]] double timeOf(std::int64_t number) const {
        return m_start + static_cast<double>(number) * Step;
    }
    std::vector<double>& channel(std::size_t c) {
        auto& triple = c < 3 ? m_grid.acceleration : c < 6 ? m_grid.rotation : m_grid.gravity;
        return triple[c % 3];
    }
    void finish(double time, std::uint8_t isValid) {
        m_grid.time.push_back(time);
        m_grid.valid.push_back(isValid);
    }
    void put(const Bin& bin) {
        for (std::size_t c = 0; c < 9; ++c)
            channel(c).push_back(bin.mean(c));
        finish(timeOf(bin.number), 1);
        m_last = bin;
    }
    void putHole(double time) {
        m_grid.hasHoles = true;
        for (std::size_t c = 0; c < 6; ++c)
            channel(c).push_back(0);
        for (std::size_t c = 6; c < 9; ++c)
            channel(c).push_back(channel(c).back());
        finish(time, 0);
    }
    void cutHole(double until) {
        constexpr int Half = 25;
        const double from = m_grid.time.back();
        for (int i = 1; i <= Half; ++i)
            putHole(from + i * Step);
        for (int i = Half; i >= 1; --i)
            putHole(until - i * Step);
    }

    MotionGrid& m_grid;
    double m_start = 0;
    Bin m_last;
};

template <class Sample>
class GridBuilder {
public:
    GridBuilder(std::span<const Sample* const> samples, MotionGrid& grid)
        : m_samples(samples),
          m_gravity(gravityReading(samples)),
          m_grid(grid),
          m_writer(grid, roomFor(samples)) {
        grid.gravityRebuilt = m_gravity.isMissing;
    }

    void build() {
        for (std::size_t begin = 0; begin < m_samples.size();) {
            const std::size_t end = endOfStretch(begin);
            if (end - begin >= FewestSamples && timeAt(end - 1) - timeAt(begin) >= ShortestStretch)
                addStretch(begin, end);
            begin = end;
        }
    }

private:
    /// What an even recording needs.
    static std::size_t roomFor(std::span<const Sample* const> samples) {
        if (samples.empty())
            return 0;
        const double seconds = samples.back()->timestamp - samples.front()->timestamp;
        return static_cast<std::size_t>(
            std::min(seconds * Rate, 4.0 * static_cast<double>(samples.size())) + 100);
    }

    [[nodiscard]] double timeAt(std::size_t i) const { return m_samples[i]->timestamp; }

    [[nodiscard]] std::size_t endOfStretch(std::size_t begin) const {
        std::size_t end = begin + 1;
        while (end < m_samples.size() && timeAt(end) - timeAt(end - 1) <= LongestBridge)
            ++end;
        return end;
    }

    void addStretch(std::size_t begin, std::size_t end) {
        const bool isFar = m_grid.size() == 0 || timeAt(begin) - m_lastTime > LongestHole;
        if (isFar)
            m_writer.startAt(timeAt(begin));
        bool isFirst = true;
        Bin bin{.number = m_writer.numberOf(timeAt(begin))};
        const auto flush = [&] {
            if (std::exchange(isFirst, false))
                m_writer.leap(bin);
            else
                m_writer.bridge(bin);
        };
        for (std::size_t i = begin; i < end; ++i) {
            const std::int64_t number = m_writer.numberOf(timeAt(i));
            if (number != bin.number) {
                flush();
                bin = {.number = number};
            }
            add(*m_samples[i], bin);
        }
        flush();
        m_lastTime = timeAt(end - 1);
        m_grid.samples += end - begin;
    }

    void add(const Sample& s, Bin& bin) const {
        bin.count += 1;
        bin.sum[0] += s.acceleration.x * StandardGravity;
        bin.sum[1] += s.acceleration.y * StandardGravity;
        bin.sum[2] += s.acceleration.z * StandardGravity;
        bin.sum[3] += s.rotationRate.x;
        bin.sum[4] += s.rotationRate.y;
        bin.sum[5] += s.rotationRate.z;
        const Vector down = m_gravity.isMissing
                                ? gravityFromAttitude(s.attitude)
                                : Vector{m_gravity.sign * s.gravity.x, m_gravity.sign * s.gravity.y,
                                         m_gravity.sign * s.gravity.z};
        for (std::size_t k = 0; k < 3; ++k)
            bin.sum[6 + k] += down[k];
    }

    std::span<const Sample* const> m_samples;
    GravityReading m_gravity;
    MotionGrid& m_grid;
    GridWriter m_writer;
    double m_lastTime = 0;
};

} // namespace

template <class Sample>
MotionGrid gridOf(std::span<const Sample> samples) {
    MotionGrid grid;
    const std::vector<const Sample*> usable = usableInOrder(samples);
    GridBuilder<Sample>(usable, grid).build();
    for (std::vector<double>& channel : grid.acceleration)
        removeHits(channel);
    return grid;
}

template MotionGrid gridOf(std::span<const boatmotionrawdata_v5> samples);
template MotionGrid gridOf(std::span<const watchmotiondata_v5> samples);

} // namespace kavela::strokes
