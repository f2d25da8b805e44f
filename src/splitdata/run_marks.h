#pragma once

#include "splitdata/records.h"

#include <optional>
#include <vector>

/// The marks on the films behind the times of a run.
namespace kavela {

/// The players' stamps at one mark, one per camera of the run. Empty: the split was not seen. Such
/// a split has the time 0, and the next one is measured from the last mark before it.
using Stamps = std::vector<CMTime>;

/// The marks of one run. Splits are counted from 1: split k has entry k - 1.
struct RunMarks {
    std::optional<Stamps> start;
    std::vector<Stamps> marks;

    friend bool operator==(const RunMarks&, const RunMarks&) = default;
};

/// The marks behind a stored timing. The start is as long before the first stamp as the times up
/// to it say; a split with a time but no stamp gets the stamp its time leads to. Nothing is marked
/// when the record holds no stamp at all.
[[nodiscard]] RunMarks marksOf(const sectiondata030& timing);

/// The stamp a number of seconds later (earlier when below 0), exact: in the stamp's own time
/// scale, or a finer one where the moment asks for it. A moment that no usual time scale meets to
/// the nanosecond is rounded to one and flagged so.
[[nodiscard]] CMTime later(const CMTime& stamp, double seconds);

} // namespace kavela
