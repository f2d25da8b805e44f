#include "desktop/taking/expected_place.h"

#include "desktop/splitfile/taking_document.h"
#include "splittaking/expected_split.h"

#include <QObject>

#include <utility>

namespace kavela::desktop {

namespace {

std::vector<SectionTimes> runsBeside(const TakingDocument& document, int run) {
    std::vector<SectionTimes> others;
    for (int other = 0; other < document.runCount(); ++other) {
        const athletedata031& record = document.run(other);
        if (other != run)
            others.push_back(timedSections(record.cat, record.sectioninfo.times));
    }
    return others;
}

} // namespace

ExpectedPlace expectedPlace(const TakingDocument& document, int run) {
    const RunMarks marks = document.marks(run);
    ExpectedPlace place{.split = marks.marks.size() + 1, .seconds = {}, .why = {}};
    if (std::cmp_greater(place.split, document.info().totalsplits)) {
        place.why = QObject::tr("All splits of this run are marked.");
        return place;
    }
    if (!marks.start || marks.start->empty()) {
        place.why = QObject::tr("Mark the start first: the splits are expected from there on.");
        return place;
    }
    std::size_t last = marks.marks.size(); // that was seen; 0 is the start
    while (last > 0 && marks.marks[last - 1].empty())
        --last;
    const Stamps& from = last > 0 ? marks.marks[last - 1] : *marks.start;
    const auto way = expectedSections(timedSections(document.run(run).cat, splitTimes(marks)), last,
                                      place.split, runsBeside(document, run));
    if (way)
        place.seconds = from.front().seconds() + *way;
    else
        place.why = QObject::tr("No other run has split %1 yet: nothing tells where it is to be "
                                "expected.")
                        .arg(place.split);
    return place;
}

} // namespace kavela::desktop
