#include "vision/patch_template.h"

#include <cmath>
#include <numeric>

namespace kavela {

PatchTemplate::PatchTemplate(const SampledPatch& patch)
    : m_width(patch.width), m_height(patch.height) {
    for (std::size_t channel = 0; channel < 3; ++channel)
        m_look[channel].assign(patch.channels[channel].begin(), patch.channels[channel].end());
    takeDeviations();
}

double PatchTemplate::contrast() const {
    return m_norm / std::sqrt(static_cast<double>(m_look[0].size()));
}

void PatchTemplate::renew(const SampledPatch& patch, double share) {
    for (std::size_t channel = 0; channel < 3; ++channel)
        for (std::size_t i = 0; i < m_look[channel].size(); ++i)
            m_look[channel][i] +=
                static_cast<float>(share) *
                (static_cast<float>(patch.channels[channel][i]) - m_look[channel][i]);
    takeDeviations();
}

void PatchTemplate::takeDeviations() {
    double square = 0;
    for (std::size_t channel = 0; channel < 3; ++channel) {
        const std::vector<float>& look = m_look[channel];
        const float mean =
            std::accumulate(look.begin(), look.end(), 0.0F) / static_cast<float>(look.size());
        m_deviations[channel].resize(look.size());
        for (std::size_t i = 0; i < look.size(); ++i) {
            const auto deviation = static_cast<std::int16_t>(std::lround(look[i] - mean));
            m_deviations[channel][i] = deviation;
            square += double(deviation) * deviation;
        }
    }
    m_norm = std::sqrt(square);
}

PatchWindow::PatchWindow(SampledPatch samples, int width, int height)
    : m_samples(std::move(samples)), m_width(width), m_height(height) {
    const auto line = static_cast<std::size_t>(m_samples.width) + 1;
    for (auto& sums : m_sums)
        sums.assign(line * (static_cast<std::size_t>(m_samples.height) + 1), 0);
    for (int y = 0; y < m_samples.height; ++y) {
        std::array<std::int64_t, 4> row{};
        for (int x = 0; x < m_samples.width; ++x) {
            for (std::size_t channel = 0; channel < 3; ++channel) {
                const std::int64_t sample =
                    m_samples.channels[channel][static_cast<std::size_t>(y * m_samples.width + x)];
                row[channel] += sample;
                row[3] += sample * sample;
            }
            const std::size_t at =
                line * (static_cast<std::size_t>(y) + 1) + static_cast<std::size_t>(x) + 1;
            for (std::size_t sum = 0; sum < 4; ++sum)
                m_sums[sum][at] = m_sums[sum][at - line] + row[sum];
        }
    }
}

double PatchWindow::deviationAt(int x, int y) const {
    const std::ptrdiff_t line = m_samples.width + 1;
    const auto sumOf = [&](std::size_t which) {
        const std::int64_t* const upper = m_sums[which].data() + y * line + x;
        const std::int64_t* const lower = upper + m_height * line;
        return static_cast<double>(lower[m_width] - lower[0] - upper[m_width] + upper[0]);
    };
    const double count = double(m_width) * m_height;
    double square = sumOf(3);
    for (std::size_t channel = 0; channel < 3; ++channel)
        square -= sumOf(channel) * sumOf(channel) / count;
    return square;
}

double PatchWindow::correlation(const PatchTemplate& looked, int x, int y) const {
    constexpr double LeastShade = 1; // deviation of a sample below which there is nothing
    const double square = deviationAt(x, y);
    if (square < LeastShade * m_width * m_height || looked.norm() <= 0)
        return 0;
    std::int64_t sum = 0;
    for (std::size_t channel = 0; channel < 3; ++channel) {
        const std::int16_t* known = looked.deviations(channel).data();
        const std::int16_t* seen =
            m_samples.channels[channel].data() + std::ptrdiff_t{y} * m_samples.width + x;
        for (int row = 0; row < m_height; ++row) {
            int along = 0;
            for (int i = 0; i < m_width; ++i)
                along += known[i] * seen[i];
            sum += along;
            known += m_width;
            seen += m_samples.width;
        }
    }
    return static_cast<double>(sum) / (looked.norm() * std::sqrt(square));
}

} // namespace kavela
