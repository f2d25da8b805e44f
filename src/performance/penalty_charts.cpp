#include "performance/penalty_charts.h"

#include <algorithm>
#include <map>

namespace kavela {

namespace {

std::vector<GateOnCourse> gatesOnCourse(const CourseGates& course,
                                        std::vector<const RateRow*> rows) {
    std::ranges::sort(rows, {}, [](const RateRow* row) { return *row->number; });
    double highest = 0;
    for (const RateRow* row : rows)
        highest = std::max(highest, row->shrunk.rate);
    std::vector<GateOnCourse> gates;
    for (const RateRow* row : rows)
        gates.push_back({.gate = *row->number,
                         .isUpstream = course.isUpstream(*row->number),
                         .section = course.sectionOf(*row->number),
                         .touches = row->touches,
                         .missed = row->missed,
                         .shrunk = row->shrunk,
                         .isBold = row->standsOut(),
                         .share = highest > 0 ? row->shrunk.rate / highest : 0});
    return gates;
}

/// The height at which a third is as good as the mean of all, by what it paddles faster or slower.
double equalTouches(const TradeOff& tradeOff, double paddling) {
    double meanPaddling = 0;
    double meanTouches = 0;
    for (const TradeOffRow& row : tradeOff.rows) {
        meanPaddling += row.paddling;
        meanTouches += row.touchesPerRun;
    }
    const auto count = static_cast<double>(tradeOff.rows.size());
    return meanTouches / count - (paddling - meanPaddling / count) * *tradeOff.breakEven;
}

} // namespace

std::vector<CourseOfRates> coursesOfRates(const FactStore& facts, const PenaltyRates& rates) {
    std::map<std::uint32_t, std::vector<const RateRow*>> byFile;
    for (const RateRow& row : rates.rows)
        if (rates.by == RateBy::Gate && row.number)
            byFile[row.file].push_back(&row);
    const std::vector<std::string> labels = fileLabels(facts);
    std::vector<CourseOfRates> courses;
    for (auto& [file, rows] : byFile)
        courses.push_back({file, labels[file],
                           gatesOnCourse(CourseGates(facts, facts.files()[file]), std::move(rows)),
                           rates.common.mean});
    return courses;
}

RateChart rateChart(const PenaltyRates& rates, std::size_t most) {
    RateChart chart;
    chart.common = rates.common.mean;
    chart.most = chart.common;
    const std::size_t shown = std::min(most, rates.rows.size());
    chart.leftOut = rates.rows.size() - shown;
    for (std::size_t i = 0; i < shown; ++i) {
        const RateRow& row = rates.rows[i];
        RateMark mark{.label = row.label,
                      .shrunk = row.shrunk.rate,
                      .interval = row.shrunk.interval,
                      .bare = {},
                      .isBold = row.standsOut()};
        if (row.touches) {
            mark.bare = row.touches->rate;
            mark.count = row.touches->count;
            mark.of = row.touches->of;
        }
        chart.most = std::max({chart.most, mark.interval.high, mark.bare.value_or(0)});
        chart.marks.push_back(std::move(mark));
    }
    return chart;
}

TradeOffChart tradeOffChart(const TradeOff& tradeOff) {
    TradeOffChart chart;
    for (const TradeOffRow& row : tradeOff.rows)
        chart.points.push_back({row.third, row.paddling, row.touchesPerRun, row.interval});
    if (tradeOff.breakEven && !chart.points.empty())
        for (const double paddling : {chart.points.front().paddling, chart.points.back().paddling})
            chart.equalLine.emplace_back(paddling, equalTouches(tradeOff, paddling));
    return chart;
}

} // namespace kavela
