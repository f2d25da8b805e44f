#include "desktop/planning/ranking/ranking_section.h"

#include "desktop/charts/series_chart.h"
#include "desktop/planning/ranking/ranking_charts.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/team/typed_values.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int PointsColumn = 1;

constexpr int TableWidth = 300;
constexpr double MostRelease = 999999999;

/// Empty for what was not entered, which 0 stands for too where it is no value.
template <class Number>
Cell numberCell(const std::optional<Number>& number, bool hasZero) {
    if (!number || (*number == 0 && !hasZero))
        return {};
    const auto value = static_cast<double>(*number);
    return {.text = shownNumber(value), .number = value};
}

std::int64_t typedRelease(const QString& text) {
    return typedWhole(
        text, {0, MostRelease,
               RankingSection::tr("The release of a ranking list is a whole number such as 4")});
}

} // namespace

RankingSection::RankingSection(QWidget* parent)
    : QWidget(parent),
      m_model(columns(), RowsKnownBy::Number),
      m_table(new ColumnTable(m_model, "releases")),
      m_add(m_table->setAdd(tr("Add a release"), [this] { addRelease(); })),
      m_positions(new SeriesChart),
      m_points(new SeriesChart) {
    QAction& remove = m_table->setRemove(tr("Remove the release"),
                                         [this](const std::vector<int>&) { removeCurrent(); });
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->stretchAll();
    auto* const title = new QLabel(tr("Ranking list"));
    title->setFont(theme::titleFont(*this));
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(theme::Spacing);
    buttons->addWidget(title);
    buttons->addStretch(1);
    buttons->addWidget(buttonFor(m_add, tr("Add release"), "addRelease"));
    buttons->addWidget(buttonFor(remove, tr("Remove"), "removeRelease"));
    auto* const left = new QWidget;
    auto* const column = new QVBoxLayout(left);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::Spacing);
    column->addLayout(buttons);
    column->addWidget(m_table, 1);
    left->setFixedWidth(std::max(grown(*this, TableWidth), left->minimumSizeHint().width()));
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::LargeSpacing);
    row->addWidget(left);
    row->addWidget(m_positions, 1);
    row->addWidget(m_points, 1);
}

std::vector<Column<RankingEntry>> RankingSection::columns() {
    const auto column = [this](const QString& title, auto RankingEntry::*member, bool hasZero,
                               auto read) {
        return Column<RankingEntry>{
            .title = title,
            .kind = ColumnKind::Number,
            .show = [member, hasZero](
                        const RankingEntry& entry) { return numberCell(entry.*member, hasZero); },
            .take =
                [this, member, read](std::size_t row, const RankingEntry&, const QString& typed) {
                    RankingEntry entry;
                    entry.*member = read(typed);
                    emit entered(row, entry);
                }};
    };
    return {column(tr("Release"), &RankingEntry::release, true, typedRelease),
            column(tr("Points"), &RankingEntry::points, false, typedPoints),
            column(tr("Position"), &RankingEntry::position, false, typedPosition)};
}

void RankingSection::show(const icfdataplanning_v1* ranking) {
    const icfdataplanning_v1 none;
    const icfdataplanning_v1& shown = ranking ? *ranking : none;
    m_add.setEnabled(ranking != nullptr);
    m_model.show(rankingEntries(shown));
    m_positions->show(positionChart(shown));
    m_points->show(pointsChart(shown));
}

void RankingSection::addRelease() {
    if (!m_add.isEnabled())
        return;
    std::int64_t release = 0;
    constexpr std::int64_t Most = 999999999;
    for (const RankingEntry& entry : m_model.rows())
        release = std::max(release, std::min(entry.release.value_or(0), Most - 1));
    const std::size_t row = m_model.rows().size();
    emit entered(row, {release + 1, 0, 0});
    m_table->edit(static_cast<int>(row), PointsColumn);
}

void RankingSection::removeCurrent() {
    if (m_table->currentPlace() >= 0)
        emit removed(static_cast<std::size_t>(m_table->currentPlace()));
}

} // namespace kavela::desktop
