#include "performance/spread.h"

#include "common/text.h"
#include "performance/season_rules.h"

#include <fmt/format.h>

#include <cmath>

namespace kavela {

namespace {

constexpr double WorthwhileShare = 0.3;

std::string percentText(double percent) {
    return fmt::format("{:.1f} %", percent);
}

void tellSpread(const SeasonSpread& spread, SpreadFigure figure, Why& why) {
    if (figure == SpreadFigure::Worthwhile) {
        why.input("spread, percent", *spread.cv);
        why.result(ruleOf(SeasonRule::Worthwhile), *spread.worthwhile,
                   fmt::format("{:.2f} %", *spread.worthwhile));
        return;
    }
    std::size_t athletes = 0;
    std::size_t phases = 0;
    for (const TwoWayEffect& athlete : spread.fit.athletes)
        athletes += athlete.runs > 0 ? 1 : 0;
    for (const TwoWayEffect& phase : spread.fit.phases)
        phases += phase.runs > 0 ? 1 : 0;
    why.input("runs", static_cast<double>(spread.runs));
    why.input("athletes", static_cast<double>(athletes));
    why.input("race phases", static_cast<double>(phases));
    why.input("connected parts", static_cast<double>(spread.fit.parts));
    why.input("degrees of freedom", static_cast<double>(spread.df));
    if (spread.interval)
        why.uncertain(*spread.interval, "90 %, χ²");
    why.result(ruleOf(SeasonRule::CommonSpread), *spread.cv, percentText(*spread.cv));
}

} // namespace

SeasonSpread seasonSpread(const SeasonData& data, SpreadFigure figure, Why* why) {
    std::vector<TwoWayValue> values;
    for (const SeasonRun& run : data.runs)
        if (!run.isMissed)
            values.push_back({run.boat, run.phase, 100 * std::log(run.total)});
    SeasonSpread spread;
    spread.runs = values.size();
    if (values.empty())
        return spread;
    spread.fit = twoWayFit(values);
    spread.df = spread.fit.degrees;
    if (!spread.fit.spread)
        return spread;
    spread.cv = variationOf(*spread.fit.spread);
    spread.worthwhile = WorthwhileShare * *spread.cv;
    if (spread.fit.interval)
        spread.interval = {variationOf(spread.fit.interval->low),
                           variationOf(spread.fit.interval->high)};
    if (why)
        tellSpread(spread, figure, *why);
    return spread;
}

BoatSpread boatSpread(const SeasonData& data, const SeasonSpread& spread, std::size_t boat,
                      BoatSpreadFigure figure, Why* why) {
    BoatSpread own;
    for (const SeasonRun& run : data.runs)
        own.missed += run.boat == boat && run.isMissed ? 1 : 0;
    if (boat < spread.fit.athletes.size())
        own.runs = spread.fit.athletes[boat].runs;
    if (own.runs == 0 || !spread.cv)
        return own;
    own.cv = variationOf(spread.fit.spreads[boat].own);
    own.shrunk = variationOf(spread.fit.spreads[boat].shrunk);
    if (why) {
        why->input("runs", static_cast<double>(own.runs));
        why->input("common spread, percent", *spread.cv);
        why->input("degrees of freedom", static_cast<double>(spread.df));
        if (own.missed > 0)
            why->note(say("{} with a missed gate left out", own.missed));
        const bool isShrunk = figure == BoatSpreadFigure::Shrunk;
        const double value = isShrunk ? *own.shrunk : *own.cv;
        why->result(ruleOf(isShrunk ? SeasonRule::ShrunkSpread : SeasonRule::OwnSpread), value,
                    percentText(value));
    }
    return own;
}

} // namespace kavela
