#include "desktop/charts/sensor_series.h"

#include "desktop/shell/shown_number.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double JoinedGap = 2; ///< seconds
constexpr double ThinGap = 2.5; ///< of the usual interval of a thin series

} // namespace

double joinedGap(const std::vector<double>& times) {
    // A few hundred intervals from all over tell the usual one.
    constexpr std::size_t Looks = 255;
    if (times.size() < 2)
        return JoinedGap;
    std::array<double, Looks> intervals{};
    for (std::size_t i = 0; i < Looks; ++i) {
        const std::size_t at = i * (times.size() - 2) / (Looks - 1);
        intervals[i] = times[at + 1] - times[at];
    }
    std::ranges::nth_element(intervals, intervals.begin() + Looks / 2);
    return std::max(JoinedGap, ThinGap * intervals[Looks / 2]);
}

namespace {

std::optional<std::size_t> holdingSample(const SensorSeries& series, double wanted) {
    const auto after = std::ranges::upper_bound(*series.times, wanted);
    if (after == series.times->begin())
        return std::nullopt;
    const auto index = static_cast<std::size_t>(after - series.times->begin()) - 1;
    return wanted < (*series.ends)[index] ? std::optional(index) : std::nullopt;
}

std::optional<std::size_t> nearestSample(const std::vector<double>& times, double wanted) {
    auto nearest = std::ranges::lower_bound(times, wanted);
    if (nearest == times.end() ||
        (nearest != times.begin() && wanted - *std::prev(nearest) < *nearest - wanted))
        --nearest;
    if (std::abs(*nearest - wanted) > joinedGap(times) / 2)
        return std::nullopt;
    return static_cast<std::size_t>(nearest - times.begin());
}

} // namespace

std::optional<std::size_t> sampleAt(const SensorSeries& series, double time) {
    if (series.times->empty() || !std::isfinite(time))
        return std::nullopt;
    const double wanted = time - series.offset;
    const auto index =
        series.ends ? holdingSample(series, wanted) : nearestSample(*series.times, wanted);
    return index && std::isfinite((*series.values)[*index]) ? index : std::nullopt;
}

std::optional<double> valueAt(const SensorSeries& series, double time) {
    const auto index = sampleAt(series, time);
    return index ? std::optional((*series.values)[*index]) : std::nullopt;
}

QString sensorText(double value) {
    const double size = std::abs(value);
    QString text;
    if (size >= 1e6 || (size > 0 && size < 0.005))
        text = QString::number(value, 'g', size < 1 ? 1 : 4);
    else
        text = shownNumber(value, size >= 100 ? 0 : size >= 10 ? 1 : 2);
    return text.replace(QLatin1Char('-'), QChar(0x2212));
}

QString momentText(double seconds, int decimals) {
    if (!std::isfinite(seconds) || std::abs(seconds) > 1e12)
        return QStringLiteral("–");
    const double scale = std::pow(10, decimals);
    const auto parts = std::llround(std::abs(seconds) * scale); // so that 59.999 is no "0:60.00"
    const auto whole = parts / static_cast<long long>(scale);
    QString text = seconds < 0 && parts > 0 ? QStringLiteral("-") : QString();
    if (whole >= 3600)
        text += QStringLiteral("%1:%2").arg(whole / 3600).arg(whole / 60 % 60, 2, 10, QChar('0'));
    else
        text += QString::number(whole / 60);
    text += QStringLiteral(":%1").arg(whole % 60, 2, 10, QChar('0'));
    if (decimals > 0)
        text += QStringLiteral(".%1").arg(parts % static_cast<long long>(scale), decimals, 10,
                                          QChar('0'));
    return text;
}

} // namespace kavela::desktop
