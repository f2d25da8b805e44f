#pragma once

#include "splittaking/results_import.h"
#include "splittaking/results_match.h"

#include <QDialog>

class QLabel;
class QTableWidget;

namespace kavela::desktop {

/// What an official list has for the runs of the race, before anything is taken: each run with its
/// line, which can be chosen by hand where the names differ, and the lines that were skipped or are
/// odd.
class ResultsDialog : public QDialog {
    Q_OBJECT

public:
    /// Runs without a real time are ticked where they have a line; others keep theirs unless the
    /// coach ticks them. `name` is that of the list's file. Runs and list must outlive the dialog.
    ResultsDialog(const std::vector<athletedata031>& runs, const ResultsList& list,
                  const QString& name, QWidget* parent = nullptr);

    /// The runs whose real time and penalty are taken, each with its line.
    [[nodiscard]] std::vector<ResultOfRun> taken() const;

private:
    void fillRow(int row);
    void chooseLine(int row, std::optional<std::size_t> line);
    void showCount();

    const std::vector<athletedata031>& m_runs;
    const ResultsList& m_list;
    std::vector<ResultOfRun> m_matched;
    QTableWidget* m_table;
    QLabel* m_count;
};

} // namespace kavela::desktop
