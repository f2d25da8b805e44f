#pragma once

#include "vision/half_planes.h"
#include "vision/light_barrier.h"

#include <cstdint>
#include <vector>

/// Films of a river that are drawn, so that the moment at which each bow crosses the line is known.
namespace kavela {

/// What there is in a scene. Sizes are in half pixels, speeds in half pixels a second.
struct RiverRecipe {
    std::uint32_t seed = 1;
    double seconds = 20;
    double rate = 50;
    int width = 320;
    int height = 200;
    int boats = 5;
    int upstreamBoats = 0;
    int logs = 0;
    int birds = 0;
    int spectators = 1;
    double foam = 0.3;       ///< share of the water that is white, 0 to 1
    double dipping = 0.2;    ///< share of the time in which the bow is under water
    double shadow = 0;       ///< length of the shadow ahead of the bow
    double clouds = 0;       ///< how much light comes and goes, as a part
    double exposureStep = 0; ///< how much the camera changes its exposure now and then
    double gusts = 0;        ///< darkening of the water under a gust, as a part
    double rain = 0;         ///< streaks a picture
    double shake = 0;        ///< of the camera, half pixels
    double walk = 0;         ///< of a camera held in the hand, half pixels
    double light = 1;        ///< of everything; 0.08 is night
    double noise = 2;        ///< of the camera, grey levels
    double slant = 0;        ///< of the line, half pixels over its length
    bool hasDarkHulls = false;
    bool hasSwingingGate = true;
    double boatLength = 92;
    double slowest = 60;
    double fastest = 150;
    double current = 55; ///< of the water
};

/// A boat's passage as it was drawn.
struct RiverTruth {
    double seconds = 0;     ///< when the bow's tip crosses the line, to 1/1000 frame
    double bodySeconds = 0; ///< when the middle of the paddler does
    double speed = 0;       ///< of the bow there
};

/// Draws the pictures of a recipe; each by itself, always the same.
class RiverScene {
public:
    explicit RiverScene(const RiverRecipe& recipe);

    [[nodiscard]] const RiverRecipe& recipe() const { return m_recipe; }
    [[nodiscard]] std::int64_t frames() const;
    [[nodiscard]] double secondsOf(std::int64_t frame) const;
    [[nodiscard]] HalfPlanes picture(std::int64_t frame) const;
    /// The line and the box of a boat, in pixels of the whole picture: twice the half pixels.
    [[nodiscard]] BarrierRequest request() const;
    /// Where the camera's trembling puts what stands still, half pixels.
    [[nodiscard]] SlitPoint cameraShift(double seconds) const;
    /// In the order of time.
    [[nodiscard]] const std::vector<RiverTruth>& truth() const { return m_truth; }

private:
    struct Colour {
        double red;
        double green;
        double blue;
    };
    struct Mover {
        double crossing = 0; ///< seconds at which it would be on the line at even speed
        double speed = 0;    ///< negative for one going up
        double row = 0;
        double surge = 0; ///< how far the strokes throw it about
        double strokes = 1;
        double phase = 0;
        double drift = 0; ///< rows a second
        double length = 0;
        Colour hull{};
        Colour deck{};
        Colour vest{};
    };
    class Canvas;

    [[nodiscard]] double lineAt(double row) const;
    [[nodiscard]] double bowOf(const Mover& mover, double seconds) const;
    [[nodiscard]] Mover boat(double crossing, double speed, std::uint32_t number) const;
    void settleTruth();
    void drawLand(Canvas& canvas) const;
    void drawWater(Canvas& canvas, double seconds, std::int64_t frame) const;
    void drawBoat(Canvas& canvas, const Mover& mover, double seconds) const;
    void drawHull(Canvas& canvas, const Mover& mover, double seconds) const;
    void drawPaddler(Canvas& canvas, const Mover& mover, double seconds) const;
    void drawOthers(Canvas& canvas, double seconds, std::int64_t frame) const;
    void drawGate(Canvas& canvas, double seconds) const;
    [[nodiscard]] double lightAt(double seconds) const;

    RiverRecipe m_recipe;
    std::vector<Mover> m_boats;
    std::vector<Mover> m_upstream;
    std::vector<Mover> m_logs;
    std::vector<RiverTruth> m_truth;
};

} // namespace kavela
