#include "vision/river_scene.h"

#include "vision/river_ground.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace kavela {

namespace {

constexpr double Turn = 2 * std::numbers::pi;

struct Grounds {
    Ground fine{11, 2};
    Ground small{12, 4};
    Ground middle{13, 8};
    Ground large{14, 32};
};

const Grounds& grounds() {
    static const Grounds made;
    return made;
}

} // namespace

/// A picture in red, green and blue while it is drawn.
class RiverScene::Canvas {
public:
    Canvas(int width, int height, double shiftX, double shiftY)
        : m_width(width),
          m_height(height),
          m_shiftX(shiftX),
          m_shiftY(shiftY),
          m_pixels(std::size_t(width) * std::size_t(height)) {}

    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] int height() const { return m_height; }
    [[nodiscard]] double shiftX() const { return m_shiftX; }
    [[nodiscard]] double shiftY() const { return m_shiftY; }
    [[nodiscard]] Colour& at(int x, int y) {
        return m_pixels[std::size_t(y) * std::size_t(m_width) + std::size_t(x)];
    }
    /// Covers a pixel by a part with a colour.
    void cover(int x, int y, const Colour& colour, double part) {
        if (part <= 0 || x < 0 || y < 0 || x >= m_width || y >= m_height)
            return;
        part = std::min(part, 1.0);
        Colour& pixel = at(x, y);
        pixel.red += part * (colour.red - pixel.red);
        pixel.green += part * (colour.green - pixel.green);
        pixel.blue += part * (colour.blue - pixel.blue);
    }
    void dim(int x, int y, double factor) {
        if (x < 0 || y < 0 || x >= m_width || y >= m_height)
            return;
        Colour& pixel = at(x, y);
        pixel = {pixel.red * factor, pixel.green * factor, pixel.blue * factor};
    }
    /// A spot with a soft edge.
    void spot(double x, double y, double radiusX, double radiusY, const Colour& colour,
              double part = 1) {
        x += m_shiftX;
        y += m_shiftY;
        for (int row = int(y - radiusY - 1); row <= int(y + radiusY + 2); ++row)
            for (int column = int(x - radiusX - 1); column <= int(x + radiusX + 2); ++column) {
                const double far = std::hypot((column - x) / radiusX, (row - y) / radiusY);
                cover(column, row, colour,
                      part * std::clamp((1 - far) * std::min(radiusX, radiusY) + 0.5, 0.0, 1.0));
            }
    }
    /// A rod between two places.
    void rod(double x1, double y1, double x2, double y2, double thick, const Colour& colour) {
        const int steps = std::max(int(std::hypot(x2 - x1, y2 - y1)), 1);
        for (int i = 0; i <= steps; ++i) {
            const double part = double(i) / steps;
            spot(between(part, x1, x2), between(part, y1, y2), thick, thick, colour);
        }
    }
    [[nodiscard]] HalfPlanes planes(double light, double noise, std::int64_t frame) const;

private:
    int m_width;
    int m_height;
    double m_shiftX;
    double m_shiftY;
    std::vector<Colour> m_pixels;
};

HalfPlanes RiverScene::Canvas::planes(double light, double noise, std::int64_t frame) const {
    HalfPlanes made(m_width, m_height);
    const auto byte = [](double value) {
        return static_cast<std::uint8_t>(std::clamp(value + 0.5, 1.0, 254.0));
    };
    std::uint32_t state = scrambled(static_cast<std::uint32_t>(frame) + 99U) | 1U;
    const auto grain = [&] {
        state ^= state << 13;
        state ^= state >> 17;
        state ^= state << 5;
        // The sum of four bytes is near enough to a bell.
        const int sum = int(state & 255U) + int((state >> 8) & 255U) + int((state >> 16) & 255U) +
                        int(state >> 24);
        return (sum - 510) / 148.0 * noise;
    };
    for (std::size_t i = 0; i < m_pixels.size(); ++i) {
        const Colour& pixel = m_pixels[i];
        const double y = 0.2126 * pixel.red + 0.7152 * pixel.green + 0.0722 * pixel.blue;
        const double bright = std::min(y * light, 250.0);
        const double scale = y > 0 ? bright / y : 0;
        made.luma[i] = byte(bright + grain());
        made.blue[i] = byte(128 + (pixel.blue - y) * scale / 1.8556 + grain() / 2);
        made.red[i] = byte(128 + (pixel.red - y) * scale / 1.5748 + grain() / 2);
    }
    return made;
}

RiverScene::RiverScene(const RiverRecipe& recipe) : m_recipe(recipe) {
    const std::uint32_t seed = recipe.seed;
    const double room = (recipe.seconds - 4) / std::max(recipe.boats, 1);
    for (int i = 0; i < recipe.boats; ++i) {
        const auto number = static_cast<std::uint32_t>(i) * 16U;
        const double crossing = 2 + room * (i + 0.2 + 0.6 * chance(seed, number));
        m_boats.push_back(boat(
            crossing, between(chance(seed, number + 1), recipe.slowest, recipe.fastest), number));
    }
    for (int i = 0; i < recipe.upstreamBoats; ++i) {
        const auto number = 4000U + static_cast<std::uint32_t>(i) * 16U;
        m_upstream.push_back(boat(between(chance(seed, number), 1, recipe.seconds - 1),
                                  -between(chance(seed, number + 1), 40, 90), number));
    }
    for (int i = 0; i < recipe.logs; ++i) {
        const auto number = 8000U + static_cast<std::uint32_t>(i) * 16U;
        Mover log =
            boat(between(chance(seed, number), 1, recipe.seconds - 1), recipe.current, number);
        log.length = between(chance(seed, number + 9), 20, 45);
        log.surge = 0;
        log.hull = {70, 55, 40};
        m_logs.push_back(log);
    }
    settleTruth();
}

std::int64_t RiverScene::frames() const {
    return static_cast<std::int64_t>(m_recipe.seconds * m_recipe.rate);
}

double RiverScene::secondsOf(std::int64_t frame) const {
    return static_cast<double>(frame) / m_recipe.rate;
}

RiverScene::Mover RiverScene::boat(double crossing, double speed, std::uint32_t number) const {
    const auto part = [&](std::uint32_t i) { return chance(m_recipe.seed, number + i); };
    constexpr std::array<Colour, 6> Hulls{{{225, 225, 225},
                                           {200, 40, 40},
                                           {235, 190, 40},
                                           {40, 70, 190},
                                           {240, 120, 30},
                                           {30, 30, 34}}};
    Mover made;
    made.crossing = crossing;
    made.speed = speed;
    made.row = between(part(2), m_recipe.height * 0.42, m_recipe.height * 0.70);
    made.drift = between(part(3), -0.12, 0.12) * speed;
    made.surge = between(part(4), 0.01, 0.03) * m_recipe.boatLength;
    made.strokes = between(part(5), 0.7, 1.2);
    made.phase = part(6);
    made.length = m_recipe.boatLength;
    made.hull = Hulls[static_cast<std::size_t>(part(7) * Hulls.size())];
    made.deck = Hulls[static_cast<std::size_t>(part(8) * Hulls.size())];
    made.vest = {between(part(10), 30, 240), between(part(11), 30, 200),
                 between(part(12), 30, 240)};
    if (m_recipe.hasDarkHulls) {
        made.hull = {between(part(7), 52, 66), between(part(8), 66, 80), between(part(9), 64, 80)};
        made.deck = made.hull;
    }
    return made;
}

/// The line runs from the upper bank to the lower one.
double RiverScene::lineAt(double row) const {
    const double top = m_recipe.height * 0.2;
    const double length = m_recipe.height * 0.65;
    return m_recipe.width * 0.5 + m_recipe.slant * ((row - top) / length - 0.5);
}

BarrierRequest RiverScene::request() const {
    const double top = m_recipe.height * 0.2;
    const double bottom = m_recipe.height * 0.85;
    BarrierRequest asked;
    // The places of samples are their middles: the first half pixel's is at 1, 1.
    asked.line = {{2 * lineAt(top) + 1, 2 * top + 1},
                  {2 * lineAt(bottom) + 1, 2 * bottom + 1},
                  BoatsFrom::Right};
    asked.boat = {100, 100, 2 * m_recipe.boatLength, 2 * m_recipe.boatLength * 0.3};
    return asked;
}

double RiverScene::bowOf(const Mover& mover, double seconds) const {
    const double since = seconds - mover.crossing;
    const double wave = std::sin(Turn * (mover.strokes * seconds + mover.phase));
    return lineAt(mover.row) + mover.speed * since + mover.surge * wave;
}

void RiverScene::settleTruth() {
    for (const Mover& mover : m_boats) {
        const auto ahead = [&](double seconds) {
            const double row = mover.row + mover.drift * (seconds - mover.crossing);
            return bowOf(mover, seconds) - lineAt(row);
        };
        /// When a place so far behind the bow crosses.
        const auto crossing = [&](double behind) {
            const double middle = mover.crossing + behind / mover.speed;
            double low = middle - 1;
            double high = middle + 1;
            while (high - low > 1e-6) {
                const double half = (low + high) / 2;
                (ahead(half) < behind ? low : high) = half;
            }
            return high;
        };
        const double bow = crossing(0);
        m_truth.push_back(
            {bow, crossing(mover.length / 2), (ahead(bow + 0.01) - ahead(bow - 0.01)) / 0.02});
    }
    std::ranges::sort(m_truth, {}, &RiverTruth::seconds);
}

double RiverScene::lightAt(double seconds) const {
    const double cloud =
        m_recipe.clouds * std::sin(Turn * (seconds / 17 + chance(m_recipe.seed, 77)));
    const auto step = static_cast<std::uint32_t>(seconds / 3.3);
    const double into = std::min((seconds / 3.3 - step) * 3.3 / 0.4, 1.0); // it takes 0.4 s
    const double exposure =
        m_recipe.exposureStep * between(into, chance(m_recipe.seed, 900U + step) - 0.5,
                                        chance(m_recipe.seed, 901U + step) - 0.5);
    return m_recipe.light * (1 + cloud) * (1 + exposure);
}

void RiverScene::drawLand(Canvas& canvas) const {
    const Grounds& ground = grounds();
    for (int y = 0; y < canvas.height(); ++y)
        for (int x = 0; x < canvas.width(); ++x) {
            const double fromX = x - canvas.shiftX() + 1000;
            const int fromY = static_cast<int>(std::lround(y - canvas.shiftY())) + 1000;
            const double rock = 34 * ground.middle.at(fromX, fromY) +
                                22 * ground.small.at(fromX + 40, fromY) +
                                26 * ground.large.at(fromX, fromY);
            canvas.at(x, y) = {92 + rock, 98 + rock, 70 + 0.8 * rock};
        }
}

void RiverScene::drawWater(Canvas& canvas, double seconds, std::int64_t frame) const {
    const Grounds& ground = grounds();
    const int seedX = static_cast<int>(m_recipe.seed * 37U % 251U);
    const double flow = m_recipe.current * seconds;
    const int top = static_cast<int>(m_recipe.height * 0.25);
    const int bottom = static_cast<int>(m_recipe.height * 0.82);
    // Water boils: its shapes turn into others while they drift.
    const double boil = seconds * 2.5;
    const int age = static_cast<int>(boil);
    const auto young = static_cast<float>(boil - age);
    const double edge = 1 - 2 * m_recipe.foam;
    const double gust = std::fmod(seconds * 140, m_recipe.width * 3.0) - m_recipe.width;
    for (int y = top; y < bottom; ++y)
        for (int x = 0; x < canvas.width(); ++x) {
            const double fixedX = x - canvas.shiftX() + seedX;
            const double shear = 0.7 + 0.3 * ground.large.at(7, y * 3);
            const double drift = fixedX - flow * shear;
            const float wave = ground.middle.at(drift, y + 31 * age) * (1 - young) +
                               ground.middle.at(drift, y + 31 * (age + 1)) * young;
            const float ripple =
                ground.small.at(drift * 0.9 + 17 * std::sin(seconds), y * 2 + 13 * age) *
                    (1 - young) +
                ground.small.at(drift * 0.9 + 17 * std::sin(seconds), y * 2 + 13 * age + 13) *
                    young;
            const float standing = ground.large.at(fixedX, y * 2);
            const float froth = 0.55F * wave + 0.45F * ripple + 0.5F * standing;
            double grey = 16 * wave + 9 * ripple;
            if (m_recipe.gusts > 0 && std::abs(x - gust + 0.4 * y) < 50)
                grey -= m_recipe.gusts * 60 * (0.6 + 0.4 * ripple);
            Colour colour{58 + grey, 76 + grey, 74 + grey};
            const double white = std::clamp((froth - edge * 0.75) * 4, 0.0, 1.0);
            const double bright = 195 + 40 * ripple;
            colour = {between(white, colour.red, bright), between(white, colour.green, bright + 3),
                      between(white, colour.blue, bright + 2)};
            canvas.at(x, y) = colour;
        }
    static_cast<void>(frame);
}

void RiverScene::drawHull(Canvas& canvas, const Mover& mover, double seconds) const {
    const bool isUp = mover.speed < 0;
    const double sign = isUp ? -1 : 1;
    const double bow = bowOf(mover, seconds) + canvas.shiftX();
    const double middle = mover.row + mover.drift * (seconds - mover.crossing) + canvas.shiftY();
    const double half = mover.length * 0.04;
    // The hull pitches: its ends sink by turns, and the water hides what lies below its level.
    const double pitch = std::sin(Turn * (seconds * 0.8 + mover.phase * 3));
    const double sunk = (pitch - (1 - 2 * m_recipe.dipping)) * 2.5;
    constexpr double Taper = 0.24;
    const int first = static_cast<int>(middle - half - 1);
    for (int y = first; y <= first + int(2 * half) + 3; ++y) {
        const double off = std::min(std::abs(y - middle) / half, 1.4);
        const double cover = std::clamp((1.15 - off) * half, 0.0, 1.0);
        const double cut = mover.length * Taper * std::pow(std::min(off, 1.0), 1.6);
        for (int i = -1; i <= int(mover.length) + 1; ++i) {
            const int x = static_cast<int>(std::floor(bow)) - int(sign) * i;
            const double behind = sign * (bow - x); // of the tip
            const double body = std::clamp(behind - cut + 0.5, 0.0, 1.0) *
                                std::clamp(mover.length - behind - cut + 0.5, 0.0, 1.0);
            const double under = sunk > 0 ? std::clamp((sunk * 14 - behind) / 4, 0.0, 1.0) : 0.0;
            const bool isDeck = y < middle - half * 0.2;
            canvas.cover(x, y, isDeck ? mover.deck : mover.hull, body * cover * (1 - 0.95 * under));
        }
    }
}

void RiverScene::drawPaddler(Canvas& canvas, const Mover& mover, double seconds) const {
    const double sign = mover.speed < 0 ? -1 : 1;
    const double bow = bowOf(mover, seconds);
    const double row = mover.row + mover.drift * (seconds - mover.crossing);
    const double scale = mover.length / 92;
    const double body = bow - sign * mover.length * 0.5;
    const double stroke = Turn * (mover.strokes * seconds + mover.phase);
    const double lean = 2 * std::sin(stroke) * scale;
    canvas.spot(body + lean / 2, row - 8 * scale, 6 * scale, 8 * scale, mover.vest);
    canvas.spot(body + lean, row - 18 * scale, 4 * scale, 4 * scale, mover.deck);
    const double reach = 26 * scale;
    const double angle = std::sin(stroke) * 0.9;
    canvas.rod(body + lean - reach * std::cos(angle),
               row - 9 * scale - reach * 0.5 * std::sin(angle),
               body + lean + reach * std::cos(angle),
               row - 9 * scale + reach * 0.5 * std::sin(angle), 0.9 * scale, {30, 30, 30});
}

void RiverScene::drawBoat(Canvas& canvas, const Mover& mover, double seconds) const {
    const double bow = bowOf(mover, seconds);
    if (bow < -mover.length - 60 || bow > m_recipe.width + mover.length + 60)
        return;
    if (m_recipe.shadow > 0 && mover.speed > 0) {
        const double row = mover.row + mover.drift * (seconds - mover.crossing) + 4;
        for (int y = int(row - 5); y <= int(row + 6); ++y)
            for (int x = int(bow - mover.length * 0.7); x <= int(bow + m_recipe.shadow); ++x)
                canvas.dim(x + int(canvas.shiftX()), y + int(canvas.shiftY()),
                           1 - 0.35 * std::clamp((6 - std::abs(y - row)) / 3, 0.0, 1.0));
    }
    drawHull(canvas, mover, seconds);
    drawPaddler(canvas, mover, seconds);
    // The bow throws water about.
    for (std::uint32_t i = 0; i < 5; ++i) {
        const auto moment = static_cast<std::uint32_t>(seconds * 25) * 8U + i;
        const double part = chance(moment, m_recipe.seed);
        canvas.spot(bow - (mover.speed < 0 ? -1 : 1) * between(part, -1, 16),
                    mover.row + mover.drift * (seconds - mover.crossing) +
                        between(chance(moment, 5), -4, 5),
                    2, 1.2, {215, 220, 220}, 0.7);
    }
}

void RiverScene::drawGate(Canvas& canvas, double seconds) const {
    for (int pole = 0; pole < 2; ++pole) {
        const double swing = 3.5 * std::sin(Turn * (seconds * 0.55 + 0.3 * pole)) +
                             1.5 * std::sin(Turn * seconds * 0.21);
        const double foot = m_recipe.height * (pole == 0 ? 0.47 : 0.66);
        const double length = m_recipe.height * 0.26;
        for (int i = 0; i < int(length); ++i) {
            const double part = i / length;
            const bool isWhite = int(part * 5) % 2 == 0;
            canvas.spot(lineAt(foot) + 4 + swing * part, foot - length + i, 1.3, 0.7,
                        isWhite ? Colour{230, 230, 230} : Colour{30, 150, 60});
        }
    }
}

void RiverScene::drawOthers(Canvas& canvas, double seconds, std::int64_t frame) const {
    for (int i = 0; i < m_recipe.spectators; ++i) {
        const auto number = 500U + static_cast<std::uint32_t>(i);
        const double speed = between(chance(m_recipe.seed, number), -35, 35);
        const double x =
            std::fmod(chance(m_recipe.seed, number + 50U) * 600 + speed * seconds + 6000, 600) -
            100;
        const double y = m_recipe.height * 0.17;
        canvas.spot(x, y, 4, 13, {60 + 100 * chance(number, 3), 60, 110});
        canvas.spot(x, y - 15, 3, 3, {190, 150, 130});
    }
    for (int i = 0; i < m_recipe.birds; ++i) {
        const auto number = 700U + static_cast<std::uint32_t>(i);
        const double start = chance(m_recipe.seed, number) * m_recipe.seconds;
        const double x = (seconds - start) * between(chance(m_recipe.seed, number + 20U), 150, 320);
        canvas.spot(x,
                    m_recipe.height * between(chance(m_recipe.seed, number + 40U), 0.3, 0.7) +
                        4 * std::sin(seconds * 3),
                    5, 2 + std::sin(seconds * 30), {235, 235, 235});
    }
    for (int i = 0; i < int(m_recipe.rain); ++i) {
        const auto drop = static_cast<std::uint32_t>(frame * 64 + i);
        const double x = chance(drop, 1) * canvas.width();
        const double y = chance(drop, 2) * canvas.height();
        canvas.rod(x, y, x + 1.5, y + 9, 0.6, {190, 195, 200});
    }
}

SlitPoint RiverScene::cameraShift(double seconds) const {
    const double gale = Turn * seconds;
    return {m_recipe.shake * (std::sin(gale * 3.1) + 0.6 * std::sin(gale * 7.3)) +
                m_recipe.walk * (std::sin(gale * 0.31) + 0.5 * std::sin(gale * 0.83)),
            m_recipe.shake * 0.7 * std::sin(gale * 4.7) +
                m_recipe.walk * 0.6 * std::sin(gale * 0.47 + 1)};
}

HalfPlanes RiverScene::picture(std::int64_t frame) const {
    const double seconds = secondsOf(frame);
    const SlitPoint shift = cameraShift(seconds);
    Canvas canvas(m_recipe.width, m_recipe.height, shift.x, shift.y);
    drawLand(canvas);
    drawWater(canvas, seconds, frame);
    for (const Mover& log : m_logs)
        drawHull(canvas, log, seconds);
    for (const Mover& mover : m_upstream)
        drawBoat(canvas, mover, seconds);
    for (const Mover& mover : m_boats)
        drawBoat(canvas, mover, seconds);
    if (m_recipe.hasSwingingGate)
        drawGate(canvas, seconds);
    drawOthers(canvas, seconds, frame);
    return canvas.planes(lightAt(seconds), m_recipe.noise, frame);
}

} // namespace kavela
