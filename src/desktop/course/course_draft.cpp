#include "desktop/course/course_draft.h"

#include <algorithm>

namespace kavela::desktop {

namespace {
constexpr double HalfGate = 0.025; ///< widths of the picture

bool isBlank(const coursedesign001& design) {
    return partsOf(design).empty() && design.background.bytes.empty();
}
} // namespace

CourseDraft courseDraftOf(const infodata031& info, std::string& fault) {
    CourseDraft draft;
    draft.upGates = info.upGates;
    draft.gates = info.gates;
    draft.splits = info.totalsplits;
    draft.splitTitles = report::courseWordsOf(info).splitTitles;
    if (std::optional<StoredCourse> stored = courseIn(info.coursedesign)) {
        draft.design = std::move(stored->design);
        draft.heightOfWidth = stored->heightOfWidth;
    } else if (!info.coursedesign.bytes.empty()) {
        try {
            report::CourseGround ground = report::courseGround(info.coursedesign.bytes.list());
            draft.design.background = std::move(ground.picture);
            draft.heightOfWidth = ground.heightOfWidth;
        } catch (const CourseError& error) {
            fault = error.what();
        }
    }
    return draft;
}

infodata031 withDraft(infodata031 info, const CourseDraft& draft) {
    // A white sheet is no course: where all was rubbed out the race has none.
    info.coursedesign = isBlank(draft.design)
                            ? Blob()
                            : report::coursePicture(report::CoursePainting(
                                  draft.design, draft.heightOfWidth, draft.words()));
    info.upGates = draft.upGates;
    if (info.gates == 0)
        for (const coursegate001& gate : draft.design.gates)
            info.gates = std::max(info.gates, gate.number);
    return info;
}

coursepoint001 usualHalfGate(const CourseDraft& draft) {
    if (draft.design.gates.empty())
        return {0, HalfGate};
    const coursegate001& last = draft.design.gates.back();
    return {(last.right.x - last.left.x) / 2, (last.right.y - last.left.y) / 2};
}

std::optional<CourseDraft> withNextGate(CourseDraft draft, const CourseSpan& span) {
    const std::int64_t number = nextGateNumber(draft.design, draft.gates);
    if (draft.gates > 0 && number > draft.gates)
        return {};
    draft.design.gates.push_back({number,
                                  {span.middle.x - span.half.x, span.middle.y - span.half.y},
                                  {span.middle.x + span.half.x, span.middle.y + span.half.y}});
    return draft;
}

std::optional<CourseDraft> withNextSplitLine(CourseDraft draft, const CourseSpan& span) {
    const std::int64_t number = nextSplitNumber(draft.design, draft.splits);
    if (draft.splits > 0 && number > draft.splits)
        return {};
    draft.design.splitlines.push_back({number,
                                       {span.middle.x - span.half.x, span.middle.y - span.half.y},
                                       {span.middle.x + span.half.x, span.middle.y + span.half.y}});
    return draft;
}

CourseDraft withDirectionTurned(CourseDraft draft, std::int64_t gate) {
    if (std::erase(draft.upGates, gate) == 0)
        draft.upGates.insert(std::ranges::lower_bound(draft.upGates, gate), gate);
    return draft;
}

} // namespace kavela::desktop
