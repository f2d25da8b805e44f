#include "desktop/taking/results_dialog.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "splitdata/run_timing.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

enum ResultColumn { RunColumn, PhaseColumn, NowColumn, LineColumn, Columns };

QString timeText(double seconds, std::int64_t penalty) {
    return seconds == 0 && penalty == 0
               ? QStringLiteral("–")
               : QStringLiteral("%1 (%2)").arg(shownHundredths(seconds)).arg(penalty);
}

QString lineText(const allresultsdata030& line) {
    return QStringLiteral("%1 · %2").arg(qtText(line.name), timeText(line.time, line.pen));
}

/// The lines that were not taken, and those that were though they are odd.
QString remarks(const ResultsList& list) {
    QStringList lines;
    for (const auto* some : {&list.skipped, &list.doubtful})
        for (const SkippedLine& line : *some)
            lines.append(ResultsDialog::tr("Line %1: %2").arg(line.line).arg(qtText(line.reason)));
    return lines.join('\n');
}

} // namespace

ResultsDialog::ResultsDialog(const std::vector<athletedata031>& runs, const ResultsList& list,
                             const QString& name, QWidget* parent)
    : QDialog(parent),
      m_runs(runs),
      m_list(list),
      m_matched(matchedResults(runs, list.results)),
      m_table(new QTableWidget(static_cast<int>(runs.size()), Columns)),
      m_count(new QLabel) {
    setWindowTitle(tr("Official results from %1").arg(name));
    m_table->setObjectName("resultsOfRuns");
    m_table->setHorizontalHeaderLabels({tr("Run"), tr("Phase"), tr("Real time now"), tr("Line")});
    m_table->verticalHeader()->hide();
    m_table->setSelectionMode(QAbstractItemView::NoSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_count->setObjectName("resultsCount");
    m_count->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_count);
    column->addWidget(m_table, 1);
    if (const QString told = remarks(list); !told.isEmpty()) {
        auto* box = new QPlainTextEdit(told);
        box->setObjectName("resultsRemarks");
        box->setReadOnly(true);
        box->setMaximumHeight(90);
        column->addWidget(box);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    auto* import = buttons->addButton(tr("Import"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
    import->setDefault(true); // once it is part of the dialog: a button asks that for it
    for (int row = 0; row < m_table->rowCount(); ++row)
        fillRow(row);
    m_table->resizeColumnsToContents();
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->horizontalHeader()->setStretchLastSection(true);
    connect(m_table, &QTableWidget::itemChanged, this, &ResultsDialog::showCount);
    showCount();
    resize(760, 480);
}

/// A run that has a real time already keeps it, unless the coach ticks it.
void ResultsDialog::fillRow(int row) {
    const athletedata031& run = m_runs[static_cast<std::size_t>(row)];
    auto* name = new QTableWidgetItem(qtText(crewText(run.names)));
    m_table->setItem(row, RunColumn, name);
    m_table->setItem(row, PhaseColumn, new QTableWidgetItem(qtText(run.phase)));
    m_table->setItem(
        row, NowColumn,
        new QTableWidgetItem(timeText(run.sectioninfo.realtime, run.sectioninfo.realpen)));
    auto* lines = new QComboBox;
    lines->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    lines->setMinimumContentsLength(24);
    lines->addItem(tr("No line"));
    for (const allresultsdata030& line : m_list.results)
        lines->addItem(lineText(line));
    m_table->setCellWidget(row, LineColumn, lines);
    const auto line = m_matched[static_cast<std::size_t>(row)].line;
    lines->setCurrentIndex(line ? static_cast<int>(*line) + 1 : 0);
    chooseLine(row, line);
    connect(lines, &QComboBox::currentIndexChanged, this, [this, row](int place) {
        chooseLine(row,
                   place > 0 ? std::optional(static_cast<std::size_t>(place) - 1) : std::nullopt);
    });
}

void ResultsDialog::chooseLine(int row, std::optional<std::size_t> line) {
    m_matched[static_cast<std::size_t>(row)].line = line;
    const athletedata031& run = m_runs[static_cast<std::size_t>(row)];
    const bool hasNone = run.sectioninfo.realtime == 0 && run.sectioninfo.realpen == 0;
    QTableWidgetItem& tick = *m_table->item(row, RunColumn);
    tick.setFlags(line ? Qt::ItemIsEnabled | Qt::ItemIsUserCheckable : Qt::ItemIsEnabled);
    tick.setCheckState(line && hasNone ? Qt::Checked : Qt::Unchecked);
    showCount();
}

void ResultsDialog::showCount() {
    QStringList without;
    for (const ResultOfRun& each : m_matched)
        if (!each.line)
            without.append(qtText(crewText(m_runs[each.run].names)));
    without.removeDuplicates();
    QString text = tr("%1 lines come into the file. Real time and penalty are taken for %2 of %3 "
                      "runs: those that are ticked.")
                       .arg(m_list.results.size())
                       .arg(taken().size())
                       .arg(m_runs.size());
    if (!without.isEmpty())
        text += '\n' + tr("No line was found for %1.").arg(without.join(", "));
    m_count->setText(text);
}

std::vector<ResultOfRun> ResultsDialog::taken() const {
    std::vector<ResultOfRun> ticked;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const QTableWidgetItem* const tick = m_table->item(row, RunColumn);
        const ResultOfRun& each = m_matched[static_cast<std::size_t>(row)];
        if (tick && tick->checkState() == Qt::Checked && each.line)
            ticked.push_back(each);
    }
    return ticked;
}

} // namespace kavela::desktop
