#include "desktop/penalties/trade_off_panel.h"

#include "desktop/charts/series_chart.h"
#include "desktop/penalties/figure_cells.h"
#include "desktop/penalties/penalty_contents.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/why/why_popup.h"
#include "performance/penalty_words.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela::desktop {

namespace {

/// By column, which figure of a third it shows; empty for none.
constexpr std::array<const char*, 7> FigureOfColumn{"",       "runs",     "touches", "touches",
                                                    "missed", "paddling", "total"};
constexpr int TableHeight = 6; ///< lines

Column<TradeOffRow, int> figure(const QString& title, const QString& tip,
                                std::function<Cell(const TradeOffRow&)> show) {
    return {.title = title, .tip = tip, .kind = ColumnKind::Number, .show = std::move(show)};
}

std::vector<Column<TradeOffRow, int>> thirdColumns() {
    const auto touches = [](const TradeOffRow& row) { return numberCell(row.touchesPerRun, 2); };
    const auto range = [](const TradeOffRow& row) {
        return Cell{.text = shownNumber(row.interval.low, 2) + QStringLiteral("–") +
                            shownNumber(row.interval.high, 2),
                    .sortValue = row.interval.low};
    };
    const QString ofMedian = TradeOffPanel::tr("In percent of the median of its group");
    return {{.title = TradeOffPanel::tr("By paddling time"),
             .show = [](const TradeOffRow& row) { return textCell(thirdText(row.third)); }},
            figure(TradeOffPanel::tr("Runs"), {},
                   [](const TradeOffRow& row) { return countCell(row.runs); }),
            figure(TradeOffPanel::tr("Touches a run"), {}, touches),
            figure(TradeOffPanel::tr("90 %"), TradeOffPanel::tr("Exact interval of the touches"),
                   range),
            figure(TradeOffPanel::tr("Missed a run"), {},
                   [](const TradeOffRow& row) { return numberCell(row.missedPerRun, 2); }),
            figure(TradeOffPanel::tr("Paddling %"), ofMedian,
                   [](const TradeOffRow& row) { return numberCell(row.paddling, 1); }),
            figure(TradeOffPanel::tr("Total %"), ofMedian,
                   [](const TradeOffRow& row) { return numberCell(row.total, 1); })};
}

} // namespace

TradeOffPanel::TradeOffPanel(QWidget* parent)
    : QWidget(parent),
      m_rows(thirdColumns(), [](const TradeOffRow& row) { return row.third; }),
      m_chart(new SeriesChart),
      m_breakEven(new QLabel),
      m_table(new ColumnTable(m_rows, "thirds")) {
    m_breakEven->setObjectName("breakEven");
    m_breakEven->setFont(theme::titleFont(*this));
    m_breakEven->setFocusPolicy(Qt::TabFocus); // the keyboard asks it why
    m_breakEven->setWordWrap(true);
    m_table->setEmptyText(tr("No group has enough whole runs to be divided."));
    m_table->stretch({0});
    m_table->setMaximumHeight(TableHeight * (fontMetrics().height() + theme::Spacing));
    auto* column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_breakEven);
    column->addWidget(m_chart, 1);
    column->addWidget(m_table);
    answerWhy(m_table, [this](const QModelIndex& cell) {
        return whyOf(m_table->placeAt(cell), cell.column());
    });
    connect(m_chart, &SeriesChart::hoveredAt, this, [this](double x) { m_cursor = x; });
    connect(m_chart, &SeriesChart::hoverEnded, this, [this] { m_cursor.reset(); });
    answerWhy(m_chart->focusProxy(), [this](const QPoint&) { return whyAtCursor(); });
    answerWhy(m_breakEven, [this](const QPoint&) {
        return m_figures ? m_figures->why("breakeven") : std::nullopt;
    });
}

void TradeOffPanel::show(const SharedFigures& figures) {
    m_figures = figures;
    m_breakEven->setText(shownWords(breakEvenWords(figures->tradeOff)));
    m_breakEven->setVisible(!m_breakEven->text().isEmpty());
    m_rows.show(figures->tradeOff.rows);
    m_chart->show(tradeOffContent(figures->tradeOff));
}

/// The touches of the third that is nearest.
std::optional<Reason> TradeOffPanel::whyAtCursor() const {
    const std::vector<TradeOffRow>& rows = m_rows.rows();
    if (!m_cursor || rows.empty())
        return {};
    const auto nearest = std::ranges::min_element(
        rows, {}, [this](const TradeOffRow& row) { return std::abs(row.paddling - *m_cursor); });
    constexpr int Touches = 2;
    return whyOf(static_cast<int>(nearest - rows.begin()), Touches);
}

std::optional<Reason> TradeOffPanel::whyOf(int place, int column) const {
    const auto figure = static_cast<std::size_t>(column);
    if (!m_figures || place < 0 || column < 0 || figure >= FigureOfColumn.size())
        return {};
    const std::string what = FigureOfColumn[figure];
    if (what.empty())
        return {};
    return m_figures->why("third/" + std::to_string(m_rows.row(place).third) + '/' + what);
}

} // namespace kavela::desktop
