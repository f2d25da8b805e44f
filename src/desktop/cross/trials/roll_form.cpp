#include "desktop/cross/trials/roll_form.h"

#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/splitfile/code_combo.h"
#include "splittaking/annotations/gate_marks.h"

#include <QFormLayout>

namespace kavela::desktop {

namespace {

using RollRow = std::pair<QString, QString>;

std::vector<Column<RollRow>> rollColumns() {
    return {textColumn<RollRow>(RollForm::tr("Part of the roll"), &RollRow::first),
            {.title = RollForm::tr("Time"),
             .kind = ColumnKind::Number,
             .show = [](const RollRow& row) { return Cell{row.second}; }}};
}

} // namespace

RollForm::RollForm(QWidget* parent)
    : QWidget(parent),
      m_direction(new CodeCombo(LabelList::RollDirection)),
      m_style(new CodeCombo(LabelList::RollStyle)),
      m_rows(rollColumns(), RowsKnownBy::Number) {
    m_direction->setObjectName("rollDirection");
    m_style->setObjectName("rollStyle");
    auto* table = new ColumnTable(m_rows, "roll");
    table->setOnlyShown();
    auto* roll = new QHBoxLayout;
    roll->addWidget(m_direction, 1);
    roll->addWidget(m_style, 2);
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setVerticalSpacing(theme::Spacing);
    form->addRow(tr("Roll"), roll);
    form->addRow(table);
    connect(m_direction, &CodeCombo::codeChosen, this, &RollForm::directionChosen);
    connect(m_style, &CodeCombo::codeChosen, this, &RollForm::styleChosen);
}

void RollForm::setRoll(const ttroll030* roll) {
    m_direction->setEnabled(roll);
    m_style->setEnabled(roll);
    if (roll) {
        m_direction->setCode(roll->direction);
        m_style->setCode(roll->style);
    } else {
        m_direction->clearCode();
        m_style->clearCode();
    }
    const GateTimes times =
        timesOf(roll ? std::span<const CMTime>(roll->cmtimes) : std::span<const CMTime>());
    m_rows.show({{tr("Going over"), hundredthsOrDash(times.entrance)},
                 {tr("Coming up"), hundredthsOrDash(times.exit)},
                 {tr("Total"), hundredthsOrDash(times.total)}});
}

} // namespace kavela::desktop
