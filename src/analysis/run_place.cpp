#include "analysis/run_place.h"

#include "splitdata/run_timing.h"

namespace kavela {

Place runPlace(const analyzerdata& run, std::optional<std::size_t> section) {
    Place place;
    place.file = run.fileURL;
    place.run = static_cast<std::size_t>(run.athleteInt);
    place.split = section;
    if (!section)
        return place;
    const std::vector<CMTime> stamps = entryOrZero(run.sectioninfo.cmtimes, *section - 1);
    if (!stamps.empty())
        place.moment = stamps.front();
    return place;
}

} // namespace kavela
