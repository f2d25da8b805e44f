#include "desktop/watertests/take_run_dialog.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "planning/eight_test.h"
#include "planning/test_from_run.h"
#include "splitdata/run_timing.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <numeric>

namespace kavela::desktop {

namespace {

/// "5", or "3 of 5" when some sections were not timed.
QString sectionText(const std::vector<double>& times) {
    const auto timed = std::ranges::count_if(times, [](double time) { return time > 0; });
    return timed == std::ssize(times) ? QString::number(timed)
                                      : TakeRunDialog::tr("%1 of %2").arg(timed).arg(times.size());
}

double totalOf(const athletedata031& run) {
    const std::vector<double>& times = run.sectioninfo.times;
    return std::accumulate(times.begin(), times.end(), 0.0);
}

using Run = const athletedata031*;

Column<Run> textColumn(const QString& title, QString (*text)(const athletedata031&)) {
    return {.title = title, .show = [text](Run run) { return Cell{text(*run)}; }};
}

std::vector<Column<Run>> runColumns() {
    return {
        textColumn(TakeRunDialog::tr("Athlete"),
                   [](const athletedata031& run) { return qtText(crewText(run.names)); }),
        textColumn(TakeRunDialog::tr("Category"),
                   [](const athletedata031& run) { return qtText(run.cat); }),
        textColumn(TakeRunDialog::tr("Phase"),
                   [](const athletedata031& run) { return qtText(run.phase); }),
        textColumn(TakeRunDialog::tr("Sections"),
                   [](const athletedata031& run) { return sectionText(run.sectioninfo.times); }),
        {.title = TakeRunDialog::tr("Total"),
         .unit = TakeRunDialog::tr("s"),
         .kind = ColumnKind::Number,
         .show =
             [](Run run) {
                 return Cell{.text = shownHundredths(totalOf(*run)), .number = totalOf(*run)};
             }},
        textColumn(TakeRunDialog::tr("Motion"), [](const athletedata031& run) {
            return run.bm.empty() ? QString() : TakeRunDialog::tr("yes");
        })};
}

} // namespace

TakeRunDialog::TakeRunDialog(splittakerdata031 file, std::filesystem::path folder, QWidget* parent)
    : QDialog(parent),
      m_file(std::move(file)),
      m_folder(std::move(folder)),
      m_kind(new QComboBox),
      m_model(runColumns()),
      m_runs(new ColumnTable(m_model, "runs")),
      m_hint(new QLabel) {
    setWindowTitle(tr("Take in tests from “%1”").arg(qtText(m_file.info.title)));
    m_kind->setObjectName("kind");
    for (const TestKind kind : {TestKind::Lap, TestKind::Sprint, TestKind::Eight})
        m_kind->addItem(kindText(kind), static_cast<int>(kind));
    m_kind->setCurrentIndex(m_file.info.totalsplits == EightSplits ? 2 : 0);
    m_hint->setWordWrap(true);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    std::vector<Run> runs;
    for (const athletedata031& run : m_file.athletes)
        runs.push_back(&run);
    m_model.show(std::move(runs));
    m_runs->stretch({0});
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_take = buttons->addButton(tr("Take in"), QDialogButtonBox::AcceptRole);
    auto* form = new QFormLayout(this);
    form->setSpacing(theme::Spacing);
    form->addRow(tr("&Test"), m_kind);
    form->addRow(m_runs);
    form->addRow(m_hint);
    form->addRow(buttons);
    connect(m_kind, &QComboBox::currentIndexChanged, this, &TakeRunDialog::showChoice);
    connect(m_runs->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TakeRunDialog::showChoice);
    connect(m_runs, &QTableView::doubleClicked, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(720, 460);
    m_runs->selectRow(0);
    showChoice();
}

TestKind TakeRunDialog::kind() const {
    return static_cast<TestKind>(m_kind->currentData().toInt());
}

void TakeRunDialog::showChoice() {
    const auto count = m_runs->selectionModel()->selectedRows().size();
    m_take->setEnabled(count > 0);
    m_take->setText(count > 1 ? tr("Take %1 runs in").arg(count) : tr("Take in"));
    switch (kind()) {
    case TestKind::Lap:
        m_hint->setText(tr("Each section of the run becomes a lap."));
        break;
    case TestKind::Sprint:
        m_hint->setText(tr("Each section of the run becomes a stretch of the sprint."));
        break;
    case TestKind::Eight:
        m_hint->setText(tr("The first five sections become the splits, with their marks in the "
                           "video; the motion samples of the run tell its rotation."));
        break;
    }
}

std::vector<TestsDocument::Content> TakeRunDialog::tests() const {
    std::vector<TestsDocument::Content> tests;
    for (const int place : m_runs->selectedPlaces()) {
        const athletedata031& run = *m_model.row(place);
        if (kind() == TestKind::Eight)
            tests.emplace_back(eightFromRun(m_file.info, run, m_folder));
        else
            tests.emplace_back(
                testFromRun(m_file.info, run,
                            kind() == TestKind::Sprint ? water_test::Sprint : water_test::Lap));
    }
    return tests;
}

} // namespace kavela::desktop
