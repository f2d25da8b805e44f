#include "desktop/planning/ranking/ranking_section.h"

#include "desktop/charts/series_chart.h"
#include "desktop/planning/ranking/plain_table.h"
#include "desktop/planning/ranking/ranking_charts.h"
#include "desktop/shell/cell_delegate.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "desktop/team/typed_values.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

namespace kavela::desktop {

namespace {

enum Column { ReleaseColumn, PointsColumn, PositionColumn };

constexpr int TableWidth = 300;
constexpr double MostRelease = 999999999;

QStringList textsOf(const RankingEntry& entry) {
    return {entry.release ? QString::number(*entry.release) : QString(),
            entry.points.value_or(0) != 0 ? shownNumber(*entry.points) : QString(),
            numberShown(entry.position.value_or(0))};
}

std::int64_t typedRelease(const QString& text) {
    return typedWhole(
        text, {0, MostRelease,
               RankingSection::tr("The release of a ranking list is a whole number such as 4")});
}

} // namespace

RankingSection::RankingSection(QWidget* parent)
    : QWidget(parent),
      m_table(plainTable({tr("Release"), tr("Points"), tr("Position")})),
      m_cells(new CellDelegate(*m_table)),
      m_add(new QPushButton(tr("Add release"))),
      m_remove(new QPushButton(tr("Remove"))),
      m_positions(new SeriesChart),
      m_points(new SeriesChart) {
    makeTable();
    auto* const title = new QLabel(tr("Ranking list"));
    title->setFont(theme::titleFont(*this));
    m_add->setObjectName("addRelease");
    m_add->setToolTip(tr("Insert"));
    m_remove->setObjectName("removeRelease");
    m_remove->setToolTip(tr("Delete"));
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(theme::Spacing);
    buttons->addWidget(title);
    buttons->addStretch(1);
    buttons->addWidget(m_add);
    buttons->addWidget(m_remove);
    auto* const left = new QWidget;
    left->setFixedWidth(TableWidth);
    auto* const column = new QVBoxLayout(left);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::Spacing);
    column->addLayout(buttons);
    column->addWidget(m_table, 1);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::LargeSpacing);
    row->addWidget(left);
    row->addWidget(m_positions, 1);
    row->addWidget(m_points, 1);
    connect(m_add, &QPushButton::clicked, this, &RankingSection::addRelease);
    connect(m_remove, &QPushButton::clicked, this, &RankingSection::removeCurrent);
}

void RankingSection::makeTable() {
    m_table->setObjectName("releases");
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                             QAbstractItemView::AnyKeyPressed);
    m_table->horizontalHeader()->setStretchLastSection(false);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(m_table, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* item) {
        if (!m_isFilling)
            take(item->row(), item->column(), item->text());
    });
    const auto key = [this](const QString& text, Qt::Key keys, void (RankingSection::*act)()) {
        auto* const action = new QAction(text, m_table);
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, act);
        m_table->addAction(action);
    };
    key(tr("Add a release"), Qt::Key_Insert, &RankingSection::addRelease);
    key(tr("Remove the release"), Qt::Key_Delete, &RankingSection::removeCurrent);
}

void RankingSection::show(const icfdataplanning_v1* ranking) {
    const icfdataplanning_v1 none;
    const icfdataplanning_v1& shown = ranking ? *ranking : none;
    m_entries = rankingEntries(shown);
    m_add->setEnabled(ranking != nullptr);
    m_remove->setEnabled(!m_entries.empty());
    m_isFilling = true;
    m_table->setRowCount(static_cast<int>(m_entries.size()));
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const QStringList texts = textsOf(m_entries[static_cast<std::size_t>(row)]);
        for (int column = ReleaseColumn; column <= PositionColumn; ++column)
            setNumber(*m_table, row, column, texts[column]);
    }
    m_isFilling = false;
    m_positions->show(positionChart(shown));
    m_points->show(pointsChart(shown));
}

RankingEntry RankingSection::typedEntry(int column, const QString& typed) const {
    RankingEntry entry;
    if (column == ReleaseColumn)
        entry.release = typedRelease(typed);
    else if (column == PointsColumn)
        entry.points = typedPoints(typed);
    else
        entry.position = typedPosition(typed);
    return entry;
}

void RankingSection::take(int row, int column, const QString& typed) {
    const auto place = static_cast<std::size_t>(row);
    if (place >= m_entries.size() || textsOf(m_entries[place])[column] == typed)
        return;
    try {
        emit entered(place, typedEntry(column, typed));
    } catch (const RefusedEntry& refusal) {
        m_cells->refuse(refusal.reason());
        m_isFilling = true;
        setNumber(*m_table, row, column, textsOf(m_entries[place])[column]);
        m_isFilling = false;
    }
}

void RankingSection::addRelease() {
    if (!m_add->isEnabled())
        return;
    std::int64_t release = 0;
    constexpr std::int64_t Most = 999999999;
    for (const RankingEntry& entry : m_entries)
        release = std::max(release, std::min(entry.release.value_or(0), Most - 1));
    const std::size_t row = m_entries.size();
    emit entered(row, {release + 1, 0, 0});
    m_table->setFocus();
    m_table->setCurrentCell(static_cast<int>(row), PointsColumn);
    if (QTableWidgetItem* const item = m_table->currentItem())
        m_table->editItem(item);
}

void RankingSection::removeCurrent() {
    if (m_table->currentRow() >= 0)
        emit removed(static_cast<std::size_t>(m_table->currentRow()));
}

} // namespace kavela::desktop
