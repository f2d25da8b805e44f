#pragma once

#include "desktop/cross/trials/trial_marks.h"
#include "desktop/shell/tables/column_model.h"
#include "desktop/splitfile/code_form.h"

#include <QWidget>

class QCheckBox;

namespace kavela::desktop {

class ColumnTable;

/// An upstream gate of the course, and what a trial has of it.
struct GateRow {
    ttupstream030 gate;
    bool isKnown = false; ///< the trial has an entry for it
};

/// The upstream gates of a time trial: their times, and direction and style of the gate in front.
/// Changes nothing itself.
class GateForm : public QWidget {
    Q_OBJECT

public:
    explicit GateForm(QWidget* parent = nullptr);

    /// The gates of the course with what the trial has of them; null for no trial.
    void setTrial(const ttdata030* trial, const std::vector<std::int64_t>& gates);
    void setFront(std::optional<std::int64_t> gate);

signals:
    void gateChosen(std::int64_t gate);
    void edited(const std::function<void(ttupstream030&)>& change); ///< of the gate in front
    void middleToggled(bool wantsMiddle); ///< the pole line is to be marked, too

private:
    void showTurn();

    QCheckBox* m_middle;
    CodeForm<ttupstream030>* m_turn;
    ColumnModel<GateRow> m_rows;
    ColumnTable* m_table;
};

} // namespace kavela::desktop
