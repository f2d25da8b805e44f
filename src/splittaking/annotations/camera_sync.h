#pragma once

#include "splittaking/annotations/custom_tags.h"
#include "splittaking/annotations/fixed_cameras.h"

/// How a fixed camera's film lies beside the run's first film: by moments that were marked on both
/// for that alone. Their tags are named SyncTag, and have a date on the camera's own clock too
/// where that is known. Other tags on both films were set by the lag, and tell nothing about it.
/// Cameras are counted from 0; edits throw std::out_of_range for what does not exist.
namespace kavela {

inline constexpr const char* SyncTag = "Sync";

/// One moment on both films.
struct SyncMark {
    TagHandle tag;
    std::string name;
    CMTime own;
    CMTime fixed;
    double lag = 0;       ///< seconds from the moment on the run's film to the one on the camera's
    double deviation = 0; ///< of the lag from the median of all
};

/// In the order of the run's film.
[[nodiscard]] std::vector<SyncMark> syncMarksOf(const athletedata031& run, std::size_t camera);

/// Seconds by which the camera's film is later than the run's, the median of all marks; nothing
/// without one.
[[nodiscard]] std::optional<double> lagOf(const athletedata031& run, std::size_t camera);

/// Marks one moment on both films. The fixed camera's film began at `began`, the zero of its clock;
/// where that is not known no date is stored.
void markSync(athletedata031& run, std::size_t camera, const CMTime& own, const CMTime& fixed,
              std::optional<ReferenceDate> began);

/// Where a tag that was made by markSync() has its date.
struct SyncDate {
    std::size_t camera = 0;
    std::size_t mark = 0; ///< of the camera's dates
};

/// Nothing for another tag, and where the file holds no date for it.
[[nodiscard]] std::optional<SyncDate> syncDateOf(const athletedata031& run, const TagHandle& tag);

/// Takes a moment off the fixed camera: a tag of the coach's stays on the run's film, one made for
/// this alone goes with its date.
void removeSync(athletedata031& run, const TagHandle& tag);

} // namespace kavela
