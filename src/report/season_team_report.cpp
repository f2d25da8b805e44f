#include "report/season_team_report.h"

#include "report/athlete_page.h"
#include "report/interval_table.h"
#include "report/list_styles.h"
#include "report/page_frame.h"
#include "report/said.h"
#include "report/season_drawing.h"
#include "report/season_scope.h"
#include "report/sheet_report.h"
#include "report/small_lists.h"

#include <algorithm>
#include <set>

namespace kavela::report {

namespace {

constexpr qreal TeamSeasonGap = 12 * Point;
constexpr std::size_t MostAthletesOfTable = 40; ///< a table is never cut, so it must fit a page

QString rateText(const std::optional<RateOf>& rate) {
    return rate ? said("%1 of %2").arg(rate->count).arg(rate->of) : Dash;
}

/// The report as it is being filled.
class SeasonTeamSheet {
public:
    explicit SeasonTeamSheet(const Season& season)
        : m_season(season),
          m_isOfSplits(std::ranges::none_of(season.athletes, [](const SeasonAthlete& athlete) {
              return athlete.toWinner.perYear.has_value();
          })) {
        m_heading.title = said("Season ") + reportText(season.data.category);
        m_heading.line = said("%1 athletes · intervals are 90 %").arg(season.athletes.size());
    }

    [[nodiscard]] std::unique_ptr<PagedReport> report() {
        putShortTitle(m_pages, m_heading, m_typeface);
        putSeasonScope(m_pages, m_season.data, m_typeface);
        for (std::size_t first = 0; first < m_season.athletes.size(); first += MostAthletesOfTable)
            putAthletes(first);
        putBenchmarks();
        putPlaces();
        return std::make_unique<SheetReport>(m_heading, std::move(m_pages));
    }

private:
    void putTeamSection(const QString& title, const std::string& remark, qreal below) {
        if (m_pages.space().height() < SectionHeadingHeight + below)
            m_pages.newPage();
        m_pages.put(SectionHeadingHeight, [typeface = m_typeface, title, text = reportText(remark)](
                                              QPainter& painter, const QRectF& place) {
            paintSectionHeading(painter, place, title, text, typeface);
        });
    }

    [[nodiscard]] IntervalRow athleteRow(const SeasonAthlete& athlete) const {
        const SeasonTrend& trend = m_isOfSplits ? athlete.toSplits : athlete.toWinner;
        const bool isSpreadKnown = athlete.spread.shrunk && athlete.spread.runs >= LeastValues;
        IntervalRow row;
        row.texts = {reportText(m_season.data.members[athlete.member].name),
                     rateText(athlete.medals),
                     rateText(athlete.finals),
                     isSpreadKnown ? saidNumbers(QString::number(*athlete.spread.shrunk, 'f', 1))
                                   : Dash,
                     trend.perYear ? saidNumbers(QString::asprintf("%+.1f", *trend.perYear)) : Dash,
                     QString(),
                     reportText(std::string(trend.perYear ? verdictText(trend.verdict)
                                                          : std::string_view("too few")))};
        row.value = trend.perYear;
        row.interval = trend.interval;
        row.standsOut = trend.verdict != TrendVerdict::Unclear;
        return row;
    }

    void putAthletes(std::size_t first) {
        IntervalTable table;
        table.columns = {
            {said("Athlete"), 130, Qt::AlignLeft},
            {said("Medals"), 42},
            {said("Finals"), 42},
            {said("Chance, %"), 40},
            {said("% a year"), 36},
            {},
            {m_isOfSplits ? said("On the splits") : said("On the winner"), 48, Qt::AlignLeft}};
        table.drawn = 5;
        table.unit = QStringLiteral(" %");
        const std::size_t end = std::min(first + MostAthletesOfTable, m_season.athletes.size());
        for (std::size_t i = first; i < end; ++i)
            table.rows.push_back(athleteRow(m_season.athletes[i]));
        putTeamSection(said("Athletes"), spreadChart(m_season).sentence, heightOf(table));
        putIntervalTable(m_pages, std::move(table), m_typeface);
        m_pages.skip(TeamSeasonGap);
    }

    void putBenchmarks() {
        std::set<std::string> told;
        for (const Benchmark& benchmark : m_season.benchmarks) {
            if (!told.insert(benchmark.phase).second)
                continue;
            const BenchmarkChart chart = benchmarkChart(m_season, benchmark.phase);
            putTeamSection(said("What a rank took: ") + reportText(benchmark.phase), chart.sentence,
                           BenchmarkHeight);
            m_pages.put(BenchmarkHeight,
                        [chart, typeface = m_typeface](QPainter& painter, const QRectF& place) {
                            paintBenchmarks(painter, place, chart, typeface);
                        });
            m_pages.skip(TeamSeasonGap);
        }
    }

    void putPlaces() {
        const PlacesChart chart = placesChart(m_season);
        if (chart.rows.empty())
            return;
        const qreal height = std::min(
            placesHeight(chart), bodyPlace(QPageLayout::Portrait).height() - SectionHeadingHeight);
        putTeamSection(said("Expected places"), chart.sentence, height);
        m_pages.put(height, [chart, typeface = m_typeface](QPainter& painter, const QRectF& place) {
            paintPlaces(painter, place, chart, typeface);
        });
    }

    const Season& m_season;
    bool m_isOfSplits = false; ///< where no trend behind the winners is known
    ReportHeading m_heading;
    Typeface m_typeface;
    PageBuilder m_pages{QPageLayout::Portrait};
};

} // namespace

std::unique_ptr<PagedReport> seasonTeamReport(const Season& season) {
    return SeasonTeamSheet(season).report();
}

std::string seasonTeamFileName(const Season& season) {
    return athletePageFileName("Season " + season.data.category);
}

} // namespace kavela::report
