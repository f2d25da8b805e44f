#include "desktop/cross/trials/gate_form.h"

#include "desktop/shell/theme.h"
#include "desktop/splitfile/code_combo.h"
#include "desktop/splitfile/text_table.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QTableWidget>

#include <algorithm>

namespace kavela::desktop {

namespace {

/// A row for each gate of the course, and for those elsewhere that the trial has.
std::vector<ttupstream030> rowsOf(const ttdata030& trial, const std::vector<std::int64_t>& gates) {
    std::vector<ttupstream030> rows;
    for (const std::int64_t gate : gates) {
        const auto place = upstreamAt(trial, gate);
        rows.push_back(place ? trial.upstreams[*place] : ttupstream030{gate, {}, 0, 0});
    }
    for (const ttupstream030& upstream : trial.upstreams)
        if (std::ranges::find(gates, upstream.gateNum) == gates.end())
            rows.push_back(upstream);
    return rows;
}

QStringList textsOf(const ttupstream030& row, bool hasEntry) {
    const GateTimes times = timesOf(row.cmtimes);
    const QString turn =
        QString::fromStdString(labelOf(LabelList::UpstreamDirection, row.direction) + ", " +
                               labelOf(LabelList::UpstreamStyle, row.style));
    return {QString::number(row.gateNum), timeOrDash(times.entrance), timeOrDash(times.exit),
            timeOrDash(times.total), hasEntry ? turn : QString()};
}

} // namespace

GateForm::GateForm(QWidget* parent)
    : QWidget(parent),
      m_middle(new QCheckBox(tr("Mark the pole line too"))),
      m_direction(new CodeCombo(LabelList::UpstreamDirection)),
      m_style(new CodeCombo(LabelList::UpstreamStyle)),
      m_table(textTable({tr("Gate"), tr("In"), tr("Out"), tr("Total"), tr("Turn")})) {
    m_middle->setObjectName("gateMiddle");
    m_middle->setChecked(true);
    m_direction->setObjectName("gateDirection");
    m_style->setObjectName("gateStyle");
    m_table->setObjectName("gates");
    m_table->setToolTip(tr("A click brings a gate in front"));
    auto* turn = new QHBoxLayout;
    turn->addWidget(m_direction, 1);
    turn->addWidget(m_style, 2);
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setVerticalSpacing(theme::Spacing);
    form->addRow(m_middle);
    form->addRow(tr("Turn"), turn);
    form->addRow(m_table);
    connect(m_middle, &QCheckBox::toggled, this, &GateForm::middleToggled);
    connect(m_direction, &CodeCombo::codeChosen, this, &GateForm::directionChosen);
    connect(m_style, &CodeCombo::codeChosen, this, &GateForm::styleChosen);
    connect(m_table, &QTableWidget::cellClicked, this, [this](int row) {
        emit gateChosen(m_upstreams.at(static_cast<std::size_t>(row)).gateNum);
    });
}

bool GateForm::wantsMiddle() const {
    return m_middle->isChecked();
}

void GateForm::setTrial(const ttdata030* trial, const std::vector<std::int64_t>& gates) {
    m_upstreams = rowsOf(trial ? *trial : ttdata030{}, gates);
    m_hasEntry.clear();
    std::vector<QStringList> rows;
    for (const ttupstream030& row : m_upstreams) {
        m_hasEntry.push_back(trial && upstreamAt(*trial, row.gateNum));
        rows.push_back(textsOf(row, m_hasEntry.back()));
    }
    fillTable(*m_table, rows);
    showCodes();
}

void GateForm::setFront(std::optional<std::int64_t> gate) {
    const auto found =
        gate ? std::ranges::find(m_upstreams, *gate, &ttupstream030::gateNum) : m_upstreams.end();
    const QSignalBlocker blocked(m_table);
    if (found == m_upstreams.end())
        m_table->setCurrentItem(nullptr);
    else
        m_table->setCurrentCell(static_cast<int>(found - m_upstreams.begin()), 0);
    showCodes();
}

/// A gate has its direction and style with its first mark.
void GateForm::showCodes() {
    const int row = m_table->currentRow();
    const auto place = static_cast<std::size_t>(row);
    const bool isKnown = row >= 0 && place < m_hasEntry.size() && m_hasEntry[place];
    m_direction->setEnabled(isKnown);
    m_style->setEnabled(isKnown);
    if (!isKnown) {
        m_direction->clearCode();
        m_style->clearCode();
        return;
    }
    m_direction->setCode(m_upstreams[place].direction);
    m_style->setCode(m_upstreams[place].style);
}

} // namespace kavela::desktop
