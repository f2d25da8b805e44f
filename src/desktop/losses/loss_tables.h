#pragma once

#include "desktop/losses/loss_rows.h"

#include <QTabWidget>

namespace kavela::desktop {

class ColumnTable;
class LossState;

/// The tables of losses: the stretches of the run, the runs that it competes with, its gates, what
/// was noted of it, and the ways it chose. They show what the state says, and tell it what is
/// chosen.
class LossTables : public QTabWidget {
    Q_OBJECT

public:
    explicit LossTables(LossState& state, QWidget* parent = nullptr);

    [[nodiscard]] ColumnTable& stretches() const { return *m_stretchTable; }
    [[nodiscard]] ColumnTable& runs() const { return *m_runTable; }
    [[nodiscard]] ColumnTable& gates() const { return *m_gateTable; }
    [[nodiscard]] ColumnTable& notes() const { return *m_noteTable; }
    [[nodiscard]] ColumnTable& ways() const { return *m_wayTable; }

    /// Shows a table and gives it the focus.
    void goToTable(int index);
    /// The run that is chosen in the table of runs becomes the reference.
    void makeChosenReference();

signals:
    /// A stretch of the run is to be played.
    void stretchActivated(std::size_t stretch);

private:
    void connectTables();
    void makeAnswers();
    void showState();
    void showSection();
    void takeStretch();
    void takeRun();
    void takeGate();

    LossState& m_state;
    StretchModel m_stretches;
    RunModel m_runs;
    GateModel m_gates;
    NoteModel m_notes;
    WayModel m_ways;
    bool m_isShowing = false; ///< what is chosen follows the state, and tells it nothing
    std::size_t m_gateColumns = 1;
    ColumnTable* m_stretchTable;
    ColumnTable* m_runTable;
    ColumnTable* m_gateTable;
    ColumnTable* m_noteTable;
    ColumnTable* m_wayTable;
};

} // namespace kavela::desktop
