#include "planning/eight_test.h"

#include "planning/test_entry.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela {

std::vector<double> turnPeaks(std::span<const double> rotation, bool toTheLeft) {
    const auto towards = [&](double rate) {
        return std::isfinite(rate) ? (toTheLeft ? rate : -rate) : 0;
    };
    double greatest = 0;
    for (const double rate : rotation)
        greatest = std::max(greatest, towards(rate));
    std::vector<double> peaks;
    double peak = 0; // of the stretch under way
    const auto endStretch = [&] {
        if (peak > 0 && peak >= greatest / 2)
            peaks.push_back(peak);
        peak = 0;
    };
    for (const double rate : rotation) {
        if (towards(rate) > 0)
            peak = std::max(peak, towards(rate));
        else
            endStretch();
    }
    endStretch();
    return peaks;
}

bool isWhole(const datafor8& run) {
    return std::ranges::all_of(splitsOf(run), [](double split) { return split > 0; });
}

void scoreEightTest(datafor8& run) {
    const std::array splits = splitsOf(run);
    run.totalsplit = 0;
    for (const double split : splits)
        run.totalsplit += split;
    const double mean = run.totalsplit / static_cast<double>(splits.size());
    double squares = 0;
    for (const double split : splits)
        squares += (split - mean) * (split - mean);
    run.sdv = std::sqrt(squares / static_cast<double>(splits.size() - 1));
    run.zrotsubmaxR = turnPeaks(run.zrotation, false);
    run.zrotsubmaxL = turnPeaks(run.zrotation, true);
}

} // namespace kavela
