#include "splitdata/section_strokes.h"

#include "splitdata/annotation_labels.h"

#include <algorithm>

namespace kavela {

namespace {

void count(SectionStrokes& section, std::int64_t hand) {
    if (hand == static_cast<std::int64_t>(HandCode::Left))
        ++section.left;
    else if (hand == static_cast<std::int64_t>(HandCode::Right))
        ++section.right;
    else
        ++section.other;
}

} // namespace

std::vector<SectionStrokes> strokesBySection(const athletedata031& run) {
    // Sums of times and a stroke's own time may differ in the last digit for the same frame.
    constexpr double SameMoment = 1e-9;
    std::vector<SectionStrokes> sections;
    double begin = 0;
    for (const double seconds : run.sectioninfo.times) {
        SectionStrokes section;
        const double end = begin + seconds;
        double first = end;
        double last = begin;
        for (const strokessdata025& stroke : run.strokes) {
            if (stroke.time < begin - SameMoment || stroke.time >= end - SameMoment)
                continue;
            count(section, stroke.hand);
            first = std::min(first, stroke.time);
            last = std::max(last, stroke.time);
        }
        section.seconds = std::max(last - first, 0.0);
        if (section.total() > 1 && section.seconds > SameMoment)
            section.perMinute = static_cast<double>(section.total() - 1) / section.seconds * 60;
        sections.push_back(section);
        begin = end;
    }
    return sections;
}

} // namespace kavela
