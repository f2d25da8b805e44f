#include "vision/band.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

namespace kavela {

namespace {

constexpr int NoColour = 128;

/// A place between four samples, weighted in 1/16.
struct BandPlace {
    std::array<std::size_t, 4> samples{};
    std::array<int, 4> weights{};

    [[nodiscard]] std::uint8_t in(const std::vector<std::uint8_t>& plane) const {
        constexpr int Half = 128;
        int sum = Half;
        for (std::size_t i = 0; i < samples.size(); ++i)
            sum += weights[i] * plane[samples[i]];
        return static_cast<std::uint8_t>(sum >> 8);
    }
};

BandPlace placeIn(const HalfPlanes& picture, double x, double y) {
    constexpr double Parts = 16;
    x = std::clamp(x, 0.0, picture.width - 1.0);
    y = std::clamp(y, 0.0, picture.height - 1.0);
    const int left = static_cast<int>(x);
    const int top = static_cast<int>(y);
    const int right = std::min(left + 1, picture.width - 1);
    const int bottom = std::min(top + 1, picture.height - 1);
    const int partX = static_cast<int>((x - left) * Parts);
    const int partY = static_cast<int>((y - top) * Parts);
    constexpr int All = static_cast<int>(Parts);
    return {{picture.at(left, top), picture.at(right, top), picture.at(left, bottom),
             picture.at(right, bottom)},
            {(All - partX) * (All - partY), partX * (All - partY), (All - partX) * partY,
             partX * partY}};
}

/// How much brighter the resting band is: the median of many places, so that no boat counts.
double gainTo(const BandShape& shape, const std::vector<std::uint8_t>& band,
              const std::vector<std::uint8_t>& resting) {
    constexpr std::size_t Every = 7;
    constexpr int Dark = 4;
    const std::size_t end = shape.column(1, -BandReach);
    std::vector<float> ratios;
    ratios.reserve(end / Every + 1);
    for (std::size_t i = 0; i < end; i += Every)
        if (band[i] > Dark)
            ratios.push_back(static_cast<float>(resting[i]) / static_cast<float>(band[i]));
    if (ratios.empty())
        return 1;
    const auto middle = ratios.begin() + std::ssize(ratios) / 2;
    std::ranges::nth_element(ratios, middle);
    constexpr double Most = 3;
    return std::clamp(static_cast<double>(*middle), 1 / Most, Most);
}

} // namespace

BandShape bandShape(const SlitLine& halfLine, double step) {
    const double length = lengthOf(halfLine);
    const SlitPoint direction = crossingDirection(halfLine);
    BandShape shape;
    shape.origin = halfLine.first;
    shape.along = {(halfLine.second.x - halfLine.first.x) / length * step,
                   (halfLine.second.y - halfLine.first.y) / length * step};
    shape.across = {direction.x * step, direction.y * step};
    shape.rows = std::max(static_cast<int>(length / step) + 1, 2);
    return shape;
}

FittedBand fittedBand(const SlitLine& halfLine, double wide, double high) {
    constexpr double MostColumns = 96;
    constexpr double MostRows = 220;
    const SlitPoint way = crossingDirection(halfLine);
    const bool isLevel = std::abs(way.x) >= std::abs(way.y);
    const double length = isLevel ? wide : high;
    const double height = isLevel ? high : wide;
    const double step = std::max({1.0, length / MostColumns, lengthOf(halfLine) / MostRows});
    return {bandShape(halfLine, step), {length / step, height / step}};
}

std::vector<std::uint8_t> cutBand(const BandShape& shape, const HalfPlanes& picture,
                                  SlitPoint shift) {
    std::vector<std::uint8_t> band(shape.samples());
    const std::array planes{&picture.luma, &picture.blue, &picture.red};
    for (int column = -BandReach; column <= BandReach; ++column)
        for (int row = 0; row < shape.rows; ++row) {
            const double x = shape.origin.x + column * shape.across.x + row * shape.along.x;
            const double y = shape.origin.y + column * shape.across.y + row * shape.along.y;
            const BandPlace place = placeIn(picture, x + shift.x, y + shift.y);
            for (int channel = 0; channel < BandChannels; ++channel)
                band[shape.column(channel, column) + static_cast<std::size_t>(row)] =
                    place.in(*planes[static_cast<std::size_t>(channel)]);
        }
    return band;
}

std::vector<std::uint8_t> medianBand(const BandShape& shape,
                                     std::span<const std::vector<std::uint8_t>* const> bands) {
    if (bands.empty())
        throw std::invalid_argument("a median of no bands");
    std::vector<std::uint8_t> median(shape.samples());
    std::vector<std::uint8_t> values(bands.size());
    const auto middle = values.begin() + std::ssize(values) / 2;
    for (std::size_t i = 0; i < median.size(); ++i) {
        for (std::size_t j = 0; j < bands.size(); ++j)
            values[j] = (*bands[j])[i];
        std::ranges::nth_element(values, middle);
        median[i] = *middle;
    }
    return median;
}

std::vector<std::int8_t> bandDeviation(const BandShape& shape,
                                       const std::vector<std::uint8_t>& band,
                                       const std::vector<std::uint8_t>& resting) {
    constexpr double Parts = 256;
    const int gain = static_cast<int>(std::lround(gainTo(shape, band, resting) * Parts));
    std::vector<std::int8_t> deviation(band.size());
    const std::size_t colours = shape.column(1, -BandReach);
    const auto kept = [](int value) {
        return static_cast<std::int8_t>(std::clamp(value, -127, 127));
    };
    for (std::size_t i = 0; i < colours; ++i)
        deviation[i] = kept(((band[i] * gain) >> 8) - resting[i]);
    for (std::size_t i = colours; i < band.size(); ++i)
        deviation[i] = kept((((band[i] - NoColour) * gain) >> 8) + NoColour - resting[i]);
    return deviation;
}

} // namespace kavela
