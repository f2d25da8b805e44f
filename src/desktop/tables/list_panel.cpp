#include "desktop/tables/list_panel.h"

#include "desktop/charts/series_chart.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"
#include "desktop/tables/table_chart.h"
#include "desktop/why/why_popup.h"
#include "tables/table_error.h"

#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr const char* TintScaleKey = "tables/blueOrange";
constexpr int ReasonColumn = 3;

/// The column that ranks the rows is the one to draw first; empty where there is none.
std::string firstCharted(const ListTable& table) {
    try {
        return table.columns[resultColumn(table)].name;
    } catch (const TableError&) {
        return {};
    }
}

/// By which column a table is sorted at last.
std::optional<SortStep> lastSorting(const std::vector<TableStep>& steps) {
    for (auto step = steps.rbegin(); step != steps.rend(); ++step)
        if (const auto* const sorting = std::get_if<SortStep>(&*step))
            return *sorting;
    return std::nullopt;
}

} // namespace

ListPanel::ListPanel(TableDocument& document, Workspace& workspace, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_workspace(workspace),
      m_rows(ListColumns()),
      m_refused(refusedColumns()),
      m_scale(workspace.remembered(TintScaleKey).isEmpty() ? ColourScale::GreenRed
                                                           : ColourScale::BlueOrange) {
    makeParts();
    connectParts();
}

ListPanel::~ListPanel() {
    // The parts report to the panel while they are taken apart.
    m_table->disconnect(this);
    m_table->selectionModel()->disconnect(this);
    m_chart->disconnect(this);
}

/// Columns are left out, sorted and grouped by steps alone, which can be taken back; they have no
/// places of their own that could go wrong when others come and go.
void ListPanel::makeParts() {
    m_notes = new QLabel;
    m_notes->setObjectName("notes");
    m_notes->setWordWrap(true);
    m_notes->setContentsMargins(theme::Spacing, theme::SmallSpacing, theme::Spacing, 0);
    m_table = new ColumnTable(m_rows, "");
    m_table->setAccessibleName(tr("List"));
    m_table->setEmptyText(tr("No row is left. Ctrl+Z takes the last step back."));
    m_table->keepOrder();
    m_table->keepOneChosen();
    m_table->setContextMenuPolicy(Qt::CustomContextMenu);
    QHeaderView* const header = m_table->horizontalHeader();
    header->setSectionsClickable(true);
    header->setSectionsMovable(false);
    header->setSortIndicatorShown(true);
    header->disconnect(SIGNAL(customContextMenuRequested(QPoint)));
    m_chart = new SeriesChart;
    m_refusedTable = new ColumnTable(m_refused, "refused");
    m_refusedTable->setEmptyText(tr("Every cell was taken."));
    m_refusedTable->stretch({ReasonColumn});
    m_tabs = new QTabWidget;
    m_tabs->setDocumentMode(true);
    m_tabs->addTab(m_chart, tr("Chart"));
    m_tabs->addTab(m_refusedTable, tr("Refused"));
    auto* const splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_table);
    splitter->addWidget(m_tabs);
    shareSizes(*splitter, {430, 260});
    rememberSizes(*splitter, m_workspace, "tables/parts");
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addWidget(m_notes);
    column->addWidget(splitter, 1);
}

void ListPanel::connectParts() {
    QHeaderView* const header = m_table->horizontalHeader();
    connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ListPanel::currentChanged);
    connect(header, &QHeaderView::sectionClicked, this, [this](int column) {
        const auto before = lastSorting(m_document.steps());
        chooseColumn(column);
        const auto at = currentColumn();
        if (!at)
            return;
        const bool isAgain = before && before->column == m_document.table()->columns[*at].name;
        emit sortRequested(isAgain && !before->isDescending);
    });
    connect(header, &QWidget::customContextMenuRequested, this, [this, header](const QPoint& at) {
        chooseColumn(header->logicalIndexAt(at));
        if (currentColumn())
            emit menuRequested(header->mapToGlobal(at), true);
    });
    connect(m_table, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        emit menuRequested(m_table->viewport()->mapToGlobal(at), false);
    });
    answerWhy(m_table, [this](const QModelIndex& cell) -> std::optional<Reason> {
        const ListedRow& listed = m_rows.row(m_table->placeAt(cell));
        return listed.group || cell.column() < 0
                   ? std::nullopt
                   : m_document.whyOf(listed.row, static_cast<std::size_t>(cell.column()));
    });
    connect(m_chart, &SeriesChart::pointActivated, this, [this](int series, int index) {
        const auto& points = m_chart->content().series.at(static_cast<std::size_t>(series)).points;
        chooseRow(static_cast<std::size_t>(points.at(static_cast<std::size_t>(index)).x()));
    });
}

void ListPanel::chooseRow(std::size_t row) {
    const auto isIt = [row](const ListedRow& listed) { return !listed.group && listed.row == row; };
    const auto found = std::ranges::find_if(m_rows.rows(), isIt);
    if (found != m_rows.rows().end())
        m_table->choose(static_cast<int>(found - m_rows.rows().begin()));
}

void ListPanel::chooseColumn(int column) {
    m_table->choose(m_table->currentPlace(), column);
}

bool ListPanel::chooseLine(std::int64_t line, std::optional<std::int64_t> column) {
    const ListTable& table = *m_document.table();
    const auto row = std::ranges::find(table.lines, line);
    if (row == table.lines.end())
        return false;
    const auto place = column ? std::ranges::find(table.columns, *column, &GridColumn::source)
                              : table.columns.end();
    chooseRow(static_cast<std::size_t>(row - table.lines.begin()));
    if (place != table.columns.end())
        chooseColumn(static_cast<int>(place - table.columns.begin()));
    m_table->setFocus();
    return true;
}

std::optional<std::size_t> ListPanel::currentRow() const {
    const int place = m_table->currentPlace();
    return place < 0 ? std::nullopt : std::optional(m_rows.row(place).row);
}

std::optional<std::size_t> ListPanel::currentColumn() const {
    const int column = m_table->currentIndex().column();
    if (column < 0 || static_cast<std::size_t>(column) >= m_document.table()->columns.size())
        return std::nullopt;
    return static_cast<std::size_t>(column);
}

void ListPanel::drawCurrent() {
    const auto column = currentColumn();
    if (!column)
        return;
    m_charted = m_document.table()->columns[*column].name;
    showPage(Chart);
    showChartOf(*column);
}

void ListPanel::showPage(Page page) {
    m_tabs->setCurrentIndex(page);
}

void ListPanel::setScale(ColourScale scale) {
    m_scale = scale;
    m_workspace.remember(TintScaleKey,
                         scale == ColourScale::BlueOrange ? QStringList("1") : QStringList());
    showRows();
}

void ListPanel::show(const QStringList& left) {
    const ListTable& table = *m_document.table();
    QStringList notes = left;
    for (const std::string& note : table.notes)
        notes.append(qtText(note));
    m_notes->setText(notes.join('\n'));
    m_notes->setVisible(!notes.isEmpty());
    showRows();
    showSorting();
    m_refused.show(table.refused, true);
    m_tabs->setTabText(Refused, table.refused.empty()
                                    ? tr("Refused")
                                    : tr("Refused (%1)").arg(table.refused.size()));
    // Without a step the list is another one, or as it was opened.
    if (m_charted.empty() || m_document.steps().empty())
        m_charted = firstCharted(table);
    const auto charted = std::ranges::find(table.columns, m_charted, &GridColumn::name);
    showChartOf(static_cast<std::size_t>(charted - table.columns.begin()));
}

/// The cursor stays with the line of the list that it was in, as far as that is still shown.
void ListPanel::showRows() {
    const std::shared_ptr<const ListTable>& table = m_document.table();
    const int column = std::max(m_table->currentIndex().column(), 0);
    const int place = m_table->currentPlace();
    const qint64 line = m_lines.value(place); // 0 for none
    std::vector<ListedRow> rows = listedRows(*table);
    QList<qint64> lines;
    for (const ListedRow& row : rows)
        lines.append(row.group ? 0 : table->lines[row.row]);
    m_lines = lines;
    m_rows.setColumns(listColumns(m_document, m_scale));
    m_rows.show(std::move(rows), true);
    const qsizetype kept = line > 0 ? lines.indexOf(line) : -1;
    if (!lines.isEmpty())
        m_table->choose(static_cast<int>(kept >= 0 ? kept : 0),
                        std::min(column, m_rows.columnCount() - 1));
}

void ListPanel::showSorting() {
    const auto sorting = lastSorting(m_document.steps());
    const auto& columns = m_document.table()->columns;
    const auto sorted =
        sorting ? std::ranges::find(columns, sorting->column, &GridColumn::name) : columns.end();
    const int place = sorted == columns.end() ? -1 : static_cast<int>(sorted - columns.begin());
    m_table->horizontalHeader()->setSortIndicator(
        place, sorting && sorting->isDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void ListPanel::showChartOf(std::size_t column) {
    m_chart->show(columnContent(*m_document.table(), column));
}

} // namespace kavela::desktop
