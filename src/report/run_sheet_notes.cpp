#include "report/run_sheet_notes.h"

#include "report/run_sheet_data.h"
#include "report/said.h"
#include "splitdata/annotation_labels.h"
#include "splitdata/run_timing.h"
#include "splittaking/annotations/custom_tags.h"

#include <algorithm>
#include <cmath>

namespace kavela::report {

namespace {

std::string joinedNotes(std::span<const std::string> parts) {
    std::string text;
    for (const std::string& part : parts)
        if (!part.empty())
            text += (text.empty() ? "" : ", ") + part;
    return text;
}

/// A time as the file has it; a dash for one that was not taken.
std::string takenSeconds(double seconds) {
    return seconds == 0 ? "–" : sheetSeconds(seconds).toStdString();
}

std::string signedText(double value, const std::string& text) {
    return (value > 0 ? "+" : "") + text;
}

SheetList upstreamList(const athletedata031& run) {
    SheetList list{said("Upstream gates"),
                   {{said("Gate"), 24, Qt::AlignLeft},
                    {said("Entrance"), 32, Qt::AlignRight},
                    {said("Exit"), 32, Qt::AlignRight},
                    {said("Total"), 32, Qt::AlignRight},
                    {said("Turn"), 0, Qt::AlignLeft}},
                   {}};
    for (const upstreamdata025& gate : run.upstreams) {
        const std::string turn = labelOf(LabelList::UpstreamDirection, gate.direction) + ", " +
                                 labelOf(LabelList::UpstreamStyle, gate.style);
        list.rows.push_back({{std::to_string(gate.num), takenSeconds(gate.timeEntrace),
                              takenSeconds(gate.timeExit), takenSeconds(gate.time), turn},
                             {}});
    }
    return list;
}

SheetList lossList(const athletedata031& run) {
    SheetList list{said("Time losses"),
                   {{said("Against"), 0, Qt::AlignLeft},
                    {said("Seconds"), 36, Qt::AlignRight},
                    {said("Percent"), 36, Qt::AlignRight}},
                   {}};
    for (const timeloss031& loss : run.timeslosses) {
        std::string percent = sheetSeconds(loss.timelossper).chopped(1).toStdString();
        if (!std::isfinite(loss.timelossper))
            percent = "–";
        std::string note = joinedNotes(loss.reasons);
        if (!loss.comments.empty())
            note += (note.empty() ? "" : ". ") + loss.comments;
        list.rows.push_back(
            {{loss.versus, signedText(loss.timeloss, sheetSeconds(loss.timeloss).toStdString()),
              signedText(loss.timelossper, percent + " %")},
             std::move(note)});
    }
    return list;
}

/// When a tag was set: on the time of the run where its start on that film is known.
std::string momentText(const athletedata031& run, const Tag& tag) {
    if (!tag.moment || !isTaken(*tag.moment))
        return "–";
    const auto start =
        tag.video < 0 ? std::nullopt : startOf(run, static_cast<std::size_t>(tag.video));
    if (start)
        return sheetSeconds(secondsFrom(*start, *tag.moment)).toStdString() + " s";
    return sheetSeconds(tag.moment->seconds()).toStdString() + " s of film " +
           std::to_string(tag.video < 0 ? tag.video : tag.video + 1);
}

SheetList tagList(const athletedata031& run) {
    SheetList list{said("Tags"),
                   {{said("Tag"), 0, Qt::AlignLeft}, {said("In the run at"), 78, Qt::AlignRight}},
                   {}};
    for (const Tag& tag : tagsOf(run))
        list.rows.push_back({{tag.name, momentText(run, tag)}, {}});
    for (const customData020& data : run.customData)
        if (!data.comments.empty())
            list.rows.push_back({{}, data.comments});
    return list;
}

SheetList commentList(const RaceSet& set, const athletedata031& run) {
    SheetList list{
        said("Comments"), {{QString(), 64, Qt::AlignLeft}, {QString(), 0, Qt::AlignLeft}}, {}};
    const std::vector<std::string>& comments = run.sectioninfo.comments;
    for (std::size_t k = 0; k < comments.size(); ++k) {
        if (comments[k].empty())
            continue;
        std::string title = entryOrZero(set.sectiontitles, k);
        if (title.empty())
            title = say("Split {}", k + 1);
        list.rows.push_back({{std::move(title), comments[k]}, {}});
    }
    return list;
}

} // namespace

athletedata031 annotatedRecord(const analyzerdata& run) {
    athletedata031 record;
    record.sectioninfo.times = run.sectioninfo.times;
    record.sectioninfo.cmtimes = run.sectioninfo.cmtimes;
    record.sectioninfo.comments = run.sectioninfo.comments;
    record.customData = run.customData;
    record.timeslosses = run.timeloss;
    record.upstreams = run.upstreams;
    record.strokes = run.strokes;
    return record;
}

std::vector<SheetList> noteLists(const RaceSet& set, const athletedata031& run) {
    std::vector<SheetList> lists{upstreamList(run), lossList(run), tagList(run),
                                 commentList(set, run)};
    std::erase_if(lists, [](const SheetList& list) { return list.rows.empty(); });
    return lists;
}

} // namespace kavela::report
