#include "desktop/taking/notes/micro_page.h"

#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/taking/notes/note_marks.h"
#include "splittaking/annotations/refusals.h"
#include "splittaking/annotations/strokes.h"

#include <QLabel>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

std::vector<Column<MicroRow>> microColumns() {
    return {numberColumn<MicroRow>(MicroPage::tr("Mark"), &MicroRow::number,
                                   [](double number) { return shownNumber(number); }),
            numberColumn<MicroRow>(MicroPage::tr("Time"), &MicroRow::seconds, shownHundredths),
            numberColumn<MicroRow>(MicroPage::tr("From the one before"), &MicroRow::sinceBefore,
                                   shownHundredths)};
}

} // namespace

MicroPage::MicroPage(NoteDesk& desk)
    : NotePage(desk),
      m_micros(microColumns(), RowsKnownBy::Number),
      m_table(noteTable(m_micros, "microSplits", [this](int place) {
          emit picked({MarkKind::MicroSplit, static_cast<std::size_t>(place)});
      })) {
    auto* hint = new QLabel(tr("M marks a micro split at the frame shown."));
    hint->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addWidget(hint);
    column->addWidget(m_table, 1);
}

void MicroPage::refresh() {
    std::vector<MicroRow> rows;
    if (const athletedata031* const run = m_desk.record()) {
        double before = 0;
        for (const microsplitsdata025& micro : run->microsplits) {
            rows.push_back({rows.size() + 1, micro.time, micro.time - before});
            before = micro.time;
        }
    }
    m_micros.show(std::move(rows));
    showChosen();
}

/// The row of the mark that is selected, wherever it was.
void MicroPage::showChosen() {
    m_table->choose(hasSelection() ? static_cast<int>(m_desk.marks->selected()->handle.record)
                                   : -1);
}

void MicroPage::mark(const Stamps& stamps) {
    if (refuses(refusalOfMicroSplit(*m_desk.record(), stamps.front())))
        return;
    edit(tr("micro split"), [&](athletedata031& run) { (void)addMicroSplit(run, stamps.front()); });
    emit marked(MarkKind::MicroSplit, stamps.front());
    emit flashed(shownHundredths(runSecondsAt(*m_desk.record(), stamps.front())));
}

} // namespace kavela::desktop
