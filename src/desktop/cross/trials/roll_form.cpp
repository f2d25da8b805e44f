#include "desktop/cross/trials/roll_form.h"

#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "splittaking/annotations/gate_marks.h"

#include <QVBoxLayout>

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
      m_codes(new CodeForm<ttroll030>([this](const QString&, const auto& act) { emit edited(act); },
                                      FieldForm::Arrangement::Beside)),
      m_rows(rollColumns(), RowsKnownBy::Number) {
    m_codes->code({.name = "rollDirection", .label = tr("Roll"), .stretch = 1},
                  LabelList::RollDirection, &ttroll030::direction);
    m_codes->code({.name = "rollStyle", .label = tr("Style"), .stretch = 2}, LabelList::RollStyle,
                  &ttroll030::style);
    auto* table = new ColumnTable(m_rows, "roll");
    table->setOnlyShown();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_codes);
    column->addWidget(table, 1);
}

void RollForm::setRoll(const ttroll030* roll) {
    m_codes->show(roll);
    const GateTimes times =
        timesOf(roll ? std::span<const CMTime>(roll->cmtimes) : std::span<const CMTime>());
    m_rows.show({{tr("Going over"), hundredthsOrDash(times.entrance)},
                 {tr("Coming up"), hundredthsOrDash(times.exit)},
                 {tr("Total"), hundredthsOrDash(times.total)}});
}

} // namespace kavela::desktop
