#include "desktop/team/charts/progression_chart.h"

#include "desktop/charts/chart_csv.h"

#include <QCursor>
#include <QToolTip>
#include <QtCharts/QCategoryAxis>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr double Margin = 0.35; ///< in phases, beside the first and the last
constexpr std::int64_t FewPositions = 5;

QStringList phaseTitles() {
    QStringList titles;
    for (const char* phase : team::Phases)
        titles.append(phase);
    titles.append(ResultPhase);
    return titles;
}

QString nameOf(const fullracess& race) {
    return QString::fromStdString(race.event) + ' ' + QString::fromStdString(race.locationplace);
}

} // namespace

void ProgressionChart::show(const QString& title, const mtSeasonStruct& season, std::size_t place,
                            std::optional<std::size_t> chosen) {
    clear(tr("Positions of the phases stand here once they are entered."));
    QString csv = csvLine({"Event", "Location", "Phase", "Position"});
    std::int64_t last = FewPositions;
    for (std::size_t i = 0; i < season.races.size(); ++i) {
        const fullracess race = progressionOf(season.races[i]);
        if (race.phases.empty())
            continue;
        addRace(race, {place, i}, i, chosen == i);
        for (const fullracesPhases& phase : race.phases) {
            last = std::max(last, phase.pos);
            csv += csvLine({QString::fromStdString(race.event),
                            QString::fromStdString(race.locationplace),
                            QString::fromStdString(phase.phase), QString::number(phase.pos)});
        }
    }
    if (!hasData())
        return;
    setTitle(title);
    setCsv(csv);
    addAxes(last);
    finish();
}

void ProgressionChart::addRace(const fullracess& race, const SeasonPlace& place, std::size_t slot,
                               bool isChosen) {
    const QStringList titles = phaseTitles();
    auto* line = new QLineSeries;
    line->setName(nameOf(race));
    setStyle(*line, slot, isChosen);
    for (const fullracesPhases& phase : race.phases)
        line->append(static_cast<double>(titles.indexOf(QString::fromStdString(phase.phase))),
                     static_cast<double>(phase.pos));
    chart()->addSeries(line);
    connect(line, &QLineSeries::hovered, this, [=, this](const QPointF& point, bool isOver) {
        if (isOver)
            QToolTip::showText(QCursor::pos(),
                               tr("%1\n%2: position %3")
                                   .arg(line->name(), titles.value(qRound(point.x())),
                                        QString::number(qRound(point.y()))),
                               this);
        else
            QToolTip::hideText();
    });
    connect(line, &QLineSeries::clicked, this, [=, this] { emit raceClicked(place); });
}

void ProgressionChart::addAxes(std::int64_t last) {
    const QStringList titles = phaseTitles();
    auto* below = new QCategoryAxis;
    below->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    for (qsizetype i = 0; i < titles.size(); ++i)
        below->append(titles[i], static_cast<double>(i));
    below->setRange(-Margin, static_cast<double>(titles.size()) - 1 + Margin);
    auto* positions = new QValueAxis;
    positions->setTitleText(tr("position"));
    positions->setLabelFormat("%.0f");
    positions->setReverse(true);
    const std::int64_t step = std::max<std::int64_t>(1, (last + FewPositions - 1) / FewPositions);
    positions->setRange(0, static_cast<double>(last) + 1);
    positions->setTickType(QValueAxis::TicksDynamic);
    positions->setTickAnchor(1);
    positions->setTickInterval(static_cast<double>(step));
    chart()->addAxis(below, Qt::AlignBottom);
    chart()->addAxis(positions, Qt::AlignLeft);
    for (QAbstractSeries* series : chart()->series()) {
        series->attachAxis(below);
        series->attachAxis(positions);
    }
}

} // namespace kavela::desktop
