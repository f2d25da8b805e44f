#pragma once

#include "sample/recordings.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace kavela::test {

/// Recordings whose clock is not as it should be.
inline std::vector<std::pair<const char*, bmrawdata_v5>> oddRecordings() {
    const bmrawdata_v5 drill = sample::upstreamDrill();
    std::vector<std::pair<const char*, bmrawdata_v5>> odd(8, {"", drill});
    odd[0].first = "backwards";
    std::ranges::reverse(odd[0].second.boatmotion);
    odd[1].first = "doubled";
    odd[1].second.boatmotion.clear();
    for (const auto& sample : drill.boatmotion)
        odd[1].second.boatmotion.insert(odd[1].second.boatmotion.end(), 2, sample);
    odd[2].first = "standing still";
    for (auto& sample : odd[2].second.boatmotion)
        sample.timestamp = 12;
    odd[3].first = "set back half way";
    for (std::size_t i = drill.boatmotion.size() / 2; i < drill.boatmotion.size(); ++i)
        odd[3].second.boatmotion[i].timestamp -= 15;
    odd[4].first = "with one stamp far off";
    odd[4].second.boatmotion[100].timestamp = 1e15;
    odd[5].first = "negative";
    for (auto& sample : odd[5].second.boatmotion)
        sample.timestamp -= 1e6;
    odd[6].first = "of one sample";
    odd[6].second.boatmotion.resize(1);
    odd[7].first = "of none";
    odd[7].second.boatmotion.clear();
    return odd;
}

} // namespace kavela::test
