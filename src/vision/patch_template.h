#pragma once

#include "vision/track_picture.h"

#include <cstdint>
#include <vector>

namespace kavela {

/// What a patch looked like, to be found again whatever the light: the correlation does not change
/// where all becomes brighter or paler.
class PatchTemplate {
public:
    explicit PatchTemplate(const SampledPatch& patch);

    /// How much its samples differ from their mean, in shades.
    [[nodiscard]] double contrast() const;
    /// Lets a new look count by a share of 0 to 1.
    void renew(const SampledPatch& patch, double share);

    [[nodiscard]] const std::vector<std::int16_t>& deviations(std::size_t channel) const {
        return m_deviations.at(channel);
    }
    [[nodiscard]] double norm() const { return m_norm; }
    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] int height() const { return m_height; }

private:
    void takeDeviations();

    int m_width;
    int m_height;
    std::array<std::vector<float>, 3> m_look;
    std::array<std::vector<std::int16_t>, 3> m_deviations; ///< from the mean of each channel
    double m_norm = 0;
};

/// A part of a picture in which templates of one size are looked for.
class PatchWindow {
public:
    /// `width` and `height` are those of the templates, not above the window's.
    PatchWindow(SampledPatch samples, int width, int height);

    /// Places to try, from 0 on each way.
    [[nodiscard]] int across() const { return m_samples.width - m_width + 1; }
    [[nodiscard]] int down() const { return m_samples.height - m_height + 1; }
    /// Correlation with what stands at a place, −1 to 1; 0 where nothing does.
    [[nodiscard]] double correlation(const PatchTemplate& looked, int x, int y) const;

private:
    [[nodiscard]] double deviationAt(int x, int y) const;

    SampledPatch m_samples;
    int m_width;
    int m_height;
    /// Of all samples left of and above a place: of each channel, and of the squares of all.
    std::array<std::vector<std::int64_t>, 4> m_sums;
};

} // namespace kavela
