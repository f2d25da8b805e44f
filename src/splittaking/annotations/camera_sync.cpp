#include "splittaking/annotations/camera_sync.h"

#include "common/percentile.h"
#include "splitdata/run_timing.h"

#include <algorithm>

namespace kavela {

namespace {

bool isOnBoth(const Tag& tag, std::size_t camera) {
    return tag.name == SyncTag && tag.video == 0 && std::cmp_equal(tag.fixedCamera, camera) &&
           tag.moment && tag.fixedMoment;
}

} // namespace

std::optional<double> lagOf(const athletedata031& run, std::size_t camera) {
    std::vector<double> lags;
    for (const Tag& tag : tagsOf(run))
        if (isOnBoth(tag, camera))
            lags.push_back(secondsFrom(*tag.moment, *tag.fixedMoment));
    if (lags.empty())
        return std::nullopt;
    std::ranges::sort(lags);
    return percentile(lags, 0.5);
}

std::vector<SyncMark> syncMarksOf(const athletedata031& run, std::size_t camera) {
    const double median = lagOf(run, camera).value_or(0);
    std::vector<SyncMark> marks;
    for (const Tag& tag : tagsOf(run)) {
        if (!isOnBoth(tag, camera))
            continue;
        const double lag = secondsFrom(*tag.moment, *tag.fixedMoment);
        marks.push_back({tag.handle, tag.name, *tag.moment, *tag.fixedMoment, lag, lag - median});
    }
    std::ranges::stable_sort(marks, [](const SyncMark& a, const SyncMark& b) {
        return orderOf(a.own, b.own) == std::strong_ordering::less;
    });
    return marks;
}

void markSync(athletedata031& run, std::size_t camera, const CMTime& own, const CMTime& fixed,
              std::optional<ReferenceDate> began) {
    if (began)
        addFixMark(run, camera, {began->seconds + fixed.seconds()});
    const TagHandle tag = addTag(run, 0, SyncTag, own);
    (void)setFixedMoment(run, tag, static_cast<std::int64_t>(camera), fixed);
}

/// The dates stand in the order in which their tags were made.
std::optional<SyncDate> syncDateOf(const athletedata031& run, const TagHandle& handle) {
    const std::vector<Tag> tags = tagsOf(run);
    const auto found = std::ranges::find(tags, handle, &Tag::handle);
    if (found == tags.end() || found->fixedCamera < 0)
        return std::nullopt;
    const auto camera = static_cast<std::size_t>(found->fixedCamera);
    if (!isOnBoth(*found, camera))
        return std::nullopt;
    const auto place =
        std::count_if(tags.begin(), found, [&](const Tag& tag) { return isOnBoth(tag, camera); });
    const SyncDate date{camera, static_cast<std::size_t>(place)};
    return date.mark < fixMarksOf(run, camera).size() ? std::optional(date) : std::nullopt;
}

void removeSync(athletedata031& run, const TagHandle& tag) {
    const bool isForSync = entryOrZero(entryOf(run.customData, tag.record, "record of tags").tags,
                                       tag.entry) == SyncTag;
    if (!isForSync) {
        clearFixedMoment(run, tag);
        return;
    }
    if (const auto date = syncDateOf(run, tag))
        removeFixMark(run, date->camera, date->mark);
    removeTag(run, tag);
}

} // namespace kavela
