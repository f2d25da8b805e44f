#include "desktop/planning/ranking/races_section.h"

#include "desktop/charts/series_chart.h"
#include "desktop/planning/ranking/plain_table.h"
#include "desktop/planning/ranking/ranking_charts.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "desktop/team/typed_values.h"
#include "planning/season_results.h"
#include "planning/season_statistics.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>

namespace kavela::desktop {

namespace {

enum Column {
    DateColumn,
    EventColumn,
    PhaseColumn,
    PlaceColumn,
    PositionColumn,
    TimeColumn,
    PenaltyColumn,
    BehindColumn,
    GatesColumn,
    Columns
};

constexpr int LeastTableHeight = 130;

QString hundredths(double number) {
    return shownHundredths(number);
}

template <class T>
QString numberText(const std::optional<T>& number) {
    return number ? QString::number(*number) : QString("–");
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
      m_table(plainTable({tr("Date"), tr("Event"), tr("Phase"), tr("Place"), tr("Position"),
                          tr("Time"), tr("Penalty"), tr("Behind best"), tr("Gates")})),
      m_summary(new QLabel),
      m_take(new QPushButton(tr("Take from split files…"))),
      m_penalties(new SeriesChart),
      m_percents(new SeriesChart) {
    m_table->setObjectName("races");
    m_table->setMinimumHeight(LeastTableHeight);
    m_table->horizontalHeader()->setStretchLastSection(false);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(EventColumn, QHeaderView::Stretch);
    m_table->horizontalHeader()->setSectionResizeMode(PlaceColumn, QHeaderView::Stretch);
    for (int column = PositionColumn; column < Columns; ++column)
        m_table->horizontalHeaderItem(column)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
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
    fill(shown.racedata);
    m_penalties->show(penaltyChart(shown.pendata));
    m_percents->show(percentChart(shown.racedata));
}

void RacesSection::fill(const racedataplanning_v3& races) {
    const std::vector<SeasonRace> rows = seasonRaces(races);
    m_table->setRowCount(static_cast<int>(rows.size()));
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const SeasonRace& race = rows[static_cast<std::size_t>(row)];
        setText(*m_table, row, DateColumn, race.date ? dayShown(*race.date) : QString("–"));
        setText(*m_table, row, EventColumn, QString::fromStdString(race.event));
        setText(*m_table, row, PhaseColumn, QString::fromStdString(race.phase));
        setText(*m_table, row, PlaceColumn, QString::fromStdString(race.location));
        setNumber(*m_table, row, PositionColumn, numberText(race.position));
        setNumber(*m_table, row, TimeColumn, race.time ? hundredths(*race.time) : QString("–"));
        setNumber(*m_table, row, PenaltyColumn, numberText(race.penalty));
        setNumber(*m_table, row, BehindColumn,
                  race.percentBehind ? hundredths(*race.percentBehind) + " %" : QString("–"));
        setNumber(*m_table, row, GatesColumn, numberText(race.gates));
    }
}

} // namespace kavela::desktop
