#pragma once

#include "vision/track.h"
#include "vision/track_picture.h"

#include <cstdint>
#include <vector>

/// Rendered shots of a boat on wild water, taken by hand, of which it is known where everything is.
namespace kavela {

struct TrackShot {
    unsigned seed = 1;
    int width = 480;
    int height = 360;
    double pan = 1;        ///< how much the camera follows by jerks, 0 is a tripod
    double zoom = 0;       ///< share by which it zooms in over 100 frames
    double shake = 1;      ///< pixels
    double light = 0;      ///< share by which the sun comes and goes
    double speed = 2.5;    ///< of the boat, pixels in a frame
    bool hasPoles = false; ///< gates before the boat
    int turnsAt = -1;      ///< frame from which on the boat goes back by the way it came; never
    int vanishesAt = -1;   ///< frame from which on the boat is gone; never
};

/// A shot, rendered frame by frame. Places are pixels of the picture.
class TrackScene {
public:
    explicit TrackScene(const TrackShot& shot);

    /// The picture of a frame; stays until the next one is asked for.
    [[nodiscard]] TrackPicture picture(int frame);
    /// Middle of the athlete.
    [[nodiscard]] PicturePlace athlete(int frame) const;
    [[nodiscard]] TrackBox athleteBox(int frame) const;
    [[nodiscard]] TrackBox headBox(int frame) const;
    /// Where a place of the river that stands still is seen.
    [[nodiscard]] PicturePlace seen(const PicturePlace& world, int frame) const;
    [[nodiscard]] bool isThere(int frame) const {
        return m_shot.vanishesAt < 0 || frame < m_shot.vanishesAt;
    }

private:
    struct Shade {
        std::uint8_t y = 0;
        std::uint8_t u = 128;
        std::uint8_t v = 128;
    };
    struct Texture {
        int side = 0;
        std::vector<Shade> shades;
        [[nodiscard]] const Shade& at(double x, double y) const;
    };
    [[nodiscard]] Texture noise(int side, int cell, Shade dark, Shade light) const;
    [[nodiscard]] PictureMotion camera(int frame) const;
    [[nodiscard]] PicturePlace boat(int frame) const;
    [[nodiscard]] double random(int frame, int which) const;
    void paintGround(int frame);
    void paintBoat(int frame);
    void paintPoles(int frame);
    void paintCapsule(int frame, PicturePlace from, PicturePlace to, double radius, Shade shade);
    void put(int x, int y, const Shade& shade, double share);
    void finish(int frame);

    TrackShot m_shot;
    Texture m_bank;
    Texture m_water;
    Texture m_foam;
    std::vector<PictureMotion> m_cameras;
    std::vector<Shade> m_canvas;
    std::vector<std::uint8_t> m_y;
    std::vector<std::uint8_t> m_u;
    std::vector<std::uint8_t> m_v;
};

} // namespace kavela
