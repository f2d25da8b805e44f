#include "splittaking/annotations/lanes.h"

#include "common/number_text.h"
#include "splitdata/annotation_labels.h"
#include "splitdata/run_timing.h"
#include "splittaking/annotations/custom_tags.h"
#include "splittaking/annotations/gate_marks.h"
#include "splittaking/marking.h"

#include <algorithm>
#include <map>

namespace kavela {

namespace {

constexpr std::array<const char*, MarkKinds> KindTitles{
    "Start", "Splits", "Micro splits", "Upstream gates", "Strokes", "Time losses", "Tags"};

std::string splitText(const infodata031& info, std::size_t split) {
    const std::string title = entryOrZero(info.splitTitles, split);
    return title.empty() ? "S" + std::to_string(split + 1) : title;
}

std::string laneGateText(const upstreamdata025& upstream, std::size_t place) {
    const std::string gate = "Gate " + std::to_string(upstream.num);
    const auto which = markAtPlace(place, upstream.cmtimes.size());
    if (!which)
        return gate;
    constexpr const char* MarkNames[] = {" entrance", " middle", " exit"};
    return gate + MarkNames[static_cast<std::size_t>(*which)];
}

std::string lossText(const timeloss031& loss, std::size_t place) {
    const std::string mark = place == 0 ? "start" : place == 1 ? "end" : std::to_string(place + 1);
    return "Loss against " + loss.versus + ", " + mark + ": " + hundredthsText(loss.timeloss) +
           " s";
}

/// Goes through a run kind by kind.
class Collector {
public:
    Collector(const athletedata031& run, const infodata031& info) : m_run(run), m_info(info) {}

    AnnotationLanes collect() && {
        addTiming();
        addMicroSplits();
        addUpstreams();
        addStrokes();
        addTimeLosses();
        addTags();
        putInOrder();
        return std::move(m_lanes);
    }

private:
    void add(const FilmOfRun& film, const CMTime& time, std::string text,
             const MarkHandle& handle) {
        if (isTaken(time))
            m_lanes.marks.push_back(
                {handle.kind, 0, film, time, time.seconds(), std::move(text), handle});
    }

    void addStamps(const std::vector<CMTime>& stamps, const std::string& text, MarkKind kind,
                   std::size_t record) {
        for (std::size_t camera = 0; camera < stamps.size(); ++camera)
            add({FilmKind::Own, static_cast<std::int64_t>(camera)}, stamps[camera], text,
                {kind, record, camera});
    }

    void addTiming() {
        const RunMarks marks = marksOf(m_run.sectioninfo);
        addStamps(marks.start.value_or(Stamps{}), "Start", MarkKind::Start, 0);
        for (std::size_t k = 0; k < marks.marks.size(); ++k)
            addStamps(marks.marks[k], splitText(m_info, k), MarkKind::Split, k);
    }

    void addMicroSplits() {
        for (std::size_t k = 0; k < m_run.microsplits.size(); ++k)
            add({}, m_run.microsplits[k].cmtime, "Micro " + std::to_string(k + 1),
                {MarkKind::MicroSplit, k});
    }

    void addUpstreams() {
        for (std::size_t k = 0; k < m_run.upstreams.size(); ++k) {
            const upstreamdata025& upstream = m_run.upstreams[k];
            for (std::size_t place = 0; place < upstream.cmtimes.size(); ++place)
                add({}, upstream.cmtimes[place], laneGateText(upstream, place),
                    {MarkKind::Upstream, k, place});
        }
    }

    void addStrokes() {
        for (std::size_t k = 0; k < m_run.strokes.size(); ++k) {
            const strokessdata025& stroke = m_run.strokes[k];
            std::string text = labelOf(LabelList::StrokeHand, stroke.hand);
            if (stroke.style != 0)
                text += ", " + labelOf(LabelList::StrokeStyle, stroke.style);
            addStamps(stroke.cmtimes, text, MarkKind::Stroke, k);
        }
    }

    void addTimeLosses() {
        for (std::size_t k = 0; k < m_run.timeslosses.size(); ++k) {
            const timeloss031& loss = m_run.timeslosses[k];
            for (std::size_t side = 0; side < std::min<std::size_t>(2, loss.cmtimes.size()); ++side)
                addStretch(k, side == 0
                                  ? FilmOfRun{}
                                  : FilmOfRun{FilmKind::Versus, static_cast<std::int64_t>(k)});
        }
    }

    void addStretch(std::size_t record, const FilmOfRun& film) {
        const timeloss031& loss = m_run.timeslosses[record];
        const std::vector<CMTime>& marks = loss.cmtimes[film.kind == FilmKind::Versus ? 1 : 0];
        for (std::size_t place = 0; place < marks.size(); ++place)
            add(film, marks[place], lossText(loss, place),
                {MarkKind::TimeLoss, record, place, film.kind});
    }

    void addTags() {
        for (const Tag& tag : tagsOf(m_run)) {
            MarkHandle handle{MarkKind::Tag, tag.handle.record, tag.handle.entry};
            add({FilmKind::Own, tag.video}, tag.moment.value_or(NotMarked), tag.name, handle);
            handle.film = FilmKind::Fixed;
            add({FilmKind::Fixed, tag.fixedCamera}, tag.fixedMoment.value_or(NotMarked), tag.name,
                handle);
        }
    }

    /// The marks were added kind by kind: rows are numbered in that order as they first appear.
    void putInOrder() {
        std::map<std::string, int> tagRows;
        std::array<std::optional<int>, MarkKinds> kindRows;
        for (LaneMark& mark : m_lanes.marks) {
            const auto kind = static_cast<std::size_t>(mark.kind);
            if (mark.kind == MarkKind::Tag)
                mark.lane = tagRow(tagRows, mark.text);
            else
                mark.lane = kindRows[kind] ? *kindRows[kind] : addRow(KindTitles[kind]);
            kindRows[kind] = mark.lane;
        }
        std::ranges::stable_sort(m_lanes.marks, [](const LaneMark& a, const LaneMark& b) {
            const auto order = orderOf(a.time, b.time);
            return order != 0 ? order < 0 : a.lane < b.lane;
        });
    }

    int tagRow(std::map<std::string, int>& rows, const std::string& name) {
        const auto [row, isNew] = rows.try_emplace(name, 0);
        if (isNew)
            row->second =
                addRow(name.empty() ? KindTitles[static_cast<std::size_t>(MarkKind::Tag)] : name);
        return row->second;
    }

    int addRow(std::string title) {
        m_lanes.titles.push_back(std::move(title));
        return static_cast<int>(m_lanes.titles.size()) - 1;
    }

    const athletedata031& m_run;
    const infodata031& m_info;
    AnnotationLanes m_lanes;
};

bool isShown(const LaneMark& mark, const FilmOfRun& film, MarkFilter kinds) {
    return mark.film == film && kinds.test(static_cast<std::size_t>(mark.kind));
}

} // namespace

MarkFilter onlyKinds(std::span<const MarkKind> kinds) {
    MarkFilter filter;
    for (const MarkKind kind : kinds)
        filter.set(static_cast<std::size_t>(kind));
    return filter;
}

AnnotationLanes annotationLanes(const athletedata031& run, const infodata031& info) {
    return Collector(run, info).collect();
}

std::vector<LaneMark> marksOn(std::span<const LaneMark> marks, const FilmOfRun& film,
                              MarkFilter kinds) {
    std::vector<LaneMark> shown;
    std::ranges::copy_if(marks, std::back_inserter(shown),
                         [&](const LaneMark& mark) { return isShown(mark, film, kinds); });
    return shown;
}

std::optional<std::size_t> nextMark(std::span<const LaneMark> marks, const FilmOfRun& film,
                                    const CMTime& moment, MarkFilter kinds) {
    for (std::size_t k = 0; k < marks.size(); ++k)
        if (isShown(marks[k], film, kinds) && orderOf(marks[k].time, moment) > 0)
            return k;
    return std::nullopt;
}

std::optional<std::size_t> previousMark(std::span<const LaneMark> marks, const FilmOfRun& film,
                                        const CMTime& moment, MarkFilter kinds) {
    std::optional<std::size_t> found;
    for (std::size_t k = 0; k < marks.size(); ++k) {
        if (!isShown(marks[k], film, kinds))
            continue;
        if (orderOf(marks[k].time, moment) >= 0)
            break;
        if (!found || orderOf(marks[*found].time, marks[k].time) < 0)
            found = k;
    }
    return found;
}

} // namespace kavela
