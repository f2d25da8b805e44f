#pragma once

#include "desktop/selection/runs_to_enter.h"

#include <QDialog>

class QLabel;
class QPushButton;

namespace kavela::desktop {

class FoundLinesView;

/// What a file has for a race of a selection, before any of it is entered: each run with the
/// athlete it belongs to, the result that is there and the one that will be; and who is left
/// without one.
class SelectionTakeOverDialog : public QDialog {
    Q_OBJECT

public:
    /// `document` must stay as it is as long as the dialog is open.
    SelectionTakeOverDialog(const selectionracesStruct_v3& document, std::size_t race,
                            FoundRuns found, BonusKind bonus, QWidget* parent);

    /// What is to be entered.
    [[nodiscard]] FoundRuns chosen() const { return m_runs.chosen(); }

    [[nodiscard]] FoundLines& lines() { return m_lines; }
    [[nodiscard]] FoundLinesView& view() { return *m_view; }

private:
    void showRuns();

    RunsToEnter m_runs;
    FoundLines m_lines;
    FoundLinesView* m_view;
    QLabel* m_note;
    QPushButton* m_take = nullptr;
};

} // namespace kavela::desktop
