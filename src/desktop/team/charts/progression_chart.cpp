#include "desktop/team/charts/progression_chart.h"

#include <QCoreApplication>

namespace kavela::desktop {

namespace {

struct ProgressionChart {
    Q_DECLARE_TR_FUNCTIONS(ProgressionChart)
};

QStringList phaseTitles() {
    QStringList titles;
    for (const char* phase : team::Phases)
        titles.append(phase);
    titles.append(ResultPhase);
    return titles;
}

void addRace(ChartContent& content, const fullracess& race, std::size_t slot, bool isChosen) {
    const QString event = QString::fromStdString(race.event);
    const QString location = QString::fromStdString(race.locationplace);
    ChartSeries line;
    line.name = event + ' ' + location;
    line.slot = slot;
    line.isStrong = isChosen;
    for (const fullracesPhases& phase : race.phases) {
        const QString title = QString::fromStdString(phase.phase);
        const auto x = static_cast<double>(content.categories.indexOf(title));
        line.points.emplace_back(x, static_cast<double>(phase.pos));
        content.rows.push_back(
            {content.series.size(), x, {event, location, title, QString::number(phase.pos)}});
    }
    content.series.push_back(std::move(line));
}

} // namespace

std::vector<std::size_t> progressedRaces(const mtSeasonStruct& season) {
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < season.races.size(); ++i)
        if (!progressionOf(season.races[i]).phases.empty())
            places.push_back(i);
    return places;
}

ChartContent progressionContent(const QString& title, const mtSeasonStruct& season,
                                std::optional<std::size_t> chosen) {
    ChartContent content;
    content.title = title;
    content.subtitle =
        ProgressionChart::tr("Position after each phase; the chosen race is drawn heavier");
    content.across = ChartContent::Across::Category;
    content.categories = phaseTitles();
    content.yTitle = ProgressionChart::tr("position");
    content.yReversed = content.yWhole = true;
    content.emptyText =
        ProgressionChart::tr("Positions of the phases stand here once they are entered.");
    content.rowTitles = QStringList{"Event", "Location", "Phase", "Position"};
    for (const std::size_t place : progressedRaces(season))
        addRace(content, progressionOf(season.races[place]), place, chosen == place);
    return content;
}

} // namespace kavela::desktop
