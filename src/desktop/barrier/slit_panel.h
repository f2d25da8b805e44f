#pragma once

#include "desktop/barrier/slit_marking.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;

namespace kavela::desktop {

class ColumnTable;
class FaultLabel;

/// What stands beside a slit picture: the line in front and its split, the runs with their marks,
/// and the proposals.
class SlitPanel : public QWidget {
    Q_OBJECT

public:
    SlitPanel();

    void showLines(const SlitMarking& marking, std::size_t lines, const SlitRace& race);
    void showRows(SlitMarking::Rows rows);
    /// The race, and why no run is listed where none is.
    void showRace(const SlitRace& race, const QString& film, bool hasLine);
    /// What goes on beside the window, 0 to 1; empty for nothing.
    void showWork(const QString& what, double share);
    void tell(const QString& text);
    void setFiner(bool isFiner);

    [[nodiscard]] ColumnTable& runTable() const { return *m_runTable; }
    [[nodiscard]] ColumnTable& proposalTable() const { return *m_proposalTable; }
    [[nodiscard]] const std::vector<SlitRunRow>& runs() const { return m_runs.rows(); }
    /// The row of the run that is chosen; null for none.
    [[nodiscard]] const SlitRunRow* chosen() const;

signals:
    void lineChosen(std::size_t line);
    void splitChosen(std::size_t split);
    void pointChosen(TimingPoint point);
    void raceWanted();
    void finerChosen(bool isFiner);
    void runChosen();  ///< another one is the current row
    void runClicked(); ///< or the same again
    /// With the run of the race that it falls to, below 0 for none.
    void proposalChosen(double seconds, int run);

private:
    void makeLayout();

    ColumnModel<SlitRunRow> m_runs;
    ColumnModel<ProposalRow> m_proposals;
    QComboBox* m_line;
    QComboBox* m_split;
    QComboBox* m_point; ///< its data are those of TimingPoint
    QLabel* m_race;
    QPushButton* m_openRace;
    ColumnTable* m_runTable;
    ColumnTable* m_proposalTable;
    QCheckBox* m_finer;
    QProgressBar* m_progress;
    FaultLabel* m_note;
};

} // namespace kavela::desktop
