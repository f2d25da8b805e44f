#pragma once

#include "boatmotion/companions.h"
#include "boatmotion/sessions.h"

#include <span>

/// Segments of a session, which the coach marks. Between the first and the second mark lies segment
/// 1, between the second and the third segment 2 and so on; before the first mark, from the last
/// one on, and with fewer than two marks all is segment 0.
namespace kavela {

/// The segment of a moment; the marks need no order. A moment on a mark belongs to what begins
/// there.
[[nodiscard]] std::int64_t segmentAt(double time, std::span<const double> marks);

/// Numbers the strokes and turns of a processed session by the marks.
void numberSegments(std::vector<smartBMdata_v4>& strokesData, std::span<const double> marks);

/// Whether an entry of a processed session stands for a stroke; otherwise it stands for a turn.
[[nodiscard]] bool isStroke(const smartBMdata_v4& entry);

/// The means over the strokes of each segment that has any, by number.
[[nodiscard]] std::vector<segmentStruct>
segmentAverages(std::span<const smartBMdata_v4> strokesData);

} // namespace kavela
