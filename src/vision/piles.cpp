#include "vision/piles.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

/// Adds a column to a sum of rows, shifted by so many rows.
void addColumn(std::int16_t* sum, const std::int8_t* column, int rows, int shift) {
    const int from = std::max(0, -shift);
    const int to = std::min(rows, rows - shift);
    for (int row = from; row < to; ++row)
        sum[row] = static_cast<std::int16_t>(sum[row] + column[row + shift]);
}

/// A step of the way through the band: how many slots later, in which column, how many rows on.
struct PileStep {
    int slots;
    int column;
    int rows;
};

std::vector<PileStep> stepsOf(const PileMotion& motion, double secondsPerSlot, int every) {
    std::vector<PileStep> steps;
    const int most = std::min(static_cast<int>(BandReach / std::abs(motion.speed)),
                              static_cast<int>(LongestPile / secondsPerSlot));
    for (int slot = -most / every * every; slot <= most; slot += every) {
        const double column = motion.speed * slot;
        steps.push_back({slot, static_cast<int>(std::lround(column)),
                         static_cast<int>(std::lround(column * motion.slant))});
    }
    return steps;
}

/// What four fifths of values stay below tells of water with foam on it. A slow boat in a short
/// film fills more than the last fifth: so it is held below twice what the median tells.
float spreadOf(std::vector<float>& values) {
    constexpr float MedianOfBell = 0.6745F;
    constexpr float FourFifthsOfBell = 1.2816F;
    const auto middle = values.begin() + std::ssize(values) / 2;
    std::ranges::nth_element(values, middle);
    const float calm = *middle / MedianOfBell;
    const auto high = values.begin() + std::ssize(values) * 4 / 5;
    std::nth_element(middle, high, values.end());
    return std::clamp(*high / FourFifthsOfBell, calm, 2 * calm);
}

} // namespace

Pile pileUp(const BandStretch& stretch, const PileMotion& motion, const PileDetail& detail) {
    const std::vector<PileStep> steps = stepsOf(motion, stretch.secondsPerSlot, detail.every);
    const int rows = stretch.shape.rows;
    Pile pile{detail.first, detail.last - detail.first, rows, {}};
    pile.values.resize(static_cast<std::size_t>(BandChannels * pile.slots * rows));
    std::vector<std::int16_t> sum(static_cast<std::size_t>(rows));
    for (int slot = detail.first; slot < detail.last; ++slot)
        for (int channel = 0; channel < BandChannels; ++channel) {
            std::ranges::fill(sum, std::int16_t{0});
            int count = 0;
            for (const PileStep& step : steps) {
                const int from = slot + step.slots;
                if (from < 0 || from >= static_cast<int>(stretch.slots.size()))
                    continue;
                ++count;
                addColumn(sum.data(),
                          stretch.slots[static_cast<std::size_t>(from)] +
                              stretch.shape.column(channel, step.column),
                          rows, step.rows);
            }
            const float scale = count > 0 ? 1.0F / static_cast<float>(count) : 0.0F;
            std::ranges::transform(sum, pile.at(channel, slot),
                                   [&](std::int16_t value) { return scale * value; });
        }
    return pile;
}

std::vector<float> usualSpread(const Pile& pile) {
    constexpr float Least = 0.5F;
    const auto rows = static_cast<std::size_t>(pile.rows);
    std::vector<float> spread(BandChannels * rows, Least);
    std::vector<float> values(static_cast<std::size_t>(pile.slots));
    if (values.empty())
        return spread;
    for (int channel = 0; channel < BandChannels; ++channel)
        for (std::size_t row = 0; row < rows; ++row) {
            for (int slot = 0; slot < pile.slots; ++slot)
                values[static_cast<std::size_t>(slot)] =
                    std::abs(pile.at(channel, pile.first + slot)[row]);
            spread[static_cast<std::size_t>(channel) * rows + row] =
                std::max(spreadOf(values), Least);
        }
    return spread;
}

std::vector<float> pileEnergy(const Pile& pile, const std::vector<float>& spread, float limit) {
    constexpr float Coloured = 4; // squared spreads
    constexpr float ShadowPart = 0.5F;
    const auto rows = static_cast<std::size_t>(pile.rows);
    std::vector<float> energy(static_cast<std::size_t>(pile.slots) * rows);
    for (int slot = 0; slot < pile.slots; ++slot) {
        const float* const luma = pile.at(0, pile.first + slot);
        const float* const blue = pile.at(1, pile.first + slot);
        const float* const red = pile.at(2, pile.first + slot);
        float* const out = energy.data() + static_cast<std::size_t>(slot) * rows;
        for (std::size_t row = 0; row < rows; ++row) {
            const float b = blue[row] / spread[rows + row];
            const float r = red[row] / spread[2 * rows + row];
            float y = luma[row] / spread[row];
            const float colour = b * b + r * r;
            if (y < 0 && colour < Coloured)
                y *= ShadowPart;
            const float sum = (y * y + colour) / 3;
            out[row] = limit > 0 ? sum / (1 + sum / limit) : sum;
        }
    }
    return energy;
}

} // namespace kavela
