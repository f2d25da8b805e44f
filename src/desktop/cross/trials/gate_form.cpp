#include "desktop/cross/trials/gate_form.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/splitfile/film_table.h"

#include <QCheckBox>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

/// A row for each gate of the course, and for those elsewhere that the trial has.
std::vector<GateRow> rowsOf(const ttdata030& trial, const std::vector<std::int64_t>& gates) {
    std::vector<GateRow> rows;
    for (const std::int64_t gate : gates) {
        const auto place = upstreamAt(trial, gate);
        rows.push_back(place ? GateRow{trial.upstreams[*place], true}
                             : GateRow{{gate, {}, 0, 0}, false});
    }
    for (const ttupstream030& upstream : trial.upstreams)
        if (std::ranges::find(gates, upstream.gateNum) == gates.end())
            rows.push_back({upstream, true});
    return rows;
}

QString gateTurnText(const GateRow& row) {
    if (!row.isKnown)
        return {};
    return qtText(labelOf(LabelList::UpstreamDirection, row.gate.direction) + ", " +
                  labelOf(LabelList::UpstreamStyle, row.gate.style));
}

Column<GateRow> gateTimeColumn(const QString& title, double GateTimes::*time) {
    return {.title = title, .kind = ColumnKind::Number, .show = [time](const GateRow& row) {
                return Cell{hundredthsOrDash(timesOf(row.gate.cmtimes).*time)};
            }};
}

std::vector<Column<GateRow>> gateColumns() {
    return {{.title = GateForm::tr("Gate"),
             .kind = ColumnKind::Number,
             .show = [](const GateRow& row) { return Cell{QString::number(row.gate.gateNum)}; }},
            gateTimeColumn(GateForm::tr("In"), &GateTimes::entrance),
            gateTimeColumn(GateForm::tr("Out"), &GateTimes::exit),
            gateTimeColumn(GateForm::tr("Total"), &GateTimes::total),
            textColumn<GateRow>(GateForm::tr("Turn"), gateTurnText)};
}

} // namespace

GateForm::GateForm(QWidget* parent)
    : QWidget(parent),
      m_middle(new QCheckBox(tr("Mark the pole line too"))),
      m_turn(
          new CodeForm<ttupstream030>([this](const QString&, const auto& act) { emit edited(act); },
                                      FieldForm::Arrangement::Beside)),
      m_rows(gateColumns(), RowsKnownBy::Number),
      m_table(filmTable(m_rows, "gates")) {
    m_middle->setObjectName("gateMiddle");
    m_middle->setChecked(true);
    m_turn->code({.name = "gateDirection", .label = tr("Turn"), .stretch = 1},
                 LabelList::UpstreamDirection, &ttupstream030::direction);
    m_turn->code({.name = "gateStyle", .label = tr("Style"), .stretch = 2},
                 LabelList::UpstreamStyle, &ttupstream030::style);
    m_table->setToolTip(tr("A click brings a gate in front"));
    m_table->stretch({m_rows.columnCount() - 1});
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_middle);
    column->addWidget(m_turn);
    column->addWidget(m_table, 1);
    connect(m_middle, &QCheckBox::toggled, this, &GateForm::middleToggled);
    connect(m_table, &ColumnTable::clicked, this, [this](const QModelIndex& cell) {
        emit gateChosen(m_rows.row(m_table->placeAt(cell)).gate.gateNum);
    });
}

void GateForm::setTrial(const ttdata030* trial, const std::vector<std::int64_t>& gates) {
    m_rows.show(rowsOf(trial ? *trial : ttdata030{}, gates));
    showTurn();
}

void GateForm::setFront(std::optional<std::int64_t> gate) {
    const auto found = gate ? std::ranges::find(m_rows.rows(), *gate,
                                                [](const GateRow& row) { return row.gate.gateNum; })
                            : m_rows.rows().end();
    const int place =
        found == m_rows.rows().end() ? -1 : static_cast<int>(found - m_rows.rows().begin());
    if (place != m_table->currentPlace())
        m_table->choose(place, 0);
    showTurn();
}

/// A gate has its direction and style with its first mark.
void GateForm::showTurn() {
    const int place = m_table->currentPlace();
    const bool isKnown = place >= 0 && m_rows.row(place).isKnown;
    m_turn->show(isKnown ? &m_rows.row(place).gate : nullptr);
}

} // namespace kavela::desktop
