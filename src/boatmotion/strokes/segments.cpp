#include "boatmotion/strokes/segments.h"

#include <algorithm>
#include <map>

namespace kavela {

namespace {

std::vector<double> inOrder(std::span<const double> marks) {
    std::vector<double> ordered(marks.begin(), marks.end());
    std::sort(ordered.begin(), ordered.end());
    return ordered;
}

std::int64_t segmentAmong(double time, const std::vector<double>& ordered) {
    if (ordered.size() < 2 || time < ordered.front() || time >= ordered.back())
        return 0;
    return std::upper_bound(ordered.begin(), ordered.end(), time) - ordered.begin();
}

} // namespace

std::int64_t segmentAt(double time, std::span<const double> marks) {
    return segmentAmong(time, inOrder(marks));
}

void numberSegments(std::vector<smartBMdata_v4>& strokesData, std::span<const double> marks) {
    const std::vector<double> ordered = inOrder(marks);
    for (smartBMdata_v4& entry : strokesData)
        entry.segment = segmentAmong(entry.timestamp, ordered);
}

bool isStroke(const smartBMdata_v4& entry) {
    return entry.stroke.strokeRate > 0;
}

std::vector<segmentStruct> segmentAverages(std::span<const smartBMdata_v4> strokesData) {
    struct Sums {
        segmentStruct sums;
        double count = 0;
    };
    std::map<std::int64_t, Sums> segments;
    for (const smartBMdata_v4& entry : strokesData) {
        if (!isStroke(entry))
            continue;
        Sums& segment = segments[entry.segment];
        segment.count += 1;
        segment.sums.strokerate += entry.stroke.strokeRate;
        segment.sums.power += entry.stroke.power;
        segment.sums.force += entry.stroke.force;
    }
    std::vector<segmentStruct> averages;
    averages.reserve(segments.size());
    for (const auto& [number, segment] : segments)
        averages.push_back({number, segment.sums.strokerate / segment.count,
                            segment.sums.power / segment.count,
                            segment.sums.force / segment.count});
    return averages;
}

} // namespace kavela
