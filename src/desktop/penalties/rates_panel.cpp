#include "desktop/penalties/rates_panel.h"

#include "desktop/charts/interval_chart.h"
#include "desktop/penalties/figure_cells.h"
#include "desktop/penalties/penalty_contents.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/why/why_popup.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

#include <array>

namespace kavela::desktop {

namespace {

using RateColumn = Column<RateRow, std::string>;

/// By column, what explains its numbers; empty for names.
constexpr std::array<const char*, 11> ReasonOfColumn{"",        "touches", "touches", "touches",
                                                     "touches", "rate",    "rate",    "above",
                                                     "missed",  "missed",  "missed"};

Cell::Look lookOf(const RateRow& row) {
    return row.standsOut() ? Cell::Look::Bold : Cell::Look::Plain;
}

RateColumn figures(const QString& title, const QString& tip,
                   std::function<Cell(const RateRow&)> show) {
    return {.title = title, .tip = tip, .kind = ColumnKind::Number, .show = std::move(show)};
}

template <class Value>
std::optional<Value> partOf(const std::optional<RateOf>& rate, Value RateOf::*part) {
    return rate ? std::optional((*rate).*part) : std::nullopt;
}

std::vector<RateColumn> touchColumns() {
    return {figures(RatesPanel::tr("Passages"), RatesPanel::tr("Runs that came past"),
                    [](const RateRow& row) {
                        return countCell(partOf(row.touches, &RateOf::of), lookOf(row));
                    }),
            figures(RatesPanel::tr("Touches"), {},
                    [](const RateRow& row) {
                        return countCell(partOf(row.touches, &RateOf::count), lookOf(row));
                    }),
            figures(RatesPanel::tr("Rate %"), RatesPanel::tr("Touches of 100 passages"),
                    [](const RateRow& row) {
                        return percentCell(partOf(row.touches, &RateOf::rate), lookOf(row));
                    }),
            figures(RatesPanel::tr("90 %"), RatesPanel::tr("Where the rate lies with 90 %"),
                    [](const RateRow& row) {
                        return percentRangeCell(partOf(row.touches, &RateOf::interval),
                                                lookOf(row));
                    })};
}

std::vector<RateColumn> rankedColumns() {
    return {figures(RatesPanel::tr("Ranked %"),
                    RatesPanel::tr("Drawn towards what all have in common, the more the fewer the "
                                   "passages"),
                    [](const RateRow& row) { return percentCell(row.shrunk.rate, lookOf(row)); }),
            figures(RatesPanel::tr("Ranked 90 %"), RatesPanel::tr("Where the ranked rate lies"),
                    [](const RateRow& row) {
                        return percentRangeCell(row.shrunk.interval, lookOf(row));
                    }),
            figures(RatesPanel::tr("Above %"),
                    RatesPanel::tr("The chance to be above what all have in common; from 95 the "
                                   "row is bold"),
                    [](const RateRow& row) { return percentCell(row.shrunk.above, lookOf(row)); })};
}

std::vector<RateColumn> missedColumns() {
    return {figures(RatesPanel::tr("Missed"), RatesPanel::tr("Missed gates"),
                    [](const RateRow& row) {
                        return countCell(partOf(row.missed, &RateOf::count), lookOf(row));
                    }),
            figures(RatesPanel::tr("Missed %"), {},
                    [](const RateRow& row) {
                        return percentCell(partOf(row.missed, &RateOf::rate), lookOf(row));
                    }),
            figures(RatesPanel::tr("Missed 90 %"), {}, [](const RateRow& row) {
                return percentRangeCell(partOf(row.missed, &RateOf::interval), lookOf(row));
            })};
}

std::vector<RateColumn> rateColumns(RateBy by) {
    std::vector<RateColumn> columns{{.title = rowTitleOf(by), .show = [](const RateRow& row) {
                                         Cell cell = textCell(nameOf(row), lookOf(row));
                                         if (row.number)
                                             cell.sortValue = static_cast<double>(*row.number);
                                         return cell;
                                     }}};
    for (auto part : {touchColumns(), rankedColumns(), missedColumns()})
        for (RateColumn& column : part)
            columns.push_back(std::move(column));
    return columns;
}

} // namespace

RatesPanel::RatesPanel(Workspace& workspace, QWidget* parent)
    : QWidget(parent),
      m_rows(rateColumns(RateBy::Gate), [](const RateRow& row) { return row.key; }),
      m_by(new QComboBox),
      m_chart(new IntervalChart),
      m_table(new ColumnTable(m_rows, "rates")) {
    for (std::size_t i = 0; i < RateByNames.size(); ++i)
        m_by->addItem(titleOf(static_cast<RateBy>(i)));
    m_by->setObjectName("by");
    m_by->setMaxVisibleItems(m_by->count());
    auto* label = new QLabel(tr("&Rates"));
    label->setBuddy(m_by);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_by);
    row->addStretch();
    m_table->setEmptyText(tr("No run that is asked for has its penalties by gate."));
    m_table->stretch({0});
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_chart);
    splitter->addWidget(m_table);
    shareSizes(*splitter, {340, 300});
    rememberSizes(*splitter, workspace, "penalties/rates");
    auto* column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addLayout(row);
    column->addWidget(splitter, 1);
    connectParts();
}

void RatesPanel::connectParts() {
    connect(m_by, &QComboBox::currentIndexChanged, this, &RatesPanel::byChanged);
    connect(m_chart, &IntervalChart::markActivated, this, [this](std::size_t mark) {
        m_table->choose(static_cast<int>(mark));
        m_table->setFocus();
    });
    answerWhy(m_table, [this](const QModelIndex& cell) {
        return whyOf(m_table->placeAt(cell), cell.column());
    });
    answerWhy(m_chart->focusProxy(), [this](const QPoint& at) -> std::optional<Reason> {
        const auto mark = at.x() < 0 ? m_chart->current() : m_chart->markAt(at);
        constexpr int Ranked = 5;
        return mark ? whyOf(static_cast<int>(*mark), Ranked) : std::nullopt;
    });
}

RateBy RatesPanel::by() const {
    return static_cast<RateBy>(m_by->currentIndex());
}

void RatesPanel::setBy(RateBy by) {
    m_by->setCurrentIndex(static_cast<int>(by));
}

void RatesPanel::show(const SharedFigures& figures) {
    const bool isOther = !m_figures || m_figures->question.by != figures->question.by;
    m_figures = figures;
    if (isOther)
        m_rows.setColumns(rateColumns(figures->question.by));
    m_rows.show(figures->rates.rows, isOther);
    m_chart->show(ratesContent(figures->rates));
}

std::optional<Reason> RatesPanel::whyOf(int place, int column) const {
    const auto reason = static_cast<std::size_t>(column);
    if (!m_figures || place < 0 || column < 0 || reason >= ReasonOfColumn.size())
        return {};
    const std::string what = ReasonOfColumn[reason];
    if (what.empty())
        return {};
    return m_figures->why(what + '/' + std::string(kavela::nameOf(m_figures->question.by)) + '/' +
                          m_rows.row(place).key);
}

} // namespace kavela::desktop
