#include "desktop/season/season_figures.h"

#include "common/number_text.h"
#include "desktop/charts/chart_csv.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "performance/season_reasons.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

namespace kavela::desktop {

namespace {

constexpr double OfHundred = 100;

QString figureText(const char* text) {
    return QCoreApplication::translate("SeasonWindow", text);
}

BesideFigure besideNumber(const std::optional<double>& value, int decimals, std::string id,
                          bool isSigned = false) {
    return {shownFigure(value, decimals, isSigned), value, std::move(id)};
}

BesideFigure besideRate(const std::optional<RateOf>& rate, const std::string& id) {
    if (!rate)
        return {QStringLiteral("–"), std::nullopt, {}};
    return {figureText("%1 of %2").arg(rate->count).arg(rate->of), rate->rate, id};
}

/// The rows of a chart that has one for each athlete.
FiguresShown figuresOfAthletes(SeasonIntervalChart chart) {
    FiguresShown shown;
    shown.chart = std::move(chart);
    shown.titles.row = figureText("Athlete");
    shown.titles.range = figureText("90 %");
    for (std::size_t i = 0; i < shown.chart.rows.size(); ++i)
        shown.lines.push_back({shown.chart.rows[i], {}, i});
    return shown;
}

QString pairTitle(RacePair pair) {
    switch (pair) {
    case RacePair::Heats:
        return figureText("From the first run of the heats to the second");
    case RacePair::SemifinalToFinal:
        return figureText("From the semifinal to the final");
    case RacePair::HeatsToFinal:
        break;
    }
    return figureText("From the heats to the final");
}

const PairChange& pairOf(const SeasonAthlete& athlete, RacePair pair) {
    return pair == RacePair::Heats              ? athlete.heats
           : pair == RacePair::SemifinalToFinal ? athlete.semifinalToFinal
                                                : athlete.heatsToFinal;
}

QString rateTitle(RaceRate rate) {
    return rate == RaceRate::Medals   ? figureText("Medals")
           : rate == RaceRate::Finals ? figureText("Finals")
                                      : figureText("Semifinals");
}

IntervalMark seasonMarkOf(const FiguresShown& shown, const FigureLine& line) {
    const SeasonInterval& figure = line.figure;
    IntervalMark mark;
    mark.label = qtText(figure.label);
    mark.name = mark.label;
    mark.value = *figure.value;
    mark.hasInterval = figure.interval.has_value();
    mark.low = figure.interval ? figure.interval->low : mark.value;
    mark.high = figure.interval ? figure.interval->high : mark.value;
    mark.isBold = figure.isSure;
    mark.told << QStringLiteral("%1: %2").arg(shown.titles.count).arg(figure.runs);
    if (!figure.interval && !shown.titles.range.isEmpty())
        mark.told << figureText("too few for a range");
    mark.fields = {
        mark.label, QString::number(figure.runs), csvNumber(figure.value),
        csvNumber(figure.interval ? std::optional(figure.interval->low) : std::nullopt),
        csvNumber(figure.interval ? std::optional(figure.interval->high) : std::nullopt)};
    for (const BesideFigure& beside : line.beside)
        mark.fields << (beside.number ? csvNumber(beside.number) : beside.text);
    return mark;
}

} // namespace

QString shownFigure(const std::optional<double>& value, int decimals, bool isSigned) {
    if (!value)
        return QStringLiteral("–");
    const QString text = shownNumber(*value, decimals);
    return isSigned && !text.startsWith('-') ? '+' + text : text;
}

QString shownRange(const std::optional<Interval>& interval, int decimals, bool isSigned) {
    return interval ? figureText("%1 to %2")
                          .arg(shownFigure(interval->low, decimals, isSigned),
                               shownFigure(interval->high, decimals, isSigned))
                    : figureText("too few");
}

FiguresShown pairFigures(const ShownSeason& shown, RacePair pair) {
    FiguresShown figures = figuresOfAthletes(pairChart(shown.season, pair));
    figures.title = pairTitle(pair);
    figures.titles.value =
        pair == RacePair::HeatsToFinal ? figureText("Change behind, %") : figureText("Change, %");
    figures.titles.count = figureText("Races");
    figures.titles.beside = {figureText("Typical error, %")};
    figures.isSigned = true;
    figures.commonName = figureText("No change");
    figures.emptyText = figureText("No race of the team has both.");
    for (std::size_t i = 0; i < figures.lines.size(); ++i)
        figures.lines[i].beside = {
            besideNumber(pairOf(shown.season.athletes[i], pair).typicalError, 1,
                         "error/" + std::string(nameOf(pair)) + '/' + shown.memberOf(i).name)};
    return figures;
}

FiguresShown spreadFigures(const ShownSeason& shown) {
    FiguresShown figures = figuresOfAthletes(spreadChart(shown.season));
    figures.title = figureText("How much runs vary by chance");
    figures.titles.value = figureText("Within, %");
    figures.titles.range = {}; // that of all stands in the sentence
    figures.titles.count = figureText("Runs");
    figures.titles.beside = {figureText("Own alone, %"), figureText("With a missed gate")};
    figures.commonName = figureText("All in common");
    figures.emptyText = figureText("Too few runs to tell how much they vary.");
    for (std::size_t i = 0; i < figures.lines.size(); ++i) {
        const BoatSpread& spread = shown.season.athletes[i].spread;
        const auto own = spread.runs >= LeastValues ? spread.cv : std::nullopt;
        figures.lines[i].beside = {besideNumber(own, 1, seasonId("spread", shown.memberOf(i).name)),
                                   besideNumber(static_cast<double>(spread.missed), 0, {})};
    }
    return figures;
}

FiguresShown trendFigures(const ShownSeason& shown, TrendOf of) {
    const bool isOfWinner = of == TrendOf::Winner;
    FiguresShown figures = figuresOfAthletes(trendChart(shown.season, of));
    figures.title = isOfWinner ? figureText("Trend behind the winners")
                               : figureText("Trend behind the fastest splits");
    figures.titles.value = figureText("A year, %");
    figures.titles.count = figureText("Runs");
    figures.titles.beside = {figureText("Verdict")};
    figures.isSigned = true;
    figures.commonName = figureText("No change");
    figures.emptyText = figureText("Too few runs of everybody to tell a trend: four over two "
                                   "months are needed.");
    for (std::size_t i = 0; i < figures.lines.size(); ++i) {
        const SeasonAthlete& athlete = shown.season.athletes[i];
        const SeasonTrend& trend = isOfWinner ? athlete.toWinner : athlete.toSplits;
        figures.lines[i].beside = {
            {trend.perYear ? qtText(verdictText(trend.verdict)) : figureText("too few"),
             std::nullopt, trend.perYear ? figures.lines[i].figure.id : std::string()}};
    }
    return figures;
}

FiguresShown headFigures(const ShownSeason& shown, std::size_t athlete) {
    FiguresShown figures;
    figures.chart = headToHeadChart(shown.season, athlete, std::numeric_limits<std::size_t>::max());
    figures.title = figureText("%1 against").arg(qtText(shown.memberOf(athlete).name));
    figures.titles = {figureText("Against"),
                      figureText("Ahead, %"),
                      figureText("90 %"),
                      figureText("Met"),
                      {figureText("Won"), figureText("Gap, %"), figureText("Gap 90 %")}};
    figures.decimals = 0;
    figures.commonName = figureText("Half");
    figures.emptyText = figureText("The athlete met nobody in these races.");
    const std::vector<HeadToHead>& heads = shown.season.athletes[athlete].heads;
    for (std::size_t i = 0; i < figures.chart.rows.size(); ++i) {
        const HeadToHead& head = heads[i];
        const std::string gap = seasonHeadId("headgap", shown.memberOf(athlete).name,
                                             shown.season.data.boats[head.versus].name);
        figures.lines.push_back({figures.chart.rows[i],
                                 {{figureText("%1 of %2").arg(shownNumber(head.won)).arg(head.met),
                                   head.won, figures.chart.rows[i].id},
                                  besideNumber(head.gap.mean, 1, gap, true),
                                  {shownRange(head.gap.interval, 1, true), std::nullopt, gap}}});
    }
    return figures;
}

FiguresShown rateFigures(const ShownSeason& shown, RaceRate rate) {
    FiguresShown figures = figuresOfAthletes(raceRateChart(shown.season, rate));
    figures.title = rateTitle(rate);
    figures.titles.value = figureText("Of races, %");
    figures.titles.count = figureText("Races");
    figures.titles.beside = {figureText("Medals"), figureText("Finals"), figureText("Semifinals")};
    figures.decimals = 0;
    figures.emptyText = figureText("No race of the team has a result that says so.");
    for (std::size_t i = 0; i < figures.lines.size(); ++i) {
        const SeasonAthlete& athlete = shown.season.athletes[i];
        const std::string& name = shown.memberOf(i).name;
        figures.lines[i].beside = {besideRate(athlete.medals, seasonId("medal", name)),
                                   besideRate(athlete.finals, seasonId("final", name)),
                                   besideRate(athlete.semifinals, seasonId("semifinal", name))};
    }
    return figures;
}

FiguresShown placeFigures(const ShownSeason& shown) {
    const SeasonPlaces& places = shown.season.places;
    FiguresShown figures;
    figures.chart = expectedPlaceChart(shown.season);
    figures.title = figureText("Expected places among %1 boats").arg(places.boats.size());
    figures.titles = {
        figureText("Boat"),
        figureText("Place"),
        figureText("90 %"),
        figureText("Runs"),
        {figureText("Medal, %"), figureText("First, %"), figureText("Missed gate, %")}};
    figures.emptyText = figureText("Too few runs to expect places of anybody: each boat needs "
                                   "three, and the boats must have met.");
    for (std::size_t i = 0; i < places.boats.size(); ++i) {
        const ExpectedPlace& place = places.boats[i];
        const SeasonBoat& boat = shown.season.data.boats[place.boat];
        FigureLine line{
            figures.chart.rows[i],
            {besideNumber(OfHundred * place.chances.medal, 0, seasonId("podium", boat.name)),
             besideNumber(OfHundred * place.chances.places.front(), 0, {}),
             besideNumber(OfHundred * place.fail, 1, seasonId("missed", boat.name))},
            {}};
        for (std::size_t athlete = 0; boat.member && athlete < shown.season.athletes.size();
             ++athlete)
            if (shown.season.athletes[athlete].member == *boat.member)
                line.athlete = athlete;
        figures.lines.push_back(std::move(line));
    }
    return figures;
}

FiguresShown benchmarkFigures(const ShownSeason& shown, const std::string& phase,
                              std::size_t athlete) {
    FiguresShown figures;
    const Season& season = shown.season;
    figures.chart = benchmarkIntervals(season, phase, athlete);
    figures.title = figureText("What ranks took: %1").arg(qtText(phase));
    figures.xTitle = figureText("Rank");
    figures.titles = {figureText("Rank"),
                      figureText("Behind the winner, %"),
                      figureText("Quartiles"),
                      figureText("Races"),
                      {figureText("Least"), figureText("Most"),
                       figureText("%1 would have").arg(qtText(shown.memberOf(athlete).name))}};
    if (figures.chart.line)
        figures.commonName = figureText("Median of %1").arg(qtText(shown.memberOf(athlete).name));
    figures.emptyText = qtText(figures.chart.sentence);
    const BenchmarkChart boxes = benchmarkChart(season, phase, athlete);
    for (std::size_t i = 0; i < boxes.boxes.size(); ++i) {
        const BenchmarkChart::Box& box = boxes.boxes[i];
        const std::string& id = figures.chart.rows[i].id;
        BesideFigure reached{QStringLiteral("–")};
        if (const Benchmark* const rank = benchmarkAt(season.benchmarks, phase, box.rank);
            rank && boxes.own) {
            const std::size_t count = wouldHaveReached(*rank, *boxes.own);
            reached = {figureText("%1 of %2").arg(count).arg(box.races), static_cast<double>(count),
                       id};
        }
        figures.lines.push_back(
            {figures.chart.rows[i],
             {besideNumber(box.least, 1, id), besideNumber(box.most, 1, id), std::move(reached)}});
    }
    return figures;
}

FigureMarks marksOf(const FiguresShown& shown) {
    FigureMarks marks;
    IntervalChartContent& content = marks.content;
    content.title = shown.title;
    content.subtitle = shownNumbers(qtText(shown.chart.sentence));
    content.xTitle = shown.xTitle;
    content.yTitle = shown.titles.value;
    content.valueName = shown.titles.range.isEmpty()
                            ? shown.titles.value
                            : QStringLiteral("%1, %2").arg(shown.titles.value, shown.titles.range);
    content.emptyText = shown.emptyText;
    if (shown.chart.line) {
        content.common = *shown.chart.line;
        content.commonName = shown.commonName;
    }
    content.csvTitles = QStringList{shown.titles.row, shown.titles.count, shown.titles.value,
                                    figureText("Low"), figureText("High")} +
                        shown.titles.beside;
    std::size_t known = 0;
    for (std::size_t i = 0; i < shown.lines.size(); ++i) {
        if (!shown.lines[i].figure.value || ++known > MostMarks)
            continue;
        content.marks.push_back(seasonMarkOf(shown, shown.lines[i]));
        marks.lines.push_back(i);
    }
    if (known > MostMarks)
        content.xTitle =
            figureText("The first %1, %2 more in the table").arg(MostMarks).arg(known - MostMarks);
    return marks;
}

} // namespace kavela::desktop
