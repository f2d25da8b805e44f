#include "desktop/penalties/cost_panel.h"

#include "desktop/penalties/figure_cells.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/why/why_popup.h"
#include "performance/penalty_words.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

using Row = CostPanel::Row;
using CostColumn = Column<Row, std::string>;

constexpr int GateColumn = 4;

Cell::Look lookOf(const Row& row) {
    return row.cost.isMedal() ? Cell::Look::Bold : Cell::Look::Plain;
}

CostColumn text(const QString& title, QString Row::*member) {
    return {.title = title,
            .show = [member](const Row& row) { return textCell(row.*member, lookOf(row)); }};
}

CostColumn number(const QString& title, const QString& tip,
                  std::function<std::optional<std::size_t>(const PenaltyCost&)> value) {
    return {.title = title,
            .tip = tip,
            .kind = ColumnKind::Number,
            .show = [value = std::move(value)](const Row& row) {
                return countCell(value(row.cost), lookOf(row));
            }};
}

QString costWords(const PenaltyCost& cost) {
    const QString words = shownWords(wordsOf(cost));
    return cost.isMedal() ? CostPanel::tr("%1 A medal.").arg(words) : words;
}

std::vector<CostColumn> costColumns() {
    const auto places = [](int rank) { return std::optional(static_cast<std::size_t>(rank)); };
    return {
        text(CostPanel::tr("Crew"), &Row::crew),
        text(CostPanel::tr("Category"), &Row::category),
        text(CostPanel::tr("Phase"), &Row::phase),
        text(CostPanel::tr("Race"), &Row::race),
        number(CostPanel::tr("Gate"), {},
               [](const PenaltyCost& cost) {
                   return std::optional(static_cast<std::size_t>(cost.gate));
               }),
        number(CostPanel::tr("Section"), {}, [](const PenaltyCost& cost) { return cost.section; }),
        number(CostPanel::tr("Seconds"), CostPanel::tr("2 for a touch, 50 for a missed gate"),
               [](const PenaltyCost& cost) {
                   return std::optional(static_cast<std::size_t>(cost.seconds));
               }),
        number(CostPanel::tr("Rank"), CostPanel::tr("As it was"),
               [=](const PenaltyCost& cost) { return places(cost.rank); }),
        number(CostPanel::tr("of"), {},
               [](const PenaltyCost& cost) { return std::optional(cost.of); }),
        number(CostPanel::tr("Places"), CostPanel::tr("That it cost"),
               [=](const PenaltyCost& cost) { return places(cost.places()); }),
        {.title = CostPanel::tr("Without it"), .show = [](const Row& row) {
             Cell cell = textCell(costWords(row.cost), lookOf(row));
             cell.sortValue = row.cost.without;
             if (row.cost.isMissedGate())
                 cell.tip = CostPanel::tr("A missed gate also saved paddling, which is not "
                                          "taken back here.");
             return cell;
         }}};
}

} // namespace

CostPanel::CostPanel(QWidget* parent)
    : QWidget(parent),
      m_rows(costColumns(), [](const Row& row) { return row.key; }),
      m_sentence(new QLabel),
      m_only(new QLabel),
      m_all(new QPushButton(tr("Show &all"))),
      m_table(new ColumnTable(m_rows, "costs")) {
    m_sentence->setObjectName("costSentence");
    m_all->setObjectName("allCosts");
    auto* line = new QHBoxLayout;
    line->addWidget(m_sentence, 1);
    line->addWidget(m_only);
    line->addWidget(m_all);
    m_table->setEmptyText(tr("No penalty of a whole run is known by gate."));
    m_table->stretch({0, 3});
    auto& open = m_table->addCommand(tr("Open the run at this section"), Qt::Key_Return,
                                     [this] { openCurrent(); });
    open.setToolTip(tr("In split taking, where the section of the gate begins"));
    auto* column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addLayout(line);
    column->addWidget(m_table, 1);
    showAll();
    connect(m_all, &QPushButton::clicked, this, &CostPanel::showAll);
    connect(m_table, &QTableView::doubleClicked, this, &CostPanel::openCurrent);
    answerWhy(m_table, [this](const QModelIndex& cell) {
        return whyOf(m_table->placeAt(cell), cell.column());
    });
}

QString CostPanel::sentence() const {
    return m_sentence->text();
}

std::vector<Row> CostPanel::rowsOf(const PenaltyFigures& figures) const {
    std::vector<Row> rows;
    for (const PenaltyCost& cost : figures.costs) {
        const RunRow& run = figures.facts->runs()[cost.run];
        rows.push_back({cost, qtText(figures.facts->text(run.crew)),
                        qtText(figures.files[run.file]), qtText(figures.facts->text(run.category)),
                        qtText(figures.facts->text(run.phase)), figures.idOf(cost)});
    }
    return rows;
}

void CostPanel::show(const SharedFigures& figures) {
    m_figures = figures;
    m_sentence->setText(shownWords(wordsOf(figures->costs)));
    m_rows.show(rowsOf(*figures));
    applyGate();
}

void CostPanel::showGate(std::uint32_t file, qint64 gate) {
    if (!m_figures)
        return;
    m_gate = Gate{std::string(m_figures->facts->text(m_figures->facts->files()[file].path)), gate};
    applyGate();
}

void CostPanel::showAll() {
    m_gate.reset();
    applyGate();
}

void CostPanel::applyGate() {
    m_only->setVisible(m_gate.has_value());
    m_all->setVisible(m_gate.has_value());
    if (!m_gate) {
        m_table->setFilter({});
        return;
    }
    m_only->setText(tr("Only gate %1").arg(m_gate->number));
    m_table->setFilter([this, gate = *m_gate](int place) {
        const Row& row = m_rows.row(place);
        const FactStore& facts = *m_figures->facts;
        return row.cost.gate == gate.number &&
               facts.text(facts.fileOf(facts.runs()[row.cost.run]).path) == gate.path;
    });
}

void CostPanel::openCurrent() {
    if (const int place = m_table->currentPlace(); m_figures && place >= 0)
        emit placeRequested(placeOf(*m_figures->facts, m_rows.row(place).cost));
}

std::optional<Reason> CostPanel::whyOf(int place, int column) const {
    if (!m_figures || place < 0 || column < GateColumn)
        return {};
    return m_figures->why(m_rows.row(place).key);
}

} // namespace kavela::desktop
