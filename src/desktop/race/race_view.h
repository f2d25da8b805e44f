#pragma once

#include "desktop/race/race_document.h"
#include "desktop/race/split_table_model.h"

#include <QWidget>

class QLabel;
class QMenu;
class QPushButton;
class QSplitter;
class QTabWidget;

namespace kavela::desktop {

class ChartPanel;
class FrozenTable;
class IdealPanel;
class MotionPanel;
class PotentialPanel;
class RaceHeader;
class KeptSelection;
class RunPanel;
class Workspace;

/// One race in the analyzer: the coloured split table with its filters, the charts below, and
/// beside them the selected run, the ideal run and the potential of each athlete.
class RaceView : public QWidget {
    Q_OBJECT

public:
    explicit RaceView(Workspace& workspace, QWidget* parent = nullptr);

    /// Opens a split file; false, after an alert, when that failed.
    [[nodiscard]] bool open(ReadRace& race);
    /// Shows a race as it is being edited elsewhere; `note` says what its file does not hold.
    void showRace(splittakerdata031 race, const QString& path, const QString& note);

    [[nodiscard]] RaceDocument& document() { return m_document; }
    [[nodiscard]] const RaceDocument& document() const { return m_document; }
    [[nodiscard]] SplitTableModel& model() { return m_model; }
    [[nodiscard]] const SplitTableModel& model() const { return m_model; }
    [[nodiscard]] FrozenTable& table() const { return *m_table; }
    [[nodiscard]] ChartPanel& charts() const { return *m_charts; }
    [[nodiscard]] MotionPanel& motion() const { return *m_motion; }
    [[nodiscard]] QTabWidget& side() const { return *m_side; }

    /// Only the table, as where several races stand side by side.
    void setCompact(bool isCompact);

    /// The table alone over the whole window, or the charts where the keyboard is in them; and
    /// everything again.
    void setEnlarged(bool isEnlarged);
    [[nodiscard]] bool isEnlarged() const { return m_enlarged != nullptr; }

    void setContent(CellContent content);
    void setReference(ReferenceKind kind);
    /// The selected run, or comparison row, as the reference.
    void useSelectionAsReference();
    void setScale(ColourScale scale);
    /// Asks for a run of another race to hold the runs against.
    void compareWithOtherRace();

    void findName();
    void clearFilter();
    void selectRun(std::size_t run);
    /// The run of the file in the current row; none in a comparison row and without a row.
    [[nodiscard]] std::optional<std::size_t> currentRun() const;
    /// The selected runs of the file, in the order in which they were selected.
    [[nodiscard]] std::vector<std::size_t> selectedRuns() const;
    void copySelection();
    void saveCsv();
    /// Shows the reports of the race as they come out of the printer.
    void previewReports();
    void reload();
    /// Offers every column to be shown or hidden.
    void fillColumnMenu(QMenu& menu);

signals:
    /// What the menus show of the view is another.
    void stateChanged();
    /// The frame behind a time: a run of the file, a split counted from 1.
    void momentRequested(int run, std::size_t split);

private:
    void makeCentre();
    [[nodiscard]] QWidget* makeWork();
    [[nodiscard]] QWidget* makeSide();
    [[nodiscard]] QWidget* makeNoteBar();
    void showParts();
    void showDocument();
    void showTable();
    void showRuns();
    void showSelection();
    [[nodiscard]] QList<int> allRows() const;
    [[nodiscard]] QString courseNote() const;
    [[nodiscard]] QString referenceText() const;
    void noticeChange();
    void requestMoment(const QModelIndex& index);
    void showNote(const QString& note, bool offersReload);
    void rememberColumns();
    void resetColumns();
    void layOutColumns(const QStringList& layout);

    Workspace& m_workspace;
    RaceDocument m_document;
    SplitTableModel m_model;
    RaceHeader* m_header;
    FrozenTable* m_table = nullptr;
    KeptSelection* m_selection = nullptr;
    const QWidget* m_enlarged = nullptr; ///< table or charts, where one of them is alone
    bool m_isCompact = false;
    unsigned m_shownVersion = 0; ///< of the runs in the charts
    RunPanel* m_run = nullptr;
    IdealPanel* m_ideal = nullptr;
    PotentialPanel* m_potential = nullptr;
    MotionPanel* m_motion = nullptr;
    QTabWidget* m_side = nullptr;
    ChartPanel* m_charts = nullptr;
    QWidget* m_noteBar = nullptr;
    QLabel* m_note = nullptr;
    QPushButton* m_reload = nullptr;
};

} // namespace kavela::desktop
