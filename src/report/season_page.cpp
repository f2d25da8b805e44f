#include "report/season_page.h"

#include "report/athlete_page.h"
#include "report/interval_table.h"
#include "report/list_styles.h"
#include "report/page_frame.h"
#include "report/said.h"
#include "report/season_drawing.h"
#include "report/season_scope.h"
#include "report/sheet_report.h"
#include "report/small_lists.h"
#include "report/wrapped_text.h"

#include <algorithm>

namespace kavela::report {

namespace {

constexpr qreal SeasonGap = 11 * Point;
constexpr TextStyle SeasonLineStyle{8, false, Ink};
constexpr std::size_t MostRivalsOnPage = 9;

QString signedPercent(double percent) {
    return saidNumbers(QString::asprintf("%+.1f", percent));
}

QString signedRange(const std::optional<Interval>& interval) {
    return interval
               ? QString::fromStdString(say("{:+.1f} to {:+.1f}", interval->low, interval->high))
               : said("too few");
}

/// The page as it is being filled.
class SeasonAthleteSheet {
public:
    SeasonAthleteSheet(const Season& season, std::size_t athlete)
        : m_season(season),
          m_index(athlete),
          m_athlete(season.athletes.at(athlete)),
          m_member(season.data.members[m_athlete.member]) {
        m_heading.title = reportText(m_member.name);
        m_heading.subtitle = said("Season ") + reportText(season.data.category);
        m_heading.line = said("%1 · %2 races · intervals are 90 %")
                             .arg(m_heading.subtitle)
                             .arg(m_member.races.size());
    }

    [[nodiscard]] std::unique_ptr<PagedReport> report() {
        putShortTitle(m_pages, m_heading, m_typeface);
        putSeasonScope(m_pages, m_season.data, m_typeface);
        putProgression();
        putRates();
        putChanges();
        putRivals();
        putBenchmark();
        // Pages of an athlete's losses have the name alone as their title.
        m_heading.title += QStringLiteral(" · ") + m_heading.subtitle;
        return std::make_unique<SheetReport>(m_heading, std::move(m_pages));
    }

private:
    /// A part stays together with its heading.
    void putSection(const QString& title, const std::string& remark, qreal below) {
        if (m_pages.space().height() < SectionHeadingHeight + below)
            m_pages.newPage();
        m_pages.put(SectionHeadingHeight, [typeface = m_typeface, title, text = reportText(remark)](
                                              QPainter& painter, const QRectF& place) {
            paintSectionHeading(painter, place, title, text, typeface);
        });
    }

    void putLine(const QString& text) {
        putLines(
            m_pages,
            wrappedLines(text.toStdString(), m_typeface, SeasonLineStyle, m_pages.space().width()),
            SeasonLineStyle, m_typeface);
    }

    void putProgression() {
        const ProgressionChart chart = usualProgression(m_season, m_index);
        const bool isOfWinner = chart.of == TrendOf::Winner;
        const bool hasPoints =
            std::ranges::any_of(chart.points, [](const auto& point) { return !point.isMissed; });
        putSection(isOfWinner ? said("Percent behind the winner")
                              : said("Percent behind the fastest splits"),
                   say("circle: heats, triangle: semifinal, square: final"),
                   hasPoints ? ProgressionHeight : 2 * SeasonGap);
        if (hasPoints)
            m_pages.put(ProgressionHeight, [member = m_member, chart, typeface = m_typeface](
                                               QPainter& painter, const QRectF& place) {
                paintProgression(painter, place, member, chart, typeface);
            });
        putLine(reportText(chart.sentence));
        m_pages.skip(SeasonGap);
    }

    static void addRate(IntervalTable& table, const QString& what,
                        const std::optional<RateOf>& rate) {
        IntervalRow row;
        row.texts = {what, Dash, Dash, Dash, QString()};
        if (rate) {
            row.texts = {what, said("%1 of %2").arg(rate->count).arg(rate->of),
                         QString::asprintf("%.0f", 100 * rate->rate),
                         QString::fromStdString(say("{:.0f} to {:.0f}", 100 * rate->interval.low,
                                                    100 * rate->interval.high)),
                         QString()};
            row.value = 100 * rate->rate;
            row.interval = Interval{100 * rate->interval.low, 100 * rate->interval.high};
        }
        table.rows.push_back(std::move(row));
    }

    [[nodiscard]] static IntervalTable tableOf(const QString& first) {
        IntervalTable table;
        table.columns = {{first, 130, Qt::AlignLeft},
                         {said("Races"), 52},
                         {said("Percent"), 40},
                         {said("90 % interval"), 62},
                         {}};
        table.drawn = 4;
        table.unit = QStringLiteral(" %");
        return table;
    }

    void putTable(IntervalTable table) {
        putIntervalTable(m_pages, std::move(table), m_typeface);
        m_pages.skip(SeasonGap);
    }

    void putRates() {
        IntervalTable table = tableOf(said("Reached"));
        addRate(table, said("Medals"), m_athlete.medals);
        addRate(table, said("Finals"), m_athlete.finals);
        addRate(table, said("Semifinals"), m_athlete.semifinals);
        putSection(said("Medals and finals"), say("of the races whose result is known"),
                   heightOf(table));
        putTable(std::move(table));
    }

    static void addTrend(IntervalTable& table, const QString& what, const SeasonTrend& trend) {
        IntervalRow row;
        row.texts = {what, QString::number(trend.runs),
                     trend.perYear ? signedPercent(*trend.perYear) : Dash,
                     signedRange(trend.interval), QString()};
        row.value = trend.perYear;
        row.interval = trend.interval;
        row.standsOut = trend.verdict != TrendVerdict::Unclear;
        if (trend.perYear)
            row.texts[0] +=
                QStringLiteral(": ") + reportText(std::string(verdictText(trend.verdict)));
        table.rows.push_back(std::move(row));
    }

    static void addPair(IntervalTable& table, const QString& what, const PairChange& pair) {
        IntervalRow row;
        const bool isKnown = pair.change.n > 0;
        row.texts = {what, QString::number(pair.change.n),
                     isKnown ? signedPercent(pair.change.mean) : Dash,
                     signedRange(pair.change.interval), QString()};
        if (isKnown)
            row.value = pair.change.mean;
        row.interval = pair.change.interval;
        row.standsOut = pair.change.interval &&
                        (pair.change.interval->low > 0 || pair.change.interval->high < 0);
        table.rows.push_back(std::move(row));
    }

    void putChanges() {
        IntervalTable table = tableOf(said("Change, below 0 is faster"));
        addTrend(table, said("A year on the winner"), m_athlete.toWinner);
        addTrend(table, said("A year on the splits"), m_athlete.toSplits);
        addPair(table, said("Run 1 to run 2"), m_athlete.heats);
        addPair(table, said("Semifinal to final"), m_athlete.semifinalToFinal);
        addPair(table, said("Heats to final, behind"), m_athlete.heatsToFinal);
        putSection(said("Changes"), spreadWords(), heightOf(table));
        putTable(std::move(table));
    }

    [[nodiscard]] std::string spreadWords() const {
        const BoatSpread& spread = m_athlete.spread;
        if (!spread.shrunk || spread.runs < LeastValues)
            return say("too few runs to tell what is chance");
        return say("chance from run to run {:.1f} %, all {:.1f} %; {:.2f} % matters",
                   *spread.shrunk, *m_season.spread.cv, *m_season.spread.worthwhile);
    }

    void putRivals() {
        if (m_athlete.heads.empty())
            return;
        IntervalTable table = tableOf(said("Ahead of"));
        table.columns[1].title = said("Met");
        const SeasonIntervalChart chart = headToHeadChart(m_season, m_index, MostRivalsOnPage);
        for (const SeasonInterval& rival : chart.rows)
            table.rows.push_back(
                {{reportText(rival.label), QString::number(rival.runs),
                  QString::asprintf("%.0f", *rival.value),
                  QString::fromStdString(
                      say("{:.0f} to {:.0f}", rival.interval->low, rival.interval->high)),
                  QString()},
                 rival.value,
                 rival.interval,
                 rival.isSure,
                 false});
        putSection(said("Head to head"), chart.sentence, heightOf(table));
        putTable(std::move(table));
    }

    void putBenchmark() {
        const BenchmarkChart chart = benchmarkChart(m_season, "Final", m_index);
        if (chart.boxes.empty())
            return;
        putSection(said("What a rank of the final took"), chart.sentence, BenchmarkHeight);
        m_pages.put(BenchmarkHeight,
                    [chart, typeface = m_typeface](QPainter& painter, const QRectF& place) {
                        paintBenchmarks(painter, place, chart, typeface);
                    });
    }

    const Season& m_season;
    std::size_t m_index = 0;
    const SeasonAthlete& m_athlete;
    const SeasonMember& m_member;
    ReportHeading m_heading;
    Typeface m_typeface;
    PageBuilder m_pages{QPageLayout::Portrait};
};

} // namespace

std::unique_ptr<PagedReport> seasonPage(const Season& season, std::size_t athlete) {
    return SeasonAthleteSheet(season, athlete).report();
}

std::string seasonPageFileName(const Season& season, std::size_t athlete) {
    const SeasonMember& member = season.data.members[season.athletes.at(athlete).member];
    return athletePageFileName(member.name + " - season " + season.data.category);
}

} // namespace kavela::report
