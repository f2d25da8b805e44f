#include "page/season_part.h"

#include "analysis/cell_text.h"
#include "common/number_text.h"
#include "common/reference_date.h"
#include "page/gap_picture.h"
#include "page/html_text.h"
#include "page/run_part.h"
#include "performance/loss_counts.h"
#include "performance/loss_season.h"
#include "splitdata/athlete_keys.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <string_view>
#include <utility>

namespace kavela::page {

namespace {

constexpr double SecondsOfADay = 86400;

struct LossFieldTitle {
    std::string_view field;
    std::string_view title;
};

constexpr std::array LossFieldTitles{
    LossFieldTitle{"kind", "Sections"}, LossFieldTitle{"third", "Course"},
    LossFieldTitle{"upstream", "Upstream gates"}, LossFieldTitle{"direction", "Direction"},
    LossFieldTitle{"style", "Style"}};

std::string lossFieldTitle(std::string_view field) {
    const auto found = std::ranges::find(LossFieldTitles, field, &LossFieldTitle::field);
    return std::string(found == LossFieldTitles.end() ? field : found->title);
}

std::string tenths(double value) {
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%+.1f", value);
    return text.data();
}

std::string overviewRow(const RaceOnPage& race, std::size_t own, bool isOfSeason) {
    const std::size_t run = race.runOf(race.own()[own]);
    const RunRow& facts = race.factsOf(race.own()[own]);
    const RunLosses& losses = race.lossesOf(own);
    const auto place = placeInGroup(race.facts(), race.rivals().groupOf(run), run);
    std::string made = "<tr><th scope=row>";
    if (isOfSeason)
        made += isolated(race.title()) + "<br>";
    made += "<a href=#" + runAnchor(race, own) + ">" + escaped(runTitle(race, own)) + "</a>";
    if (isOfSeason)
        made += "<td>" + escaped(dayText({race.file().date}));
    made += "<td>" + (facts.isComplete ? hundredthsText(facts.total) : std::string("–")) + "<td>" +
            std::to_string(facts.isComplete ? facts.penalty : facts.totalpen) + "<td>" +
            (place ? std::to_string(*place) : "–") + "<td>" +
            (losses.sum ? signedText(losses.shown.gap) : "–");
    return made;
}

FactStore factsTogether(const std::vector<RaceOnPage>& races) {
    FactStore facts;
    for (const RaceOnPage& race : races)
        facts.add(race.facts());
    return facts;
}

std::string lossTable(const SeasonLosses& losses) {
    constexpr std::size_t MostRows = 30; // there are fewer unless a file holds odd labels
    std::string made =
        "<div class=o role=region tabindex=0 aria-label=\"Where time is lost\"><table class=\"b "
        "s\">"
        "<thead><tr><th scope=col>In<th scope=col>A run, s<th scope=col>Percent<th scope=col>90 % "
        "interval<th scope=col>Runs<th scope=col class=j>Verdict</thead><tbody>";
    for (std::size_t i = 0; i < std::min(losses.rows.size(), MostRows); ++i) {
        const SeasonLossRow& row = losses.rows[i];
        const std::string range =
            row.interval ? tenths(row.interval->low) + " to " + tenths(row.interval->high)
                         : "too few";
        made += "<tr><th scope=row><small>" + lossFieldTitle(row.field) + "</small><br>" +
                escaped(row.text) + "<td>" + signedHundredths(row.perRun) + "<td>" +
                tenths(row.percent) + "<td>" + range + "<td>" + std::to_string(row.runs) +
                "<td class=j>" +
                (row.interval ? std::string(verdictText(row.verdict)) : std::string("–"));
    }
    return made + "</table></div>";
}

std::string trainList(const SeasonLosses& losses) {
    if (losses.train.empty())
        return "<p>Nothing stands out from these runs: no interval lies above 0 as a whole.</p>";
    std::string made = "<ol class=n>";
    for (const std::size_t place : losses.train) {
        const SeasonLossRow& row = losses.rows[place];
        made += "<li><b>" + lossFieldTitle(row.field) + ", " + escaped(row.text) +
                "</b>: " + signedHundredths(row.perRun) + " s a run";
    }
    return made + "</ol>";
}

} // namespace

std::string overviewPart(const std::vector<RaceOnPage>& races) {
    const bool isOfSeason = races.size() > 1;
    std::string rows;
    std::size_t count = 0;
    for (const RaceOnPage& race : races)
        for (std::size_t own = 0; own < race.own().size(); ++own, ++count)
            rows += overviewRow(race, own, isOfSeason);
    if (count < 2)
        return {};
    return "<section><h2>All runs</h2><div class=o role=region tabindex=0 aria-label=\"All "
           "runs\"><table class=\"b s\"><thead><tr><th scope=col>Run" +
           std::string(isOfSeason ? "<th scope=col>Day" : "") +
           "<th scope=col>Total<th scope=col>Pen<th scope=col>Place<th scope=col>To winner"
           "</thead><tbody>" +
           rows + "</table></div></section>\n";
}

std::string progressPart(const std::vector<RaceOnPage>& races) {
    if (races.size() < 2)
        return {};
    std::vector<SeasonDot> dots;
    for (const RaceOnPage& race : races)
        for (std::size_t own = 0; own < race.own().size(); ++own) {
            const RunLosses& losses = race.lossesOf(own);
            if (!losses.sum || losses.sum->reference <= 0)
                continue;
            const double percent = 100 * losses.sum->gap / losses.sum->reference;
            dots.push_back({race.file().date / SecondsOfADay, percent,
                            dayText({race.file().date}) + ", " + race.title() + ", " +
                                runTitle(race, own) + ": " + tenths(percent) + " %",
                            own + 1 == race.own().size()});
        }
    const std::string picture = seasonPicture(dots);
    return picture.empty()
               ? picture
               : "<section><h2>Against the winners</h2><figure>" + picture +
                     "<figcaption>Percent behind the winner by day, penalties included; the filled "
                     "dot is the last run of each race.</figcaption></figure></section>\n";
}

std::string seasonLossPart(const std::vector<RaceOnPage>& races, const PageChoice& choice) {
    const FactStore facts = factsTogether(races);
    const SeasonLosses losses =
        seasonLosses(facts, {choice.crewKey,
                             choice.category.empty() ? std::string() : categoryKey(choice.category),
                             {}});
    if (losses.runs.size() < 2 || losses.rows.empty())
        return {};
    return "<section><h2>What to train</h2>" + trainList(losses) + "<h3>Where time is lost</h3>" +
           lossTable(losses) + "<p class=h>Against the winners, over " +
           countText(static_cast<long long>(losses.runs.size()), "whole run", "whole runs") +
           ". Losing: the whole interval is above 0.</p></section>\n";
}

} // namespace kavela::page
