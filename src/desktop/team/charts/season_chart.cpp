#include "desktop/team/charts/season_chart.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/charts/chart_csv.h"
#include "desktop/shell/shown_number.h"

#include <QCursor>
#include <QToolTip>
#include <QtCharts/QBarCategoryAxis>
#include <QtCharts/QBarLegendMarker>
#include <QtCharts/QBarSeries>
#include <QtCharts/QBarSet>
#include <QtCharts/QLegend>
#include <QtCharts/QLegendMarker>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr std::size_t MostLevelLabels = 8;
constexpr double PenaltyShare = 3; ///< the bars take this part of the height at most

QString raceLabel(const SeasonRace& race) {
    return QString::fromStdString(race.event) + ' ' + QString::fromStdString(race.location) + ' ' +
           QString::number(race.year);
}

const SeasonRun* runOf(const SeasonRace& race, const char* phase) {
    const auto run = std::ranges::find(race.runs, phase, &SeasonRun::phase);
    return run == race.runs.end() ? nullptr : &*run;
}

/// Labels of an axis, which have to differ from each other.
QStringList axisLabels(const std::vector<SeasonRace>& races) {
    const bool isOneYear = races.front().year == races.back().year;
    QStringList labels;
    for (const SeasonRace& race : races) {
        QString label = QString::fromStdString(race.event).toHtmlEscaped() + "<br>" +
                        QString::fromStdString(race.location).toHtmlEscaped();
        if (!isOneYear)
            label += "<br>" + QString::number(race.year);
        while (labels.contains(label))
            label += ' ';
        labels.append(label);
    }
    return labels;
}

QString csvOf(const std::vector<SeasonRace>& races) {
    QString text =
        csvLine({"Year", "Event", "Location", "Phase", "Percent behind", "Penalty", "Position"});
    for (const SeasonRace& race : races)
        for (const SeasonRun& run : race.runs)
            text += csvLine({QString::number(race.year), QString::fromStdString(race.event),
                             QString::fromStdString(race.location),
                             QString::fromStdString(run.phase), csvNumber(run.behind),
                             QString::number(run.penalty), QString::number(run.pos)});
    return text;
}

double largestOf(const std::vector<SeasonRace>& races, const auto& value) {
    double largest = 0;
    for (const SeasonRace& race : races)
        for (const SeasonRun& run : race.runs)
            largest = std::max(largest, value(run));
    return largest;
}

} // namespace

void SeasonChart::show(const QString& title, const std::vector<SeasonRace>& races) {
    const bool hasPercentages = std::ranges::any_of(races, [](const SeasonRace& race) {
        return std::ranges::any_of(race.runs,
                                   [](const SeasonRun& run) { return run.behind.has_value(); });
    });
    const bool hasRuns =
        std::ranges::any_of(races, [](const SeasonRace& race) { return !race.runs.empty(); });
    clear(tr("Percent behind the fastest stands here once runs are taken over from split files."));
    if (!hasRuns)
        return;
    if (hasPercentages)
        setTitle(title);
    else
        setTitle(tr("%1: penalties only; percent behind comes with split files").arg(title));
    setCsv(csvOf(races));
    addPenalties(races);
    addLines(races);
    addAxes(races);
    finish();
    hideDoubleMarkers();
}

/// A phase stands in the legend once: the colours of its line and its bars are the same.
void SeasonChart::hideDoubleMarkers() {
    QStringList lines;
    for (const QAbstractSeries* series : chart()->series())
        lines.append(series->name());
    for (QLegendMarker* marker : chart()->legend()->markers())
        if (auto* const bars = qobject_cast<QBarLegendMarker*>(marker))
            marker->setVisible(!lines.contains(bars->barset()->label()));
}

void SeasonChart::addLines(const std::vector<SeasonRace>& races) {
    for (std::size_t slot = 0; slot < std::size(team::Phases); ++slot) {
        auto* line = new QLineSeries;
        line->setName(team::Phases[slot]);
        setStyle(*line, slot);
        for (std::size_t i = 0; i < races.size(); ++i)
            if (const SeasonRun* const run = runOf(races[i], team::Phases[slot]);
                run && run->behind)
                line->append(static_cast<double>(i), *run->behind);
        if (line->count() == 0) {
            delete line;
            continue;
        }
        chart()->addSeries(line);
        tellOnHover(*line, races);
    }
}

void SeasonChart::tellOnHover(QLineSeries& line, const std::vector<SeasonRace>& races) {
    const auto raceAt = [races](const QPointF& point) -> const SeasonRace& {
        const auto last = static_cast<double>(races.size()) - 1;
        return races[static_cast<std::size_t>(std::clamp(std::round(point.x()), 0.0, last))];
    };
    const std::string phase = line.name().toStdString();
    connect(&line, &QLineSeries::hovered, this, [=, this](const QPointF& point, bool isOver) {
        const SeasonRace& race = raceAt(point);
        const SeasonRun* const run = runOf(race, phase.c_str());
        if (!isOver || !run || !run->behind)
            return QToolTip::hideText();
        QToolTip::showText(QCursor::pos(),
                           tr("%1, %2\n%3 % behind, penalty %4 s")
                               .arg(raceLabel(race), QString::fromStdString(phase),
                                    shownHundredths(*run->behind), QString::number(run->penalty)),
                           this);
    });
    connect(&line, &QLineSeries::clicked, this, [=, this](const QPointF& point) {
        emit raceClicked({raceAt(point).season, raceAt(point).race});
    });
}

void SeasonChart::addPenalties(const std::vector<SeasonRace>& races) {
    auto* bars = new QBarSeries;
    for (std::size_t slot = 0; slot < std::size(team::Phases); ++slot) {
        auto* set = new QBarSet(team::Phases[slot]);
        QColor colour = seriesStyle(slot, palette()).colour;
        colour.setAlphaF(0.45F);
        set->setColor(colour);
        set->setBorderColor(Qt::transparent);
        bool isRaced = false;
        for (const SeasonRace& race : races) {
            const SeasonRun* const run = runOf(race, team::Phases[slot]);
            isRaced = isRaced || run;
            set->append(run ? static_cast<double>(run->penalty) : 0);
        }
        if (isRaced)
            bars->append(set);
        else
            delete set;
    }
    bars->setBarWidth(0.6);
    chart()->addSeries(bars);
    connect(bars, &QBarSeries::clicked, this, [this, races](int index, QBarSet*) {
        const SeasonRace& race = races[static_cast<std::size_t>(index)];
        emit raceClicked({race.season, race.race});
    });
}

void SeasonChart::addAxes(const std::vector<SeasonRace>& races) {
    auto* below = new QBarCategoryAxis;
    below->append(axisLabels(races));
    below->setLabelsAngle(races.size() > MostLevelLabels ? -90 : 0);
    below->setGridLineVisible(false);
    auto* percent = new QValueAxis;
    percent->setTitleText(tr("% behind"));
    percent->setLabelFormat("%.0f");
    percent->setRange(0, std::max(1.0, 1.1 * largestOf(races, [](const SeasonRun& run) {
                                           return run.behind.value_or(0);
                                       })));
    percent->applyNiceNumbers();
    auto* seconds = new QValueAxis;
    seconds->setTitleText(tr("penalty (s)"));
    seconds->setLabelFormat("%.0f");
    seconds->setRange(0, std::max(4.0, PenaltyShare * largestOf(races, [](const SeasonRun& run) {
                                           return static_cast<double>(run.penalty);
                                       })));
    seconds->applyNiceNumbers();
    seconds->setGridLineVisible(false);
    chart()->addAxis(below, Qt::AlignBottom);
    chart()->addAxis(percent, Qt::AlignLeft);
    chart()->addAxis(seconds, Qt::AlignRight);
    for (QAbstractSeries* series : chart()->series()) {
        const bool isBars = qobject_cast<QBarSeries*>(series) != nullptr;
        series->attachAxis(below);
        series->attachAxis(isBars ? seconds : percent);
    }
}

} // namespace kavela::desktop
