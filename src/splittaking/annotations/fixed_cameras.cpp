#include "splittaking/annotations/fixed_cameras.h"

#include "common/percentile.h"

#include <algorithm>
#include <utility>

namespace kavela {

namespace {

void askForCamera(const athletedata031& run, std::size_t camera) {
    (void)entryOf(run.fixcameras, camera, "fixed camera");
}

fixMarkStruct& cameraRecordFor(athletedata031& run, std::size_t camera) {
    const auto isOfCamera = [&](const fixMarkStruct& record) {
        return std::cmp_equal(record.camNum, camera);
    };
    // Marks of several records count one after the other: a new one goes behind the last.
    const auto last = std::find_if(run.fixMarkDates.rbegin(), run.fixMarkDates.rend(), isOfCamera);
    if (last != run.fixMarkDates.rend())
        return *last;
    run.fixMarkDates.push_back({static_cast<std::int64_t>(camera), {}});
    return run.fixMarkDates.back();
}

/// The list and the place in it of a mark counted through all records of a camera.
std::pair<std::vector<ReferenceDate>&, std::size_t> findMark(athletedata031& run,
                                                             std::size_t camera, std::size_t mark) {
    std::size_t place = mark;
    for (fixMarkStruct& record : run.fixMarkDates) {
        if (!std::cmp_equal(record.camNum, camera))
            continue;
        if (place < record.fixMarkDates.size())
            return {record.fixMarkDates, place};
        place -= record.fixMarkDates.size();
    }
    throw std::out_of_range("mark " + std::to_string(mark + 1) + " of the camera does not exist");
}

void forgetInTags(athletedata031& run, std::int64_t camera) {
    for (customData020& record : run.customData) {
        if (record.fixInt == camera) {
            record.fixInt = 0;
            record.fixCMTimes.clear();
        } else if (record.fixInt > camera) {
            --record.fixInt;
        }
    }
}

} // namespace

std::size_t attachFixedCamera(athletedata031& run, std::string film) {
    run.fixcameras.push_back(std::move(film));
    return run.fixcameras.size() - 1;
}

void detachFixedCamera(athletedata031& run, std::size_t camera) {
    askForCamera(run, camera);
    eraseEntry(run.fixcameras, camera);
    const auto number = static_cast<std::int64_t>(camera);
    std::erase_if(run.fixMarkDates,
                  [&](const fixMarkStruct& record) { return record.camNum == number; });
    for (fixMarkStruct& record : run.fixMarkDates)
        record.camNum -= record.camNum > number ? 1 : 0;
    forgetInTags(run, number);
}

std::vector<ReferenceDate> fixMarksOf(const athletedata031& run, std::size_t camera) {
    std::vector<ReferenceDate> dates;
    for (const fixMarkStruct& record : run.fixMarkDates)
        if (std::cmp_equal(record.camNum, camera))
            dates.insert(dates.end(), record.fixMarkDates.begin(), record.fixMarkDates.end());
    return dates;
}

void addFixMark(athletedata031& run, std::size_t camera, ReferenceDate date) {
    askForCamera(run, camera);
    cameraRecordFor(run, camera).fixMarkDates.push_back(date);
}

void moveFixMark(athletedata031& run, std::size_t camera, std::size_t mark, ReferenceDate date) {
    const auto [dates, place] = findMark(run, camera, mark);
    dates[place] = date;
}

void removeFixMark(athletedata031& run, std::size_t camera, std::size_t mark) {
    const auto [dates, place] = findMark(run, camera, mark);
    eraseEntry(dates, place);
}

std::optional<ClockOffset> offsetBetween(const athletedata031& run, std::size_t first,
                                         std::size_t second) {
    const std::vector<ReferenceDate> from = fixMarksOf(run, first);
    const std::vector<ReferenceDate> to = fixMarksOf(run, second);
    std::vector<double> offsets;
    for (std::size_t k = 0; k < std::min(from.size(), to.size()); ++k)
        offsets.push_back(to[k].seconds - from[k].seconds);
    if (offsets.empty())
        return std::nullopt;
    std::ranges::sort(offsets);
    return ClockOffset{percentile(offsets, 0.5), offsets.back() - offsets.front(), offsets.size()};
}

} // namespace kavela
