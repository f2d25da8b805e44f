#pragma once

#include "vision/picture_stream.h"
#include "vision/river_scene.h"

#include <span>

namespace kavela {

/// The pictures of a drawn scene.
class RiverStream : public PictureStream {
public:
    explicit RiverStream(const RiverScene& scene) : m_scene(scene) {}

    [[nodiscard]] FrameNumber frameCount() const override { return m_scene.frames(); }
    [[nodiscard]] double secondsOf(FrameNumber number) const override {
        return m_scene.secondsOf(number);
    }
    [[nodiscard]] std::optional<HalfPlanes> picture(FrameNumber number,
                                                    const std::stop_token&) override {
        return m_scene.picture(number);
    }

private:
    const RiverScene& m_scene;
};

/// Proposals held against what was drawn.
struct RiverScore {
    int boats = 0;
    int near = 0;               ///< boats with a proposal within 15 frames
    int far = 0;                ///< boats with one within 40 frames
    int confident = 0;          ///< proposals of confidence 0.5 and more
    int falseOnes = 0;          ///< confident, without a boat within 40 frames
    std::vector<double> errors; ///< frames, early is negative, of the near ones
    double minutes = 0;

    void add(const RiverScore& other);
    /// A share of the errors' sizes is no larger than this, frames; 0 without errors.
    [[nodiscard]] double errorAt(double share) const;
    [[nodiscard]] double medianLean() const; ///< the median error with its sign, frames
};

[[nodiscard]] RiverScore scoreOf(const RiverScene& scene, std::span<const Proposal> proposals,
                                 TimingPoint point = TimingPoint::Bow);

/// Searches a scene as a film is searched.
[[nodiscard]] Crossings crossingsOf(const RiverScene& scene);

} // namespace kavela
