#include "desktop/penalties/details_panel.h"

#include "desktop/charts/interval_chart.h"
#include "desktop/penalties/figure_cells.h"
#include "desktop/penalties/penalty_contents.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/why/why_popup.h"
#include "performance/penalty_words.h"

#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int FirstFigure = 2; ///< column
constexpr int ShareColumn = 4;

/// What nobody noted stands back behind what was.
Cell::Look lookOf(const DetailRow& row) {
    return row.code ? Cell::Look::Plain : Cell::Look::Quiet;
}

std::vector<Column<DetailRow>> detailColumns() {
    const auto figures = [](const QString& title, const QString& tip,
                            std::function<Cell(const DetailRow&)> show) {
        return Column<DetailRow>{
            .title = title, .tip = tip, .kind = ColumnKind::Number, .show = std::move(show)};
    };
    return {
        {.title = DetailsPanel::tr("What"),
         .show = [](const DetailRow& row) { return textCell(detailFieldText(row.field)); }},
        {.title = DetailsPanel::tr("Noted as"),
         .show =
             [](const DetailRow& row) { return textCell(qtText(detailText(row)), lookOf(row)); }},
        figures(DetailsPanel::tr("Penalties"), {},
                [](const DetailRow& row) { return countCell(row.share.count, lookOf(row)); }),
        figures(DetailsPanel::tr("of"),
                DetailsPanel::tr("Those of which this was noted; for those of which it was not "
                                 "noted, all penalties"),
                [](const DetailRow& row) { return countCell(row.share.of, lookOf(row)); }),
        figures(DetailsPanel::tr("Share %"), {},
                [](const DetailRow& row) { return percentCell(row.share.rate, lookOf(row)); }),
        figures(DetailsPanel::tr("90 %"), DetailsPanel::tr("Where the share lies with 90 %"),
                [](const DetailRow& row) {
                    return percentRangeCell(row.share.interval, lookOf(row));
                })};
}

} // namespace

DetailsPanel::DetailsPanel(Workspace& workspace, QWidget* parent)
    : QWidget(parent),
      m_rows(detailColumns(), RowsKnownBy::WhatTheyShow),
      m_sentence(new QLabel),
      m_chart(new IntervalChart),
      m_table(new ColumnTable(m_rows, "details")) {
    m_sentence->setObjectName("detailsSentence");
    m_sentence->setWordWrap(true);
    m_table->setEmptyText(tr("No penalty was noted in detail. Split taking notes them."));
    m_table->stretch({0, 1});
    makeLayout(workspace);
    connect(m_chart, &IntervalChart::markActivated, this, [this](std::size_t mark) {
        if (const auto place = placeOf(mark)) {
            m_table->choose(*place);
            m_table->setFocus();
        }
    });
    answerWhy(m_table, [this](const QModelIndex& cell) {
        return whyOf(m_table->placeAt(cell), cell.column());
    });
    answerWhy(m_chart->focusProxy(), [this](const QPoint& at) -> std::optional<Reason> {
        const auto place = placeOf(at.x() < 0 ? m_chart->current() : m_chart->markAt(at));
        return place ? whyOf(*place, ShareColumn) : std::nullopt;
    });
}

void DetailsPanel::makeLayout(Workspace& workspace) {
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_chart);
    splitter->addWidget(m_table);
    shareSizes(*splitter, {340, 260});
    rememberSizes(*splitter, workspace, "penalties/details");
    auto* column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_sentence);
    column->addWidget(splitter, 1);
}

QString DetailsPanel::sentence() const {
    return m_sentence->text();
}

void DetailsPanel::show(const SharedFigures& figures) {
    m_figures = figures;
    m_sentence->setText(shownWords(wordsOf(figures->details)));
    std::vector<DetailRow> rows = figures->details.rows;
    if (figures->details.noted == 0)
        rows.clear(); // nothing but rows of what was not noted
    m_chart->show(detailsContent(rows, m_table->emptyText()));
    m_rows.show(std::move(rows));
}

/// Rows of what was not noted are passed over by the chart.
std::optional<int> DetailsPanel::placeOf(std::optional<std::size_t> mark) const {
    std::size_t before = 0;
    const std::vector<DetailRow>& rows = m_rows.rows();
    for (std::size_t place = 0; mark && place < rows.size(); ++place)
        if (rows[place].code && before++ == *mark)
            return static_cast<int>(place);
    return std::nullopt;
}

std::optional<Reason> DetailsPanel::whyOf(int place, int column) const {
    if (!m_figures || place < 0 || column < FirstFigure)
        return {};
    const DetailRow& row = m_rows.row(place);
    return m_figures->why("detail/" + std::string(row.field) + '/' +
                          (row.code ? std::to_string(*row.code) : std::string("-")));
}

} // namespace kavela::desktop
