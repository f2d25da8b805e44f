#pragma once

#include "vision/track.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

struct AVFrame;

namespace kavela {

/// A picture as trackers read it, upright: brightness, and two planes of colour for every two by
/// two pixels. Refers to samples of somebody else.
struct TrackPicture {
    struct Plane {
        const std::uint8_t* samples = nullptr;
        std::ptrdiff_t line = 0; ///< bytes from one row to the next
        int width = 0;
        int height = 0;

        [[nodiscard]] const std::uint8_t* row(int y) const { return samples + y * line; }
    };
    std::array<Plane, 3> planes;

    [[nodiscard]] int width() const { return planes[0].width; }
    [[nodiscard]] int height() const { return planes[0].height; }
};

/// A picture of planes of eight bits with colour for every two by two pixels.
[[nodiscard]] TrackPicture trackPictureOf(const AVFrame& planes);

/// A plane made smaller by a whole number each way, by the mean of its samples.
struct SmallPlane {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> samples;

    [[nodiscard]] const std::uint8_t* row(int y) const {
        return samples.data() + static_cast<std::ptrdiff_t>(y) * width;
    }
    [[nodiscard]] TrackPicture::Plane plane() const {
        return {samples.data(), width, width, height};
    }
};
[[nodiscard]] SmallPlane smallPlane(const TrackPicture::Plane& plane, int factor);

/// Samples of a rectangle of a picture in steps of its own.
struct SampledPatch {
    int width = 0;
    int height = 0;
    /// Brightness and the two colours, row by row. Colours count twice: they tell a boat from the
    /// water, and differ less.
    std::array<std::vector<std::int16_t>, 3> channels;

    [[nodiscard]] int count() const { return width * height; }
};

/// So many samples across and down round a place, each the mean of about `step` × `step` pixels.
/// What lies outside the picture is as its edge.
void samplePatch(const TrackPicture& picture, const PicturePlace& middle, double step, int width,
                 int height, SampledPatch& patch);

} // namespace kavela
