#include "desktop/selection/take_over_dialog.h"

#include "desktop/people/found_lines_view.h"
#include "desktop/shell/theme.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

FoundTitles titles() {
    using Dialog = SelectionTakeOverDialog;
    return {{Dialog::tr("Category"), Dialog::tr("Phase"), Dialog::tr("Result")},
            Dialog::tr("Athlete"),
            Dialog::tr("not in the selection"),
            Dialog::tr("Leave out"),
            Dialog::tr("Add %1 to the selection")};
}

} // namespace

SelectionTakeOverDialog::SelectionTakeOverDialog(const selectionracesStruct_v3& document,
                                                 std::size_t race, FoundRuns found, BonusKind bonus,
                                                 QWidget* parent)
    : QDialog(parent),
      m_runs(document, race, std::move(found), bonus),
      m_lines(titles(), m_runs.people()),
      m_view(new FoundLinesView(m_lines)),
      m_note(new QLabel) {
    setWindowTitle(
        tr("Results of %1").arg(QString::fromStdString(document.races.at(race).location)));
    m_lines.setMayBe([this](int line, std::size_t person) { return m_runs.mayBe(line, person); });
    connect(&m_lines, &FoundLines::ticked, this, [this](int line, bool isTaken) {
        m_runs.tick(line, isTaken);
        showRuns();
    });
    connect(&m_lines, &FoundLines::chosen, this, [this](int line, const Belonging& whose) {
        m_runs.choose(line, whose);
        showRuns();
    });
    m_note->setObjectName("note");
    m_note->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_take = buttons->addButton(tr("&Take over"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_view, 1);
    column->addWidget(m_note);
    column->addWidget(buttons);
    m_take->setDefault(true); // once it is part of the dialog: a button asks that for it
    resize(1120, 600);
    showRuns();
    m_view->fitColumns();
    m_view->setFocus();
}

void SelectionTakeOverDialog::showRuns() {
    m_lines.setLines(m_runs.lines());
    const RunsToEnter::Counts& counts = m_runs.counts();
    const auto number = [](std::size_t count) { return static_cast<qulonglong>(count); };
    m_note->setText(tr("Athletes who get a result: %1, of them new in the selection: %2. Without "
                       "a result then: %3. Runs and lines that stay out: %4. A click on an athlete "
                       "chooses another one, or adds the name to the selection.")
                        .arg(number(counts.results))
                        .arg(number(counts.newAthletes))
                        .arg(number(counts.withoutResult))
                        .arg(number(counts.unused)));
    m_take->setEnabled(counts.results > 0 || counts.withoutResult > 0);
}

} // namespace kavela::desktop
