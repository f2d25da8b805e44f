#pragma once

#include "films/boat_picture.h"
#include "films/course_strip.h"
#include "films/film_scene.h"
#include "sample/sprint_camera.h"

#include <memory>
#include <vector>

namespace kavela::films {

/// What a camera on a tripod sees of a sprint: the same stretch of water all the time, across which
/// boats go one after the other. The number of the frame, from 0, is burnt in; lines do not light
/// up, as nobody timed them.
class FixedScene {
public:
    /// Columns of the picture at which the lines stand.
    static constexpr double StartColumn = 100;
    static constexpr double FinishColumn = 380;

    /// Needs a QGuiApplication; drawing does not.
    explicit FixedScene(std::vector<sample::SprintPassage> passages);

    [[nodiscard]] Frames length() const { return sample::SprintFilmLength; }
    /// The bow of a boat on the picture of a frame, maybe beside it: half a frame's way behind a
    /// line on the frame before that of its passage, half a frame's way past it on that frame.
    [[nodiscard]] QPointF bowAt(std::size_t passage, Frames frame) const;

    /// Draws a frame from 0 to length() - 1 over all of the picture. May be called from any thread.
    void draw(Frames frame, YuvPicture& picture) const;

private:
    std::vector<sample::SprintPassage> m_passages;
    std::vector<BoatLook> m_looks; ///< by passage
    std::shared_ptr<const CourseStrip> m_strip;
    int m_left = 0; ///< the strip's column at the left of the picture
};

} // namespace kavela::films
