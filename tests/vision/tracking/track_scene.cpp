#include "vision/tracking/track_scene.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kavela {

namespace {

constexpr int MostFrames = 2000;
constexpr double BankEnd = 190; ///< of the river that stands still: what lies below is water

unsigned hashOf(unsigned a, unsigned b, unsigned c) {
    unsigned h = a * 2654435761U ^ (b + 0x9e3779b9U) * 2246822519U ^ (c + 77U) * 3266489917U;
    h ^= h >> 15U;
    h *= 2246822519U;
    h ^= h >> 13U;
    h *= 3266489917U;
    return h ^ (h >> 16U);
}

double unitOf(unsigned hash) {
    return (hash & 0xffffU) / 65535.0;
}

} // namespace

const TrackScene::Shade& TrackScene::Texture::at(double x, double y) const {
    const auto wrapped = [this](double place) {
        const int whole = static_cast<int>(std::floor(place)) % side;
        return static_cast<std::size_t>(whole < 0 ? whole + side : whole);
    };
    return shades[wrapped(y) * static_cast<std::size_t>(side) + wrapped(x)];
}

/// Two octaves over a lattice that closes upon itself.
TrackScene::Texture TrackScene::noise(int side, int cell, Shade dark, Shade light) const {
    Texture texture{side, std::vector<Shade>(static_cast<std::size_t>(side * side))};
    const auto octave = [&](int x, int y, int size, unsigned salt) {
        const int count = side / size;
        const auto corner = [&](int column, int row) {
            return unitOf(hashOf(static_cast<unsigned>(column % count),
                                 static_cast<unsigned>(row % count), m_shot.seed * 31 + salt));
        };
        const double fx = double(x % size) / size;
        const double fy = double(y % size) / size;
        const double upper =
            std::lerp(corner(x / size, y / size), corner(x / size + 1, y / size), fx);
        const double lower =
            std::lerp(corner(x / size, y / size + 1), corner(x / size + 1, y / size + 1), fx);
        return std::lerp(upper, lower, fy);
    };
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const double share = 0.6 * octave(x, y, cell, 1) + 0.4 * octave(x, y, cell / 4, 2);
            const auto mixed = [&](std::uint8_t a, std::uint8_t b) {
                return static_cast<std::uint8_t>(std::lerp(double(a), double(b), share));
            };
            texture.shades[static_cast<std::size_t>(y * side + x)] = {
                mixed(dark.y, light.y), mixed(dark.u, light.u), mixed(dark.v, light.v)};
        }
    return texture;
}

TrackScene::TrackScene(const TrackShot& shot)
    : m_shot(shot),
      m_bank(noise(512, 32, {20, 110, 120}, {220, 135, 140})),
      m_water(noise(256, 16, {70, 138, 118}, {150, 134, 122})),
      m_foam(noise(256, 8, {0, 128, 128}, {255, 128, 128})) {
    // The camera follows late and by jerks, and trembles.
    double x = boat(0).x;
    double wanted = x;
    for (int frame = 0; frame < MostFrames; ++frame) {
        if (frame % 7 == 0)
            wanted = boat(frame).x + 12 * (random(frame, 3) - 0.5);
        x += m_shot.pan * 0.3 * (wanted - x);
        const double size = m_shot.width / 480.0 * (1 + m_shot.zoom * frame / 100);
        const double turn = 0.004 * m_shot.shake * (random(frame, 4) - 0.5);
        const PictureMotion view{size * std::cos(turn), size * std::sin(turn), 0, 0};
        const PicturePlace middle = view({m_shot.pan > 0 ? x : boat(0).x + 60, 200});
        m_cameras.push_back(
            {view.a, view.b,
             m_shot.width / 2.0 - middle.x + 2 * m_shot.shake * (random(frame, 1) - 0.5),
             m_shot.height / 2.0 - middle.y + 2 * m_shot.shake * (random(frame, 2) - 0.5)});
    }
    const auto count = static_cast<std::size_t>(m_shot.width * m_shot.height);
    m_canvas.resize(count);
    m_y.resize(count);
    m_u.resize(count / 4);
    m_v.resize(count / 4);
}

double TrackScene::random(int frame, int which) const {
    return unitOf(
        hashOf(static_cast<unsigned>(frame), static_cast<unsigned>(which) + 100, m_shot.seed));
}

PictureMotion TrackScene::camera(int frame) const {
    return m_cameras[static_cast<std::size_t>(frame)];
}

PicturePlace TrackScene::boat(int frame) const {
    const double phase = 0.06 * frame + m_shot.seed;
    const bool isOnItsWayBack = m_shot.turnsAt >= 0 && frame > m_shot.turnsAt;
    const double way = m_shot.speed * (isOnItsWayBack ? 2 * m_shot.turnsAt - frame : frame);
    return {200 + way + 10 * std::sin(phase),
            235 + 22 * std::sin(0.021 * way + m_shot.seed) + 3 * std::sin(3 * phase)};
}

PicturePlace TrackScene::athlete(int frame) const {
    const PicturePlace at = boat(frame);
    return seen({at.x, at.y - 13}, frame);
}

TrackBox TrackScene::athleteBox(int frame) const {
    const PicturePlace middle = athlete(frame);
    const double size = camera(frame).scale();
    return {middle.x - 16 * size, middle.y - 20 * size, 32 * size, 40 * size};
}

TrackBox TrackScene::headBox(int frame) const {
    const PicturePlace at = boat(frame);
    const PicturePlace middle = seen({at.x, at.y - 27}, frame);
    const double side = 14 * camera(frame).scale();
    return {middle.x - side / 2, middle.y - side / 2, side, side};
}

PicturePlace TrackScene::seen(const PicturePlace& world, int frame) const {
    return camera(frame)(world);
}

TrackPicture TrackScene::picture(int frame) {
    paintGround(frame);
    if (isThere(frame))
        paintBoat(frame);
    if (m_shot.hasPoles)
        paintPoles(frame);
    finish(frame);
    TrackPicture picture;
    picture.planes[0] = {m_y.data(), m_shot.width, m_shot.width, m_shot.height};
    picture.planes[1] = {m_u.data(), m_shot.width / 2, m_shot.width / 2, m_shot.height / 2};
    picture.planes[2] = {m_v.data(), m_shot.width / 2, m_shot.width / 2, m_shot.height / 2};
    return picture;
}

/// The bank stands still; two waters run through each other, and foam comes and goes.
void TrackScene::paintGround(int frame) {
    constexpr int FoamFrom = 165;
    const PictureMotion back = camera(frame).inverse();
    std::size_t at = 0;
    for (int y = 0; y < m_shot.height; ++y)
        for (int x = 0; x < m_shot.width; ++x, ++at) {
            const PicturePlace world = back({x + 0.5, y + 0.5});
            if (world.y < BankEnd) {
                m_canvas[at] = m_bank.at(world.x, world.y);
                continue;
            }
            Shade water = m_water.at(world.x - 3.1 * frame, world.y + 1.3 * frame);
            const int foam = (m_foam.at(world.x - 2.2 * frame, world.y).y +
                              m_foam.at(world.x + 0.7 * frame, world.y - 1.9 * frame).y) /
                             2;
            if (foam > FoamFrom)
                water = {230, 128, 128};
            m_canvas[at] = water;
        }
}

void TrackScene::put(int x, int y, const Shade& shade, double share) {
    if (x < 0 || y < 0 || x >= m_shot.width || y >= m_shot.height)
        return;
    Shade& at = m_canvas[static_cast<std::size_t>(y * m_shot.width + x)];
    const auto mixed = [share](std::uint8_t below, std::uint8_t above) {
        return static_cast<std::uint8_t>(std::lerp(double(below), double(above), share));
    };
    at = {mixed(at.y, shade.y), mixed(at.u, shade.u), mixed(at.v, shade.v)};
}

void TrackScene::paintCapsule(int frame, PicturePlace from, PicturePlace to, double radius,
                              Shade shade) {
    from = seen(from, frame);
    to = seen(to, frame);
    radius *= camera(frame).scale();
    const double wayX = to.x - from.x;
    const double wayY = to.y - from.y;
    const double square = std::max(wayX * wayX + wayY * wayY, 1e-9);
    const int top = static_cast<int>(std::min(from.y, to.y) - radius - 1);
    const int bottom = static_cast<int>(std::max(from.y, to.y) + radius + 1);
    const int left = static_cast<int>(std::min(from.x, to.x) - radius - 1);
    const int right = static_cast<int>(std::max(from.x, to.x) + radius + 1);
    for (int y = top; y <= bottom; ++y)
        for (int x = left; x <= right; ++x) {
            const double px = x + 0.5 - from.x;
            const double py = y + 0.5 - from.y;
            const double along = std::clamp((px * wayX + py * wayY) / square, 0.0, 1.0);
            const double off = std::hypot(px - along * wayX, py - along * wayY);
            put(x, y, shade, std::clamp(radius - off + 0.5, 0.0, 1.0));
        }
}

void TrackScene::paintBoat(int frame) {
    const PicturePlace at = boat(frame);
    const double stroke = 0.28 * frame;
    const double heading = 0.25 * std::sin(0.05 * frame + m_shot.seed);
    const double lean = 3 * std::sin(stroke);
    const auto hue = static_cast<std::uint8_t>(90 + hashOf(m_shot.seed, 5, 6) % 90);
    const Shade hull{200, 100, hue};
    const Shade vest{120, static_cast<std::uint8_t>(255 - hue), 190};
    const PicturePlace bow{30 * std::cos(heading), 12 * std::sin(heading)};
    paintCapsule(frame, {at.x - bow.x, at.y - bow.y}, {at.x + bow.x, at.y + bow.y}, 6, hull);
    paintCapsule(frame, {at.x, at.y - 4}, {at.x + lean, at.y - 18}, 8, vest);
    paintCapsule(frame, {at.x + lean, at.y - 27}, {at.x + lean, at.y - 26}, 5.5, {60, 150, 90});
    paintCapsule(frame, {at.x + lean - 3, at.y - 24}, {at.x + lean + 3, at.y - 24}, 2,
                 {150, 110, 150});
    const PicturePlace blade{26 * std::cos(stroke), 16 * std::sin(stroke)};
    const PicturePlace hands{at.x + lean / 2, at.y - 14};
    paintCapsule(frame, {hands.x - blade.x, hands.y - blade.y},
                 {hands.x + blade.x, hands.y + blade.y}, 1.2, {40, 128, 128});
    for (int drop = 0; drop < 12; ++drop) {
        const PicturePlace splash{at.x + 70 * (random(frame, 20 + drop) - 0.5),
                                  at.y + 8 - 22 * random(frame, 40 + drop)};
        paintCapsule(frame, splash, splash, 1.6, {235, 128, 128});
    }
}

void TrackScene::paintPoles(int frame) {
    for (int pole = 0; pole < 8; ++pole) {
        const double x = 260 + 90.0 * pole;
        for (int part = 0; part < 6; ++part)
            paintCapsule(frame, {x, 120.0 + 22 * part}, {x, 142.0 + 22 * part}, 2,
                         part % 2 == 0 ? Shade{230, 128, 128} : Shade{110, 110, 200});
    }
}

/// Sun and exposure, and the noise of a sensor.
void TrackScene::finish(int frame) {
    const double sun = 1 + m_shot.light * std::sin(0.09 * frame);
    unsigned grain = hashOf(static_cast<unsigned>(frame), 9, m_shot.seed);
    for (std::size_t i = 0; i < m_canvas.size(); ++i) {
        grain = grain * 1664525U + 1013904223U;
        const double noise = static_cast<int>(grain >> 29U) - 3.5;
        m_y[i] = static_cast<std::uint8_t>(std::clamp(m_canvas[i].y * sun + noise, 0.0, 255.0));
    }
    const int half = m_shot.width / 2;
    for (int y = 0; y < m_shot.height / 2; ++y)
        for (int x = 0; x < half; ++x) {
            const Shade& shade = m_canvas[static_cast<std::size_t>(2 * y * m_shot.width + 2 * x)];
            m_u[static_cast<std::size_t>(y * half + x)] = shade.u;
            m_v[static_cast<std::size_t>(y * half + x)] = shade.v;
        }
}

} // namespace kavela
