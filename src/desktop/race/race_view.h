#pragma once

#include "desktop/race/race_document.h"
#include "desktop/race/split_table_model.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
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
class RunPanel;
class Workspace;

/// One race in the analyzer: the coloured split table with its filters, the charts below, and
/// beside them the selected run, the ideal run and the potential of each athlete.
class RaceView : public QWidget {
    Q_OBJECT

public:
    explicit RaceView(Workspace& workspace, QWidget* parent = nullptr);

    /// Opens a split file; false, after an alert, when that failed.
    [[nodiscard]] bool open(const QString& path);

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
    [[nodiscard]] QWidget* makeFilterBar();
    [[nodiscard]] QWidget* makeNoteBar();
    void showDocument();
    void showTable();
    void showSelection();
    void fillFilters();
    void applyFilter();
    void noticeChange();
    void requestMoment(const QModelIndex& index);
    void showNote(const QString& note, bool offersReload);
    void rememberColumns();
    void resetColumns();

    Workspace& m_workspace;
    RaceDocument m_document;
    SplitTableModel m_model;
    FrozenTable* m_table = nullptr;
    RunPanel* m_run = nullptr;
    IdealPanel* m_ideal = nullptr;
    PotentialPanel* m_potential = nullptr;
    MotionPanel* m_motion = nullptr;
    QTabWidget* m_side = nullptr;
    ChartPanel* m_charts = nullptr;
    QLabel* m_title = nullptr;
    QLabel* m_subtitle = nullptr;
    QWidget* m_noteBar = nullptr;
    QLabel* m_note = nullptr;
    QPushButton* m_reload = nullptr;
    QLabel* m_count = nullptr;
    QComboBox* m_phase = nullptr;
    QComboBox* m_category = nullptr;
    QLineEdit* m_name = nullptr;
};

} // namespace kavela::desktop
