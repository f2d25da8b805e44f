#pragma once

#include "compose/caption_plan.h"
#include "compose/layout.h"
#include "compose/path_view.h"
#include "compose/time_map.h"
#include "splitdata/document.h"
#include "video/writing/film_writer.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// What is to be composed, complete: runs with their films, and how they are to be seen together.
namespace kavela {

/// A film of a composition, and the run on it.
struct ComposedFilm {
    std::filesystem::path path;
    CaptionedRun run;
    std::optional<PointPair> points; ///< two things that the first two films both show
    /// The path of something on it that is drawn or followed; null for none.
    std::shared_ptr<const PathView> view = nullptr;
};

enum class RangeKind {
    Run,    ///< from the first start to the last finish; of films without marks to their end
    Splits, ///< from one split to another, 0 is the start
    Free    ///< from one second of common time to another
};

struct RangeChoice {
    RangeKind kind = RangeKind::Run;
    std::size_t fromSplit = 0;
    std::size_t toSplit = 0;
    double from = 0;
    double to = 0;
};

/// A stretch of common time, in seconds.
struct CommonRange {
    double from = 0;
    double to = 0;
};

struct Composition {
    std::vector<ComposedFilm> films; ///< two to four
    std::vector<std::string> splitTitles;
    LayoutChoice layout;
    Synchronise synchronise = Synchronise::Start;
    std::size_t split = 0;
    RangeChoice range;
    double speed = 1; ///< seconds of common time in a second of the composed film, ⅛ to 1
    CaptionChoice captions;
    std::optional<std::size_t> sound; ///< film that is heard
    bool isSmall = false;             ///< encoded for sending
};

/// How long a composition goes on behind its last split, so that the time there can be read, in
/// seconds of common time.
inline constexpr double TailSeconds = SplitShownSeconds;

/// How the films of a composition lie in time. Throws DecodeError as TimeMap does.
[[nodiscard]] TimeMap timeMapOf(const Composition& composition);

/// The stretch of common time that is shown. A whole run where no film has a mark behind its start
/// goes on to the end of the longest film: `lengths` are the seconds of their last frames, 0 for a
/// film that is not there; without any it is a moment at the start. Throws DecodeError naming
/// `range` where no film is marked at an end, or the end is not behind the beginning.
[[nodiscard]] CommonRange rangeOf(const Composition& composition, const TimeMap& map,
                                  const std::vector<double>& lengths = {});

/// The captions of a composition.
[[nodiscard]] CaptionPlan captionsOf(const Composition& composition, const TimeMap& map);

/// A run of a split file as a composition takes it: marks on the film of a camera counted from 0,
/// times and penalties as the tables show them.
[[nodiscard]] CaptionedRun captionedRun(const infodata031& info, const athletedata031& run,
                                        std::size_t camera);

/// The rate at which films are composed: the fastest one's, brought to at most 60 a second by a
/// whole divisor. Rates near a usual one count as that. 50 where no film tells.
[[nodiscard]] FrameRate composedRate(const std::vector<double>& ratesOfFilms);

/// Whether a player of level 4.2 is up to pictures of a size at a rate.
[[nodiscard]] bool isWithinLevel(VideoSize size, FrameRate rate);

} // namespace kavela
