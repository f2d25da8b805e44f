#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

/// Filters on evenly spaced values, 50 a second. None allocates per value.
namespace kavela::strokes {

inline constexpr double Rate = 50; ///< values a second
inline constexpr double Step = 1 / Rate;

/// A second-order section: y = (b0 + b1/z + b2/z²) / (1 + a1/z + a2/z²) · x.
struct Section {
    double b0 = 1, b1 = 0, b2 = 0, a1 = 0, a2 = 0;
};

/// Butterworth sections of second order.
[[nodiscard]] Section lowPass(double hertz);
[[nodiscard]] Section highPass(double hertz);

/// The memory of a section (transposed direct form II) that has seen the same value for ever.
class SectionState {
public:
    SectionState(const Section& section, double settledAt)
        : m_z1(settledOutput(section, settledAt) - section.b0 * settledAt),
          m_z2(section.b2 * settledAt - section.a2 * settledOutput(section, settledAt)) {}

    double next(const Section& s, double x) {
        const double y = s.b0 * x + m_z1;
        m_z1 = s.b1 * x - s.a1 * y + m_z2;
        m_z2 = s.b2 * x - s.a2 * y;
        return y;
    }

private:
    static double settledOutput(const Section& s, double x) {
        return x * (s.b0 + s.b1 + s.b2) / (1 + s.a1 + s.a2);
    }

    double m_z1;
    double m_z2;
};

/// Filters several series of one length forward and backward, so that nothing is delayed. Their
/// steps are interleaved: one alone would mostly wait for its own last result.
template <std::size_t N>
void filterBothWays(const std::array<Section, N>& sections,
                    const std::array<std::span<double>, N>& series) {
    const std::size_t size = series.front().size();
    const auto pass = [&](auto indexOf) {
        if (size == 0)
            return;
        std::array<double, N> z1;
        std::array<double, N> z2;
        for (std::size_t k = 0; k < N; ++k) {
            const Section& s = sections[k];
            const double x = series[k][indexOf(0)];
            const double y = x * (s.b0 + s.b1 + s.b2) / (1 + s.a1 + s.a2);
            z1[k] = y - s.b0 * x;
            z2[k] = s.b2 * x - s.a2 * y;
        }
        for (std::size_t i = 0; i < size; ++i)
            for (std::size_t k = 0; k < N; ++k) {
                double& value = series[k][indexOf(i)];
                const Section& s = sections[k];
                const double y = s.b0 * value + z1[k];
                z1[k] = s.b1 * value - s.a1 * y + z2[k];
                z2[k] = s.b2 * value - s.a2 * y;
                value = y;
            }
    };
    pass([](std::size_t i) { return i; });
    pass([size](std::size_t i) { return size - 1 - i; });
}

/// The mean over a window around each value, cut off at the ends of the series.
[[nodiscard]] std::vector<double> movingMean(std::span<const double> values, double seconds);

/// Replaces each value by the median of the five around it, which removes single hits.
void removeHits(std::span<double> values);

/// The values' percentile for a fraction from 0 to 1; 0 when there are none. Reorders them.
[[nodiscard]] double percentileOf(std::span<double> values, double fraction);

/// The median of every so many-th value, for series whose neighbours say the same.
[[nodiscard]] double sparseMedian(std::span<const double> values, std::size_t stride);

} // namespace kavela::strokes
