#include "analysis/comparison_columns.h"

#include "splitdata/run_timing.h"

namespace kavela {

namespace {

void addPenalties(std::vector<Column>& columns, const RaceSet& set) {
    Column& totals = columns[TotalColumn - 1];
    for (std::size_t k = 0; k < set.alldata.size(); ++k) {
        const sectionmaindata& section = set.alldata[k].sectioninfo;
        for (std::size_t c = 0; c < SectionColumns; ++c)
            columns[c][k] += static_cast<double>(entryOrZero(section.pens, c));
        // The totals hold full runs only, but take the penalties by their place among all runs.
        if (k < totals.size())
            totals[k] += static_cast<double>(section.totalpen);
    }
}

} // namespace

std::vector<Column> sectionColumns(const RaceSet& set, bool penaltiesIncluded) {
    if (set.alldata.empty())
        return {};
    std::vector<Column> columns(RealColumn);
    for (const analyzerdata& run : set.alldata) {
        const sectionmaindata& section = run.sectioninfo;
        for (std::size_t c = 0; c < SectionColumns; ++c)
            columns[c].push_back(entryOrZero(section.times, c));
        if (set.isFull(run))
            columns[TotalColumn - 1].push_back(section.totaltime);
        columns[SprintColumn - 1].push_back(section.sprinttime);
        columns[RealColumn - 1].push_back(section.realtime);
    }
    if (penaltiesIncluded)
        addPenalties(columns, set);
    return columns;
}

std::vector<Column> accumulatedColumns(const RaceSet& set) {
    if (set.alldata.empty())
        return {};
    std::vector<Column> columns(TotalColumn);
    for (const analyzerdata& run : set.alldata) {
        double sum = 0;
        for (std::size_t c = 0; c < SectionColumns; ++c) {
            sum += entryOrZero(run.sectioninfo.times, c);
            columns[c].push_back(sum);
        }
        columns[TotalColumn - 1].push_back(run.sectioninfo.totaltime);
    }
    return columns;
}

} // namespace kavela
