#pragma once

#include "common/cm_time.h"

#include <filesystem>
#include <functional>
#include <stop_token>

namespace kavela {

/// A stretch of a film, from one frame to another, both included, by their exact stamps.
struct FilmStretch {
    CMTime first;
    CMTime last;
};

/// Whether a stretch can be copied into a file of this name: only some containers can hide the lead
/// that the first frame builds on.
[[nodiscard]] bool canCopyInto(const std::filesystem::path& target);

/// Writes a stretch of a film and its sound without decoding it: the packets from the key frame
/// before the first frame, with an edit list that hides the lead. The first frame is exact wherever
/// edit lists are honoured; where they are not it begins with the lead. The end may be as many
/// frames longer as frames are reordered. The file has its name only once it is whole; one that is
/// there is never replaced. False, with nothing left behind, once `stop` is requested. Throws
/// VideoError for a film that cannot be copied from, and FileError where the target cannot be
/// written. `onProgress` hears fractions, 0 to 1.
[[nodiscard]] bool copyStretch(const std::filesystem::path& film, const FilmStretch& stretch,
                               const std::filesystem::path& target,
                               const std::stop_token& stop = {},
                               const std::function<void(double fraction)>& onProgress = {});

} // namespace kavela
