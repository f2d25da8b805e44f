#include "sample/course_map.h"

#include "splitdata/course_design.h"
#include "splitdata/png_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

namespace kavela::sample {

namespace {

constexpr std::size_t MapWidth = 960; ///< pixels
constexpr std::size_t MapHeight = 480;
constexpr double HalfRiver = 0.036; ///< in widths of the picture, as all below
constexpr double HalfHung = 0.014;
constexpr double NearBank = 0.02; ///< an upstream gate from the middle of the river

using Colour = std::array<unsigned char, 3>;
constexpr Colour Paper{255, 255, 255};
constexpr Colour Earth{0x6f, 0x5b, 0x3e};
constexpr Colour Hung{0x1f, 0x8a, 0x4c};
constexpr Colour HungUp{0xc2, 0x2f, 0x2f};
constexpr Colour Timed{0x3a, 0x3a, 0x3a};

/// The middle of the river at a part of its length from 0 to 1: three bends from the left above to
/// the right below.
coursepoint001 middleAt(double part) {
    return {0.05 + 0.9 * part, 0.13 + 0.22 * part + 0.07 * std::sin(3 * std::numbers::pi * part)};
}

/// The point beside the middle, so far to the right of the stream.
coursepoint001 besideAt(double part, double right) {
    constexpr double Step = 0.001;
    const coursepoint001 before = middleAt(part - Step);
    const coursepoint001 after = middleAt(part + Step);
    const double dx = after.x - before.x;
    const double dy = after.y - before.y;
    const double length = std::hypot(dx, dy);
    const coursepoint001 middle = middleAt(part);
    return {middle.x - dy / length * right, middle.y + dx / length * right};
}

std::vector<coursepoint001> bankBeside(double right) {
    constexpr int Pieces = 40;
    std::vector<coursepoint001> points;
    for (int i = 0; i <= Pieces; ++i)
        points.push_back(besideAt(static_cast<double>(i) / Pieces, right));
    return points;
}

/// Pixels of three colours, painted with round dots.
class CourseRaster {
public:
    void draw(const coursepoint001& from, const coursepoint001& to, double pixels, Colour colour) {
        const double steps = std::ceil(std::hypot(to.x - from.x, to.y - from.y) * MapWidth * 2) + 1;
        for (double step = 0; step <= steps; ++step)
            dot({from.x + (to.x - from.x) * step / steps, from.y + (to.y - from.y) * step / steps},
                pixels, colour);
    }

    void dot(const coursepoint001& at, double pixels, Colour colour) {
        const double x = at.x * MapWidth;
        const double y = at.y * MapWidth;
        const auto end = [](double place, double reach, std::size_t most) {
            return static_cast<std::size_t>(
                std::clamp(place + reach, 0.0, static_cast<double>(most)));
        };
        for (std::size_t row = end(y, -pixels, MapHeight); row < end(y, pixels + 1, MapHeight);
             ++row)
            for (std::size_t column = end(x, -pixels, MapWidth);
                 column < end(x, pixels + 1, MapWidth); ++column)
                if (std::hypot(static_cast<double>(column) - x, static_cast<double>(row) - y) <=
                    pixels)
                    std::ranges::copy(colour, &m_pixels[3 * (row * MapWidth + column)]);
    }

    [[nodiscard]] const std::vector<unsigned char>& pixels() const { return m_pixels; }

private:
    std::vector<unsigned char> m_pixels =
        std::vector<unsigned char>(3 * MapWidth * MapHeight, Paper[0]);
};

bool hangsUpstream(const infodata031& info, std::int64_t gate) {
    return std::ranges::find(info.upGates, gate) != info.upGates.end();
}

/// Where along the river a gate hangs: the start and the finish have room of their own.
double alongCourse(const infodata031& info, double gate) {
    return gate / (static_cast<double>(info.gates) + 1);
}

coursegate001 hungGate(const infodata031& info, std::int64_t number) {
    const double part = alongCourse(info, static_cast<double>(number));
    const double side = number % 2 == 0 ? 1 : -1;
    const double right = side * (hangsUpstream(info, number) ? NearBank : NearBank / 2);
    coursegate001 gate{number, besideAt(part, right - HalfHung), besideAt(part, right + HalfHung)};
    if (hangsUpstream(info, number)) // a boat comes from below, so that its left is the other side
        std::swap(gate.left, gate.right);
    return gate;
}

coursedesign001 designOf(const infodata031& info) {
    coursedesign001 design;
    design.size = 260;
    design.banks = {bankBeside(-HalfRiver), bankBeside(HalfRiver)};
    for (std::int64_t number = 1; number <= info.gates; ++number)
        design.gates.push_back(hungGate(info, number));
    for (std::size_t split = 0; split < info.definedsections.size(); ++split)
        if (!info.definedsections[split].empty()) {
            const double part =
                alongCourse(info, static_cast<double>(info.definedsections[split].back()) + 0.5);
            design.splitlines.push_back({static_cast<std::int64_t>(split) + 1,
                                         besideAt(part, -HalfRiver), besideAt(part, HalfRiver)});
        }
    design.texts = {{"Start", {0.01, 0.09}}, {"Finish", {0.94, 0.43}}};
    return design;
}

CourseRaster mapOf(const coursedesign001& design, const infodata031& info) {
    CourseRaster map;
    for (const auto& points : design.banks)
        for (std::size_t i = 1; i < points.size(); ++i)
            map.draw(points[i - 1], points[i], 2.5, Earth);
    for (const coursesplitline001& line : design.splitlines)
        map.draw(line.a, line.b, 0.8, Timed);
    for (const coursegate001& gate : design.gates) {
        const Colour colour = hangsUpstream(info, gate.number) ? HungUp : Hung;
        map.draw(gate.left, gate.right, 1.2, colour);
        map.dot(gate.left, 4, colour);
        map.dot(gate.right, 4, colour);
    }
    return map;
}

} // namespace

Blob drawnCourse(const infodata031& info) {
    const coursedesign001 design = designOf(info);
    const CourseRaster map = mapOf(design, info);
    return withCourse(pngOf({MapWidth, MapHeight}, map.pixels()), design);
}

} // namespace kavela::sample
