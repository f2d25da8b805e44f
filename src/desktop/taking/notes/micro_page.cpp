#include "desktop/taking/notes/micro_page.h"

#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "desktop/splitfile/text_table.h"
#include "splittaking/annotations/refusals.h"
#include "splittaking/annotations/strokes.h"

#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace kavela::desktop {

MicroPage::MicroPage(NoteDesk& desk)
    : NotePage(desk), m_table(textTable({tr("Mark"), tr("Time"), tr("From the one before")})) {
    m_table->setObjectName("microSplits");
    auto* hint = new QLabel(tr("M marks a micro split at the frame shown."));
    hint->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addWidget(hint);
    column->addWidget(m_table, 1);
    connect(m_table, &QTableWidget::cellClicked, this, [this](int row) {
        emit picked({MarkKind::MicroSplit, static_cast<std::size_t>(row)});
    });
}

void MicroPage::refresh() {
    std::vector<QStringList> rows;
    if (const athletedata031* const run = m_desk.record()) {
        double before = 0;
        for (const microsplitsdata025& micro : run->microsplits) {
            rows.push_back({QString::number(rows.size() + 1), shownHundredths(micro.time),
                            shownHundredths(micro.time - before)});
            before = micro.time;
        }
    }
    fillTable(*m_table, rows);
}

void MicroPage::mark(const Stamps& stamps) {
    if (refuses(refusalOfMicroSplit(*m_desk.record(), stamps.front())))
        return;
    edit(tr("micro split"), [&](athletedata031& run) { (void)addMicroSplit(run, stamps.front()); });
    emit marked(MarkKind::MicroSplit, stamps.front());
    emit flashed(shownHundredths(runSecondsAt(*m_desk.record(), stamps.front())));
}

} // namespace kavela::desktop
