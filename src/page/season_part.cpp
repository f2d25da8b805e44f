#include "page/season_part.h"

#include "analysis/cell_text.h"
#include "common/number_text.h"
#include "common/reference_date.h"
#include "common/text.h"
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

constexpr std::array LossFieldTitles{LossFieldTitle{"kind", KAVELA_TEXT("Sections")},
                                     LossFieldTitle{"third", KAVELA_TEXT("Course")},
                                     LossFieldTitle{"upstream", KAVELA_TEXT("Upstream gates")},
                                     LossFieldTitle{"direction", KAVELA_TEXT("Direction")},
                                     LossFieldTitle{"style", KAVELA_TEXT("Style")}};

std::string lossFieldTitle(std::string_view field) {
    const auto found = std::ranges::find(LossFieldTitles, field, &LossFieldTitle::field);
    return found == LossFieldTitles.end() ? escaped(field) : said(found->title);
}

std::string tenths(double value) {
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%+.1f", value);
    return saidNumber(text.data());
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
    made += "<td>" + (facts.isComplete ? saidNumber(hundredthsText(facts.total)) : "–") + "<td>" +
            std::to_string(facts.isComplete ? facts.penalty : facts.totalpen) + "<td>" +
            (place ? std::to_string(*place) : "–") + "<td>" +
            (losses.sum ? saidNumber(signedText(losses.shown.gap)) : "–");
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
    std::string made = "<div class=o role=region tabindex=0 aria-label=\"" +
                       said("Where time is lost") + "\"><table class=\"b s\"><thead><tr>";
    for (const std::string& title :
         {said("Of what"), said("A run, s"), said("Percent"), said("90 % interval"), said("Runs")})
        made += "<th scope=col>" + title;
    made += "<th scope=col class=j>" + said("Verdict") + "</thead><tbody>";
    for (std::size_t i = 0; i < std::min(losses.rows.size(), MostRows); ++i) {
        const SeasonLossRow& row = losses.rows[i];
        const std::string range =
            row.interval ? say("{} to {}", tenths(row.interval->low), tenths(row.interval->high))
                         : said("too few");
        made += "<tr><th scope=row><small>" + lossFieldTitle(row.field) + "</small><br>" +
                escaped(row.text) + "<td>" + saidNumber(signedHundredths(row.perRun)) + "<td>" +
                tenths(row.percent) + "<td>" + range + "<td>" + std::to_string(row.runs) +
                "<td class=j>" +
                (row.interval ? std::string(verdictText(row.verdict)) : std::string("–"));
    }
    return made + "</table></div>";
}

std::string trainList(const SeasonLosses& losses) {
    if (losses.train.empty())
        return "<p>" +
               said("Nothing stands out from these runs: no interval lies above 0 as a whole.") +
               "</p>";
    std::string made = "<ol class=n>";
    for (const std::size_t place : losses.train) {
        const SeasonLossRow& row = losses.rows[place];
        made += "<li>" + say("{}: {} s a run",
                             "<b>" + lossFieldTitle(row.field) + ", " + escaped(row.text) + "</b>",
                             saidNumber(signedHundredths(row.perRun)));
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
    std::string titles;
    const auto add = [&titles](const std::string& title) { titles += "<th scope=col>" + title; };
    add(said("Run"));
    if (isOfSeason)
        add(said("Day"));
    add(said("Total"));
    add(said("Pen"));
    add(said("Rank"));
    add(said("To winner"));
    return "<section><h2>" + said("All runs") +
           "</h2><div class=o role=region tabindex=0 aria-label=\"" + said("All runs") +
           "\"><table class=\"b s\"><thead><tr>" + titles + "</thead><tbody>" + rows +
           "</table></div></section>\n";
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
               : "<section><h2>" + said("Against the winners") + "</h2><figure>" + picture +
                     "<figcaption>" +
                     said("Percent behind the winner by day, penalties included; the filled dot is "
                          "the last run of each race.") +
                     "</figcaption></figure></section>\n";
}

std::string seasonLossPart(const std::vector<RaceOnPage>& races, const PageChoice& choice) {
    const FactStore facts = factsTogether(races);
    const SeasonLosses losses =
        seasonLosses(facts, {choice.crewKey,
                             choice.category.empty() ? std::string() : categoryKey(choice.category),
                             {}});
    if (losses.runs.size() < 2 || losses.rows.empty())
        return {};
    const std::string runs =
        sayCount(static_cast<std::int64_t>(losses.runs.size()), "{} whole run", "{} whole runs");
    return "<section><h2>" + said("What to train") + "</h2>" + trainList(losses) + "<h3>" +
           said("Where time is lost") + "</h3>" + lossTable(losses) + "<p class=h>" +
           say("Against the winners, over {}. Losing: the whole interval is above 0.", runs) +
           "</p></section>\n";
}

} // namespace kavela::page
