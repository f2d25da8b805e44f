#include "desktop/taking/results_dialog.h"

#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typed_number.h"
#include "splitdata/run_timing.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int LineColumn = 3;

QString timeText(double seconds, std::int64_t penalty) {
    return seconds == 0 && penalty == 0
               ? QStringLiteral("–")
               : QStringLiteral("%1 (%2)").arg(shownHundredths(seconds)).arg(penalty);
}

QString lineText(const allresultsdata030& line) {
    return QStringLiteral("%1 · %2").arg(qtText(line.name), timeText(line.time, line.pen));
}

QStringList lineTexts(const ResultsList& list) {
    QStringList texts;
    for (const allresultsdata030& line : list.results)
        texts.append(lineText(line));
    return texts;
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
    : EntryDialog(parent),
      m_runs(runs),
      m_list(list),
      m_lines(lineTexts(list)),
      m_rows(columns(), RowsKnownBy::Number),
      m_table(new ColumnTable(m_rows, "resultsOfRuns")),
      m_count(new QLabel) {
    setWindowTitle(tr("Official results from %1").arg(name));
    std::vector<MatchedRun> rows;
    for (const ResultOfRun& result : matchedResults(runs, list.results))
        rows.push_back(matched(result));
    m_rows.show(std::move(rows));
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setGoesDown(true);
    m_table->stretch({LineColumn});
    m_table->keepOneChosen();
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
        box->setMaximumHeight(grown(*this, 90));
        column->addWidget(box);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    auto* import = buttons->addButton(tr("Import"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &ResultsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
    import->setDefault(true); // once it is part of the dialog: a button asks that for it
    showCount();
    resize(760, 480);
}

ColumnModel<MatchedRun>::Columns ResultsDialog::columns() {
    const auto phase = [this](const MatchedRun& row) {
        return qtText(m_runs[row.result.run].phase);
    };
    const auto now = [this](const MatchedRun& row) {
        const sectiondata030& timing = m_runs[row.result.run].sectioninfo;
        return timeText(timing.realtime, timing.realpen);
    };
    Column<MatchedRun> run{.title = tr("Run"), .show = [this](const MatchedRun& row) {
                               Cell cell{qtText(crewText(m_runs[row.result.run].names))};
                               if (row.result.line)
                                   cell.isTicked = row.isTaken;
                               return cell;
                           }};
    run.tick = [this](const std::size_t& place, const MatchedRun& row, bool isTicked) {
        change(place, {row.result, isTicked});
    };
    Column<MatchedRun> line{
        .title = tr("Line"),
        .tip = tr("Type a part of the name for another line; an emptied cell stands for none"),
        .show = [this](const MatchedRun& row) { return lineCell(row); }};
    line.take = [this](const std::size_t& place, const MatchedRun&, const QString& typed) {
        chooseLine(place, typed);
    };
    line.proposals = [this](const MatchedRun&) { return m_lines; };
    return {run, textColumn<MatchedRun>(tr("Phase"), phase),
            textColumn<MatchedRun>(tr("Real time now"), now), line};
}

/// A run that has a real time already keeps it, unless the coach ticks it.
MatchedRun ResultsDialog::matched(const ResultOfRun& result) const {
    const auto& now = m_runs[result.run].sectioninfo;
    return {result, result.line && now.realtime == 0 && now.realpen == 0};
}

Cell ResultsDialog::lineCell(const MatchedRun& row) const {
    if (!row.result.line)
        return {.text = tr("No line"), .typed = QString(), .look = Cell::Look::Quiet};
    return {.text = m_lines[static_cast<qsizetype>(*row.result.line)]};
}

/// Lines that read the same have the same to take. A part of a line that no other has will do.
void ResultsDialog::chooseLine(std::size_t place, const QString& typed) {
    ResultOfRun result{m_rows.row(static_cast<int>(place)).result.run, std::nullopt};
    if (!typed.isEmpty()) {
        QStringList meant = m_lines.contains(typed) ? QStringList(typed)
                                                    : m_lines.filter(typed, Qt::CaseInsensitive);
        if (meant.removeDuplicates(); meant.size() != 1)
            throw RefusedEntry(tr("“%1” stands in %2 lines of the list: it must be in one.")
                                   .arg(typed, QString::number(meant.size())));
        result.line = static_cast<std::size_t>(m_lines.indexOf(meant.front()));
    }
    change(place, matched(result));
}

void ResultsDialog::change(std::size_t place, const MatchedRun& row) {
    std::vector<MatchedRun> rows = m_rows.rows();
    rows.at(place) = row;
    m_rows.show(std::move(rows));
    showCount();
}

void ResultsDialog::showCount() {
    QStringList without;
    for (const MatchedRun& each : m_rows.rows())
        if (!each.result.line)
            without.append(qtText(crewText(m_runs[each.result.run].names)));
    without.removeDuplicates();
    QString text = tr("%1 lines come into the file. Real time and penalty are taken for %2 of %3 "
                      "runs: those that are ticked.")
                       .arg(m_list.results.size())
                       .arg(taken().size())
                       .arg(m_runs.size());
    if (!without.isEmpty())
        text += '\n' + tr("No line was found for %1. A part of the name, typed in the last column, "
                          "chooses one.")
                           .arg(without.join(", "));
    m_count->setText(text);
}

std::vector<ResultOfRun> ResultsDialog::taken() const {
    std::vector<ResultOfRun> ticked;
    for (const MatchedRun& each : m_rows.rows())
        if (each.isTaken)
            ticked.push_back(each.result);
    return ticked;
}

} // namespace kavela::desktop
