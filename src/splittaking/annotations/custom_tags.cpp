#include "splittaking/annotations/custom_tags.h"

#include "splitdata/run_timing.h"
#include "splittaking/annotations/remembered_texts.h"

#include <algorithm>

namespace kavela {

namespace {

std::size_t tagsIn(const customData020& record) {
    return std::max({record.tags.size(), record.cmTimes.size(), record.fixCMTimes.size()});
}

customData020& tagRecordOf(athletedata031& run, TagHandle handle) {
    customData020& record = entryOf(run.customData, handle.record, "the record of tags");
    if (handle.entry >= tagsIn(record))
        throw std::out_of_range("tag " + std::to_string(handle.entry + 1) + " does not exist");
    return record;
}

std::optional<CMTime> momentAt(const std::vector<CMTime>& list, std::size_t entry) {
    const CMTime moment = entryOrZero(list, entry);
    return isTaken(moment) ? std::optional(moment) : std::nullopt;
}

Tag readTag(const customData020& record, TagHandle handle) {
    return {handle,          entryOrZero(record.tags, handle.entry),
            record.videoInt, momentAt(record.cmTimes, handle.entry),
            record.fixInt,   momentAt(record.fixCMTimes, handle.entry)};
}

std::size_t tagRecordFor(athletedata031& run, std::int64_t video) {
    const auto found = std::ranges::find(run.customData, video, &customData020::videoInt);
    if (found != run.customData.end())
        return static_cast<std::size_t>(found - run.customData.begin());
    run.customData.emplace_back().videoInt = video;
    return run.customData.size() - 1;
}

/// Where the tags of a video stand that are marked on a fixed camera.
std::size_t tagRecordFor(athletedata031& run, std::int64_t video, std::int64_t fixedCamera) {
    const auto found = std::ranges::find_if(run.customData, [&](const customData020& record) {
        return record.videoInt == video && record.fixInt == fixedCamera;
    });
    if (found != run.customData.end())
        return static_cast<std::size_t>(found - run.customData.begin());
    customData020& record = run.customData.emplace_back();
    record.videoInt = video;
    record.fixInt = fixedCamera;
    return run.customData.size() - 1;
}

TagHandle moveToCamera(athletedata031& run, TagHandle from, std::int64_t fixedCamera,
                       const CMTime& moment) {
    const Tag tag = readTag(tagRecordOf(run, from), from);
    TagHandle to{tagRecordFor(run, tag.video, fixedCamera), 0};
    customData020& record = run.customData[to.record];
    to.entry = tagsIn(record);
    setPadded(record.tags, to.entry, tag.name);
    setPadded(record.cmTimes, to.entry, tag.moment.value_or(NotMarked));
    setPadded(record.fixCMTimes, to.entry, moment);
    const std::size_t records = run.customData.size();
    removeTag(run, from);
    if (run.customData.size() < records && to.record > from.record)
        --to.record;
    return to;
}

} // namespace

std::vector<Tag> tagsOf(const athletedata031& run) {
    std::vector<Tag> tags;
    for (std::size_t r = 0; r < run.customData.size(); ++r)
        for (std::size_t k = 0; k < tagsIn(run.customData[r]); ++k)
            tags.push_back(readTag(run.customData[r], {r, k}));
    return tags;
}

TagHandle addTag(athletedata031& run, std::int64_t video, std::string name, const CMTime& moment) {
    const std::size_t place = tagRecordFor(run, video);
    customData020& record = run.customData[place];
    const TagHandle handle{place, tagsIn(record)};
    setPadded(record.tags, handle.entry, std::move(name));
    setPadded(record.cmTimes, handle.entry, moment);
    return handle;
}

void moveTag(athletedata031& run, TagHandle handle, const CMTime& moment) {
    setPadded(tagRecordOf(run, handle).cmTimes, handle.entry, moment);
}

void renameTag(athletedata031& run, TagHandle handle, std::string name) {
    setPadded(tagRecordOf(run, handle).tags, handle.entry, std::move(name));
}

TagHandle setFixedMoment(athletedata031& run, TagHandle handle, std::int64_t fixedCamera,
                         const CMTime& moment) {
    customData020& record = tagRecordOf(run, handle);
    if (record.fixInt != fixedCamera && std::ranges::any_of(record.fixCMTimes, isTaken))
        return moveToCamera(run, handle, fixedCamera, moment);
    record.fixInt = fixedCamera;
    setPadded(record.fixCMTimes, handle.entry, moment);
    return handle;
}

void clearFixedMoment(athletedata031& run, TagHandle handle) {
    std::vector<CMTime>& moments = tagRecordOf(run, handle).fixCMTimes;
    if (handle.entry < moments.size())
        moments[handle.entry] = NotMarked;
}

void removeTag(athletedata031& run, TagHandle handle) {
    customData020& record = tagRecordOf(run, handle);
    eraseEntry(record.tags, handle.entry);
    eraseEntry(record.cmTimes, handle.entry);
    eraseEntry(record.fixCMTimes, handle.entry);
    if (tagsIn(record) == 0 && record.comments.empty())
        eraseEntry(run.customData, handle.record);
}

std::size_t renameTags(athletedata031& run, const std::string& from, const std::string& to) {
    std::size_t renamed = 0;
    for (customData020& record : run.customData)
        for (std::string& name : record.tags)
            if (name == from) {
                name = to;
                ++renamed;
            }
    return renamed;
}

std::vector<std::string> tagNames(const infodata031& info, std::span<const std::string> saved,
                                  std::span<const athletedata031> runs) {
    std::vector<std::string> names = withRemembered(withRemembered({}, info.tags), saved);
    for (const athletedata031& run : runs)
        for (const customData020& record : run.customData)
            names = withRemembered(std::move(names), record.tags);
    return names;
}

} // namespace kavela
