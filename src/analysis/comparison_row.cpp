#include "analysis/comparison_row.h"

#include "analysis/ideal_run.h"

#include <numeric>

namespace kavela {

namespace {

/// The course of a set with one run on it: only what the table reads of the run.
RaceSet courseWith(const RaceSet& set, sectionmaindata section) {
    RaceSet one;
    one.sectiontitles = set.sectiontitles;
    one.totalsplits = set.totalsplits;
    analyzerdata run;
    run.sectioninfo = std::move(section);
    one.alldata.push_back(std::move(run));
    return one;
}

/// Values of the sections, total, sprint and real time, for a table of `columns` columns.
std::vector<double> valuesOf(const RaceSet& one, std::size_t columns,
                             const TableSettings& settings) {
    constexpr std::size_t Closing = 3; // total, sprint, real
    const SplitTable table = makeSplitTable(one, settings);
    const std::vector<double> own = countedValues(table.rows.front());
    std::vector<double> values(columns);
    for (std::size_t i = 0; i + Closing < std::min(columns, own.size()); ++i)
        values[i] = own[i];
    for (std::size_t i = 1; i <= Closing; ++i)
        values[columns - i] = own[own.size() - i];
    return values;
}

} // namespace

ComparisonRow idealRow(const RaceSet& set, const TableSettings& settings) {
    const IdealRun ideal = idealRun(set);
    sectionmaindata section;
    for (const IdealSection& best : ideal.sections)
        section.times.push_back(best.time);
    section.accutimes.resize(section.times.size());
    std::partial_sum(section.times.begin(), section.times.end(), section.accutimes.begin());
    section.totaltime = ideal.total.value_or(0);
    ComparisonRow row;
    row.values = valuesOf(courseWith(set, std::move(section)), tableColumns(set).size(), settings);
    return row;
}

ComparisonRow comparisonRow(const RaceSet& set, const analyzerdata& run,
                            const TableSettings& settings) {
    ComparisonRow row{run.name, run.event, run.phase, run.category, {}};
    row.values = valuesOf(courseWith(set, run.sectioninfo), tableColumns(set).size(), settings);
    return row;
}

} // namespace kavela
