#include "performance/loss_charts.h"

#include "analysis/cell_text.h"
#include "performance/loss_rules.h"

#include <algorithm>
#include <cmath>

namespace kavela {

std::vector<WaterfallBar> waterfallOf(const RunLosses& losses) {
    if (!losses.sum)
        return {};
    std::vector<WaterfallBar> bars;
    std::int64_t level = std::llround(losses.sum->reference * 100);
    bars.push_back({WaterfallPart::Reference, 0, 0, level});
    const auto add = [&](WaterfallPart part, std::size_t stretch, std::int64_t hundredths) {
        bars.push_back({part, stretch, level, level + hundredths});
        level += hundredths;
    };
    for (std::size_t i = 0; i < losses.shown.stretches.size(); ++i)
        add(WaterfallPart::Stretch, i, losses.shown.stretches[i]);
    add(WaterfallPart::Penalties, 0, losses.shown.penalties);
    add(WaterfallPart::Timing, 0, losses.shown.timing);
    bars.push_back({WaterfallPart::Own, 0, 0, level});
    return bars;
}

std::vector<ParetoBar> paretoOf(const RunLosses& losses) {
    std::vector<ParetoBar> bars;
    double all = 0;
    for (std::size_t i = 0; i < losses.stretches.size(); ++i) {
        const double loss = losses.stretches[i].loss;
        if (loss <= 0)
            continue;
        bars.push_back({i, loss, 0});
        all += loss;
    }
    std::ranges::stable_sort(bars, std::ranges::greater{}, &ParetoBar::loss);
    double sum = 0;
    for (ParetoBar& bar : bars) {
        sum += bar.loss;
        bar.upTo = sum / all;
    }
    return bars;
}

LossHeatMap heatMapOf(const FactStore& facts, std::span<const RunLosses> runs) {
    LossHeatMap map;
    for (const RunLosses& losses : runs) {
        map.runs.push_back(losses.run);
        const std::size_t sections = facts.fileOf(facts.runs()[losses.run]).sections;
        map.sections = std::max(map.sections, sections);
    }
    map.percent.resize(runs.size() * map.sections);
    for (std::size_t row = 0; row < runs.size(); ++row)
        for (const Stretch& stretch : runs[row].stretches)
            for (std::size_t section = stretch.first; section <= stretch.last; ++section)
                map.percent[row * map.sections + section - 1] = stretch.percent;
    return map;
}

std::vector<Band> heatBandsOf(const LossHeatMap& map) {
    constexpr double Reference = 100; // percent: the scale takes 0 for a time that is not known
    Column shares;
    for (const auto& percent : map.percent)
        if (percent)
            shares.push_back(Reference + *percent);
    const ColumnScale scale(shares, 1, 1);
    std::vector<Band> bands;
    for (const auto& percent : map.percent)
        bands.push_back(percent ? scale.bandOf(Reference + *percent) : Band::Clear);
    return bands;
}

CumulativeGap cumulativeGapOf(const RunLosses& losses) {
    CumulativeGap gap;
    gap.points.push_back({});
    for (const Stretch& stretch : losses.stretches)
        gap.points.push_back({stretch.last, gap.points.back().gap + stretch.loss});
    if (losses.referenceTotal)
        for (const InterestGap& interest : losses.interests)
            gap.interests.push_back(interest.time - *losses.referenceTotal);
    return gap;
}

double gapAfter(const FactStore& facts, const RunLosses& losses, std::size_t section, Why* why) {
    double gap = 0;
    for (const Stretch& stretch : losses.stretches) {
        if (stretch.last > section)
            break;
        gap += stretch.loss;
        if (why)
            why->input(sectionsText(stretch.first, stretch.last), stretch.loss,
                       lossPlace(facts, losses.run, stretch.last));
    }
    if (why)
        why->result(ruleOf(LossRule::GapSoFar), gap, signedHundredths(gap));
    return gap;
}

} // namespace kavela
