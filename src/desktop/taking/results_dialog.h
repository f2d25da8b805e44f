#pragma once

#include "desktop/shell/entry_dialog.h"
#include "desktop/shell/tables/column_model.h"
#include "splittaking/results_import.h"
#include "splittaking/results_match.h"

class QLabel;

namespace kavela::desktop {

class ColumnTable;

/// A run, its line of the list, and whether that is taken.
struct MatchedRun {
    ResultOfRun result;
    bool isTaken = false;
};

/// What an official list has for the runs of the race, before anything is taken: each run with its
/// line, which can be chosen by hand where the names differ, and the lines that were skipped or are
/// odd.
class ResultsDialog : public EntryDialog {
    Q_OBJECT

public:
    /// Runs without a real time are ticked where they have a line; others keep theirs unless the
    /// coach ticks them. `name` is that of the list's file. Runs and list must outlive the dialog.
    ResultsDialog(const std::vector<athletedata031>& runs, const ResultsList& list,
                  const QString& name, QWidget* parent = nullptr);

    /// The runs whose real time and penalty are taken, each with its line.
    [[nodiscard]] std::vector<ResultOfRun> taken() const;

private:
    [[nodiscard]] ColumnModel<MatchedRun>::Columns columns();
    [[nodiscard]] MatchedRun matched(const ResultOfRun& result) const;
    [[nodiscard]] Cell lineCell(const MatchedRun& row) const;
    void chooseLine(std::size_t place, const QString& typed);
    void change(std::size_t place, const MatchedRun& row);
    void showCount();

    const std::vector<athletedata031>& m_runs;
    const ResultsList& m_list;
    QStringList m_lines; ///< of the list, as they are offered
    ColumnModel<MatchedRun> m_rows;
    ColumnTable* m_table;
    QLabel* m_count;
};

} // namespace kavela::desktop
