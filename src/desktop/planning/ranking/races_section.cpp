#include "desktop/planning/ranking/races_section.h"

#include "desktop/charts/series_chart.h"
#include "desktop/planning/ranking/ranking_charts.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/team/typed_values.h"
#include "planning/season_statistics.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

namespace kavela::desktop {

namespace {

constexpr int EventColumn = 1;
constexpr int PlaceColumn = 3;
constexpr int LeastTableHeight = 130;

QString hundredths(double number) {
    return shownHundredths(number);
}

QString wholeText(double number) {
    return QString::number(static_cast<std::int64_t>(number));
}

Cell dateCell(const SeasonRace& race) {
    if (!race.date)
        return {.text = QStringLiteral("–")};
    return {.text = dayShown(*race.date), .sortValue = race.date->seconds};
}

Column<SeasonRace> plainColumn(const QString& title, std::string SeasonRace::*text) {
    return textColumn<SeasonRace>(
        title, [text](const SeasonRace& race) { return QString::fromStdString(race.*text); });
}

template <class Number>
Column<SeasonRace> countColumn(const QString& title, Number SeasonRace::*number,
                               std::function<QString(double)> shown) {
    return numberColumn<SeasonRace>(
        title,
        [number](const SeasonRace& race) {
            return race.*number ? std::optional(static_cast<double>(*(race.*number)))
                                : std::nullopt;
        },
        std::move(shown));
}

std::vector<Column<SeasonRace>> raceColumns() {
    const auto tr = [](const char* text) { return RacesSection::tr(text); };
    return {{.title = tr("Date"), .show = dateCell},
            plainColumn(tr("Event"), &SeasonRace::event),
            plainColumn(tr("Phase"), &SeasonRace::phase),
            plainColumn(tr("Place"), &SeasonRace::location),
            countColumn(tr("Position"), &SeasonRace::position, wholeText),
            countColumn(tr("Time"), &SeasonRace::time, hundredths),
            countColumn(tr("Penalty"), &SeasonRace::penalty, wholeText),
            countColumn(tr("Behind best"), &SeasonRace::percentBehind,
                        [](double percent) { return hundredths(percent) + " %"; }),
            countColumn(tr("Gates"), &SeasonRace::gates, wholeText)};
}

QString summaryText(const PenaltySummary& summary) {
    if (summary.runs == 0)
        return RacesSection::tr("No runs yet: take them from the season's split files.");
    const double clean =
        100.0 * static_cast<double>(summary.cleanRuns) / static_cast<double>(summary.runs);
    return RacesSection::tr("<b>%1</b> runs, <b>%2</b> of them clean (%3 %)  ·  touches per run "
                            "<b>%4</b>  ·  missed gates per run <b>%5</b>")
        .arg(summary.runs)
        .arg(summary.cleanRuns)
        .arg(shownNumber(clean, 0))
        .arg(hundredths(summary.touchesPerRun()), hundredths(summary.fiftiesPerRun()));
}

} // namespace

RacesSection::RacesSection(QWidget* parent)
    : QWidget(parent),
      m_model(raceColumns()),
      m_table(new ColumnTable(m_model, "races")),
      m_summary(new QLabel),
      m_take(new QPushButton(tr("Take from split files…"))),
      m_penalties(new SeriesChart),
      m_percents(new SeriesChart) {
    m_table->setMinimumHeight(grown(*this, LeastTableHeight));
    m_table->stretch({EventColumn, PlaceColumn});
    m_summary->setObjectName("penaltySummary");
    m_summary->setTextFormat(Qt::RichText);
    auto* const charts = new QHBoxLayout;
    charts->setSpacing(theme::LargeSpacing);
    charts->addWidget(m_penalties, 1);
    charts->addWidget(m_percents, 1);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::Spacing);
    column->addWidget(makeHead());
    column->addWidget(m_table, 2);
    column->addLayout(charts, 3);
}

QWidget* RacesSection::makeHead() {
    auto* const title = new QLabel(tr("Races and penalties"));
    title->setFont(theme::titleFont(*this));
    auto* const menu = new QMenu(m_take);
    menu->addAction(tr("Choose &files…"), this, &RacesSection::filesAsked);
    menu->addAction(tr("Choose a f&older…"), this, &RacesSection::folderAsked);
    m_take->setObjectName("takeStatistics");
    m_take->setToolTip(tr("Files and folders can be dropped here too"));
    m_take->setMenu(menu);
    auto* const head = new QWidget;
    auto* const row = new QHBoxLayout(head);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::LargeSpacing);
    row->addWidget(title);
    row->addWidget(m_summary, 1);
    row->addWidget(m_take);
    return head;
}

void RacesSection::show(const statisticsplanning_v3* statistics) {
    const statisticsplanning_v3 none;
    const statisticsplanning_v3& shown = statistics ? *statistics : none;
    m_take->setEnabled(statistics != nullptr);
    m_summary->setText(statistics ? summaryText(penaltySummary(shown.pendata)) : QString());
    m_model.show(seasonRaces(shown.racedata));
    m_penalties->show(penaltyChart(shown.pendata));
    m_percents->show(percentChart(shown.racedata));
}

} // namespace kavela::desktop
