#include "report/race_lists.h"

#include "analysis/ideal_run.h"
#include "analysis/ranking.h"
#include "common/number_text.h"
#include "report/list_styles.h"
#include "report/report_table.h"
#include "report/said.h"

#include <algorithm>
#include <set>

namespace kavela::report {

namespace {

constexpr int Podium = 3;
constexpr std::size_t Results = 0;
constexpr std::size_t Ideals = 1;

QString secondsText(double seconds) {
    const std::string text = saidNumber(hundredthsText(seconds));
    constexpr std::size_t Longest = 12; // more digits only come from damaged files
    return text.size() > Longest ? QString::number(seconds, 'g', 3) : QString::fromStdString(text);
}

std::vector<ListColumn> resultColumns() {
    return {{QString()},
            {said("Name"), Qt::AlignLeft, true, true},
            {said("Time"), Qt::AlignRight, false, true},
            {said("Pen"), Qt::AlignRight, false, true},
            {said("Total")},
            {said("Gap"), Qt::AlignRight, false, true}};
}

std::vector<ListColumn> idealColumns() {
    return {{said("Section"), Qt::AlignLeft}, {said("Best")}, {said("By"), Qt::AlignLeft, true}};
}

ListRow resultRow(const RaceSet& set, const RankedRun& ranked) {
    const analyzerdata& run = set.alldata[ranked.run];
    const sectionmaindata& section = run.sectioninfo;
    return {{QString::number(ranked.rank), reportText(run.name), secondsText(section.totaltime),
             secondsText(static_cast<double>(section.totalpen)).chopped(3),
             secondsText(ranked.total), ranked.gap > 0 ? '+' + secondsText(ranked.gap) : QString()},
            ranked.rank <= Podium,
            false};
}

SmallList resultList(const RaceSet& set, const RunGroup& group) {
    SmallList list{Results, groupTitle(group.phase, group.category), {}};
    if (list.title.isEmpty())
        list.title = said("Results");
    std::set<std::size_t> ranked;
    for (const RankedRun& run : ranking(set, group.runs)) {
        list.rows.push_back(resultRow(set, run));
        ranked.insert(run.run);
    }
    for (const std::size_t run : group.runs)
        if (!ranked.contains(run))
            list.rows.push_back(
                {{Dash, reportText(set.alldata[run].name), {}, {}, {}, {}}, false, true});
    return list;
}

/// The runs of each category, in the order of their first runs.
std::vector<RunGroup> categories(const RaceSet& set) {
    std::vector<RunGroup> categories;
    for (const RunGroup& group : runGroups(set)) {
        const auto known = std::ranges::find(categories, group.category, &RunGroup::category);
        if (known == categories.end())
            categories.push_back({{}, group.category, group.runs});
        else
            known->runs.insert(known->runs.end(), group.runs.begin(), group.runs.end());
    }
    return categories;
}

QString crewAndPhase(const analyzerdata& run) {
    const QString phase = reportText(run.phase);
    return phase.isEmpty() ? reportText(run.name)
                           : reportText(run.name) + QStringLiteral(", ") + phase;
}

SmallList idealList(const RaceSet& set, const RunGroup& category,
                    std::span<const QString> sectionTitles) {
    SmallList list{Ideals, said("Ideal run without penalties"), {}};
    if (!category.category.empty())
        list.title += QStringLiteral(" · ") + reportText(category.category);
    const IdealRun ideal = idealRun(set, category.runs);
    for (std::size_t i = 0; i < ideal.sections.size(); ++i) {
        const IdealSection& best = ideal.sections[i];
        list.rows.push_back({{i < sectionTitles.size() ? sectionTitles[i] : QString(),
                              best.run ? secondsText(best.time) : Dash,
                              best.run ? crewAndPhase(set.alldata[*best.run]) : QString()}});
    }
    if (ideal.total)
        list.rows.push_back({{said("Ideal run"), secondsText(*ideal.total), {}}, true});
    if (ideal.fastest) {
        const analyzerdata& run = set.alldata[*ideal.fastest];
        list.rows.push_back(
            {{said("Fastest run"), secondsText(run.sectioninfo.totaltime), crewAndPhase(run)}});
    }
    return list;
}

} // namespace

SmallLists raceLists(const RaceSet& set, std::span<const QString> sectionTitles) {
    SmallLists all{{resultColumns(), idealColumns()}, {}};
    for (const RunGroup& group : runGroups(set))
        all.lists.push_back(resultList(set, group));
    for (const RunGroup& category : categories(set)) {
        SmallList list = idealList(set, category, sectionTitles);
        if (!list.rows.empty())
            all.lists.push_back(std::move(list));
    }
    return all;
}

} // namespace kavela::report
